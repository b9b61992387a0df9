#include "tn5250/double_byte.h"

namespace veltrix {

// Stub until the conversion tables land.
bool ConvertDoubleByte(int emulation_type, std::uint8_t& first, std::uint8_t& second) {
  (void)emulation_type;
  (void)first;
  (void)second;
  return false;
}

}  // namespace veltrix
