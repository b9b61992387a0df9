#ifndef VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_
#define VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_

#include "settings/field.h"

namespace veltrix {

// The linear reader set ("1D Laser/CCD Reader"): record bytes 3690-3712, edited in reader working
// block 2, which holds the same bytes in the same order. Offsets are record offsets; bit 7 is the
// most significant bit.

// clang-format off
// Byte 3690: symbology enable bits.
inline constexpr FieldDef kCode39{.name = "Code39", .offset = 3690, .type = FieldType::kBits,
    .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kItalianPharmacode{.name = "ItalianPharmacode", .offset = 3690,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kFrenchPharmacode{.name = "FrenchPharmacode", .offset = 3690,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kIndustrial25{.name = "Industrial25", .offset = 3690,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kInterleave25{.name = "Interleave25", .offset = 3690,
    .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kMatrix25{.name = "Matrix25", .offset = 3690, .type = FieldType::kBits,
    .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kCodabar{.name = "Codabar", .offset = 3690, .type = FieldType::kBits,
    .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kCode93{.name = "Code93", .offset = 3690, .type = FieldType::kBits,
    .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
// Byte 3691: symbology enable bits.
inline constexpr FieldDef kCode128{.name = "Code128", .offset = 3691, .type = FieldType::kBits,
    .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kUpce{.name = "Upce", .offset = 3691, .type = FieldType::kBits,
    .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kUpceAddon2{.name = "UpceAddon2", .offset = 3691,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kUpceAddon5{.name = "UpceAddon5", .offset = 3691,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kEan8{.name = "Ean8", .offset = 3691, .type = FieldType::kBits,
    .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kEan8Addon2{.name = "Ean8Addon2", .offset = 3691,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kEan8Addon5{.name = "Ean8Addon5", .offset = 3691,
    .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kEan13Upca{.name = "Ean13Upca", .offset = 3691, .type = FieldType::kBits,
    .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
// Byte 3692: enable bits; bit 3 is not used.
inline constexpr FieldDef kEan13Addon2{.name = "Ean13Addon2", .offset = 3692,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kEan13Addon5{.name = "Ean13Addon5", .offset = 3692,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kMsi{.name = "Msi", .offset = 3692, .type = FieldType::kBits, .bit_lo = 5,
    .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kPlessey{.name = "Plessey", .offset = 3692, .type = FieldType::kBits,
    .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTelepen{.name = "Telepen", .offset = 3692, .type = FieldType::kBits,
    .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kRss14Limited{.name = "Rss14Limited", .offset = 3692,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTelepenFormat{.name = "TelepenFormat", .offset = 3692,
    .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "1 Original (numeric), 0 AIM (full ASCII)"};
// Byte 3693: RSS enable bits and the RSS 14 / RSS 14 Limited options.
inline constexpr FieldDef kRss14Expanded{.name = "Rss14Expanded", .offset = 3693,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kRss14{.name = "Rss14", .offset = 3693, .type = FieldType::kBits,
    .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kRss14TransmitCodeId{.name = "Rss14TransmitCodeId", .offset = 3693,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kRss14TransmitApplicationId{.name = "Rss14TransmitApplicationId",
    .offset = 3693, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kRss14TransmitCheckDigit{.name = "Rss14TransmitCheckDigit",
    .offset = 3693, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kRss14LimitedTransmitCodeId{.name = "Rss14LimitedTransmitCodeId",
    .offset = 3693, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kRss14LimitedTransmitApplicationId{
    .name = "Rss14LimitedTransmitApplicationId", .offset = 3693, .type = FieldType::kBits,
    .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kRss14LimitedTransmitCheckDigit{.name = "Rss14LimitedTransmitCheckDigit",
    .offset = 3693, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
// Byte 3694: bits 6-0 are not changed by any control.
inline constexpr FieldDef kRss14ExpandedTransmitCodeId{.name = "Rss14ExpandedTransmitCodeId",
    .offset = 3694, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
// Byte 3695: Code 39, pharmacode and Interleave 25 check options.
inline constexpr FieldDef kCode39TransmitStartStop{.name = "Code39TransmitStartStop",
    .offset = 3695, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kCode39VerifyChecksum{.name = "Code39VerifyChecksum", .offset = 3695,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kCode39TransmitChecksum{.name = "Code39TransmitChecksum", .offset = 3695,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kCode39FullAscii{.name = "Code39FullAscii", .offset = 3695,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kItalianPharmacodeTransmitChecksum{
    .name = "ItalianPharmacodeTransmitChecksum", .offset = 3695, .type = FieldType::kBits,
    .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kFrenchPharmacodeTransmitChecksum{
    .name = "FrenchPharmacodeTransmitChecksum", .offset = 3695, .type = FieldType::kBits,
    .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kInterleave25VerifyChecksum{.name = "Interleave25VerifyChecksum",
    .offset = 3695, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kInterleave25TransmitChecksum{.name = "Interleave25TransmitChecksum",
    .offset = 3695, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
// Byte 3696: 2 of 5 check options and start/stop selections (0 Industrial, 1 Interleave, 2 Matrix).
inline constexpr FieldDef kIndustrial25VerifyChecksum{.name = "Industrial25VerifyChecksum",
    .offset = 3696, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kIndustrial25TransmitChecksum{.name = "Industrial25TransmitChecksum",
    .offset = 3696, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kMatrix25VerifyChecksum{.name = "Matrix25VerifyChecksum", .offset = 3696,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kMatrix25TransmitChecksum{.name = "Matrix25TransmitChecksum",
    .offset = 3696, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kInterleave25StartStop{.name = "Interleave25StartStop", .offset = 3696,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 2, .max = 2, .default_value = 1,
    .meaning = "0-2"};
inline constexpr FieldDef kIndustrial25StartStop{.name = "Industrial25StartStop", .offset = 3696,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 2, .max = 2, .default_value = 0,
    .meaning = "0-2"};
// Byte 3697: Matrix 25 start/stop and the Codabar start/stop character.
inline constexpr FieldDef kMatrix25StartStop{.name = "Matrix25StartStop", .offset = 3697,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 2, .max = 2, .default_value = 2,
    .meaning = "0 Industrial, 1 Interleave, 2 Matrix"};
inline constexpr FieldDef kCodabarStartStopCharacter{.name = "CodabarStartStopCharacter",
    .offset = 3697, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 2, .max = 3,
    .default_value = 0, .meaning = "0 abcd/abcd, 1 abcd/tn*e, 2 ABCD/ABCD, 3 ABCD/TN*E."};
inline constexpr FieldDef kCodabarTransmitStartStop{.name = "CodabarTransmitStartStop",
    .offset = 3697, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
// Byte 3699 (3698 is not changed by any control): MSI, Plessey and UPC options.
inline constexpr FieldDef kMsiChecksumVerification{.name = "MsiChecksumVerification",
    .offset = 3699, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 2, .max = 2,
    .default_value = 0, .meaning = "0 single Modulo 10, 1 double Modulo 10, 2 Modulo 11 and 10"};
inline constexpr FieldDef kMsiChecksumTransmission{.name = "MsiChecksumTransmission",
    .offset = 3699, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 2, .max = 2,
    .default_value = 1, .meaning = "0 last digit kept back, 1 transmitted, 2 last two kept back"};
inline constexpr FieldDef kPlesseyTransmitChecksum{.name = "PlesseyTransmitChecksum",
    .offset = 3699, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kPlesseyConvertToUkPlessey{.name = "PlesseyConvertToUkPlessey",
    .offset = 3699, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kUpceConvertToUpca{.name = "UpceConvertToUpca", .offset = 3699,
    .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kUpcaConvertToEan13{.name = "UpcaConvertToEan13", .offset = 3699,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
// Byte 3700: EAN / UPC options.
inline constexpr FieldDef kEan13IsbnConversion{.name = "Ean13IsbnConversion", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kEan13IssnConversion{.name = "Ean13IssnConversion", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kUpceTransmitChecksum{.name = "UpceTransmitChecksum", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kUpcaTransmitChecksum{.name = "UpcaTransmitChecksum", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kEan8TransmitChecksum{.name = "Ean8TransmitChecksum", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kEan13TransmitChecksum{.name = "Ean13TransmitChecksum", .offset = 3700,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kUpceTransmitSystemNumber{.name = "UpceTransmitSystemNumber",
    .offset = 3700, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kUpcaTransmitSystemNumber{.name = "UpcaTransmitSystemNumber",
    .offset = 3700, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
// Byte 3701: EAN 8 conversion, negative bars and read redundancy.
inline constexpr FieldDef kEan8ConvertToEan13{.name = "Ean8ConvertToEan13", .offset = 3701,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kNegativeBarcode{.name = "NegativeBarcode", .offset = 3701,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kReadRedundancy{.name = "ReadRedundancy", .offset = 3701,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 2, .max = 3, .default_value = 0,
    .meaning = "0 None, 1 One time, 2 Two times, 3 Three times."};
// Length pairs: first byte bit 7 = "Max / Min Length", bits 6-0 the first length; second byte
// the second length (see length_pair.h).
inline constexpr FieldDef kIndustrial25Length{.name = "Industrial25Length", .offset = 3702,
    .width = 2, .type = FieldType::kBytes, .meaning = "length pair"};
inline constexpr FieldDef kInterleave25Length{.name = "Interleave25Length", .offset = 3704,
    .width = 2, .type = FieldType::kBytes, .meaning = "length pair"};
inline constexpr FieldDef kMatrix25Length{.name = "Matrix25Length", .offset = 3706, .width = 2,
    .type = FieldType::kBytes, .meaning = "length pair"};
inline constexpr FieldDef kMsiLength{.name = "MsiLength", .offset = 3708, .width = 2,
    .type = FieldType::kBytes, .meaning = "length pair"};
// Byte 3710: the low nibble is not changed by any control (default 6).
inline constexpr FieldDef kScanMode{.name = "ScanMode", .offset = 3710, .type = FieldType::kBits,
    .bit_lo = 4, .bit_count = 4, .max = 8, .default_value = 6,
    .meaning = "0 Auto Off ... 6 Laser, 7 Test, 8 Aiming"};
inline constexpr FieldDef kTimeOut{.name = "TimeOut", .offset = 3711, .min = 1, .max = 255,
    .default_value = 3, .meaning = "Seconds."};
// Byte 3712: bits 4-0 are not changed by any control (default 3).
inline constexpr FieldDef kEan128{.name = "Ean128", .offset = 3712, .type = FieldType::kBits,
    .bit_lo = 6, .bit_count = 2, .max = 2, .default_value = 0,
    .meaning = "0 or 1 enabled, 2 disabled"};
inline constexpr FieldDef kEan128TransmitCodeId{.name = "Ean128TransmitCodeId", .offset = 3712,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_LINEAR_FIELDS_H_
