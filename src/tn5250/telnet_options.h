#ifndef VELTRIX_TN5250_TELNET_OPTIONS_H_
#define VELTRIX_TN5250_TELNET_OPTIONS_H_

#include <cstdint>

namespace veltrix {

class TelnetReceiver;

// One row of the option table: the negotiation handler (for WILL/WONT/DO/DONT) and the
// subnegotiation handler (may be null).
struct TelnetOption {
  int code;  // 256 serves every option not listed
  void (*negotiate)(TelnetReceiver& telnet, std::uint8_t command, std::uint8_t option);
  void (*subnegotiate)(TelnetReceiver& telnet);
};

// Walks the option table from the start to the first entry with the code, or the 256 entry.
const TelnetOption& FindTelnetOption(std::uint8_t code);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TELNET_OPTIONS_H_
