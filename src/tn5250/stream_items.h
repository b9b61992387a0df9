#ifndef VELTRIX_TN5250_STREAM_ITEMS_H_
#define VELTRIX_TN5250_STREAM_ITEMS_H_

#include <cstdint>
#include <span>

#include "tn5250/stream_codes.h"

namespace veltrix {

class DataStreamInterpreter;

using ItemHandler = void (*)(DataStreamInterpreter& stream, std::span<const std::uint8_t> item);

// Item lengths: > 0 fixed (code included); up to the next escape or the record's end (commands);
// to the record's end (commands); or given by a length field in the item.
inline constexpr int kToNextEscape = 0;
inline constexpr int kToRecordEnd = 255;
inline constexpr int kLengthField = -1;

// Where an item of kLengthField length keeps its length.
struct LengthField {
  int offset = 0;  // the field's first byte, counted from the item's code
  int bytes = 0;   // 1 or 2, high byte first
  // The value counts the field's own bytes and what follows (true), or only what follows.
  bool counts_itself = true;
};

struct StreamItem {
  int code;
  ItemHandler handler;  // null: the item is taken and dropped
  int length;
  LengthField field{};
};

// The first entry with the code, or null when the code is unknown.
const StreamItem* FindCommand(std::uint8_t code);
const StreamItem* FindOrder(std::uint8_t code);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_STREAM_ITEMS_H_
