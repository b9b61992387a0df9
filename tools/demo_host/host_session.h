#ifndef VELTRIX_TOOLS_DEMO_HOST_HOST_SESSION_H_
#define VELTRIX_TOOLS_DEMO_HOST_HOST_SESSION_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "demo_host/host_application.h"
#include "demo_host/telnet_stream.h"

namespace veltrix::demo_host {

// One connection of the host, without any socket: bytes from the station in, bytes to send out.
// It negotiates like a midrange host (NEW-ENVIRON, TERMINAL-TYPE, then EOR and BINARY both ways)
// and then hands every 5250 record to the application.
class HostSession {
 public:
  // With `negotiate` false the application starts at once (for scripts of raw records).
  explicit HostSession(std::unique_ptr<HostApplication> application, bool negotiate = true);

  std::vector<std::uint8_t> Start();
  std::vector<std::uint8_t> Receive(std::span<const std::uint8_t> bytes);

  bool running() const { return phase_ == Phase::kRunning; }
  bool wants_close() const { return close_; }
  const StationInfo& station() const { return station_; }
  HostApplication& application() { return *application_; }
  // The 5250 records received since the application started, in order, as long as they fit
  // in kMaxKeptBytes together (later ones are handed on but not kept).
  const std::vector<std::vector<std::uint8_t>>& records() const { return records_; }
  static constexpr std::size_t kMaxKeptBytes = 1 << 20;
  // A station that sends this many malformed records in a row is sending garbage: it is dropped.
  static constexpr int kMaxBadRecords = 16;
  // Log lines gathered since the last call.
  std::vector<std::string> TakeLog();

 private:
  enum class Phase { kEnviron, kTerminalType, kFraming, kRunning };

  void OnOption(std::uint8_t verb, std::uint8_t option, std::vector<std::uint8_t>& out);
  void OnSubnegotiation(std::uint8_t option, std::span<const std::uint8_t> bytes,
                        std::vector<std::uint8_t>& out);
  void AskTerminalType(std::vector<std::uint8_t>& out);
  void AskFraming(std::vector<std::uint8_t>& out);
  void Run(std::vector<std::uint8_t>& out);
  void Emit(HostOutput output, std::vector<std::uint8_t>& out);

  std::unique_ptr<HostApplication> application_;
  bool negotiate_;
  Phase phase_ = Phase::kEnviron;
  TelnetStream telnet_;
  StationInfo station_;
  // Answers still awaited in the framing phase: DO EOR, WILL EOR, DO BINARY, WILL BINARY.
  bool awaiting_[4] = {false, false, false, false};
  bool close_ = false;
  void CountRecord(const TelnetEvent& event);

  std::vector<std::vector<std::uint8_t>> records_;
  std::size_t kept_bytes_ = 0;
  int bad_in_a_row_ = 0;
  std::vector<std::string> log_;
};

// NEW-ENVIRON IS data (after the IS byte) as name/value pairs.
void ParseEnvironment(std::span<const std::uint8_t> bytes,
                      std::map<std::string, std::string>& environment);

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_HOST_SESSION_H_
