#ifndef VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_
#define VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_

#include <array>

#include "settings/field.h"

namespace veltrix {

// The linear reader set ("1D Laser/CCD Reader"): record bytes 3690-3712, edited in reader working
// block 2, which holds the same bytes in the same order. Offsets are record offsets; bit 7 is the
// most significant bit.

// clang-format off
inline constexpr auto kLinearFieldTable = std::to_array<FieldDef>({
    // Byte 3690: symbology enable bits.
    {.name = "Code39", .offset = 3690, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "ItalianPharmacode", .offset = 3690, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "FrenchPharmacode", .offset = 3690, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Industrial25", .offset = 3690, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Interleave25", .offset = 3690, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Matrix25", .offset = 3690, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Codabar", .offset = 3690, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Code93", .offset = 3690, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3691: symbology enable bits.
    {.name = "Code128", .offset = 3691, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Upce", .offset = 3691, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "UpceAddon2", .offset = 3691, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "UpceAddon5", .offset = 3691, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Ean8", .offset = 3691, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Ean8Addon2", .offset = 3691, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Ean8Addon5", .offset = 3691, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Ean13Upca", .offset = 3691, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3692: enable bits; bit 3 is not used.
    {.name = "Ean13Addon2", .offset = 3692, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Ean13Addon5", .offset = 3692, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Msi", .offset = 3692, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1,
        .default_value = 0, .meaning = "0/1"},
    {.name = "Plessey", .offset = 3692, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Telepen", .offset = 3692, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Rss14Limited", .offset = 3692, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TelepenFormat", .offset = 3692, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "1 Original (numeric), 0 AIM (full ASCII)"},
    // Byte 3693: RSS enable bits and the RSS 14 / RSS 14 Limited options.
    {.name = "Rss14Expanded", .offset = 3693, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Rss14", .offset = 3693, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Rss14TransmitCodeId", .offset = 3693, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Rss14TransmitApplicationId", .offset = 3693, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Rss14TransmitCheckDigit", .offset = 3693, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Rss14LimitedTransmitCodeId", .offset = 3693, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Rss14LimitedTransmitApplicationId", .offset = 3693, .type = FieldType::kBits,
        .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Rss14LimitedTransmitCheckDigit", .offset = 3693, .type = FieldType::kBits,
        .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3694: bits 6-0 are not changed by any control.
    {.name = "Rss14ExpandedTransmitCodeId", .offset = 3694, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3695: Code 39, pharmacode and Interleave 25 check options.
    {.name = "Code39TransmitStartStop", .offset = 3695, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Code39VerifyChecksum", .offset = 3695, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Code39TransmitChecksum", .offset = 3695, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Code39FullAscii", .offset = 3695, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "ItalianPharmacodeTransmitChecksum", .offset = 3695, .type = FieldType::kBits,
        .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "FrenchPharmacodeTransmitChecksum", .offset = 3695, .type = FieldType::kBits,
        .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Interleave25VerifyChecksum", .offset = 3695, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Interleave25TransmitChecksum", .offset = 3695, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3696: 2 of 5 check options and start/stop selections (0 Industrial, 1 Interleave, 2 Matrix).
    {.name = "Industrial25VerifyChecksum", .offset = 3696, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Industrial25TransmitChecksum", .offset = 3696, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Matrix25VerifyChecksum", .offset = 3696, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Matrix25TransmitChecksum", .offset = 3696, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Interleave25StartStop", .offset = 3696, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 2, .max = 2, .default_value = 1, .meaning = "0-2"},
    {.name = "Industrial25StartStop", .offset = 3696, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 2, .max = 2, .default_value = 0, .meaning = "0-2"},
    // Byte 3697: Matrix 25 start/stop and the Codabar start/stop character.
    {.name = "Matrix25StartStop", .offset = 3697, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 2, .max = 2, .default_value = 2,
        .meaning = "0 Industrial, 1 Interleave, 2 Matrix"},
    {.name = "CodabarStartStopCharacter", .offset = 3697, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 2, .max = 3, .default_value = 0,
        .meaning = "0 abcd/abcd, 1 abcd/tn*e, 2 ABCD/ABCD, 3 ABCD/TN*E."},
    {.name = "CodabarTransmitStartStop", .offset = 3697, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    // Byte 3699 (3698 is not changed by any control): MSI, Plessey and UPC options.
    {.name = "MsiChecksumVerification", .offset = 3699, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 2, .max = 2, .default_value = 0,
        .meaning = "0 single Modulo 10, 1 double Modulo 10, 2 Modulo 11 and 10"},
    {.name = "MsiChecksumTransmission", .offset = 3699, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 2, .max = 2, .default_value = 1,
        .meaning = "0 last digit kept back, 1 transmitted, 2 last two kept back"},
    {.name = "PlesseyTransmitChecksum", .offset = 3699, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "PlesseyConvertToUkPlessey", .offset = 3699, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "UpceConvertToUpca", .offset = 3699, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "UpcaConvertToEan13", .offset = 3699, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3700: EAN / UPC options.
    {.name = "Ean13IsbnConversion", .offset = 3700, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "Ean13IssnConversion", .offset = 3700, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "UpceTransmitChecksum", .offset = 3700, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "UpcaTransmitChecksum", .offset = 3700, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Ean8TransmitChecksum", .offset = 3700, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "Ean13TransmitChecksum", .offset = 3700, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "UpceTransmitSystemNumber", .offset = 3700, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "UpcaTransmitSystemNumber", .offset = 3700, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 3701: EAN 8 conversion, negative bars and read redundancy.
    {.name = "Ean8ConvertToEan13", .offset = 3701, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "NegativeBarcode", .offset = 3701, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "ReadRedundancy", .offset = 3701, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 2, .max = 3, .default_value = 0,
        .meaning = "0 None, 1 One time, 2 Two times, 3 Three times."},
    // Length pairs: first byte bit 7 = "Max / Min Length", bits 6-0 the first length; second byte
    // the second length (see length_pair.h).
    {.name = "Industrial25Length", .offset = 3702, .width = 2, .type = FieldType::kBytes,
        .meaning = "length pair", .default_text = "\xFF\x01"},
    {.name = "Interleave25Length", .offset = 3704, .width = 2, .type = FieldType::kBytes,
        .meaning = "length pair", .default_text = "\xFE\x01"},
    {.name = "Matrix25Length", .offset = 3706, .width = 2, .type = FieldType::kBytes,
        .meaning = "length pair", .default_text = "\xFF\x01"},
    {.name = "MsiLength", .offset = 3708, .width = 2, .type = FieldType::kBytes,
        .meaning = "length pair", .default_text = "\xFF\x01"},
    // Byte 3710: the low nibble is not changed by any control (default 6).
    {.name = "ScanModeLowNibble", .offset = 3710, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 4, .max = 15, .default_value = 6, .meaning = "reserved, 6", .reserved = true},
    {.name = "ScanMode", .offset = 3710, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 4,
        .max = 8, .default_value = 6, .meaning = "0 Auto Off ... 6 Laser, 7 Test, 8 Aiming"},
    {.name = "TimeOut", .offset = 3711, .min = 1, .max = 255, .default_value = 3,
        .meaning = "Seconds."},
    // Byte 3712: bits 4-0 are not changed by any control (default 3).
    {.name = "Ean128LowBits", .offset = 3712, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 5, .max = 31, .default_value = 3, .meaning = "reserved, 3", .reserved = true},
    {.name = "Ean128", .offset = 3712, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 2,
        .max = 2, .default_value = 0, .meaning = "0 or 1 enabled, 2 disabled"},
    {.name = "Ean128TransmitCodeId", .offset = 3712, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
});
inline constexpr const FieldDef& kCode39 = FieldNamed(kLinearFieldTable, "Code39");
inline constexpr const FieldDef& kItalianPharmacode = FieldNamed(kLinearFieldTable, "ItalianPharmacode");
inline constexpr const FieldDef& kFrenchPharmacode = FieldNamed(kLinearFieldTable, "FrenchPharmacode");
inline constexpr const FieldDef& kIndustrial25 = FieldNamed(kLinearFieldTable, "Industrial25");
inline constexpr const FieldDef& kInterleave25 = FieldNamed(kLinearFieldTable, "Interleave25");
inline constexpr const FieldDef& kMatrix25 = FieldNamed(kLinearFieldTable, "Matrix25");
inline constexpr const FieldDef& kCodabar = FieldNamed(kLinearFieldTable, "Codabar");
inline constexpr const FieldDef& kCode93 = FieldNamed(kLinearFieldTable, "Code93");
inline constexpr const FieldDef& kCode128 = FieldNamed(kLinearFieldTable, "Code128");
inline constexpr const FieldDef& kUpce = FieldNamed(kLinearFieldTable, "Upce");
inline constexpr const FieldDef& kUpceAddon2 = FieldNamed(kLinearFieldTable, "UpceAddon2");
inline constexpr const FieldDef& kUpceAddon5 = FieldNamed(kLinearFieldTable, "UpceAddon5");
inline constexpr const FieldDef& kEan8 = FieldNamed(kLinearFieldTable, "Ean8");
inline constexpr const FieldDef& kEan8Addon2 = FieldNamed(kLinearFieldTable, "Ean8Addon2");
inline constexpr const FieldDef& kEan8Addon5 = FieldNamed(kLinearFieldTable, "Ean8Addon5");
inline constexpr const FieldDef& kEan13Upca = FieldNamed(kLinearFieldTable, "Ean13Upca");
inline constexpr const FieldDef& kEan13Addon2 = FieldNamed(kLinearFieldTable, "Ean13Addon2");
inline constexpr const FieldDef& kEan13Addon5 = FieldNamed(kLinearFieldTable, "Ean13Addon5");
inline constexpr const FieldDef& kMsi = FieldNamed(kLinearFieldTable, "Msi");
inline constexpr const FieldDef& kPlessey = FieldNamed(kLinearFieldTable, "Plessey");
inline constexpr const FieldDef& kTelepen = FieldNamed(kLinearFieldTable, "Telepen");
inline constexpr const FieldDef& kRss14Limited = FieldNamed(kLinearFieldTable, "Rss14Limited");
inline constexpr const FieldDef& kTelepenFormat = FieldNamed(kLinearFieldTable, "TelepenFormat");
inline constexpr const FieldDef& kRss14Expanded = FieldNamed(kLinearFieldTable, "Rss14Expanded");
inline constexpr const FieldDef& kRss14 = FieldNamed(kLinearFieldTable, "Rss14");
inline constexpr const FieldDef& kRss14TransmitCodeId = FieldNamed(kLinearFieldTable, "Rss14TransmitCodeId");
inline constexpr const FieldDef& kRss14TransmitApplicationId = FieldNamed(kLinearFieldTable, "Rss14TransmitApplicationId");
inline constexpr const FieldDef& kRss14TransmitCheckDigit = FieldNamed(kLinearFieldTable, "Rss14TransmitCheckDigit");
inline constexpr const FieldDef& kRss14LimitedTransmitCodeId = FieldNamed(kLinearFieldTable, "Rss14LimitedTransmitCodeId");
inline constexpr const FieldDef& kRss14LimitedTransmitApplicationId = FieldNamed(kLinearFieldTable, "Rss14LimitedTransmitApplicationId");
inline constexpr const FieldDef& kRss14LimitedTransmitCheckDigit = FieldNamed(kLinearFieldTable, "Rss14LimitedTransmitCheckDigit");
inline constexpr const FieldDef& kRss14ExpandedTransmitCodeId = FieldNamed(kLinearFieldTable, "Rss14ExpandedTransmitCodeId");
inline constexpr const FieldDef& kCode39TransmitStartStop = FieldNamed(kLinearFieldTable, "Code39TransmitStartStop");
inline constexpr const FieldDef& kCode39VerifyChecksum = FieldNamed(kLinearFieldTable, "Code39VerifyChecksum");
inline constexpr const FieldDef& kCode39TransmitChecksum = FieldNamed(kLinearFieldTable, "Code39TransmitChecksum");
inline constexpr const FieldDef& kCode39FullAscii = FieldNamed(kLinearFieldTable, "Code39FullAscii");
inline constexpr const FieldDef& kItalianPharmacodeTransmitChecksum = FieldNamed(kLinearFieldTable, "ItalianPharmacodeTransmitChecksum");
inline constexpr const FieldDef& kFrenchPharmacodeTransmitChecksum = FieldNamed(kLinearFieldTable, "FrenchPharmacodeTransmitChecksum");
inline constexpr const FieldDef& kInterleave25VerifyChecksum = FieldNamed(kLinearFieldTable, "Interleave25VerifyChecksum");
inline constexpr const FieldDef& kInterleave25TransmitChecksum = FieldNamed(kLinearFieldTable, "Interleave25TransmitChecksum");
inline constexpr const FieldDef& kIndustrial25VerifyChecksum = FieldNamed(kLinearFieldTable, "Industrial25VerifyChecksum");
inline constexpr const FieldDef& kIndustrial25TransmitChecksum = FieldNamed(kLinearFieldTable, "Industrial25TransmitChecksum");
inline constexpr const FieldDef& kMatrix25VerifyChecksum = FieldNamed(kLinearFieldTable, "Matrix25VerifyChecksum");
inline constexpr const FieldDef& kMatrix25TransmitChecksum = FieldNamed(kLinearFieldTable, "Matrix25TransmitChecksum");
inline constexpr const FieldDef& kInterleave25StartStop = FieldNamed(kLinearFieldTable, "Interleave25StartStop");
inline constexpr const FieldDef& kIndustrial25StartStop = FieldNamed(kLinearFieldTable, "Industrial25StartStop");
inline constexpr const FieldDef& kMatrix25StartStop = FieldNamed(kLinearFieldTable, "Matrix25StartStop");
inline constexpr const FieldDef& kCodabarStartStopCharacter = FieldNamed(kLinearFieldTable, "CodabarStartStopCharacter");
inline constexpr const FieldDef& kCodabarTransmitStartStop = FieldNamed(kLinearFieldTable, "CodabarTransmitStartStop");
inline constexpr const FieldDef& kMsiChecksumVerification = FieldNamed(kLinearFieldTable, "MsiChecksumVerification");
inline constexpr const FieldDef& kMsiChecksumTransmission = FieldNamed(kLinearFieldTable, "MsiChecksumTransmission");
inline constexpr const FieldDef& kPlesseyTransmitChecksum = FieldNamed(kLinearFieldTable, "PlesseyTransmitChecksum");
inline constexpr const FieldDef& kPlesseyConvertToUkPlessey = FieldNamed(kLinearFieldTable, "PlesseyConvertToUkPlessey");
inline constexpr const FieldDef& kUpceConvertToUpca = FieldNamed(kLinearFieldTable, "UpceConvertToUpca");
inline constexpr const FieldDef& kUpcaConvertToEan13 = FieldNamed(kLinearFieldTable, "UpcaConvertToEan13");
inline constexpr const FieldDef& kEan13IsbnConversion = FieldNamed(kLinearFieldTable, "Ean13IsbnConversion");
inline constexpr const FieldDef& kEan13IssnConversion = FieldNamed(kLinearFieldTable, "Ean13IssnConversion");
inline constexpr const FieldDef& kUpceTransmitChecksum = FieldNamed(kLinearFieldTable, "UpceTransmitChecksum");
inline constexpr const FieldDef& kUpcaTransmitChecksum = FieldNamed(kLinearFieldTable, "UpcaTransmitChecksum");
inline constexpr const FieldDef& kEan8TransmitChecksum = FieldNamed(kLinearFieldTable, "Ean8TransmitChecksum");
inline constexpr const FieldDef& kEan13TransmitChecksum = FieldNamed(kLinearFieldTable, "Ean13TransmitChecksum");
inline constexpr const FieldDef& kUpceTransmitSystemNumber = FieldNamed(kLinearFieldTable, "UpceTransmitSystemNumber");
inline constexpr const FieldDef& kUpcaTransmitSystemNumber = FieldNamed(kLinearFieldTable, "UpcaTransmitSystemNumber");
inline constexpr const FieldDef& kEan8ConvertToEan13 = FieldNamed(kLinearFieldTable, "Ean8ConvertToEan13");
inline constexpr const FieldDef& kNegativeBarcode = FieldNamed(kLinearFieldTable, "NegativeBarcode");
inline constexpr const FieldDef& kReadRedundancy = FieldNamed(kLinearFieldTable, "ReadRedundancy");
inline constexpr const FieldDef& kIndustrial25Length = FieldNamed(kLinearFieldTable, "Industrial25Length");
inline constexpr const FieldDef& kInterleave25Length = FieldNamed(kLinearFieldTable, "Interleave25Length");
inline constexpr const FieldDef& kMatrix25Length = FieldNamed(kLinearFieldTable, "Matrix25Length");
inline constexpr const FieldDef& kMsiLength = FieldNamed(kLinearFieldTable, "MsiLength");
inline constexpr const FieldDef& kScanMode = FieldNamed(kLinearFieldTable, "ScanMode");
inline constexpr const FieldDef& kTimeOut = FieldNamed(kLinearFieldTable, "TimeOut");
inline constexpr const FieldDef& kEan128 = FieldNamed(kLinearFieldTable, "Ean128");
inline constexpr const FieldDef& kEan128TransmitCodeId = FieldNamed(kLinearFieldTable, "Ean128TransmitCodeId");
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_
