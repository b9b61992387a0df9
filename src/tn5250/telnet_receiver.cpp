#include "tn5250/telnet_receiver.h"

#include <cstring>

#include "tn5250/telnet_options.h"

namespace veltrix {

TelnetReceiver::TelnetReceiver(const SessionConfig& config, TelnetPeer& peer)
    : config_(config), peer_(peer) {}

void TelnetReceiver::Reset() {
  state_ = State::kData;
  saved_command_ = 0;
  subnegotiation_count_ = 0;
  echo_ = false;
  suppress_go_ahead_ = true;
}

void TelnetReceiver::Receive(std::span<const std::uint8_t> bytes) {
  const std::uint8_t* p = bytes.data();
  const std::uint8_t* const end = p + bytes.size();
  while (p < end) {
    if (state_ == State::kData) {
      // Hand on the whole run up to the next IAC at once.
      const void* iac = std::memchr(p, kIac, static_cast<std::size_t>(end - p));
      const std::uint8_t* stop = iac ? static_cast<const std::uint8_t*>(iac) : end;
      if (stop > p) peer_.HostData({p, static_cast<std::size_t>(stop - p)});
      p = stop;
      if (p < end) {
        state_ = State::kIac;
        ++p;
      }
    } else if (state_ == State::kIac) {
      Command(*p++);
    } else {
      Option(*p++);
    }
  }
}

void TelnetReceiver::Command(std::uint8_t b) {
  state_ = State::kData;
  if (b == kIac) {
    peer_.HostData({&kIac, 1});
  } else if (b >= kSb && b <= kDont) {
    saved_command_ = b;
    state_ = State::kOption;
    subnegotiation_count_ = 0;
  }
  // SE, NOP .. GA and everything below 0xF0 (EOR included) are ignored: records are cut by
  // their own length.
}

void TelnetReceiver::Option(std::uint8_t b) {
  if (saved_command_ != kSb) {
    state_ = State::kData;
    FindTelnetOption(b).negotiate(*this, saved_command_, b);
    return;
  }
  if (b != kIac) {
    if (subnegotiation_count_ < kSubnegotiationCapacity) {
      subnegotiation_[subnegotiation_count_++] = b;
    }
    return;
  }
  // The first IAC ends the subnegotiation; the SE after it is taken in the IAC state.
  if (subnegotiation_count_ > 0) {
    const TelnetOption& entry = FindTelnetOption(subnegotiation_[0]);
    if (entry.subnegotiate != nullptr) entry.subnegotiate(*this);
  }
  subnegotiation_count_ = 0;
  state_ = State::kIac;
}

void TelnetReceiver::SendAnswer(std::uint8_t verb, std::uint8_t option) {
  const std::uint8_t answer[3] = {kIac, verb, option};
  peer_.SendRaw(answer);
}

void TelnetReceiver::Accept(std::uint8_t command, std::uint8_t option) {
  switch (command) {
    case kDo:
      SendAnswer(kWill, option);
      break;
    case kDont:
      SendAnswer(kWont, option);
      break;
    case kWill:
      SendAnswer(kDo, option);
      break;
    case kWont:
      SendAnswer(kDont, option);
      break;
    default:
      break;
  }
}

void TelnetReceiver::Refuse(std::uint8_t command, std::uint8_t option) {
  if (command == kDo) SendAnswer(kWont, option);
  if (command == kWill) SendAnswer(kDont, option);
}

}  // namespace veltrix
