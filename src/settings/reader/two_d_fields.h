#ifndef VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_
#define VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_

#include <array>

#include "settings/field.h"

namespace veltrix {

// The two-dimensional reader set ("2D Reader", "1D Long Range Laser"): record bytes 58659-58703,
// edited in reader working block 1, which holds the same bytes in the same order. Bytes 58691-58703
// are not used.

// clang-format off
inline constexpr auto kTwoDFieldTable = std::to_array<FieldDef>({
    // Byte 58659: UPC/EAN enable bits and the shared coupon option (UPC dialogs clear bit 0).
    {.name = "TwoDUpcA", .offset = 58659, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUpcE", .offset = 58659, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUpcE1", .offset = 58659, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDEan8", .offset = 58659, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDEan13", .offset = 58659, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDBooklandEan", .offset = 58659, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDReadUccCouponExtendedCode", .offset = 58659, .type = FieldType::kBits,
        .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDUpcaPreamble", .offset = 58660, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 2, .max = 2, .default_value = 1,
        .meaning = "Preambles: 0 none, 1 system character, 2 system character and country code."},
    {.name = "TwoDUpcePreamble", .offset = 58660, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 2, .max = 2, .default_value = 1, .meaning = "0-2"},
    {.name = "TwoDUpce1Preamble", .offset = 58660, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 2, .max = 2, .default_value = 1, .meaning = "0-2"},
    {.name = "TwoDUpcaTransmitChecksum", .offset = 58660, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUpceTransmitChecksum", .offset = 58660, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUpce1TransmitChecksum", .offset = 58661, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDConvertUpceToUpca", .offset = 58661, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDConvertUpce1ToUpca", .offset = 58661, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDConvertEan8ToEan13", .offset = 58661, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDDecodeSupplementals", .offset = 58661, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 3, .max = 2, .default_value = 0,
        .meaning = "Shared by the UPC and EAN 8 dialogs: 0 ignore, 1 only with, 2 with supplementals."},
    // Byte 58662 is not changed by any control (default 6).
    {.name = "Reserved58662", .offset = 58662, .default_value = 6, .meaning = "reserved, 6",
        .reserved = true},
    {.name = "TwoDCode128", .offset = 58663, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDEan128", .offset = 58663, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDIsbt128", .offset = 58663, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    // Code 39 (its dialog clears bits 5-4 of 58664). Length options: 0 any, 1 one, 2 two, 3 range.
    {.name = "TwoDCode39", .offset = 58664, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDTrioptic39", .offset = 58664, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode39VerifyChecksum", .offset = 58664, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode39TransmitChecksum", .offset = 58664, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode39LengthOption", .offset = 58664, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 2, .max = 3, .default_value = 3, .meaning = "0-3"},
    {.name = "TwoDCode39FullAscii", .offset = 58665, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode39Length1", .offset = 58665, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 7, .max = 127, .default_value = 2, .meaning = "0-127"},
    {.name = "TwoDCode39Length2", .offset = 58666, .min = 0, .max = 127, .default_value = 55,
        .meaning = "0-127"},
    {.name = "TwoDCode93", .offset = 58667, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode93LengthOption", .offset = 58667, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 2, .max = 3, .default_value = 3, .meaning = "0-3"},
    {.name = "TwoDCode93Length1", .offset = 58668, .min = 0, .max = 127, .default_value = 4,
        .meaning = "0-127"},
    {.name = "TwoDCode93Length2", .offset = 58669, .min = 0, .max = 127, .default_value = 55,
        .meaning = "0-127"},
    {.name = "TwoDCode11", .offset = 58670, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode11VerifyChecksum", .offset = 58670, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode11TransmitChecksum", .offset = 58670, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode11LengthOption", .offset = 58670, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 2, .max = 3, .default_value = 3, .meaning = "0-3"},
    {.name = "TwoDCode11Length1", .offset = 58671, .min = 0, .max = 127, .default_value = 4,
        .meaning = "0-127"},
    {.name = "TwoDCode11Length2", .offset = 58672, .min = 0, .max = 127, .default_value = 55,
        .meaning = "0-127"},
    {.name = "TwoDInterleave25", .offset = 58673, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDInterleave25VerifyCheckDigit", .offset = 58673, .type = FieldType::kBits,
        .bit_lo = 6, .bit_count = 1, .max = 1, .default_value = 0,
        .meaning = "verify check digit USS; OPCC is bit 1, neither means no verify"},
    {.name = "TwoDInterleave25TransmitChecksum", .offset = 58673, .type = FieldType::kBits,
        .bit_lo = 5, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDConvertInterleave25ToEan13", .offset = 58673, .type = FieldType::kBits,
        .bit_lo = 4, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDInterleave25LengthOption", .offset = 58673, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 2, .max = 3, .default_value = 1, .meaning = "0-3"},
    {.name = "TwoDInterleave25VerifyCheckDigitOpcc", .offset = 58673, .type = FieldType::kBits,
        .bit_lo = 1, .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDInterleave25Length1", .offset = 58674, .min = 0, .max = 127, .default_value = 14,
        .meaning = "0-127"},
    {.name = "TwoDInterleave25Length2", .offset = 58675, .min = 0, .max = 127, .default_value = 0,
        .meaning = "0-127"},
    {.name = "TwoDIndustrial25", .offset = 58676, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDIndustrial25LengthOption", .offset = 58676, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 2, .max = 3, .default_value = 1, .meaning = "0-3"},
    {.name = "TwoDIndustrial25Length1", .offset = 58677, .min = 0, .max = 127, .default_value = 12,
        .meaning = "0-127"},
    {.name = "TwoDIndustrial25Length2", .offset = 58678, .min = 0, .max = 127, .default_value = 0,
        .meaning = "0-127"},
    {.name = "TwoDCodabar", .offset = 58679, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCodabarNotisEditing", .offset = 58679, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0,
        .meaning = "Saving NOTIS editing also clears bit 6 of 58679."},
    {.name = "TwoDCodabarLengthOption", .offset = 58679, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 2, .max = 3, .default_value = 3, .meaning = "0-3"},
    {.name = "TwoDCodabarLength1", .offset = 58680, .min = 0, .max = 127, .default_value = 5,
        .meaning = "0-127"},
    {.name = "TwoDCodabarLength2", .offset = 58681, .min = 0, .max = 127, .default_value = 55,
        .meaning = "0-127"},
    {.name = "TwoDMsi", .offset = 58682, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDMsiCheckDigits", .offset = 58682, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0 one check digit, 1 two."},
    {.name = "TwoDMsiTransmitChecksum", .offset = 58682, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDMsiCheckAlgorithm", .offset = 58682, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 0,
        .meaning = "0 Mod 10/Mod 11, 1 Mod 10/Mod 10; kept only with two check digits."},
    {.name = "TwoDMsiLengthOption", .offset = 58682, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 2, .max = 3, .default_value = 3, .meaning = "0-3"},
    {.name = "TwoDMsiLength1", .offset = 58683, .min = 0, .max = 127, .default_value = 4,
        .meaning = "0-127"},
    {.name = "TwoDMsiLength2", .offset = 58684, .min = 0, .max = 127, .default_value = 55,
        .meaning = "0-127"},
    // Byte 58685: postal options, "US Postnet" in bit 7 down to "Dutch Postal" in bit 0.
    {.name = "TwoDUsPostnet", .offset = 58685, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUsPlanet", .offset = 58685, .type = FieldType::kBits, .bit_lo = 6, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDTransmitUsPostalChecksum", .offset = 58685, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDUsPostal", .offset = 58685, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDTransmitUkPostalChecksum", .offset = 58685, .type = FieldType::kBits, .bit_lo = 3,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDJapanPostal", .offset = 58685, .type = FieldType::kBits, .bit_lo = 2,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDAustralianPostal", .offset = 58685, .type = FieldType::kBits, .bit_lo = 1,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDDutchPostal", .offset = 58685, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDPostalCodes", .offset = 58686, .type = FieldType::kBits, .bit_lo = 7,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDRss14", .offset = 58687, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDRss14Limited", .offset = 58687, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDRss14Expanded", .offset = 58687, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDConvertRssToUpcEan", .offset = 58687, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    // Byte 58688: two-dimensional symbologies ("2D Reader" only).
    {.name = "TwoDPdf417", .offset = 58688, .type = FieldType::kBits, .bit_lo = 7, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDMicroPdf417", .offset = 58688, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDCode128Emulation", .offset = 58688, .type = FieldType::kBits, .bit_lo = 5,
        .bit_count = 1, .max = 1, .default_value = 0, .meaning = "0/1"},
    {.name = "TwoDDataMatrix", .offset = 58688, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 1, .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDMaxicode", .offset = 58688, .type = FieldType::kBits, .bit_lo = 3, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDQrCode", .offset = 58688, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    // Byte 58689: the page's two lists and its one-digit box for this set.
    {.name = "TwoDList401", .offset = 58689, .type = FieldType::kBits, .bit_lo = 5, .bit_count = 3,
        .max = 3, .default_value = 1, .meaning = "0 Turn off, 1 Internal, 2 External, 3 Both"},
    {.name = "TwoDList402", .offset = 58689, .type = FieldType::kBits, .bit_lo = 4, .bit_count = 1,
        .max = 1, .default_value = 1, .meaning = "0/1"},
    {.name = "TwoDBox201", .offset = 58689, .type = FieldType::kBits, .bit_lo = 0, .bit_count = 4,
        .max = 15, .default_value = 9, .meaning = "0-15"},
    {.name = "AimDuration", .offset = 58690, .min = 0, .max = 255, .default_value = 0,
        .meaning = "\"AIM Duration :\" box."},
    // Bits no control shows that some dialogs clear.
    {.name = "TwoDUpcReservedBit", .offset = 58659, .type = FieldType::kBits, .bit_lo = 0,
        .bit_count = 1, .max = 1, .meaning = "cleared by the UPC dialogs", .reserved = true},
    {.name = "TwoDCode39ReservedBits", .offset = 58664, .type = FieldType::kBits, .bit_lo = 4,
        .bit_count = 2, .max = 3, .meaning = "cleared by the Code 39 dialog", .reserved = true},
    {.name = "TwoDCodabarReservedBit", .offset = 58679, .type = FieldType::kBits, .bit_lo = 6,
        .bit_count = 1, .max = 1, .meaning = "cleared with NOTIS editing", .reserved = true},
});
inline constexpr const FieldDef& kTwoDUpcA = FieldNamed(kTwoDFieldTable, "TwoDUpcA");
inline constexpr const FieldDef& kTwoDUpcReservedBit = FieldNamed(kTwoDFieldTable, "TwoDUpcReservedBit");
inline constexpr const FieldDef& kTwoDCode39ReservedBits = FieldNamed(kTwoDFieldTable, "TwoDCode39ReservedBits");
inline constexpr const FieldDef& kTwoDCodabarReservedBit = FieldNamed(kTwoDFieldTable, "TwoDCodabarReservedBit");
inline constexpr const FieldDef& kTwoDUpcE = FieldNamed(kTwoDFieldTable, "TwoDUpcE");
inline constexpr const FieldDef& kTwoDUpcE1 = FieldNamed(kTwoDFieldTable, "TwoDUpcE1");
inline constexpr const FieldDef& kTwoDEan8 = FieldNamed(kTwoDFieldTable, "TwoDEan8");
inline constexpr const FieldDef& kTwoDEan13 = FieldNamed(kTwoDFieldTable, "TwoDEan13");
inline constexpr const FieldDef& kTwoDBooklandEan = FieldNamed(kTwoDFieldTable, "TwoDBooklandEan");
inline constexpr const FieldDef& kTwoDReadUccCouponExtendedCode = FieldNamed(kTwoDFieldTable, "TwoDReadUccCouponExtendedCode");
inline constexpr const FieldDef& kTwoDUpcaPreamble = FieldNamed(kTwoDFieldTable, "TwoDUpcaPreamble");
inline constexpr const FieldDef& kTwoDUpcePreamble = FieldNamed(kTwoDFieldTable, "TwoDUpcePreamble");
inline constexpr const FieldDef& kTwoDUpce1Preamble = FieldNamed(kTwoDFieldTable, "TwoDUpce1Preamble");
inline constexpr const FieldDef& kTwoDUpcaTransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDUpcaTransmitChecksum");
inline constexpr const FieldDef& kTwoDUpceTransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDUpceTransmitChecksum");
inline constexpr const FieldDef& kTwoDUpce1TransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDUpce1TransmitChecksum");
inline constexpr const FieldDef& kTwoDConvertUpceToUpca = FieldNamed(kTwoDFieldTable, "TwoDConvertUpceToUpca");
inline constexpr const FieldDef& kTwoDConvertUpce1ToUpca = FieldNamed(kTwoDFieldTable, "TwoDConvertUpce1ToUpca");
inline constexpr const FieldDef& kTwoDConvertEan8ToEan13 = FieldNamed(kTwoDFieldTable, "TwoDConvertEan8ToEan13");
inline constexpr const FieldDef& kTwoDDecodeSupplementals = FieldNamed(kTwoDFieldTable, "TwoDDecodeSupplementals");
inline constexpr const FieldDef& kTwoDCode128 = FieldNamed(kTwoDFieldTable, "TwoDCode128");
inline constexpr const FieldDef& kTwoDEan128 = FieldNamed(kTwoDFieldTable, "TwoDEan128");
inline constexpr const FieldDef& kTwoDIsbt128 = FieldNamed(kTwoDFieldTable, "TwoDIsbt128");
inline constexpr const FieldDef& kTwoDCode39 = FieldNamed(kTwoDFieldTable, "TwoDCode39");
inline constexpr const FieldDef& kTwoDTrioptic39 = FieldNamed(kTwoDFieldTable, "TwoDTrioptic39");
inline constexpr const FieldDef& kTwoDCode39VerifyChecksum = FieldNamed(kTwoDFieldTable, "TwoDCode39VerifyChecksum");
inline constexpr const FieldDef& kTwoDCode39TransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDCode39TransmitChecksum");
inline constexpr const FieldDef& kTwoDCode39LengthOption = FieldNamed(kTwoDFieldTable, "TwoDCode39LengthOption");
inline constexpr const FieldDef& kTwoDCode39FullAscii = FieldNamed(kTwoDFieldTable, "TwoDCode39FullAscii");
inline constexpr const FieldDef& kTwoDCode39Length1 = FieldNamed(kTwoDFieldTable, "TwoDCode39Length1");
inline constexpr const FieldDef& kTwoDCode39Length2 = FieldNamed(kTwoDFieldTable, "TwoDCode39Length2");
inline constexpr const FieldDef& kTwoDCode93 = FieldNamed(kTwoDFieldTable, "TwoDCode93");
inline constexpr const FieldDef& kTwoDCode93LengthOption = FieldNamed(kTwoDFieldTable, "TwoDCode93LengthOption");
inline constexpr const FieldDef& kTwoDCode93Length1 = FieldNamed(kTwoDFieldTable, "TwoDCode93Length1");
inline constexpr const FieldDef& kTwoDCode93Length2 = FieldNamed(kTwoDFieldTable, "TwoDCode93Length2");
inline constexpr const FieldDef& kTwoDCode11 = FieldNamed(kTwoDFieldTable, "TwoDCode11");
inline constexpr const FieldDef& kTwoDCode11VerifyChecksum = FieldNamed(kTwoDFieldTable, "TwoDCode11VerifyChecksum");
inline constexpr const FieldDef& kTwoDCode11TransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDCode11TransmitChecksum");
inline constexpr const FieldDef& kTwoDCode11LengthOption = FieldNamed(kTwoDFieldTable, "TwoDCode11LengthOption");
inline constexpr const FieldDef& kTwoDCode11Length1 = FieldNamed(kTwoDFieldTable, "TwoDCode11Length1");
inline constexpr const FieldDef& kTwoDCode11Length2 = FieldNamed(kTwoDFieldTable, "TwoDCode11Length2");
inline constexpr const FieldDef& kTwoDInterleave25 = FieldNamed(kTwoDFieldTable, "TwoDInterleave25");
inline constexpr const FieldDef& kTwoDInterleave25VerifyCheckDigit = FieldNamed(kTwoDFieldTable, "TwoDInterleave25VerifyCheckDigit");
inline constexpr const FieldDef& kTwoDInterleave25TransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDInterleave25TransmitChecksum");
inline constexpr const FieldDef& kTwoDConvertInterleave25ToEan13 = FieldNamed(kTwoDFieldTable, "TwoDConvertInterleave25ToEan13");
inline constexpr const FieldDef& kTwoDInterleave25LengthOption = FieldNamed(kTwoDFieldTable, "TwoDInterleave25LengthOption");
inline constexpr const FieldDef& kTwoDInterleave25VerifyCheckDigitOpcc = FieldNamed(kTwoDFieldTable, "TwoDInterleave25VerifyCheckDigitOpcc");
inline constexpr const FieldDef& kTwoDInterleave25Length1 = FieldNamed(kTwoDFieldTable, "TwoDInterleave25Length1");
inline constexpr const FieldDef& kTwoDInterleave25Length2 = FieldNamed(kTwoDFieldTable, "TwoDInterleave25Length2");
inline constexpr const FieldDef& kTwoDIndustrial25 = FieldNamed(kTwoDFieldTable, "TwoDIndustrial25");
inline constexpr const FieldDef& kTwoDIndustrial25LengthOption = FieldNamed(kTwoDFieldTable, "TwoDIndustrial25LengthOption");
inline constexpr const FieldDef& kTwoDIndustrial25Length1 = FieldNamed(kTwoDFieldTable, "TwoDIndustrial25Length1");
inline constexpr const FieldDef& kTwoDIndustrial25Length2 = FieldNamed(kTwoDFieldTable, "TwoDIndustrial25Length2");
inline constexpr const FieldDef& kTwoDCodabar = FieldNamed(kTwoDFieldTable, "TwoDCodabar");
inline constexpr const FieldDef& kTwoDCodabarNotisEditing = FieldNamed(kTwoDFieldTable, "TwoDCodabarNotisEditing");
inline constexpr const FieldDef& kTwoDCodabarLengthOption = FieldNamed(kTwoDFieldTable, "TwoDCodabarLengthOption");
inline constexpr const FieldDef& kTwoDCodabarLength1 = FieldNamed(kTwoDFieldTable, "TwoDCodabarLength1");
inline constexpr const FieldDef& kTwoDCodabarLength2 = FieldNamed(kTwoDFieldTable, "TwoDCodabarLength2");
inline constexpr const FieldDef& kTwoDMsi = FieldNamed(kTwoDFieldTable, "TwoDMsi");
inline constexpr const FieldDef& kTwoDMsiCheckDigits = FieldNamed(kTwoDFieldTable, "TwoDMsiCheckDigits");
inline constexpr const FieldDef& kTwoDMsiTransmitChecksum = FieldNamed(kTwoDFieldTable, "TwoDMsiTransmitChecksum");
inline constexpr const FieldDef& kTwoDMsiCheckAlgorithm = FieldNamed(kTwoDFieldTable, "TwoDMsiCheckAlgorithm");
inline constexpr const FieldDef& kTwoDMsiLengthOption = FieldNamed(kTwoDFieldTable, "TwoDMsiLengthOption");
inline constexpr const FieldDef& kTwoDMsiLength1 = FieldNamed(kTwoDFieldTable, "TwoDMsiLength1");
inline constexpr const FieldDef& kTwoDMsiLength2 = FieldNamed(kTwoDFieldTable, "TwoDMsiLength2");
inline constexpr const FieldDef& kTwoDUsPostnet = FieldNamed(kTwoDFieldTable, "TwoDUsPostnet");
inline constexpr const FieldDef& kTwoDUsPlanet = FieldNamed(kTwoDFieldTable, "TwoDUsPlanet");
inline constexpr const FieldDef& kTwoDTransmitUsPostalChecksum = FieldNamed(kTwoDFieldTable, "TwoDTransmitUsPostalChecksum");
inline constexpr const FieldDef& kTwoDUsPostal = FieldNamed(kTwoDFieldTable, "TwoDUsPostal");
inline constexpr const FieldDef& kTwoDTransmitUkPostalChecksum = FieldNamed(kTwoDFieldTable, "TwoDTransmitUkPostalChecksum");
inline constexpr const FieldDef& kTwoDJapanPostal = FieldNamed(kTwoDFieldTable, "TwoDJapanPostal");
inline constexpr const FieldDef& kTwoDAustralianPostal = FieldNamed(kTwoDFieldTable, "TwoDAustralianPostal");
inline constexpr const FieldDef& kTwoDDutchPostal = FieldNamed(kTwoDFieldTable, "TwoDDutchPostal");
inline constexpr const FieldDef& kTwoDPostalCodes = FieldNamed(kTwoDFieldTable, "TwoDPostalCodes");
inline constexpr const FieldDef& kTwoDRss14 = FieldNamed(kTwoDFieldTable, "TwoDRss14");
inline constexpr const FieldDef& kTwoDRss14Limited = FieldNamed(kTwoDFieldTable, "TwoDRss14Limited");
inline constexpr const FieldDef& kTwoDRss14Expanded = FieldNamed(kTwoDFieldTable, "TwoDRss14Expanded");
inline constexpr const FieldDef& kTwoDConvertRssToUpcEan = FieldNamed(kTwoDFieldTable, "TwoDConvertRssToUpcEan");
inline constexpr const FieldDef& kTwoDPdf417 = FieldNamed(kTwoDFieldTable, "TwoDPdf417");
inline constexpr const FieldDef& kTwoDMicroPdf417 = FieldNamed(kTwoDFieldTable, "TwoDMicroPdf417");
inline constexpr const FieldDef& kTwoDCode128Emulation = FieldNamed(kTwoDFieldTable, "TwoDCode128Emulation");
inline constexpr const FieldDef& kTwoDDataMatrix = FieldNamed(kTwoDFieldTable, "TwoDDataMatrix");
inline constexpr const FieldDef& kTwoDMaxicode = FieldNamed(kTwoDFieldTable, "TwoDMaxicode");
inline constexpr const FieldDef& kTwoDQrCode = FieldNamed(kTwoDFieldTable, "TwoDQrCode");
inline constexpr const FieldDef& kTwoDList401 = FieldNamed(kTwoDFieldTable, "TwoDList401");
inline constexpr const FieldDef& kTwoDList402 = FieldNamed(kTwoDFieldTable, "TwoDList402");
inline constexpr const FieldDef& kTwoDBox201 = FieldNamed(kTwoDFieldTable, "TwoDBox201");
inline constexpr const FieldDef& kAimDuration = FieldNamed(kTwoDFieldTable, "AimDuration");
// clang-format on

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_TWO_D_FIELDS_H_
