#include "settings/reader/two_d_options.h"

#include <algorithm>
#include <array>

#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 3> kPreambleNames{"No Preamble", "System Character",
                                                         "System Character & Country Code"};
constexpr std::array<std::string_view, 3> kSupplementalNames{
    "Ignore Supplementaries", "Decode Only With Supplementaries", "Decode With Supplementaries"};
constexpr std::array<std::string_view, 3> kVerifyCheckDigitNames{" No verify", " USS", " OPCC"};
constexpr std::array<std::string_view, 2> kMsiAlgorithmNames{"Mod 10/Mod 11", "Mod 10/Mod 10"};
constexpr std::array<std::string_view, 2> kMsiCheckDigitNames{"One Check Digit",
                                                              "Two Check Digits"};

constexpr std::array kUpcaChecks{
    CheckBoxControl{"Transmit Checksum", &kTwoDUpcaTransmitChecksum},
    CheckBoxControl{"Read UCC Coupon Extended Code", &kTwoDReadUccCouponExtendedCode}};
constexpr std::array kUpcaLists{
    ChoiceControl{"UPCA Preamble :", kPreambleNames, &kTwoDUpcaPreamble},
    ChoiceControl{"Decode Supplementals :", kSupplementalNames, &kTwoDDecodeSupplementals}};
constexpr std::array kUpceChecks{
    CheckBoxControl{"Transmit Checksum", &kTwoDUpceTransmitChecksum},
    CheckBoxControl{"Convert UPCE to UPCA", &kTwoDConvertUpceToUpca},
    CheckBoxControl{"Read UCC Coupon Extended Code", &kTwoDReadUccCouponExtendedCode}};
constexpr std::array kUpceLists{
    ChoiceControl{"UPCE Preamble :", kPreambleNames, &kTwoDUpcePreamble},
    ChoiceControl{"Decode Supplementals :", kSupplementalNames, &kTwoDDecodeSupplementals}};
constexpr std::array kUpce1Checks{
    CheckBoxControl{"Transmit Checksum", &kTwoDUpce1TransmitChecksum},
    CheckBoxControl{"Convert UPCE-1 to UPCA", &kTwoDConvertUpce1ToUpca},
    CheckBoxControl{"Read UCC Coupon Extended Code", &kTwoDReadUccCouponExtendedCode}};
constexpr std::array kUpce1Lists{
    ChoiceControl{"UPCE-1 Preamble :", kPreambleNames, &kTwoDUpce1Preamble},
    ChoiceControl{"Decode Supplementals :", kSupplementalNames, &kTwoDDecodeSupplementals}};
constexpr std::array kEan8Checks{
    CheckBoxControl{"Convert EAN8 to EAN13", &kTwoDConvertEan8ToEan13}};
constexpr std::array kEan8Lists{
    ChoiceControl{"Decode Supplementals :", kSupplementalNames, &kTwoDDecodeSupplementals}};
constexpr std::array kCode39Checks{
    CheckBoxControl{"Verify Checksum", &kTwoDCode39VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kTwoDCode39TransmitChecksum},
    CheckBoxControl{"Code 39 Full ASCII", &kTwoDCode39FullAscii}};
constexpr std::array kCode11Checks{
    CheckBoxControl{"Verify Checksum", &kTwoDCode11VerifyChecksum},
    CheckBoxControl{"Transmit Checksum", &kTwoDCode11TransmitChecksum}};
constexpr std::array kInterleave25Checks{
    CheckBoxControl{"Transmit Checksum", &kTwoDInterleave25TransmitChecksum},
    CheckBoxControl{"Convert Interleaved 25 to EAN13", &kTwoDConvertInterleave25ToEan13}};
constexpr std::array kInterleave25Lists{ChoiceControl{
    "Verify check digit :", kVerifyCheckDigitNames, &kTwoDInterleave25VerifyCheckDigit,
    ChoiceCoding::kOneOfTwoBits, &kTwoDInterleave25VerifyCheckDigitOpcc}};
constexpr std::array kCodabarChecks{CheckBoxControl{"NOTIS Editing", &kTwoDCodabarNotisEditing}};
constexpr std::array kMsiChecks{CheckBoxControl{"Transmit Checksum", &kTwoDMsiTransmitChecksum}};
constexpr std::array kMsiLists{
    ChoiceControl{"Check Algorithm :", kMsiAlgorithmNames, &kTwoDMsiCheckAlgorithm},
    ChoiceControl{"Check Digits :", kMsiCheckDigitNames, &kTwoDMsiCheckDigits}};
constexpr std::array kPostalChecks{
    CheckBoxControl{"US Postnet", &kTwoDUsPostnet},
    CheckBoxControl{"US Planet", &kTwoDUsPlanet},
    CheckBoxControl{"Transmit US Postal Checksum", &kTwoDTransmitUsPostalChecksum},
    CheckBoxControl{"US Postal", &kTwoDUsPostal},
    CheckBoxControl{"Transmit UK Postal Checksum", &kTwoDTransmitUkPostalChecksum},
    CheckBoxControl{"Japan Postal", &kTwoDJapanPostal},
    CheckBoxControl{"Australian Postal", &kTwoDAustralianPostal},
    CheckBoxControl{"Dutch Postal", &kTwoDDutchPostal}};
constexpr std::array kRss14Checks{
    CheckBoxControl{"Convert RSS to UPC/EAN", &kTwoDConvertRssToUpcEan}};

constexpr std::array<const FieldDef*, 1> kUpcClears{&kTwoDUpcReservedBit};
constexpr std::array<const FieldDef*, 1> kCode39Clears{&kTwoDCode39ReservedBits};
constexpr std::array<const FieldDef*, 1> kCodabarClears{&kTwoDCodabarReservedBit};
constexpr std::array kMsiAlgorithmRule{
    StoredOnlyWith{&kTwoDMsiCheckAlgorithm, &kTwoDMsiCheckDigits}};

constexpr std::array kDialogs{
    TwoDOptionDialog{.template_name = "UPCA_2D_DLG",
                     .caption = "UPCA Parameters",
                     .checks = kUpcaChecks,
                     .lists = kUpcaLists,
                     .cleared_on_ok = kUpcClears},
    TwoDOptionDialog{.template_name = "UPCE_2D_DLG",
                     .caption = "UPCE Parameters",
                     .checks = kUpceChecks,
                     .lists = kUpceLists,
                     .cleared_on_ok = kUpcClears},
    TwoDOptionDialog{.template_name = "UPCE1_2D_DLG",
                     .caption = "UPCE-1 Parameters",
                     .checks = kUpce1Checks,
                     .lists = kUpce1Lists,
                     .cleared_on_ok = kUpcClears},
    TwoDOptionDialog{.template_name = "EAN8_2D_DLG",
                     .caption = "EAN8 Parameters",
                     .checks = kEan8Checks,
                     .lists = kEan8Lists},
    TwoDOptionDialog{.template_name = "CODE39_2D_DLG",
                     .caption = "Code 39 Parameters",
                     .checks = kCode39Checks,
                     .length_option = &kTwoDCode39LengthOption,
                     .length1 = &kTwoDCode39Length1,
                     .length2 = &kTwoDCode39Length2,
                     .cleared_on_open = kCode39Clears,
                     .cleared_on_ok = kCode39Clears},
    TwoDOptionDialog{.template_name = "CODE93_2D_DLG",
                     .caption = "Code 93 Parameters",
                     .length_option = &kTwoDCode93LengthOption,
                     .length1 = &kTwoDCode93Length1,
                     .length2 = &kTwoDCode93Length2},
    TwoDOptionDialog{.template_name = "CODE11_2D_DLG",
                     .caption = "Code 11 Parameters",
                     .checks = kCode11Checks,
                     .length_option = &kTwoDCode11LengthOption,
                     .length1 = &kTwoDCode11Length1,
                     .length2 = &kTwoDCode11Length2},
    TwoDOptionDialog{.template_name = "INDUSTRIAL25_2D_DLG",
                     .caption = "Industrial 25 Parameters",
                     .length_option = &kTwoDIndustrial25LengthOption,
                     .length1 = &kTwoDIndustrial25Length1,
                     .length2 = &kTwoDIndustrial25Length2},
    TwoDOptionDialog{.template_name = "INTERLEAVE25_2D_DLG",
                     .caption = "Interleave 25 Parameters",
                     .checks = kInterleave25Checks,
                     .lists = kInterleave25Lists,
                     .length_option = &kTwoDInterleave25LengthOption,
                     .length1 = &kTwoDInterleave25Length1,
                     .length2 = &kTwoDInterleave25Length2},
    TwoDOptionDialog{.template_name = "CODABAR_2D_DLG",
                     .caption = "Codabar Parameters",
                     .checks = kCodabarChecks,
                     .length_option = &kTwoDCodabarLengthOption,
                     .length1 = &kTwoDCodabarLength1,
                     .length2 = &kTwoDCodabarLength2,
                     .cleared_on_ok = kCodabarClears},
    TwoDOptionDialog{.template_name = "MSI_2D_DLG",
                     .caption = "MSI Parameters",
                     .checks = kMsiChecks,
                     .lists = kMsiLists,
                     .length_option = &kTwoDMsiLengthOption,
                     .length1 = &kTwoDMsiLength1,
                     .length2 = &kTwoDMsiLength2,
                     .stored_only_with = kMsiAlgorithmRule},
    TwoDOptionDialog{.template_name = "POSTAL_2D_DLG",
                     .caption = "Postal Code Parameters",
                     .checks = kPostalChecks},
    TwoDOptionDialog{
        .template_name = "RSS14_2D_DLG", .caption = "RSS14 Parameters", .checks = kRss14Checks},
};

}  // namespace

std::span<const TwoDOptionDialog> TwoDOptionDialogs() { return kDialogs; }

const TwoDOptionDialog* FindTwoDOptionDialog(std::string_view template_name) {
  auto it = std::ranges::find(kDialogs, template_name, &TwoDOptionDialog::template_name);
  return it == kDialogs.end() ? nullptr : &*it;
}

OwnedBindings TwoDOptionBindings(const TwoDOptionDialog& dialog) {
  OwnedBindings table;
  AddWorkingLines(table, dialog.checks);
  AddWorkingLines(table, dialog.lists, ControlKind::kList);
  if (dialog.length_option != nullptr) {
    table.lines.push_back({.control = "length_option",
                           .kind = ControlKind::kList,
                           .field = dialog.length_option,
                           .working = true,
                           .on_ok = true});
    AddLengthBoxes(table, dialog.length1, dialog.length2, kTwoDLengthBox);
  }
  return table;
}

void OpenTwoDOptions(Document& doc, const TwoDOptionDialog& dialog) {
  for (const FieldDef* bits : dialog.cleared_on_open) WriteWorking(doc, *bits, 0);
}

void LengthOptionChosen(Document& pending, const TwoDOptionDialog& dialog) {
  if (dialog.length_option == nullptr) return;
  const auto read = [&pending](const FieldDef* f) {
    return static_cast<int>(ReadWorking(pending, *f));
  };
  const LengthBoxes boxes = BoxesAfterChoosingOption(read(dialog.length_option),
                                                     {read(dialog.length1), read(dialog.length2)});
  WriteWorking(pending, *dialog.length1, static_cast<std::uint32_t>(boxes.first));
  WriteWorking(pending, *dialog.length2, static_cast<std::uint32_t>(boxes.second));
}

void ApplyTwoDOptions(Document& doc, const TwoDOptionDialog& dialog) {
  for (const FieldDef* bits : dialog.cleared_on_ok) WriteWorking(doc, *bits, 0);
  for (const StoredOnlyWith& rule : dialog.stored_only_with) {
    if (ReadWorking(doc, *rule.condition) != 1) WriteWorking(doc, *rule.field, 0);
  }
  if (dialog.length_option != nullptr) {
    const auto read = [&doc](const FieldDef* f) { return static_cast<int>(ReadWorking(doc, *f)); };
    const StoredLengthOption stored =
        StoreLengthOption(read(dialog.length_option), {read(dialog.length1), read(dialog.length2)});
    WriteWorking(doc, *dialog.length_option, static_cast<std::uint32_t>(stored.option));
    WriteWorking(doc, *dialog.length1, static_cast<std::uint32_t>(stored.length1));
    WriteWorking(doc, *dialog.length2, static_cast<std::uint32_t>(stored.length2));
  }
}

}  // namespace veltrix
