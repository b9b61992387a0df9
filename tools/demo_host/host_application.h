#ifndef VELTRIX_TOOLS_DEMO_HOST_HOST_APPLICATION_H_
#define VELTRIX_TOOLS_DEMO_HOST_HOST_APPLICATION_H_

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace veltrix::demo_host {

// What the Telnet negotiation learnt about the display station.
struct StationInfo {
  std::string terminal_type;                       // "IBM-3179-2", ...
  std::map<std::string, std::string> environment;  // NEW-ENVIRON variables, VAR and USERVAR
};

// What an application hands back to the session.
struct HostOutput {
  std::vector<std::vector<std::uint8_t>> records;  // 5250 records, unframed
  std::vector<std::string> log;                    // lines for the operator
  bool close = false;                              // end the connection after sending
};

// The program that runs on the host once the Telnet negotiation is done.
class HostApplication {
 public:
  virtual ~HostApplication() = default;
  virtual HostOutput Begin(const StationInfo& station) = 0;
  // `record` is one complete 5250 record from the station (without IAC EOR).
  virtual HostOutput OnRecord(std::span<const std::uint8_t> record) = 0;
};

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_HOST_APPLICATION_H_
