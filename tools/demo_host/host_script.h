#ifndef VELTRIX_TOOLS_DEMO_HOST_HOST_SCRIPT_H_
#define VELTRIX_TOOLS_DEMO_HOST_HOST_SCRIPT_H_

#include <cstdint>
#include <string>
#include <vector>

#include "demo_host/host_application.h"

namespace veltrix::demo_host {

// One step of a scripted host: send a record, wait for a record from the station (compared
// byte for byte, by its AID only, or not at all), or close the connection.
struct ScriptStep {
  enum class Kind { kSend, kExpect, kClose };
  Kind kind = Kind::kSend;
  std::vector<std::uint8_t> record;  // unframed 5250 record
  bool any = false;                  // kExpect: accept whatever record comes
  int aid = -1;                      // kExpect: 0..255 compares only the AID byte

  static ScriptStep Send(std::vector<std::uint8_t> record);
  static ScriptStep Expect(std::vector<std::uint8_t> record);
  static ScriptStep ExpectAny();
  // An AID record with this AID, whatever its cursor address and field data.
  static ScriptStep ExpectAid(std::uint8_t aid);
  static ScriptStep Close();
};

// A host that plays a list of steps, for end-to-end tests: it sends every record up to the
// next expectation, then waits for the station's record. Mismatches are collected, not fatal.
class ScriptedApplication : public HostApplication {
 public:
  explicit ScriptedApplication(std::vector<ScriptStep> steps);

  HostOutput Begin(const StationInfo& station) override;
  HostOutput OnRecord(std::span<const std::uint8_t> record) override;

  bool finished() const { return next_ >= steps_.size(); }
  const std::vector<std::string>& mismatches() const { return mismatches_; }
  const std::vector<std::vector<std::uint8_t>>& received() const { return received_; }

 private:
  HostOutput RunSends();

  std::vector<ScriptStep> steps_;
  std::size_t next_ = 0;
  std::vector<std::string> mismatches_;
  std::vector<std::vector<std::uint8_t>> received_;
};

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_HOST_SCRIPT_H_
