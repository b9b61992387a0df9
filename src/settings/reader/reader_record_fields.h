#ifndef VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_
#define VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_

#include "settings/field.h"

namespace veltrix {

// Reader fields that live only in the record (no working copy): the reader type, the advanced
// settings, the switch key, the RFID reader and the beeper and vibrator settings.

// clang-format off
inline constexpr FieldDef kReaderType{.name = "ReaderType", .offset = 3774, .min = 0, .max = 255,
    .default_value = 0,
    .meaning = "bits 0 and 2 the reader (0, 1, 4), bit 1 RFID, bit 3 cleared on change"};
inline constexpr FieldDef kRfidReader{.name = "RfidReader", .offset = 3774,
    .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
// Advanced settings.
inline constexpr FieldDef kAddPrefixCode{.name = "AddPrefixCode", .offset = 3713, .min = 0,
    .max = 1, .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kPrefixCode{.name = "PrefixCode", .offset = 3714, .width = 10,
    .type = FieldType::kBytes, .meaning = "Up to 9 key codes, zero-filled."};
inline constexpr FieldDef kAddSuffixCode{.name = "AddSuffixCode", .offset = 3724, .min = 0,
    .max = 1, .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kSuffixCode{.name = "SuffixCode", .offset = 3725, .width = 10,
    .type = FieldType::kBytes, .meaning = "Up to 9 key codes, zero-filled."};
inline constexpr FieldDef kAutoEnter{.name = "AutoEnter", .offset = 3735, .min = 0, .max = 1,
    .default_value = 1, .meaning = "No control changes it."};
inline constexpr FieldDef kCheckLeadingCode{.name = "CheckLeadingCode", .offset = 3736, .min = 0,
    .max = 1, .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kLeadingCode{.name = "LeadingCode", .offset = 3737, .width = 10,
    .type = FieldType::kText, .meaning = "At most 9 characters, NUL-padded."};
// Byte 3747 is zero, 3748 is 1; neither is changed by any control.
inline constexpr FieldDef kReadPartialCode{.name = "ReadPartialCode", .offset = 3749, .min = 0,
    .max = 1, .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kStartPosition{.name = "StartPosition", .offset = 3750, .min = 1,
    .max = 50, .default_value = 1, .meaning = "1 to MaximumLength."};
inline constexpr FieldDef kMaximumLength{.name = "MaximumLength", .offset = 3751, .min = 1,
    .max = 50, .default_value = 50, .meaning = "1-50"};
inline constexpr FieldDef kGoodBeep{.name = "GoodBeep", .offset = 3752, .min = 0, .max = 2,
    .default_value = 1, .meaning = "0 No, 1 One-beep, 2 Two-beep; no control changes it."};
inline constexpr FieldDef kScanControl{.name = "ScanControl", .offset = 3753, .min = 0, .max = 1,
    .default_value = 0, .meaning = "0 always enabled after login, 1 controlled by a 5250 command"};
// Bytes 3754-3771 are zero.
inline constexpr FieldDef kScanSwitchKeyName{.name = "ScanSwitchKeyName", .offset = 3772, .min = 0,
    .max = 10, .default_value = 0,
    .meaning = "The reader's switch key (role 206): 0 none, 1-9 FN+1 to FN+9, 10 FN+0."};
inline constexpr FieldDef kEan128KeyCode{.name = "Ean128KeyCode", .offset = 3773, .min = 0,
    .max = 255, .default_value = 0, .meaning = "One key code carried by the EAN128 dialog."};
// RFID reader.
inline constexpr FieldDef kRfidReadUid{.name = "RfidReadUid", .offset = 58759, .min = 0, .max = 1,
    .default_value = 1, .meaning = "0-1"};
inline constexpr FieldDef kRfidReadData{.name = "RfidReadData", .offset = 58760, .min = 0, .max = 1,
    .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kRfidUseDelimiter{.name = "RfidUseDelimiter", .offset = 58761, .min = 0,
    .max = 1, .default_value = 0, .meaning = "0-1"};
inline constexpr FieldDef kRfidStart{.name = "RfidStart", .offset = 58763,
    .type = FieldType::kSplitU16, .offset_hi = 58762, .min = 0, .max = 65279, .default_value = 0,
    .meaning = "16-bit, high byte first"};
inline constexpr FieldDef kRfidMaxLen{.name = "RfidMaxLen", .offset = 58765,
    .type = FieldType::kSplitU16, .offset_hi = 58764, .min = 0, .max = 65279, .default_value = 128,
    .meaning = "16-bit, high byte first"};
inline constexpr FieldDef kRfidDelimiter{.name = "RfidDelimiter", .offset = 58766, .min = 0,
    .max = 255, .default_value = 44, .meaning = "One key code."};
inline constexpr FieldDef kRfidDelayBeforeReread{.name = "RfidDelayBeforeReread", .offset = 58768,
    .type = FieldType::kSplitU16, .offset_hi = 58767, .min = 1, .max = 65279, .default_value = 4,
    .meaning = "Tenths of a second. 16-bit, high byte first"};
inline constexpr FieldDef kRfidWorkingMode{.name = "RfidWorkingMode", .offset = 58769, .min = 0,
    .max = 1, .default_value = 1, .meaning = "0 Toggle, 1 Hybrid."};
inline constexpr FieldDef kRfidReadingMode{.name = "RfidReadingMode", .offset = 58770, .min = 0,
    .max = 1, .default_value = 1, .meaning = "0 Trigger, 1 Continous."};
inline constexpr FieldDef kRfidControl{.name = "RfidControl", .offset = 58771, .min = 0, .max = 1,
    .default_value = 0, .meaning = "0 Always Enable, 1 By 5250 Command."};
// Beeper and vibrator.
inline constexpr FieldDef kAlarmBeeperSequence{.name = "AlarmBeeperSequence", .offset = 58859,
    .width = 10, .type = FieldType::kBytes, .meaning = "up to five byte pairs"};
inline constexpr FieldDef kDataBeeperSequence{.name = "DataBeeperSequence", .offset = 58869,
    .width = 10, .type = FieldType::kBytes, .meaning = "up to five byte pairs"};
inline constexpr FieldDef kVibratorTime{.name = "VibratorTime", .offset = 58879, .min = 0,
    .max = 254, .default_value = 0, .meaning = "Tenths of a second."};
inline constexpr FieldDef kDataBox214{.name = "DataBox214", .offset = 58880, .min = 0, .max = 254,
    .default_value = 0,
    .meaning = "Box 214 of the advanced settings; its meaning on the terminal is not known."};
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_
