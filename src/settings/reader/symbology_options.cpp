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
    CheckBoxControl{301, "Transmit Start/Stop", &kCode39TransmitStartStop},
    CheckBoxControl{302, "Verify Checksum", &kCode39VerifyChecksum},
    CheckBoxControl{303, "Transmit Checksum", &kCode39TransmitChecksum},
    CheckBoxControl{304, "Code 39 Full ASCII", &kCode39FullAscii}};
constexpr std::array kItalianPharmacodeChecks{
    CheckBoxControl{301, "Transmit Checksum", &kItalianPharmacodeTransmitChecksum}};
constexpr std::array kFrenchPharmacodeChecks{
    CheckBoxControl{301, "Transmit Checksum", &kFrenchPharmacodeTransmitChecksum}};
constexpr std::array kIndustrial25Checks{
    CheckBoxControl{301, "Verify Checksum", &kIndustrial25VerifyChecksum},
    CheckBoxControl{302, "Transmit Checksum", &kIndustrial25TransmitChecksum}};
constexpr std::array kIndustrial25Radios{
    ChoiceControl{601, "Start/Stop Selection", kStartStopNames, &kIndustrial25StartStop}};
constexpr std::array kInterleave25Checks{
    CheckBoxControl{301, "Verify Checksum", &kInterleave25VerifyChecksum},
    CheckBoxControl{302, "Transmit Checksum", &kInterleave25TransmitChecksum}};
constexpr std::array kInterleave25Radios{
    ChoiceControl{601, "Start/Stop Selection", kStartStopNames, &kInterleave25StartStop}};
constexpr std::array kMatrix25Checks{
    CheckBoxControl{301, "Verify Checksum", &kMatrix25VerifyChecksum},
    CheckBoxControl{302, "Transmit Checksum", &kMatrix25TransmitChecksum}};
constexpr std::array kMatrix25Radios{
    ChoiceControl{601, "Start/Stop Selection", kStartStopNames, &kMatrix25StartStop}};
constexpr std::array kCodabarRadios{
    ChoiceControl{601, "Start/Stop Character", kCodabarRadioTexts, &kCodabarStartStopCharacter,
                  ChoiceCoding::kNoneThenIndex, &kCodabarTransmitStartStop}};
constexpr std::array kMsiRadios{
    ChoiceControl{601, "Checksum Verification", kMsiVerificationNames, &kMsiChecksumVerification},
    ChoiceControl{604, "Checksum Transmission", kMsiTransmissionNames, &kMsiChecksumTransmission}};
constexpr std::array kPlesseyChecks{
    CheckBoxControl{301, "Convert to UK Plessey", &kPlesseyConvertToUkPlessey},
    CheckBoxControl{302, "Transmit Checksum", &kPlesseyTransmitChecksum}};
constexpr std::array kUpceChecks{
    CheckBoxControl{301, "Convert to UPCA", &kUpceConvertToUpca},
    CheckBoxControl{302, "Transmit System Number", &kUpceTransmitSystemNumber},
    CheckBoxControl{303, "Transmit Checksum", &kUpceTransmitChecksum}};
constexpr std::array kEan8Checks{CheckBoxControl{301, "Convert to EAN13", &kEan8ConvertToEan13},
                                 CheckBoxControl{302, "Transmit Checksum", &kEan8TransmitChecksum}};
constexpr std::array kEan13Checks{
    CheckBoxControl{301, "ISBN Conversion", &kEan13IsbnConversion},
    CheckBoxControl{302, "ISSN Conversion", &kEan13IssnConversion},
    CheckBoxControl{303, "Transmit Checksum", &kEan13TransmitChecksum},
    CheckBoxControl{304, "Transmit UPCA System Number", &kUpcaTransmitSystemNumber},
    CheckBoxControl{305, "Transmit UPCA Checksum", &kUpcaTransmitChecksum},
    CheckBoxControl{306, "Convert UPCA to EAN 13", &kUpcaConvertToEan13}};
constexpr std::array kTelepenRadios{ChoiceControl{601, "Telepen Format", kTelepenRadioTexts,
                                                  &kTelepenFormat, ChoiceCoding::kReversed}};
constexpr std::array kRss14Checks{
    CheckBoxControl{301, "Transmit Code ID", &kRss14TransmitCodeId},
    CheckBoxControl{302, "Transmit Application ID", &kRss14TransmitApplicationId},
    CheckBoxControl{303, "Transmit Check Digit", &kRss14TransmitCheckDigit}};
constexpr std::array kRss14LimitedChecks{
    CheckBoxControl{301, "Transmit Code ID", &kRss14LimitedTransmitCodeId},
    CheckBoxControl{302, "Transmit Application ID", &kRss14LimitedTransmitApplicationId},
    CheckBoxControl{303, "Transmit Check Digit", &kRss14LimitedTransmitCheckDigit}};
constexpr std::array kRss14ExpandedChecks{
    CheckBoxControl{301, "Transmit Code ID", &kRss14ExpandedTransmitCodeId}};
constexpr std::array kEan128Checks{
    CheckBoxControl{301, "Transmit Code ID", &kEan128TransmitCodeId}};

constexpr std::array kDialogs{
    LinearOptionDialog{"Code39Dlg", "Code 39 Parameters", kCode39Checks},
    LinearOptionDialog{"ItalyPharmaDlg", "Italian Pharmacode Parameters", kItalianPharmacodeChecks},
    LinearOptionDialog{"FrenchPharmaDlg", "French Pharmacode Parameters", kFrenchPharmacodeChecks},
    LinearOptionDialog{"Industrial25Dlg", "Industrial 25 Parameters", kIndustrial25Checks,
                       kIndustrial25Radios, &kIndustrial25Length, 604},
    LinearOptionDialog{"Interleave25Dlg", "Interleave 25 Parameters", kInterleave25Checks,
                       kInterleave25Radios, &kInterleave25Length, 604},
    LinearOptionDialog{"Matrix25Dlg", "Matrix 25 Parameters", kMatrix25Checks, kMatrix25Radios,
                       &kMatrix25Length, 604},
    LinearOptionDialog{"CodabarDlg", "Codabar Parameters", {}, kCodabarRadios},
    LinearOptionDialog{"MSIDlg", "MSI Parameters", {}, kMsiRadios, &kMsiLength, 607},
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

LinearOptionState OpenLinearOptions(const Document& doc, const LinearOptionDialog& dialog) {
  LinearOptionState state;
  for (const CheckBoxControl& check : dialog.checks) {
    state.checked.push_back(ReadWorking(doc, *check.field) != 0);
  }
  for (const ChoiceControl& group : dialog.radios) {
    const std::uint32_t flag = group.flag != nullptr ? ReadWorking(doc, *group.flag) : 0;
    state.chosen.push_back(DecodeChoice(group, ReadWorking(doc, *group.field), flag));
  }
  if (dialog.length != nullptr) state.length = UnpackLengthPair(WorkingBytes(doc, *dialog.length));
  return state;
}

void ApplyLinearOptions(Document& doc, const LinearOptionDialog& dialog,
                        const LinearOptionState& state) {
  for (std::size_t i = 0; i < dialog.checks.size() && i < state.checked.size(); ++i) {
    WriteWorking(doc, *dialog.checks[i].field, state.checked[i] ? 1 : 0);
  }
  for (std::size_t i = 0; i < dialog.radios.size() && i < state.chosen.size(); ++i) {
    const ChoiceControl& group = dialog.radios[i];
    std::uint32_t value = 0;
    std::uint32_t flag = 0;
    EncodeChoice(group, state.chosen[i], value, flag);
    WriteWorking(doc, *group.field, value);
    if (group.flag != nullptr) WriteWorking(doc, *group.flag, flag);
  }
  if (dialog.length != nullptr) {
    const auto packed = PackLengthPair(state.length);
    std::ranges::copy(packed, WorkingBytes(doc, *dialog.length).begin());
  }
}

}  // namespace veltrix
