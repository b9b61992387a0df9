#ifndef VELTRIX_SETTINGS_READER_LENGTH_PAIR_H_
#define VELTRIX_SETTINGS_READER_LENGTH_PAIR_H_

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace veltrix {

// The length group of a linear symbology (two bytes): bit 7 of the first byte says "Max / Min
// Length" (1) or "Fixed Length" (0); bits 6-0 of the first byte and the second byte hold the two
// lengths, the maximum first for "Max / Min Length".
struct LengthPair {
  bool max_min = false;
  int first = 0;
  int second = 0;

  bool operator==(const LengthPair&) const = default;
};

LengthPair UnpackLengthPair(std::span<const std::uint8_t> bytes);

// What OK stores for the group's radios and boxes: with "Max / Min Length" a 0 counts as 1 and the
// larger length goes first; "Fixed Length" keeps both as typed. Lengths are limited to 0-127.
std::array<std::uint8_t, 2> PackLengthPair(const LengthPair& entered);

struct LengthLabels {
  std::string_view first;
  std::string_view second;
};

// The labels beside the two boxes for the chosen qualification.
LengthLabels LengthPairLabels(bool max_min);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_LENGTH_PAIR_H_
