#include "demo_host/host_script.h"

#include <algorithm>

#include "demo_host/inbound_record.h"

namespace veltrix::demo_host {

ScriptStep ScriptStep::Send(std::vector<std::uint8_t> record) {
  return {Kind::kSend, std::move(record), false};
}

ScriptStep ScriptStep::Expect(std::vector<std::uint8_t> record) {
  return {Kind::kExpect, std::move(record), false};
}

ScriptStep ScriptStep::ExpectAny() { return {Kind::kExpect, {}, true}; }

ScriptStep ScriptStep::Close() { return {Kind::kClose, {}, false}; }

ScriptedApplication::ScriptedApplication(std::vector<ScriptStep> steps)
    : steps_(std::move(steps)) {}

HostOutput ScriptedApplication::Begin(const StationInfo&) { return RunSends(); }

HostOutput ScriptedApplication::OnRecord(std::span<const std::uint8_t> record) {
  received_.emplace_back(record.begin(), record.end());
  const std::size_t index = received_.size();
  if (finished()) {
    mismatches_.push_back("record " + std::to_string(index) +
                          " after the script ended: " + HexBytes(record));
    return {};
  }
  const ScriptStep& step = steps_[next_++];
  const bool same =
      step.any || std::equal(record.begin(), record.end(), step.record.begin(), step.record.end());
  if (!same) {
    mismatches_.push_back("record " + std::to_string(index) + ": expected " +
                          HexBytes(step.record) + ", received " + HexBytes(record));
  }
  HostOutput out = RunSends();
  out.log.insert(out.log.begin(), "received " + HexBytes(record));
  return out;
}

HostOutput ScriptedApplication::RunSends() {
  HostOutput out;
  while (!finished() && steps_[next_].kind != ScriptStep::Kind::kExpect) {
    const ScriptStep& step = steps_[next_++];
    if (step.kind == ScriptStep::Kind::kClose) {
      out.close = true;
      break;
    }
    out.records.push_back(step.record);
  }
  return out;
}

}  // namespace veltrix::demo_host
