#include "demo_host/host_script.h"

#include <algorithm>
#include <cstdio>

#include "demo_host/inbound_record.h"

namespace veltrix::demo_host {

ScriptStep ScriptStep::Send(std::vector<std::uint8_t> record) {
  return {Kind::kSend, std::move(record), false, -1};
}

ScriptStep ScriptStep::Expect(std::vector<std::uint8_t> record) {
  return {Kind::kExpect, std::move(record), false, -1};
}

ScriptStep ScriptStep::ExpectAny() { return {Kind::kExpect, {}, true, -1}; }

ScriptStep ScriptStep::ExpectAid(std::uint8_t aid) { return {Kind::kExpect, {}, false, aid}; }

ScriptStep ScriptStep::Close() { return {Kind::kClose, {}, false, -1}; }

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
  if (step.aid >= 0) {
    const InboundRecord in = ParseAidRecord(record);
    if (!in.ok || !in.has_aid || in.aid != step.aid) {
      char expected[8];
      std::snprintf(expected, sizeof expected, "%02X", step.aid);
      mismatches_.push_back("record " + std::to_string(index) + ": expected AID " + expected +
                            ", received " + HexBytes(record));
    }
  } else if (!step.any &&
             !std::equal(record.begin(), record.end(), step.record.begin(), step.record.end())) {
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
