#include "settings/reader/beeper_sequence.h"

#include <algorithm>

#include "settings/key_names_text.h"
#include "settings/reader/reader_record_fields.h"

namespace veltrix {

std::size_t BeeperSequenceLength(std::span<const std::uint8_t> sequence) {
  std::size_t length = std::min(sequence.size(), kBeeperSequenceWidth) / 2 * 2;
  while (length >= 2 && sequence[length - 2] == 0 && sequence[length - 1] == 0) length -= 2;
  return length;
}

std::string BeeperSequenceText(std::span<const std::uint8_t> sequence) {
  return KeyNamesText(sequence, static_cast<int>(BeeperSequenceLength(sequence)),
                      KeyNameMode::kHex);
}

}  // namespace veltrix
