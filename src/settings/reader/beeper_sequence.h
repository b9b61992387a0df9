#ifndef VELTRIX_SETTINGS_READER_BEEPER_SEQUENCE_H_
#define VELTRIX_SETTINGS_READER_BEEPER_SEQUENCE_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "settings/document.h"

namespace veltrix {

// A beeper sequence is up to five byte pairs in a 10-byte field.
inline constexpr std::size_t kBeeperSequenceWidth = 10;

// The used length in bytes: up to the last pair whose two bytes are not both zero (0-10, even).
std::size_t BeeperSequenceLength(std::span<const std::uint8_t> sequence);

// The sequence as the advanced settings show it: its used length as hexadecimal pairs.
std::string BeeperSequenceText(std::span<const std::uint8_t> sequence);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_BEEPER_SEQUENCE_H_
