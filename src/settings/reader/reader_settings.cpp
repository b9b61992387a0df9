#include "settings/reader/reader_settings.h"

#include <algorithm>
#include <array>

#include "settings/reader/beeper_sequence.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

constexpr std::array kReaderFieldList = {
    // Linear set (working block 2).
    &kCode39,
    &kItalianPharmacode,
    &kFrenchPharmacode,
    &kIndustrial25,
    &kInterleave25,
    &kMatrix25,
    &kCodabar,
    &kCode93,
    &kCode128,
    &kUpce,
    &kUpceAddon2,
    &kUpceAddon5,
    &kEan8,
    &kEan8Addon2,
    &kEan8Addon5,
    &kEan13Upca,
    &kEan13Addon2,
    &kEan13Addon5,
    &kMsi,
    &kPlessey,
    &kTelepen,
    &kRss14Limited,
    &kTelepenFormat,
    &kRss14Expanded,
    &kRss14,
    &kRss14TransmitCodeId,
    &kRss14TransmitApplicationId,
    &kRss14TransmitCheckDigit,
    &kRss14LimitedTransmitCodeId,
    &kRss14LimitedTransmitApplicationId,
    &kRss14LimitedTransmitCheckDigit,
    &kRss14ExpandedTransmitCodeId,
    &kCode39TransmitStartStop,
    &kCode39VerifyChecksum,
    &kCode39TransmitChecksum,
    &kCode39FullAscii,
    &kItalianPharmacodeTransmitChecksum,
    &kFrenchPharmacodeTransmitChecksum,
    &kInterleave25VerifyChecksum,
    &kInterleave25TransmitChecksum,
    &kIndustrial25VerifyChecksum,
    &kIndustrial25TransmitChecksum,
    &kMatrix25VerifyChecksum,
    &kMatrix25TransmitChecksum,
    &kInterleave25StartStop,
    &kIndustrial25StartStop,
    &kMatrix25StartStop,
    &kCodabarStartStopCharacter,
    &kCodabarTransmitStartStop,
    &kMsiChecksumVerification,
    &kMsiChecksumTransmission,
    &kPlesseyTransmitChecksum,
    &kPlesseyConvertToUkPlessey,
    &kUpceConvertToUpca,
    &kUpcaConvertToEan13,
    &kEan13IsbnConversion,
    &kEan13IssnConversion,
    &kUpceTransmitChecksum,
    &kUpcaTransmitChecksum,
    &kEan8TransmitChecksum,
    &kEan13TransmitChecksum,
    &kUpceTransmitSystemNumber,
    &kUpcaTransmitSystemNumber,
    &kEan8ConvertToEan13,
    &kNegativeBarcode,
    &kReadRedundancy,
    &kIndustrial25Length,
    &kInterleave25Length,
    &kMatrix25Length,
    &kMsiLength,
    &kScanMode,
    &kTimeOut,
    &kEan128,
    &kEan128TransmitCodeId,
    // Two-dimensional set (working block 1).
    &kTwoDUpcA,
    &kTwoDUpcE,
    &kTwoDUpcE1,
    &kTwoDEan8,
    &kTwoDEan13,
    &kTwoDBooklandEan,
    &kTwoDReadUccCouponExtendedCode,
    &kTwoDUpcaPreamble,
    &kTwoDUpcePreamble,
    &kTwoDUpce1Preamble,
    &kTwoDUpcaTransmitChecksum,
    &kTwoDUpceTransmitChecksum,
    &kTwoDUpce1TransmitChecksum,
    &kTwoDConvertUpceToUpca,
    &kTwoDConvertUpce1ToUpca,
    &kTwoDConvertEan8ToEan13,
    &kTwoDDecodeSupplementals,
    &kTwoDCode128,
    &kTwoDEan128,
    &kTwoDIsbt128,
    &kTwoDCode39,
    &kTwoDTrioptic39,
    &kTwoDCode39VerifyChecksum,
    &kTwoDCode39TransmitChecksum,
    &kTwoDCode39LengthOption,
    &kTwoDCode39FullAscii,
    &kTwoDCode39Length1,
    &kTwoDCode39Length2,
    &kTwoDCode93,
    &kTwoDCode93LengthOption,
    &kTwoDCode93Length1,
    &kTwoDCode93Length2,
    &kTwoDCode11,
    &kTwoDCode11VerifyChecksum,
    &kTwoDCode11TransmitChecksum,
    &kTwoDCode11LengthOption,
    &kTwoDCode11Length1,
    &kTwoDCode11Length2,
    &kTwoDInterleave25,
    &kTwoDInterleave25VerifyCheckDigit,
    &kTwoDInterleave25TransmitChecksum,
    &kTwoDConvertInterleave25ToEan13,
    &kTwoDInterleave25LengthOption,
    &kTwoDInterleave25VerifyCheckDigitOpcc,
    &kTwoDInterleave25Length1,
    &kTwoDInterleave25Length2,
    &kTwoDIndustrial25,
    &kTwoDIndustrial25LengthOption,
    &kTwoDIndustrial25Length1,
    &kTwoDIndustrial25Length2,
    &kTwoDCodabar,
    &kTwoDCodabarNotisEditing,
    &kTwoDCodabarLengthOption,
    &kTwoDCodabarLength1,
    &kTwoDCodabarLength2,
    &kTwoDMsi,
    &kTwoDMsiCheckDigits,
    &kTwoDMsiTransmitChecksum,
    &kTwoDMsiCheckAlgorithm,
    &kTwoDMsiLengthOption,
    &kTwoDMsiLength1,
    &kTwoDMsiLength2,
    &kTwoDUsPostnet,
    &kTwoDUsPlanet,
    &kTwoDTransmitUsPostalChecksum,
    &kTwoDUsPostal,
    &kTwoDTransmitUkPostalChecksum,
    &kTwoDJapanPostal,
    &kTwoDAustralianPostal,
    &kTwoDDutchPostal,
    &kTwoDPostalCodes,
    &kTwoDRss14,
    &kTwoDRss14Limited,
    &kTwoDRss14Expanded,
    &kTwoDConvertRssToUpcEan,
    &kTwoDPdf417,
    &kTwoDMicroPdf417,
    &kTwoDCode128Emulation,
    &kTwoDDataMatrix,
    &kTwoDMaxicode,
    &kTwoDQrCode,
    &kTwoDList401,
    &kTwoDList402,
    &kTwoDBox201,
    &kAimDuration,
    // Record only.
    &kReaderType,
    &kRfidReader,
    &kAddPrefixCode,
    &kPrefixCode,
    &kAddSuffixCode,
    &kSuffixCode,
    &kAutoEnter,
    &kCheckLeadingCode,
    &kLeadingCode,
    &kReadPartialCode,
    &kStartPosition,
    &kMaximumLength,
    &kGoodBeep,
    &kScanControl,
    &kScanSwitchKeyName,
    &kEan128KeyCode,
    &kRfidReadUid,
    &kRfidReadData,
    &kRfidUseDelimiter,
    &kRfidStart,
    &kRfidMaxLen,
    &kRfidDelimiter,
    &kRfidDelayBeforeReread,
    &kRfidWorkingMode,
    &kRfidReadingMode,
    &kRfidControl,
    &kAlarmBeeperSequence,
    &kDataBeeperSequence,
    &kVibratorTime,
    &kDataBox214,
};

// Parts of the working blocks and the record that no control changes but that carry a default.
constexpr FieldDef kScanModeLowNibble{.name = "",
                                      .offset = 3710,
                                      .type = FieldType::kBits,
                                      .bit_lo = 0,
                                      .bit_count = 4,
                                      .default_value = 6,
                                      .meaning = "not changed by any control"};
constexpr FieldDef kEan128LowBits{.name = "",
                                  .offset = 3712,
                                  .type = FieldType::kBits,
                                  .bit_lo = 0,
                                  .bit_count = 5,
                                  .default_value = 3,
                                  .meaning = "not changed by any control"};
constexpr FieldDef kTwoDByte58662{
    .name = "", .offset = 58662, .default_value = 6, .meaning = "not changed by any control"};
constexpr FieldDef kByte3747{
    .name = "", .offset = 3747, .default_value = 0, .meaning = "not changed by any control"};
constexpr FieldDef kByte3748{
    .name = "", .offset = 3748, .default_value = 1, .meaning = "not changed by any control"};
// Cleared by the reset and by the previous-layout conversion.
constexpr FieldDef kReservedBytes{.name = "",
                                  .offset = 3754,
                                  .width = 18,
                                  .type = FieldType::kBytes,
                                  .meaning = "not changed by any control"};
// The previous layout kept the scan control flag here.
constexpr FieldDef kPreviousScanControl{
    .name = "", .offset = 3763, .meaning = "not changed by any control"};

struct LengthPairDefault {
  const FieldDef* field;
  std::uint8_t first;
  std::uint8_t second;
};
constexpr std::array kLengthPairDefaults{LengthPairDefault{&kIndustrial25Length, 0xFF, 1},
                                         LengthPairDefault{&kInterleave25Length, 0xFE, 1},
                                         LengthPairDefault{&kMatrix25Length, 0xFF, 1},
                                         LengthPairDefault{&kMsiLength, 0xFF, 1}};

// Record-only numbers that the reset gives their default; ReaderType, RfidReader, the switch key
// and RfidControl are left alone.
constexpr std::array kResetRecordNumbers{
    &kAddPrefixCode, &kAddSuffixCode,   &kAutoEnter,     &kCheckLeadingCode, &kByte3747,
    &kByte3748,      &kReadPartialCode, &kStartPosition, &kMaximumLength,    &kGoodBeep,
    &kScanControl,   &kEan128KeyCode,   &kRfidReadUid,   &kRfidReadData,     &kRfidUseDelimiter,
    &kRfidStart,     &kRfidMaxLen,      &kRfidDelimiter, &kRfidWorkingMode,  &kRfidReadingMode,
    &kVibratorTime,  &kDataBox214};
constexpr std::array kResetRecordZeroBytes{&kPrefixCode, &kSuffixCode, &kLeadingCode,
                                           &kReservedBytes};

void FillZero(std::span<std::uint8_t> bytes) { std::fill(bytes.begin(), bytes.end(), 0); }

}  // namespace

std::span<const FieldDef* const> ReaderFields() { return kReaderFieldList; }

void SetReaderDefaults(Document& doc) {
  doc.reader_block1.fill(0);
  doc.reader_block2.fill(0);
  for (const FieldDef* f : ReaderFields()) {
    if (f->numeric() && BlockOf(*f) != ReaderBlock::kNone) {
      WriteWorking(doc, *f, static_cast<std::uint32_t>(f->default_value));
    }
  }
  for (const FieldDef* f : {&kScanModeLowNibble, &kEan128LowBits, &kTwoDByte58662}) {
    WriteWorking(doc, *f, static_cast<std::uint32_t>(f->default_value));
  }
  for (const LengthPairDefault& pair : kLengthPairDefaults) {
    auto bytes = WorkingBytes(doc, *pair.field);
    bytes[0] = pair.first;
    bytes[1] = pair.second;
  }
  CopyReaderBlocksToRecord(doc);

  for (const FieldDef* f : kResetRecordNumbers) {
    WriteNumber(doc.record, *f, static_cast<std::uint32_t>(f->default_value));
  }
  for (const FieldDef* f : kResetRecordZeroBytes)
    FillZero(FieldBytes(std::span<std::uint8_t>(doc.record), *f));
  // Only the low byte of the reread delay gets its default; the high byte stays as it is.
  doc.record[kRfidDelayBeforeReread.offset] =
      static_cast<std::uint8_t>(kRfidDelayBeforeReread.default_value);
  SetDefaultBeeperSequences(doc);
}

void ConvertPreviousReaderLayout(Document& doc) {
  WriteNumber(doc.record, kScanControl, ReadNumber(doc.record, kPreviousScanControl) != 0 ? 1 : 0);
  FillZero(FieldBytes(std::span<std::uint8_t>(doc.record), kReservedBytes));
}

}  // namespace veltrix
