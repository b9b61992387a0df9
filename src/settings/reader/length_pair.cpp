#include "settings/reader/length_pair.h"

#include <algorithm>
#include <utility>

namespace veltrix {

LengthPair UnpackLengthPair(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < 2) return {};
  return LengthPair{(bytes[0] & 0x80) != 0, bytes[0] & 0x7F, bytes[1]};
}

std::array<std::uint8_t, 2> PackLengthPair(const LengthPair& entered) {
  // The first length has seven bits beside the qualification bit; the second a whole byte, so
  // a stored Min Length above 127 (from a file) survives OK.
  int first = std::clamp(entered.first, 0, 127);
  int second = std::clamp(entered.second, 0, 255);
  if (entered.max_min) {
    first = std::max(first, 1);
    second = std::max(second, 1);
    if (second > first) std::swap(first, second);
    first = std::min(first, 127);
  }
  return {static_cast<std::uint8_t>((entered.max_min ? 0x80 : 0) | first),
          static_cast<std::uint8_t>(second)};
}

LengthLabels LengthPairLabels(bool max_min) {
  if (max_min) return {"Max Length :", "Min Length :"};
  return {"Fixed Length 1:", "Fixed Length 2:"};
}

}  // namespace veltrix
