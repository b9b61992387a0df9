#ifndef VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_
#define VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_

#include <array>

#include "settings/field.h"

namespace veltrix {

// Reader fields that live only in the record (no working copy): the reader type, the advanced
// settings, the switch key, the RFID reader and the beeper and vibrator settings.

// clang-format off
inline constexpr auto kReaderRecordFieldTable = std::to_array<FieldDef>({
    {.name = "ReaderType", .offset = 3774, .min = 0, .max = 255, .default_value = 0,
        .meaning = "bits 0 and 2 the reader (0, 1, 4), bit 1 RFID, bit 3 cleared on change"},
    {.name = "RfidReader", .offset = 3774, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    // Advanced settings.
    {.name = "AddPrefixCode", .offset = 3713, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "PrefixCode", .offset = 3714, .width = 10, .type = FieldType::kBytes,
        .meaning = "Up to 9 key codes, zero-filled."},
    {.name = "AddSuffixCode", .offset = 3724, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "SuffixCode", .offset = 3725, .width = 10, .type = FieldType::kBytes,
        .meaning = "Up to 9 key codes, zero-filled."},
    {.name = "AutoEnter", .offset = 3735, .min = 0, .max = 1, .default_value = 1,
        .meaning = "No control changes it."},
    {.name = "CheckLeadingCode", .offset = 3736, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "LeadingCode", .offset = 3737, .width = 10, .type = FieldType::kText,
        .meaning = "At most 9 characters, NUL-padded."},
    // Bytes 3747 and 3748 are not changed by any control.
    {.name = "Reserved3747", .offset = 3747, .meaning = "reserved, 0", .reserved = true},
    {.name = "Reserved3748", .offset = 3748, .default_value = 1, .meaning = "reserved, 1",
        .reserved = true},
    {.name = "ReadPartialCode", .offset = 3749, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "StartPosition", .offset = 3750, .min = 1, .max = 50, .default_value = 1,
        .meaning = "1 to MaximumLength."},
    {.name = "MaximumLength", .offset = 3751, .min = 1, .max = 50, .default_value = 50,
        .meaning = "1-50"},
    {.name = "GoodBeep", .offset = 3752, .min = 0, .max = 2, .default_value = 1,
        .meaning = "0 No, 1 One-beep, 2 Two-beep; no control changes it."},
    {.name = "ScanControl", .offset = 3753, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0 always enabled after login, 1 controlled by a 5250 command"},
    // Bytes 3754-3771 are zero; the previous layout kept the scan control flag at 3763.
    {.name = "Reserved3754", .offset = 3754, .width = 9, .type = FieldType::kBytes,
        .meaning = "reserved, zero", .reserved = true},
    {.name = "PreviousScanControl", .offset = 3763,
        .meaning = "the scan control flag of the previous layout; zero", .reserved = true},
    {.name = "Reserved3764", .offset = 3764, .width = 8, .type = FieldType::kBytes,
        .meaning = "reserved, zero", .reserved = true},
    {.name = "ScanSwitchKeyName", .offset = 3772, .min = 0, .max = 10, .default_value = 0,
        .meaning = "The reader's switch key (role 206): 0 none, 1-9 FN+1 to FN+9, 10 FN+0.",
        .key_role = kRoleSwitchKey},
    {.name = "Ean128KeyCode", .offset = 3773, .min = 0, .max = 255, .default_value = 0,
        .meaning = "One key code carried by the EAN128 dialog."},
    // RFID reader.
    {.name = "RfidReadUid", .offset = 58759, .min = 0, .max = 1, .default_value = 1,
        .meaning = "0-1"},
    {.name = "RfidReadData", .offset = 58760, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "RfidUseDelimiter", .offset = 58761, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0-1"},
    {.name = "RfidStart", .offset = 58763, .type = FieldType::kSplitU16, .offset_hi = 58762,
        .min = 0, .max = 65279, .default_value = 0, .meaning = "16-bit, high byte first"},
    {.name = "RfidMaxLen", .offset = 58765, .type = FieldType::kSplitU16, .offset_hi = 58764,
        .min = 0, .max = 65279, .default_value = 128, .meaning = "16-bit, high byte first"},
    {.name = "RfidDelimiter", .offset = 58766, .min = 0, .max = 255, .default_value = 44,
        .meaning = "One key code."},
    {.name = "RfidDelayBeforeReread", .offset = 58768, .type = FieldType::kSplitU16,
        .offset_hi = 58767, .min = 1, .max = 65279, .default_value = 4,
        .meaning = "Tenths of a second. 16-bit, high byte first"},
    {.name = "RfidWorkingMode", .offset = 58769, .min = 0, .max = 1, .default_value = 1,
        .meaning = "0 Toggle, 1 Hybrid."},
    {.name = "RfidReadingMode", .offset = 58770, .min = 0, .max = 1, .default_value = 1,
        .meaning = "0 Trigger, 1 Continous."},
    {.name = "RfidControl", .offset = 58771, .min = 0, .max = 1, .default_value = 0,
        .meaning = "0 Always Enable, 1 By 5250 Command."},
    // Beeper and vibrator.
    {.name = "AlarmBeeperSequence", .offset = 58859, .width = 10, .type = FieldType::kBytes,
        .meaning = "up to five byte pairs",
        .default_text = std::string_view("\x1E\x07\x00\x05\x1E\x07", 6)},
    {.name = "DataBeeperSequence", .offset = 58869, .width = 10, .type = FieldType::kBytes,
        .meaning = "up to five byte pairs", .default_text = "\x0E\x05"},
    {.name = "VibratorTime", .offset = 58879, .min = 0, .max = 254, .default_value = 0,
        .meaning = "Tenths of a second."},
    {.name = "DataBox214", .offset = 58880, .min = 0, .max = 254, .default_value = 0,
        .meaning = "Box 214 of the advanced settings; its meaning on the terminal is not known."},
});
inline constexpr const FieldDef& kReaderType = FieldNamed(kReaderRecordFieldTable, "ReaderType");
inline constexpr const FieldDef& kRfidReader = FieldNamed(kReaderRecordFieldTable, "RfidReader");
inline constexpr const FieldDef& kAddPrefixCode = FieldNamed(kReaderRecordFieldTable, "AddPrefixCode");
inline constexpr const FieldDef& kPrefixCode = FieldNamed(kReaderRecordFieldTable, "PrefixCode");
inline constexpr const FieldDef& kAddSuffixCode = FieldNamed(kReaderRecordFieldTable, "AddSuffixCode");
inline constexpr const FieldDef& kSuffixCode = FieldNamed(kReaderRecordFieldTable, "SuffixCode");
inline constexpr const FieldDef& kAutoEnter = FieldNamed(kReaderRecordFieldTable, "AutoEnter");
inline constexpr const FieldDef& kCheckLeadingCode = FieldNamed(kReaderRecordFieldTable, "CheckLeadingCode");
inline constexpr const FieldDef& kLeadingCode = FieldNamed(kReaderRecordFieldTable, "LeadingCode");
inline constexpr const FieldDef& kReadPartialCode = FieldNamed(kReaderRecordFieldTable, "ReadPartialCode");
inline constexpr const FieldDef& kStartPosition = FieldNamed(kReaderRecordFieldTable, "StartPosition");
inline constexpr const FieldDef& kMaximumLength = FieldNamed(kReaderRecordFieldTable, "MaximumLength");
inline constexpr const FieldDef& kGoodBeep = FieldNamed(kReaderRecordFieldTable, "GoodBeep");
inline constexpr const FieldDef& kScanControl = FieldNamed(kReaderRecordFieldTable, "ScanControl");
inline constexpr const FieldDef& kScanSwitchKeyName = FieldNamed(kReaderRecordFieldTable, "ScanSwitchKeyName");
inline constexpr const FieldDef& kEan128KeyCode = FieldNamed(kReaderRecordFieldTable, "Ean128KeyCode");
inline constexpr const FieldDef& kRfidReadUid = FieldNamed(kReaderRecordFieldTable, "RfidReadUid");
inline constexpr const FieldDef& kRfidReadData = FieldNamed(kReaderRecordFieldTable, "RfidReadData");
inline constexpr const FieldDef& kRfidUseDelimiter = FieldNamed(kReaderRecordFieldTable, "RfidUseDelimiter");
inline constexpr const FieldDef& kRfidStart = FieldNamed(kReaderRecordFieldTable, "RfidStart");
inline constexpr const FieldDef& kRfidMaxLen = FieldNamed(kReaderRecordFieldTable, "RfidMaxLen");
inline constexpr const FieldDef& kRfidDelimiter = FieldNamed(kReaderRecordFieldTable, "RfidDelimiter");
inline constexpr const FieldDef& kRfidDelayBeforeReread = FieldNamed(kReaderRecordFieldTable, "RfidDelayBeforeReread");
inline constexpr const FieldDef& kRfidWorkingMode = FieldNamed(kReaderRecordFieldTable, "RfidWorkingMode");
inline constexpr const FieldDef& kRfidReadingMode = FieldNamed(kReaderRecordFieldTable, "RfidReadingMode");
inline constexpr const FieldDef& kRfidControl = FieldNamed(kReaderRecordFieldTable, "RfidControl");
inline constexpr const FieldDef& kReserved3754 = FieldNamed(kReaderRecordFieldTable, "Reserved3754");
inline constexpr const FieldDef& kReserved3764 = FieldNamed(kReaderRecordFieldTable, "Reserved3764");
inline constexpr const FieldDef& kPreviousScanControl = FieldNamed(kReaderRecordFieldTable, "PreviousScanControl");
inline constexpr const FieldDef& kAlarmBeeperSequence = FieldNamed(kReaderRecordFieldTable, "AlarmBeeperSequence");
inline constexpr const FieldDef& kDataBeeperSequence = FieldNamed(kReaderRecordFieldTable, "DataBeeperSequence");
inline constexpr const FieldDef& kVibratorTime = FieldNamed(kReaderRecordFieldTable, "VibratorTime");
inline constexpr const FieldDef& kDataBox214 = FieldNamed(kReaderRecordFieldTable, "DataBox214");
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_READER_RECORD_FIELDS_H_
