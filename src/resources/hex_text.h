#ifndef VELTRIX_RESOURCES_HEX_TEXT_H_
#define VELTRIX_RESOURCES_HEX_TEXT_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace veltrix {

// The one hexadecimal form of bytes in every text Veltrix shows, logs or prints: two upper-case
// digits a byte ("0E").
void AppendHexByte(std::string& out, std::uint8_t b);
std::string HexByte(std::uint8_t b);
// Bytes one after the other, each byte's digits followed by `after` ("0E 05 " with " ").
std::string HexBytes(std::span<const std::uint8_t> bytes, std::string_view after = {});

}  // namespace veltrix

#endif  // VELTRIX_RESOURCES_HEX_TEXT_H_
