#ifndef VELTRIX_TN5250_STREAM_ITEMS_H_
#define VELTRIX_TN5250_STREAM_ITEMS_H_

#include <cstdint>
#include <span>

namespace veltrix {

class DataStreamInterpreter;

using ItemHandler = void (*)(DataStreamInterpreter& stream, std::span<const std::uint8_t> item);

// Item lengths: > 0 fixed (code included); 0 up to the next escape or the record's end (commands);
// 255 to the record's end (commands); < 0 a length field (see DataStreamInterpreter).
inline constexpr int kToNextEscape = 0;
inline constexpr int kToRecordEnd = 255;

struct StreamItem {
  int code;
  ItemHandler handler;  // null: the item is taken and dropped
  int length;
  int info;
};

// The first entry with the code, or null when the code is unknown.
const StreamItem* FindCommand(std::uint8_t code);
const StreamItem* FindOrder(std::uint8_t code);

inline constexpr std::uint8_t kCmdWriteToDisplay = 0x11;
inline constexpr std::uint8_t kOrderStartOfField = 0x1D;

}  // namespace veltrix

#endif  // VELTRIX_TN5250_STREAM_ITEMS_H_
