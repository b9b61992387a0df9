#include "settings/reader/symbology_options.h"

#include <algorithm>
#include <array>

#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 5> kCodabarRadioTexts{"None", "abcd / abcd", "abcd / tn*e",
                                                             "ABCD / ABCD", "ABCD / TN*E"};
constexpr std::array<std::string_view, 2> kTelepenRadioTexts{"Original Telepen  (Numeric)",
                                                             "AIM Telepen  (Full ASCII)"};

constexpr std::array kCode39Checks{
    CheckBoxControl{"Transmit Start/Stop", &kCode39TransmitStartStop},
    CheckBoxControl{"Verify Checksum", &kCode39VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kCode39TransmitChecksum},
    CheckBoxControl{"Code 39 Full ASCII", &kCode39FullAscii}};
constexpr std::array kItalianPharmacodeChecks{
    CheckBoxControl{"Transmit Checksum", &kItalianPharmacodeTransmitChecksum}};
constexpr std::array kFrenchPharmacodeChecks{
    CheckBoxControl{"Transmit Checksum", &kFrenchPharmacodeTransmitChecksum}};
constexpr std::array kIndustrial25Checks{
    CheckBoxControl{"Verify Checksum", &kIndustrial25VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kIndustrial25TransmitChecksum}};
constexpr std::array kIndustrial25Radios{
    ChoiceControl{"Start/Stop Selection", kStartStopNames, &kIndustrial25StartStop}};
constexpr std::array kInterleave25Checks{
    CheckBoxControl{"Verify Checksum", &kInterleave25VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kInterleave25TransmitChecksum}};
constexpr std::array kInterleave25Radios{
    ChoiceControl{"Start/Stop Selection", kStartStopNames, &kInterleave25StartStop}};
constexpr std::array kMatrix25Checks{
    CheckBoxControl{"Verify Checksum", &kMatrix25VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kMatrix25TransmitChecksum}};
constexpr std::array kMatrix25Radios{
    ChoiceControl{"Start/Stop Selection", kStartStopNames, &kMatrix25StartStop}};
constexpr std::array kCodabarRadios{
    ChoiceControl{"Start/Stop Character", kCodabarRadioTexts, &kCodabarStartStopCharacter,
                  ChoiceCoding::kNoneThenIndex, &kCodabarTransmitStartStop}};
constexpr std::array kMsiRadios{
    ChoiceControl{"Checksum Verification", kMsiVerificationNames, &kMsiChecksumVerification},
    ChoiceControl{"Checksum Transmission", kMsiTransmissionNames, &kMsiChecksumTransmission}};
constexpr std::array kPlesseyChecks{
    CheckBoxControl{"Convert to UK Plessey", &kPlesseyConvertToUkPlessey},
    CheckBoxControl{"Transmit Checksum", &kPlesseyTransmitChecksum}};
constexpr std::array kUpceChecks{
    CheckBoxControl{"Convert to UPCA", &kUpceConvertToUpca},
    CheckBoxControl{"Transmit System Number", &kUpceTransmitSystemNumber},
    CheckBoxControl{"Transmit Checksum", &kUpceTransmitChecksum}};
constexpr std::array kEan8Checks{CheckBoxControl{"Convert to EAN13", &kEan8ConvertToEan13},
                                 CheckBoxControl{"Transmit Checksum", &kEan8TransmitChecksum}};
constexpr std::array kEan13Checks{
    CheckBoxControl{"ISBN Conversion", &kEan13IsbnConversion},
    CheckBoxControl{"ISSN Conversion", &kEan13IssnConversion},
    CheckBoxControl{"Transmit Checksum", &kEan13TransmitChecksum},
    CheckBoxControl{"Transmit UPCA System Number", &kUpcaTransmitSystemNumber},
    CheckBoxControl{"Transmit UPCA Checksum", &kUpcaTransmitChecksum},
    CheckBoxControl{"Convert UPCA to EAN 13", &kUpcaConvertToEan13}};
constexpr std::array kTelepenRadios{
    ChoiceControl{"Telepen Format", kTelepenRadioTexts, &kTelepenFormat, ChoiceCoding::kReversed}};
constexpr std::array kRss14Checks{
    CheckBoxControl{"Transmit Code ID", &kRss14TransmitCodeId},
    CheckBoxControl{"Transmit Application ID", &kRss14TransmitApplicationId},
    CheckBoxControl{"Transmit Check Digit", &kRss14TransmitCheckDigit}};
constexpr std::array kRss14LimitedChecks{
    CheckBoxControl{"Transmit Code ID", &kRss14LimitedTransmitCodeId},
    CheckBoxControl{"Transmit Application ID", &kRss14LimitedTransmitApplicationId},
    CheckBoxControl{"Transmit Check Digit", &kRss14LimitedTransmitCheckDigit}};
constexpr std::array kRss14ExpandedChecks{
    CheckBoxControl{"Transmit Code ID", &kRss14ExpandedTransmitCodeId}};
constexpr std::array kEan128Checks{CheckBoxControl{"Transmit Code ID", &kEan128TransmitCodeId}};

constexpr std::array kDialogs{
    LinearOptionDialog{"Code39Dlg", "Code 39 Parameters", kCode39Checks},
    LinearOptionDialog{"ItalyPharmaDlg", "Italian Pharmacode Parameters", kItalianPharmacodeChecks},
    LinearOptionDialog{"FrenchPharmaDlg", "French Pharmacode Parameters", kFrenchPharmacodeChecks},
    LinearOptionDialog{"Industrial25Dlg", "Industrial 25 Parameters", kIndustrial25Checks,
                       kIndustrial25Radios, &kIndustrial25Length},
    LinearOptionDialog{"Interleave25Dlg", "Interleave 25 Parameters", kInterleave25Checks,
                       kInterleave25Radios, &kInterleave25Length},
    LinearOptionDialog{"Matrix25Dlg", "Matrix 25 Parameters", kMatrix25Checks, kMatrix25Radios,
                       &kMatrix25Length},
    LinearOptionDialog{"CodabarDlg", "Codabar Parameters", {}, kCodabarRadios},
    LinearOptionDialog{"MSIDlg", "MSI Parameters", {}, kMsiRadios, &kMsiLength},
    LinearOptionDialog{"PlesseyDlg", "Plessey Parameters", kPlesseyChecks},
    LinearOptionDialog{"UPCEDlg", "UPCE Parameters", kUpceChecks},
    LinearOptionDialog{"EAN8Dlg", "EAN 8 Parameters", kEan8Checks},
    LinearOptionDialog{"EAN13Dlg", "EAN 13 and UPCA Parameters", kEan13Checks},
    LinearOptionDialog{"TelepenDlg", "Telepen Parameters", {}, kTelepenRadios},
    LinearOptionDialog{"RSS14Dlg", "RSS14 Parameters", kRss14Checks},
    LinearOptionDialog{"RSS14LimitedDlg", "RSS14 Limited Parameters", kRss14LimitedChecks},
    LinearOptionDialog{"RSS14ExpandedDlg", "RSS14 Expanded Parameters", kRss14ExpandedChecks},
    LinearOptionDialog{"EAN128Dlg", "EAN128 Parameters", kEan128Checks},
};

}  // namespace

std::span<const LinearOptionDialog> LinearOptionDialogs() { return kDialogs; }

const LinearOptionDialog* FindLinearOptionDialog(std::string_view template_name) {
  auto it = std::ranges::find(kDialogs, template_name, &LinearOptionDialog::template_name);
  return it == kDialogs.end() ? nullptr : &*it;
}

OwnedBindings LinearOptionBindings(const LinearOptionDialog& dialog) {
  OwnedBindings table;
  AddWorkingLines(table, dialog.checks);
  AddWorkingLines(table, dialog.radios, ControlKind::kRadioGroup);
  if (const FieldDef* length = dialog.length) {
    // Bit 7 of the first byte, its bits 6-0, the second byte.
    table.lines.push_back({.control = "length_qualification",
                           .kind = ControlKind::kRadioGroup,
                           .field = table.Field({.offset = length->offset,
                                                 .type = FieldType::kBits,
                                                 .bit_lo = 7,
                                                 .bit_count = 1,
                                                 .max = 1}),
                           .working = true,
                           .on_ok = true});
    AddLengthBoxes(table,
                   table.Field({.offset = length->offset,
                                .type = FieldType::kBits,
                                .bit_lo = 0,
                                .bit_count = 7,
                                .max = 127}),
                   table.Field({.offset = length->offset + 1}), kLinearLengthBox);
  }
  return table;
}

void ApplyLinearOptions(Document& doc, const LinearOptionDialog& dialog) {
  if (dialog.length != nullptr) {
    const auto bytes = WorkingBytes(doc, *dialog.length);
    std::ranges::copy(PackLengthPair(UnpackLengthPair(bytes)), bytes.begin());
  }
}

}  // namespace veltrix
