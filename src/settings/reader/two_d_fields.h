#ifndef VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_
#define VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_

#include "settings/field.h"

namespace veltrix {

// The two-dimensional reader set ("2D Reader", "1D Long Range Laser"): record bytes 58659-58703,
// edited in reader working block 1, which holds the same bytes in the same order. Bytes 58691-58703
// are not used.

// clang-format off
// Byte 58659: UPC/EAN enable bits and the shared coupon option (UPC dialogs clear bit 0).
inline constexpr FieldDef kTwoDUpcA{.name = "TwoDUpcA", .offset = 58659, .type = FieldType::kBits,
    .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUpcE{.name = "TwoDUpcE", .offset = 58659, .type = FieldType::kBits,
    .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUpcE1{.name = "TwoDUpcE1", .offset = 58659, .type = FieldType::kBits,
    .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDEan8{.name = "TwoDEan8", .offset = 58659, .type = FieldType::kBits,
    .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDEan13{.name = "TwoDEan13", .offset = 58659, .type = FieldType::kBits,
    .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDBooklandEan{.name = "TwoDBooklandEan", .offset = 58659,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDReadUccCouponExtendedCode{.name = "TwoDReadUccCouponExtendedCode",
    .offset = 58659, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUpcaPreamble{.name = "TwoDUpcaPreamble", .offset = 58660,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 2, .max = 2, .default_value = 1,
    .meaning = "Preambles: 0 none, 1 system character, 2 system character and country code."};
inline constexpr FieldDef kTwoDUpcePreamble{.name = "TwoDUpcePreamble", .offset = 58660,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 2, .max = 2, .default_value = 1,
    .meaning = "0-2"};
inline constexpr FieldDef kTwoDUpce1Preamble{.name = "TwoDUpce1Preamble", .offset = 58660,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 2, .max = 2, .default_value = 1,
    .meaning = "0-2"};
inline constexpr FieldDef kTwoDUpcaTransmitChecksum{.name = "TwoDUpcaTransmitChecksum",
    .offset = 58660, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUpceTransmitChecksum{.name = "TwoDUpceTransmitChecksum",
    .offset = 58660, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUpce1TransmitChecksum{.name = "TwoDUpce1TransmitChecksum",
    .offset = 58661, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDConvertUpceToUpca{.name = "TwoDConvertUpceToUpca", .offset = 58661,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDConvertUpce1ToUpca{.name = "TwoDConvertUpce1ToUpca", .offset = 58661,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDConvertEan8ToEan13{.name = "TwoDConvertEan8ToEan13", .offset = 58661,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDDecodeSupplementals{.name = "TwoDDecodeSupplementals",
    .offset = 58661, .type = FieldType::kBits, .bit_lo = 1, .bit_count = 3, .max = 2,
    .default_value = 0,
    .meaning = "Shared by the UPC and EAN 8 dialogs: 0 ignore, 1 only with, 2 with supplementals."};
// Byte 58662 is not changed by any control (default 6).
inline constexpr FieldDef kTwoDCode128{.name = "TwoDCode128", .offset = 58663,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDEan128{.name = "TwoDEan128", .offset = 58663,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDIsbt128{.name = "TwoDIsbt128", .offset = 58663,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
// Code 39 (its dialog clears bits 5-4 of 58664). Length options: 0 any, 1 one, 2 two, 3 range.
inline constexpr FieldDef kTwoDCode39{.name = "TwoDCode39", .offset = 58664,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDTrioptic39{.name = "TwoDTrioptic39", .offset = 58664,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode39VerifyChecksum{.name = "TwoDCode39VerifyChecksum",
    .offset = 58664, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode39TransmitChecksum{.name = "TwoDCode39TransmitChecksum",
    .offset = 58664, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode39LengthOption{.name = "TwoDCode39LengthOption", .offset = 58664,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 2, .max = 3, .default_value = 3,
    .meaning = "0-3"};
inline constexpr FieldDef kTwoDCode39FullAscii{.name = "TwoDCode39FullAscii", .offset = 58665,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode39Length1{.name = "TwoDCode39Length1", .offset = 58665,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 7, .max = 127, .default_value = 2,
    .meaning = "0-127"};
inline constexpr FieldDef kTwoDCode39Length2{.name = "TwoDCode39Length2", .offset = 58666, .min = 0,
    .max = 127, .default_value = 55, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCode93{.name = "TwoDCode93", .offset = 58667,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode93LengthOption{.name = "TwoDCode93LengthOption", .offset = 58667,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 2, .max = 3, .default_value = 3,
    .meaning = "0-3"};
inline constexpr FieldDef kTwoDCode93Length1{.name = "TwoDCode93Length1", .offset = 58668, .min = 0,
    .max = 127, .default_value = 4, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCode93Length2{.name = "TwoDCode93Length2", .offset = 58669, .min = 0,
    .max = 127, .default_value = 55, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCode11{.name = "TwoDCode11", .offset = 58670,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode11VerifyChecksum{.name = "TwoDCode11VerifyChecksum",
    .offset = 58670, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode11TransmitChecksum{.name = "TwoDCode11TransmitChecksum",
    .offset = 58670, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode11LengthOption{.name = "TwoDCode11LengthOption", .offset = 58670,
    .type = FieldType::kBits, .bit_lo = 3, .bit_count = 2, .max = 3, .default_value = 3,
    .meaning = "0-3"};
inline constexpr FieldDef kTwoDCode11Length1{.name = "TwoDCode11Length1", .offset = 58671, .min = 0,
    .max = 127, .default_value = 4, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCode11Length2{.name = "TwoDCode11Length2", .offset = 58672, .min = 0,
    .max = 127, .default_value = 55, .meaning = "0-127"};
inline constexpr FieldDef kTwoDInterleave25{.name = "TwoDInterleave25", .offset = 58673,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDInterleave25VerifyCheckDigit{
    .name = "TwoDInterleave25VerifyCheckDigit", .offset = 58673, .type = FieldType::kBits,
    .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "verify check digit USS; OPCC is bit 1, neither means no verify"};
inline constexpr FieldDef kTwoDInterleave25TransmitChecksum{
    .name = "TwoDInterleave25TransmitChecksum", .offset = 58673, .type = FieldType::kBits,
    .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDConvertInterleave25ToEan13{.name = "TwoDConvertInterleave25ToEan13",
    .offset = 58673, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDInterleave25LengthOption{.name = "TwoDInterleave25LengthOption",
    .offset = 58673, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 2, .max = 3,
    .default_value = 1, .meaning = "0-3"};
inline constexpr FieldDef kTwoDInterleave25VerifyCheckDigitOpcc{
    .name = "TwoDInterleave25VerifyCheckDigitOpcc", .offset = 58673, .type = FieldType::kBits,
    .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDInterleave25Length1{.name = "TwoDInterleave25Length1",
    .offset = 58674, .min = 0, .max = 127, .default_value = 14, .meaning = "0-127"};
inline constexpr FieldDef kTwoDInterleave25Length2{.name = "TwoDInterleave25Length2",
    .offset = 58675, .min = 0, .max = 127, .default_value = 0, .meaning = "0-127"};
inline constexpr FieldDef kTwoDIndustrial25{.name = "TwoDIndustrial25", .offset = 58676,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDIndustrial25LengthOption{.name = "TwoDIndustrial25LengthOption",
    .offset = 58676, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 2, .max = 3,
    .default_value = 1, .meaning = "0-3"};
inline constexpr FieldDef kTwoDIndustrial25Length1{.name = "TwoDIndustrial25Length1",
    .offset = 58677, .min = 0, .max = 127, .default_value = 12, .meaning = "0-127"};
inline constexpr FieldDef kTwoDIndustrial25Length2{.name = "TwoDIndustrial25Length2",
    .offset = 58678, .min = 0, .max = 127, .default_value = 0, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCodabar{.name = "TwoDCodabar", .offset = 58679,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCodabarNotisEditing{.name = "TwoDCodabarNotisEditing",
    .offset = 58679, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "Saving NOTIS editing also clears bit 6 of 58679."};
inline constexpr FieldDef kTwoDCodabarLengthOption{.name = "TwoDCodabarLengthOption",
    .offset = 58679, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 2, .max = 3,
    .default_value = 3, .meaning = "0-3"};
inline constexpr FieldDef kTwoDCodabarLength1{.name = "TwoDCodabarLength1", .offset = 58680,
    .min = 0, .max = 127, .default_value = 5, .meaning = "0-127"};
inline constexpr FieldDef kTwoDCodabarLength2{.name = "TwoDCodabarLength2", .offset = 58681,
    .min = 0, .max = 127, .default_value = 55, .meaning = "0-127"};
inline constexpr FieldDef kTwoDMsi{.name = "TwoDMsi", .offset = 58682, .type = FieldType::kBits,
    .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDMsiCheckDigits{.name = "TwoDMsiCheckDigits", .offset = 58682,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0 one check digit, 1 two."};
inline constexpr FieldDef kTwoDMsiTransmitChecksum{.name = "TwoDMsiTransmitChecksum",
    .offset = 58682, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1,
    .default_value = 0, .meaning = "0/1"};
inline constexpr FieldDef kTwoDMsiCheckAlgorithm{.name = "TwoDMsiCheckAlgorithm", .offset = 58682,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0 Mod 10/Mod 11, 1 Mod 10/Mod 10; kept only with two check digits."};
inline constexpr FieldDef kTwoDMsiLengthOption{.name = "TwoDMsiLengthOption", .offset = 58682,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 2, .max = 3, .default_value = 3,
    .meaning = "0-3"};
inline constexpr FieldDef kTwoDMsiLength1{.name = "TwoDMsiLength1", .offset = 58683, .min = 0,
    .max = 127, .default_value = 4, .meaning = "0-127"};
inline constexpr FieldDef kTwoDMsiLength2{.name = "TwoDMsiLength2", .offset = 58684, .min = 0,
    .max = 127, .default_value = 55, .meaning = "0-127"};
// Byte 58685: postal options, "US Postnet" in bit 7 down to "Dutch Postal" in bit 0.
inline constexpr FieldDef kTwoDUsPostnet{.name = "TwoDUsPostnet", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDUsPlanet{.name = "TwoDUsPlanet", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDTransmitUsPostalChecksum{.name = "TwoDTransmitUsPostalChecksum",
    .offset = 58685, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDUsPostal{.name = "TwoDUsPostal", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDTransmitUkPostalChecksum{.name = "TwoDTransmitUkPostalChecksum",
    .offset = 58685, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1,
    .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDJapanPostal{.name = "TwoDJapanPostal", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDAustralianPostal{.name = "TwoDAustralianPostal", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDDutchPostal{.name = "TwoDDutchPostal", .offset = 58685,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDPostalCodes{.name = "TwoDPostalCodes", .offset = 58686,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDRss14{.name = "TwoDRss14", .offset = 58687, .type = FieldType::kBits,
    .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"};
inline constexpr FieldDef kTwoDRss14Limited{.name = "TwoDRss14Limited", .offset = 58687,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDRss14Expanded{.name = "TwoDRss14Expanded", .offset = 58687,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDConvertRssToUpcEan{.name = "TwoDConvertRssToUpcEan", .offset = 58687,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
// Byte 58688: two-dimensional symbologies ("2D Reader" only).
inline constexpr FieldDef kTwoDPdf417{.name = "TwoDPdf417", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDMicroPdf417{.name = "TwoDMicroPdf417", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDCode128Emulation{.name = "TwoDCode128Emulation", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDDataMatrix{.name = "TwoDDataMatrix", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDMaxicode{.name = "TwoDMaxicode", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDQrCode{.name = "TwoDQrCode", .offset = 58688,
    .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
// Byte 58689: the page's two lists and its one-digit box for this set.
inline constexpr FieldDef kTwoDList401{.name = "TwoDList401", .offset = 58689,
    .type = FieldType::kBits, .bit_lo = 5, .bit_count = 3, .max = 3, .default_value = 1,
    .meaning = "0 Turn off, 1 Internal, 2 External, 3 Both"};
inline constexpr FieldDef kTwoDList402{.name = "TwoDList402", .offset = 58689,
    .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 1,
    .meaning = "0/1"};
inline constexpr FieldDef kTwoDBox201{.name = "TwoDBox201", .offset = 58689,
    .type = FieldType::kBits, .bit_lo = 0, .bit_count = 4, .max = 15, .default_value = 9,
    .meaning = "0-15"};
inline constexpr FieldDef kAimDuration{.name = "AimDuration", .offset = 58690, .min = 0, .max = 255,
    .default_value = 0, .meaning = "\"AIM Duration :\" box."};
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_
