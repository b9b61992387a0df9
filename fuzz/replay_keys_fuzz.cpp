// Parses `--keys` text of any bytes in the replay key syntax, then presses what it gave on a
// screen with two input fields. The first byte picks the host language.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tn5250/replay.h"
#include "tn5250/session.h"

namespace {

// A Write to Display with two input fields and the cursor in the second, framed for Telnet.
constexpr std::uint8_t kScreen[] = {0x00, 0x25, 0x12, 0xA0, 0x00, 0x00, 0x04, 0x00, 0x00, 0x03,
                                    0x04, 0x40, 0x04, 0x11, 0x00, 0x08, 0x11, 0x03, 0x05, 0x1D,
                                    0x40, 0x00, 0x24, 0x00, 0x0A, 0x11, 0x05, 0x05, 0x1D, 0x40,
                                    0x00, 0x24, 0x00, 0x0A, 0x13, 0x05, 0x08, 0xFF, 0xEF};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int emulation_type = data[0] % 7;
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
  std::vector<veltrix::KeyStroke> keys;
  std::string error;
  if (!veltrix::ParseReplayKeys(text, emulation_type, keys, error)) {
    // A refusal always says why.
    if (error.empty()) __builtin_trap();
    return 0;
  }
  veltrix::Session session({emulation_type, "FUZZ"});
  session.Receive(kScreen);
  for (const veltrix::KeyStroke& stroke : keys) {
    if (veltrix::KeyStrokeText(stroke).empty()) __builtin_trap();
    veltrix::Press(session, stroke);
  }
  return 0;
}
