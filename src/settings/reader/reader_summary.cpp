// The "Bardode" branch of the settings summary. Every line comes from the linear set (read in its
// working copy) and the record-only advanced fields, whatever reader the terminal has.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "settings/emulation/key_names.h"
#include "settings/key_names_text.h"
#include "settings/reader/length_pair.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

// One option line: "Label : value", or "value Label" for the enable lines inside a group.
struct OptionLine {
  std::string_view label;
  const FieldDef* field;
  std::span<const std::string_view> names = kOnOffNames;
  bool value_first = false;
};

// A symbology item: its title line (prefixed by "Disable"/"Enable" when it has an enable bit),
// option lines, an optional length pair, and sub-items.
struct SymbologyItem {
  std::string_view title;
  const FieldDef* enable = nullptr;
  std::span<const OptionLine> lines = {};
  const FieldDef* length = nullptr;
  std::span<const SymbologyItem> subitems = {};
};

constexpr std::array kCode39Lines{OptionLine{"Transmit Start / Stop", &kCode39TransmitStartStop},
                                  OptionLine{"Verify Checksum", &kCode39VerifyChecksum},
                                  OptionLine{"Transmit Checksum", &kCode39TransmitChecksum},
                                  OptionLine{"Code 39 Full ASCII", &kCode39FullAscii}};
constexpr std::array kItalianPharmacodeLines{
    OptionLine{"Transmit Checksum", &kItalianPharmacodeTransmitChecksum}};
constexpr std::array kFrenchPharmacodeLines{
    OptionLine{"Transmit Checksum", &kFrenchPharmacodeTransmitChecksum}};
constexpr std::array kIndustrial25Lines{
    OptionLine{"Start / Stop Selection", &kIndustrial25StartStop, kStartStopNames},
    OptionLine{"Verify Checksum", &kIndustrial25VerifyChecksum},
    OptionLine{"Transmit Checksum", &kIndustrial25TransmitChecksum}};
constexpr std::array kInterleave25Lines{
    OptionLine{"Start / Stop Selection", &kInterleave25StartStop, kStartStopNames},
    OptionLine{"Verify Checksum", &kInterleave25VerifyChecksum},
    OptionLine{"Transmit Checksum", &kInterleave25TransmitChecksum}};
constexpr std::array kMatrix25Lines{
    OptionLine{"Start / Stop Selection", &kMatrix25StartStop, kStartStopNames},
    OptionLine{"Verify Checksum", &kMatrix25VerifyChecksum},
    OptionLine{"Transmit Checksum", &kMatrix25TransmitChecksum}};
constexpr std::array kCodabarLines{
    OptionLine{"Start / Stop Character", &kCodabarStartStopCharacter, kCodabarCharacterNames},
    OptionLine{"Transmitting Start / Stop Character", &kCodabarTransmitStartStop}};
constexpr std::array kMsiLines{
    OptionLine{"Checksum Verification", &kMsiChecksumVerification, kMsiVerificationNames},
    OptionLine{"Checksum Transmission", &kMsiChecksumTransmission, kMsiTransmissionNames}};
constexpr std::array kPlesseyLines{OptionLine{"Convert to UK Plessey", &kPlesseyConvertToUkPlessey},
                                   OptionLine{"Transmit Checksum", &kPlesseyTransmitChecksum}};
constexpr std::array kUpceLines{OptionLine{"UPCE", &kUpce, kOnOffNames, true},
                                OptionLine{"UPCE Addon 2", &kUpceAddon2, kOnOffNames, true},
                                OptionLine{"UPCE Addon 5", &kUpceAddon5, kOnOffNames, true},
                                OptionLine{"Convert to UPCA", &kUpceConvertToUpca},
                                OptionLine{"Transmit Checksum", &kUpceTransmitChecksum},
                                OptionLine{"Transmit System Number", &kUpceTransmitSystemNumber}};
constexpr std::array kEan8Lines{OptionLine{"EAN 8", &kEan8, kOnOffNames, true},
                                OptionLine{"EAN 8 Addon 2", &kEan8Addon2, kOnOffNames, true},
                                OptionLine{"EAN 8 Addon 5", &kEan8Addon5, kOnOffNames, true},
                                OptionLine{"Convert to EAN 13", &kEan8ConvertToEan13},
                                OptionLine{"Transmit Checksum", &kEan8TransmitChecksum}};
constexpr std::array kEan13Lines{OptionLine{"EAN 13 Addon 2", &kEan13Addon2, kOnOffNames, true},
                                 OptionLine{"EAN 13 Addon 5", &kEan13Addon5, kOnOffNames, true},
                                 OptionLine{"ISBN Conversion", &kEan13IsbnConversion},
                                 OptionLine{"ISSN Conversion", &kEan13IssnConversion},
                                 OptionLine{"Transmit Checksum", &kEan13TransmitChecksum}};
constexpr std::array kUpcaLines{OptionLine{"Convert to EAN 13", &kUpcaConvertToEan13},
                                OptionLine{"Transmit Checksum", &kUpcaTransmitChecksum},
                                OptionLine{"Transmit System Number", &kUpcaTransmitSystemNumber}};
constexpr std::array kEan13UpcaSubitems{SymbologyItem{.title = "EAN 13", .lines = kEan13Lines},
                                        SymbologyItem{.title = "UPCA", .lines = kUpcaLines}};
// The EAN 13 and UPCA groups hang below the enable line, not beside it.
constexpr std::array kEan13UpcaEnable{SymbologyItem{
    .title = "EAN 13 && UPCA", .enable = &kEan13Upca, .subitems = kEan13UpcaSubitems}};
constexpr std::array kRss14Lines{
    OptionLine{"Transmit Code ID", &kRss14TransmitCodeId},
    OptionLine{"Transmit Application ID", &kRss14TransmitApplicationId},
    OptionLine{"Transmit Check Digit", &kRss14TransmitCheckDigit}};
constexpr std::array kRss14LimitedLines{
    OptionLine{"Transmit Code ID", &kRss14LimitedTransmitCodeId},
    OptionLine{"Transmit Application ID", &kRss14LimitedTransmitApplicationId},
    OptionLine{"Transmit Check Digit", &kRss14LimitedTransmitCheckDigit}};
constexpr std::array kRss14ExpandedLines{
    OptionLine{"Transmit Code ID", &kRss14ExpandedTransmitCodeId}};
constexpr std::array kTelepenLines{
    OptionLine{"Telepen Format", &kTelepenFormat, kTelepenFormatNames}};

// The items of "Barcode && Parameters", in the order the terminal's menu lists them.
constexpr std::array kSymbologyItems{
    SymbologyItem{.title = "Code 39", .enable = &kCode39, .lines = kCode39Lines},
    SymbologyItem{.title = "Italian Pharmacode",
                  .enable = &kItalianPharmacode,
                  .lines = kItalianPharmacodeLines},
    SymbologyItem{.title = "French Pharmacode",
                  .enable = &kFrenchPharmacode,
                  .lines = kFrenchPharmacodeLines},
    SymbologyItem{.title = "Industrial 25",
                  .enable = &kIndustrial25,
                  .lines = kIndustrial25Lines,
                  .length = &kIndustrial25Length},
    SymbologyItem{.title = "Interleave 25",
                  .enable = &kInterleave25,
                  .lines = kInterleave25Lines,
                  .length = &kInterleave25Length},
    SymbologyItem{.title = "Matrix 25",
                  .enable = &kMatrix25,
                  .lines = kMatrix25Lines,
                  .length = &kMatrix25Length},
    SymbologyItem{.title = "Codabars", .enable = &kCodabar, .lines = kCodabarLines},
    SymbologyItem{.title = "MSI", .enable = &kMsi, .lines = kMsiLines, .length = &kMsiLength},
    SymbologyItem{.title = "Plessey", .enable = &kPlessey, .lines = kPlesseyLines},
    SymbologyItem{.title = "UPCE", .lines = kUpceLines},
    SymbologyItem{.title = "EAN 8", .lines = kEan8Lines},
    SymbologyItem{.title = "EAN 13 && UPCA", .subitems = kEan13UpcaEnable},
    SymbologyItem{.title = "RSS 14", .enable = &kRss14, .lines = kRss14Lines},
    SymbologyItem{.title = "RSS 14 Limited", .enable = &kRss14Limited, .lines = kRss14LimitedLines},
    SymbologyItem{
        .title = "RSS 14 Expanded", .enable = &kRss14Expanded, .lines = kRss14ExpandedLines},
    SymbologyItem{.title = "Telepen", .enable = &kTelepen, .lines = kTelepenLines},
    SymbologyItem{.title = "Code 93", .enable = &kCode93},
    SymbologyItem{.title = "Code 128", .enable = &kCode128},
};

std::string Value(const Document& doc, const FieldDef& f,
                  std::span<const std::string_view> names = kOnOffNames) {
  return NameOf(names, ReadWorking(doc, f));
}

std::string Labelled(std::string_view label, const std::string& value) {
  return std::string(label) + " : " + value;
}

void AppendLengthPair(const Document& doc, const FieldDef& length, SummaryNode& item) {
  const LengthPair pair = UnpackLengthPair(WorkingBytes(doc, length));
  item.Add(Labelled("Length Qualification", NameOf(kLengthQualificationNames, pair.max_min)));
  item.Add(Labelled(pair.max_min ? "Max Length" : "Fixed Length 1", std::to_string(pair.first)));
  item.Add(Labelled(pair.max_min ? "Min Length" : "Fixed Length 2", std::to_string(pair.second)));
}

void AppendItem(const Document& doc, const SymbologyItem& symbology, SummaryNode& parent) {
  std::string title(symbology.title);
  if (symbology.enable != nullptr) title = Value(doc, *symbology.enable) + " " + title;
  SummaryNode& item = parent.Add(title);
  for (const OptionLine& line : symbology.lines) {
    const std::string value = Value(doc, *line.field, line.names);
    item.Add(line.value_first ? value + " " + std::string(line.label)
                              : Labelled(line.label, value));
  }
  if (symbology.length != nullptr) AppendLengthPair(doc, *symbology.length, item);
  for (const SymbologyItem& sub : symbology.subitems) AppendItem(doc, sub, item);
}

void AppendReaderSettings(const Document& doc, SummaryNode& item) {
  item.Add(Labelled("Scan Mode", Value(doc, kScanMode, kScanModeNames)));
  item.Add(Labelled("Read Redundancy", Value(doc, kReadRedundancy, kReadRedundancyNames)));
  item.Add("Time Out : " + std::to_string(ReadWorking(doc, kTimeOut)) + " sec");
  item.Add(Labelled("Negative Barcode", Value(doc, kNegativeBarcode)));
}

// A leading code from a loaded file may hold control bytes that no edit box lets the user type:
// they show as '?' so that the line stays one line.
std::string Printable(std::string text) {
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) c = '?';
  }
  return text;
}

std::string KeyNames(const Document& doc, const FieldDef& f) {
  return KeyNamesText(WorkingBytes(doc, f), f.width, KeyNameMode::kNames);
}

void AppendAdvanced(const Document& doc, SummaryNode& item) {
  item.Add("Check Leading Code: " + Value(doc, kCheckLeadingCode));
  item.Add("Leading Code: " + Printable(ReadText(doc.record, kLeadingCode)));
  item.Add(Labelled("Read Partial Code", Value(doc, kReadPartialCode)));
  item.Add(Labelled("Start Position", std::to_string(ReadWorking(doc, kStartPosition))));
  item.Add(Labelled("Maximum Length", std::to_string(ReadWorking(doc, kMaximumLength))));
  item.Add(Labelled("Add Prefix Code", Value(doc, kAddPrefixCode)));
  item.Add(Labelled("Prefix Code", KeyNames(doc, kPrefixCode)));
  item.Add(Labelled("Add Suffix Code", Value(doc, kAddSuffixCode)));
  item.Add(Labelled("Suffix Code", KeyNames(doc, kSuffixCode)));
  item.Add(Labelled("Auto Enter", Value(doc, kAutoEnter)));
  item.Add(Labelled("Good Beep", Value(doc, kGoodBeep, kGoodBeepNames)));
  item.Add(Labelled("Scan Control", Value(doc, kScanControl, kScanControlSummaryNames)));
  item.Add(Labelled("Scan SwitchKey Name", Value(doc, kScanSwitchKeyName, KeyFieldChoices())));
}

}  // namespace

void AppendReaderSummary(const Document& doc, SummaryNode& parent) {
  AppendReaderSettings(doc, parent.Add("Reader Settings"));
  SummaryNode& symbologies = parent.Add("Barcode && Parameters");
  for (const SymbologyItem& item : kSymbologyItems) AppendItem(doc, item, symbologies);
  AppendAdvanced(doc, parent.Add("Advanced Barcode Settings"));
}

}  // namespace veltrix
