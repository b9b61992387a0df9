#include "demo_host/host_session.h"

#include "demo_host/host_codes.h"
#include "demo_host/inbound_record.h"
#include "demo_host/outbound_record.h"

namespace veltrix::demo_host {

namespace {

void Send3(std::vector<std::uint8_t>& out, std::uint8_t verb, std::uint8_t option) {
  for (std::uint8_t b : {kIac, verb, option}) out.push_back(b);
}

bool IsOurs(std::uint8_t option) {
  return option == kOptBinary || option == kOptTerminalType || option == kOptEndOfRecord ||
         option == kOptNewEnviron;
}

}  // namespace

void ParseEnvironment(std::span<const std::uint8_t> bytes,
                      std::map<std::string, std::string>& environment) {
  std::string name, value;
  std::string* target = nullptr;
  bool escaped = false;
  auto flush = [&] {
    if (target != nullptr && !name.empty()) environment[name] = value;
    name.clear();
    value.clear();
  };
  for (const std::uint8_t b : bytes) {
    if (!escaped && (b == kEnvVar || b == kEnvUserVar)) {
      flush();
      target = &name;
    } else if (!escaped && b == kEnvValue) {
      target = target != nullptr ? &value : nullptr;
    } else if (!escaped && b == kEnvEsc) {
      escaped = true;
    } else {
      escaped = false;
      if (target != nullptr) *target += static_cast<char>(b);
    }
  }
  flush();
}

HostSession::HostSession(std::unique_ptr<HostApplication> application, bool negotiate)
    : application_(std::move(application)), negotiate_(negotiate) {}

std::vector<std::uint8_t> HostSession::Start() {
  std::vector<std::uint8_t> out;
  if (!negotiate_) {
    Run(out);
    return out;
  }
  phase_ = Phase::kEnviron;
  Send3(out, kDo, kOptNewEnviron);
  return out;
}

std::vector<std::uint8_t> HostSession::Receive(std::span<const std::uint8_t> bytes) {
  std::vector<std::uint8_t> out;
  for (TelnetEvent& event : telnet_.Feed(bytes)) {
    if (close_) break;
    switch (event.kind) {
      case TelnetEvent::Kind::kOption:
        OnOption(event.verb, event.option, out);
        break;
      case TelnetEvent::Kind::kSubnegotiation:
        OnSubnegotiation(event.option, event.bytes, out);
        break;
      case TelnetEvent::Kind::kRecord:
        CountRecord(event);
        if (close_) break;
        if (phase_ != Phase::kRunning) {
          log_.push_back("record before the negotiation ended, ignored: " + HexBytes(event.bytes));
          break;
        }
        if (kept_bytes_ + event.bytes.size() <= kMaxKeptBytes) {
          kept_bytes_ += event.bytes.size();
          records_.push_back(event.bytes);
        }
        Emit(application_->OnRecord(event.bytes), out);
        break;
    }
  }
  if (telnet_.overflowing() && !close_) {
    log_.push_back("the station sends a record longer than any record; connection closed");
    close_ = true;
  }
  return out;
}

void HostSession::OnOption(std::uint8_t verb, std::uint8_t option, std::vector<std::uint8_t>& out) {
  const bool positive = verb == kWill || verb == kDo;
  if (!IsOurs(option)) {
    // Options the host does not use are refused; refusals need no answer.
    if (verb == kWill) Send3(out, kDont, option);
    if (verb == kDo) Send3(out, kWont, option);
    return;
  }
  switch (phase_) {
    case Phase::kEnviron:
      if (option != kOptNewEnviron) return;
      if (positive) {
        out.insert(out.end(),
                   {kIac, kSb, kOptNewEnviron, kSubSend, kEnvVar, kEnvUserVar, kIac, kSe});
      } else {
        log_.push_back("station refuses NEW-ENVIRON");
        AskTerminalType(out);
      }
      return;
    case Phase::kTerminalType:
      if (option != kOptTerminalType) return;
      if (positive) {
        out.insert(out.end(), {kIac, kSb, kOptTerminalType, kSubSend, kIac, kSe});
      } else {
        log_.push_back("station refuses TERMINAL-TYPE");
        AskFraming(out);
      }
      return;
    case Phase::kFraming: {
      // WILL/WONT answer our DO, DO/DONT answer our WILL.
      const bool answers_do = verb == kWill || verb == kWont;
      int slot = -1;
      if (option == kOptEndOfRecord) slot = answers_do ? 0 : 1;
      if (option == kOptBinary) slot = answers_do ? 2 : 3;
      if (slot < 0) return;
      if (!positive) log_.push_back("station refuses EOR or BINARY");
      awaiting_[slot] = false;
      if (!awaiting_[0] && !awaiting_[1] && !awaiting_[2] && !awaiting_[3]) Run(out);
      return;
    }
    case Phase::kRunning:
      return;
  }
}

void HostSession::OnSubnegotiation(std::uint8_t option, std::span<const std::uint8_t> bytes,
                                   std::vector<std::uint8_t>& out) {
  if (bytes.empty() || bytes[0] != kSubIs) return;
  if (option == kOptNewEnviron && phase_ == Phase::kEnviron) {
    ParseEnvironment(bytes.subspan(1), station_.environment);
    AskTerminalType(out);
  } else if (option == kOptTerminalType && phase_ == Phase::kTerminalType) {
    station_.terminal_type.assign(bytes.begin() + 1, bytes.end());
    log_.push_back("terminal type " + station_.terminal_type);
    AskFraming(out);
  }
}

void HostSession::CountRecord(const TelnetEvent& event) {
  const bool bad = phase_ != Phase::kRunning || event.truncated || !HasValidHeader(event.bytes);
  bad_in_a_row_ = bad ? bad_in_a_row_ + 1 : 0;
  if (bad_in_a_row_ >= kMaxBadRecords) {
    log_.push_back("the station sends garbage; connection closed");
    close_ = true;
  }
}

void HostSession::AskTerminalType(std::vector<std::uint8_t>& out) {
  phase_ = Phase::kTerminalType;
  Send3(out, kDo, kOptTerminalType);
}

void HostSession::AskFraming(std::vector<std::uint8_t>& out) {
  phase_ = Phase::kFraming;
  for (bool& a : awaiting_) a = true;
  Send3(out, kDo, kOptEndOfRecord);
  Send3(out, kWill, kOptEndOfRecord);
  Send3(out, kDo, kOptBinary);
  Send3(out, kWill, kOptBinary);
}

void HostSession::Run(std::vector<std::uint8_t>& out) {
  phase_ = Phase::kRunning;
  Emit(application_->Begin(station_), out);
}

void HostSession::Emit(HostOutput output, std::vector<std::uint8_t>& out) {
  for (const auto& record : output.records) {
    const auto framed = FrameRecord(record);
    out.insert(out.end(), framed.begin(), framed.end());
  }
  for (auto& line : output.log) log_.push_back(std::move(line));
  if (output.close) close_ = true;
}

std::vector<std::string> HostSession::TakeLog() {
  std::vector<std::string> lines;
  lines.swap(log_);
  return lines;
}

}  // namespace veltrix::demo_host
