#ifndef VELTRIX_TOOLS_DEMO_HOST_TELNET_STREAM_H_
#define VELTRIX_TOOLS_DEMO_HOST_TELNET_STREAM_H_

#include <cstdint>
#include <span>
#include <vector>

namespace veltrix::demo_host {

// What the display station sent, cut out of the Telnet byte stream.
struct TelnetEvent {
  enum class Kind { kOption, kSubnegotiation, kRecord };
  Kind kind = Kind::kRecord;
  std::uint8_t verb = 0;            // kOption: WILL, WONT, DO or DONT
  std::uint8_t option = 0;          // kOption, kSubnegotiation
  std::vector<std::uint8_t> bytes;  // kSubnegotiation: after the option; kRecord: the record
  bool truncated = false;           // kRecord: longer than any record, the rest dropped
};

// Receiving side of the host's Telnet: option answers, subnegotiations, and 5250 records ended
// by IAC EOR. IAC IAC is one 0xFF; an IAC followed by an ordinary byte is taken as data too,
// since a display station may send 0xFF inside a record without doubling it.
class TelnetStream {
 public:
  std::vector<TelnetEvent> Feed(std::span<const std::uint8_t> bytes);
  // The record being received is already longer than any record can be.
  bool overflowing() const { return truncated_; }

 private:
  enum class State { kData, kIac, kVerb, kSub, kSubIac };
  static constexpr std::size_t kMaxSubnegotiation = 1024;
  static constexpr std::size_t kMaxRecord = 65535 + 2;

  State state_ = State::kData;
  std::uint8_t verb_ = 0;
  std::vector<std::uint8_t> record_;
  bool truncated_ = false;
  std::vector<std::uint8_t> sub_;
};

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_TELNET_STREAM_H_
