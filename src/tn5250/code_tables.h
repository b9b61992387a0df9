#ifndef VELTRIX_TN5250_CODE_TABLES_H_
#define VELTRIX_TN5250_CODE_TABLES_H_

#include <array>
#include <cstdint>

namespace veltrix {

// Host languages (`EmulationType`).
inline constexpr int kEmulationSingleByte = 0;
inline constexpr int kEmulationTraditionalChinese = 1;
inline constexpr int kEmulationSimplifiedChinese = 2;
inline constexpr int kEmulationKorean = 3;
inline constexpr int kEmulationJapanese = 4;
inline constexpr int kEmulationGreek = 5;
inline constexpr int kEmulationFrench = 6;

// Whether the host language is a double-byte one (1..4).
inline bool IsDoubleByteLanguage(int emulation_type) {
  return emulation_type >= 1 && emulation_type <= 4;
}

using CodeTable = std::array<std::uint8_t, 256>;

// The single-byte host-to-display table of a host language.
const CodeTable& SingleByteTable(int emulation_type);

// `HostToDisplay`: host (EBCDIC) byte to display byte.
std::uint8_t HostToDisplay(int emulation_type, std::uint8_t host);
// `DisplayToHost`: the first index 64..254 of the table holding the display byte, else 255.
std::uint8_t DisplayToHost(int emulation_type, std::uint8_t display);
// `AttributeToDisplay`: 5250 attribute byte (0x20..0x3F) to display attribute; others give 0.
std::uint8_t AttributeToDisplay(std::uint8_t attribute);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_CODE_TABLES_H_
