#include "resources/hex_text.h"

namespace veltrix {

void AppendHexByte(std::string& out, std::uint8_t b) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  out += kDigits[b >> 4];
  out += kDigits[b & 0x0F];
}

std::string HexByte(std::uint8_t b) {
  std::string text;
  AppendHexByte(text, b);
  return text;
}

std::string HexBytes(std::span<const std::uint8_t> bytes, std::string_view after) {
  std::string text;
  text.reserve(bytes.size() * (2 + after.size()));
  for (std::uint8_t b : bytes) {
    AppendHexByte(text, b);
    text.append(after);
  }
  return text;
}

}  // namespace veltrix
