#include "demo_host/telnet_stream.h"

#include "demo_host/host_codes.h"

namespace veltrix::demo_host {

std::vector<TelnetEvent> TelnetStream::Feed(std::span<const std::uint8_t> bytes) {
  std::vector<TelnetEvent> events;
  for (const std::uint8_t b : bytes) {
    switch (state_) {
      case State::kData:
        if (b == kIac) {
          state_ = State::kIac;
        } else if (record_.size() < kMaxRecord) {
          record_.push_back(b);
        } else {
          truncated_ = true;
        }
        break;
      case State::kIac:
        state_ = State::kData;
        if (b == kEor) {
          events.push_back({TelnetEvent::Kind::kRecord, 0, 0, std::move(record_), truncated_});
          record_.clear();
          truncated_ = false;
        } else if (b == kWill || b == kWont || b == kDo || b == kDont) {
          verb_ = b;
          state_ = State::kVerb;
        } else if (b == kSb) {
          sub_.clear();
          state_ = State::kSub;
        } else if (b >= kSe) {
          // IAC IAC is a data 0xFF; other commands (NOP, GA, ...) carry nothing for us.
          if (b == kIac) {
            if (record_.size() < kMaxRecord) {
              record_.push_back(kIac);
            } else {
              truncated_ = true;
            }
          }
        } else if (record_.size() + 1 < kMaxRecord) {
          record_.push_back(kIac);  // an undoubled 0xFF inside a record
          record_.push_back(b);
        } else {
          truncated_ = true;
        }
        break;
      case State::kVerb:
        events.push_back({TelnetEvent::Kind::kOption, verb_, b, {}});
        state_ = State::kData;
        break;
      case State::kSub:
        if (b == kIac) {
          state_ = State::kSubIac;
        } else if (sub_.size() < kMaxSubnegotiation) {
          sub_.push_back(b);
        }
        break;
      case State::kSubIac:
        if (b == kIac) {
          if (sub_.size() < kMaxSubnegotiation) sub_.push_back(kIac);
          state_ = State::kSub;
          break;
        }
        // IAC SE (or anything else after IAC) ends the subnegotiation.
        if (!sub_.empty()) {
          TelnetEvent event{TelnetEvent::Kind::kSubnegotiation, 0, sub_[0], {}};
          event.bytes.assign(sub_.begin() + 1, sub_.end());
          events.push_back(std::move(event));
        }
        sub_.clear();
        state_ = State::kData;
        break;
    }
  }
  return events;
}

}  // namespace veltrix::demo_host
