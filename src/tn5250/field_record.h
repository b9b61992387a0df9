#ifndef VELTRIX_TN5250_FIELD_RECORD_H_
#define VELTRIX_TN5250_FIELD_RECORD_H_

#include <array>
#include <cstdint>

namespace veltrix {

inline constexpr int kFieldRecordSize = 24;

// Field format word, byte 1: bits 7-6 01 mark a format word.
inline constexpr std::uint8_t kFfwBase = 0x40;
inline constexpr std::uint8_t kFfwBypass = 0x20;
inline constexpr std::uint8_t kFfwModified = 0x08;
inline constexpr std::uint8_t kFfwShiftMask = 0x07;
inline constexpr std::uint8_t kShiftAlphabetic = 1;
inline constexpr std::uint8_t kShiftNumeric = 3;
inline constexpr std::uint8_t kShiftDigits = 5;
inline constexpr std::uint8_t kShiftSignedNumeric = 7;
// Field format word, byte 2.
inline constexpr std::uint8_t kFfwAutoEnter = 0x80;
inline constexpr std::uint8_t kFfwFieldExitRequired = 0x40;
inline constexpr std::uint8_t kFfwMonocase = 0x20;
inline constexpr std::uint8_t kFfwMandatoryEnter = 0x08;
inline constexpr std::uint8_t kFfwAdjustMask = 0x07;
inline constexpr std::uint8_t kAdjustZeroFill = 5;
inline constexpr std::uint8_t kAdjustBlankFill = 6;
inline constexpr std::uint8_t kMandatoryFill = 7;

// One record of the field format table. Serialize() gives the 24-byte image that screen
// capture stores: number, resequence, column, row, format word, control word, attribute,
// three zero bytes, length (little-endian), next and previous links.
struct FieldRecord {
  std::uint8_t number = 0;
  std::uint8_t resequence = 0;
  std::uint8_t column = 0;  // first cell (the cell after the attribute), 0-based
  std::uint8_t row = 0;
  std::uint8_t format1 = 0;  // 0 when the order had no format word
  std::uint8_t format2 = 0;
  std::uint8_t control1 = 0;
  std::uint8_t control2 = 0;
  std::uint8_t attribute = 0;  // display attribute of the field's cells
  std::int32_t length = 0;
  std::uint32_t next = 0;  // link words; only meaningful inside the table
  std::uint32_t previous = 0;

  // A record whose number and length are both 0 is no field (the empty current field).
  bool IsField() const { return number != 0 || length != 0; }
  bool HasFormat() const { return format1 != 0; }
  bool IsBypass() const { return (format1 & kFfwBypass) != 0; }
  bool IsModified() const { return (format1 & kFfwModified) != 0; }
  // An input field: has a format word and is not a bypass field.
  bool IsInput() const { return HasFormat() && !IsBypass(); }
  std::uint8_t ShiftType() const { return format1 & kFfwShiftMask; }
  bool IsSignedNumeric() const { return ShiftType() == kShiftSignedNumeric; }
  std::uint8_t Adjust() const { return format2 & kFfwAdjustMask; }
  // Cells that hold data: length, less the sign cell of a signed numeric field.
  int DataLength() const { return IsSignedNumeric() ? length - 1 : length; }

  std::array<std::uint8_t, kFieldRecordSize> Serialize() const;
  friend bool operator==(const FieldRecord&, const FieldRecord&) = default;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_FIELD_RECORD_H_
