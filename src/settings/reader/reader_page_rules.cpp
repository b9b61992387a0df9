#include "settings/reader/reader_page_rules.h"

#include <algorithm>
#include <string>

#include "settings/reader/linear_fields.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

constexpr std::uint8_t kReaderBits = 0x05;
constexpr std::uint8_t kReaderChangedBit = 0x08;
constexpr int kEan128CheckBox = 325;
constexpr int kNegativeBarcodeCheckBox = 326;

constexpr std::array<PageCheckBox, 26> kLinearCheckBoxes{{
    {301, "Code 39", &kCode39, "Code39Dlg"},
    {302, "Italian Pharmacode", &kItalianPharmacode, "ItalyPharmaDlg"},
    {303, "French Pharmacode", &kFrenchPharmacode, "FrenchPharmaDlg"},
    {304, "Industrial 25", &kIndustrial25, "Industrial25Dlg"},
    {305, "Interleave 25", &kInterleave25, "Interleave25Dlg"},
    {306, "Matrix 25", &kMatrix25, "Matrix25Dlg"},
    {307, "Codabar", &kCodabar, "CodabarDlg"},
    {308, "MSI", &kMsi, "MSIDlg"},
    {309, "Plessey", &kPlessey, "PlesseyDlg"},
    {310, "UPCE", &kUpce, "UPCEDlg"},
    {311, "UPCE Addon 2", &kUpceAddon2, ""},
    {312, "UPCE Addon 5", &kUpceAddon5, ""},
    {313, "EAN 8", &kEan8, "EAN8Dlg"},
    {314, "EAN 8 Addon 2", &kEan8Addon2, ""},
    {315, "EAN 8 Addon 5", &kEan8Addon5, ""},
    {316, "EAN 13 && UPCA", &kEan13Upca, "EAN13Dlg"},
    {317, "EAN 13 Addon 2", &kEan13Addon2, ""},
    {318, "EAN 13 Addon 5", &kEan13Addon5, ""},
    {319, "Telepen", &kTelepen, "TelepenDlg"},
    {320, "RSS 14", &kRss14, "RSS14Dlg"},
    {321, "RSS 14 Limited", &kRss14Limited, "RSS14LimitedDlg"},
    {322, "RSS 14 Expanded", &kRss14Expanded, "RSS14ExpandedDlg"},
    {323, "Code 93", &kCode93, ""},
    {324, "Code 128", &kCode128, ""},
    {kEan128CheckBox, "EAN128", nullptr, "EAN128Dlg"},
    {kNegativeBarcodeCheckBox, "Negative Barcode", &kNegativeBarcode, ""},
}};

constexpr std::array<PageCheckBox, 27> kTwoDCheckBoxes{{
    {301, "UPC-A", &kTwoDUpcA, "UPCA_2D_DLG"},
    {302, "UPC-E", &kTwoDUpcE, "UPCE_2D_DLG"},
    {303, "UPC-E1", &kTwoDUpcE1, "UPCE1_2D_DLG"},
    {304, "EAN8", &kTwoDEan8, "EAN8_2D_DLG"},
    {305, "EAN13", &kTwoDEan13, ""},
    {306, "Bookland EAN", &kTwoDBooklandEan, ""},
    {307, "Code 128", &kTwoDCode128, ""},
    {308, "EAN 128", &kTwoDEan128, ""},
    {309, "ISBT 128", &kTwoDIsbt128, ""},
    {310, "Code 39", &kTwoDCode39, "CODE39_2D_DLG"},
    {311, "Trioptic 39", &kTwoDTrioptic39, ""},
    {312, "Code 93", &kTwoDCode93, "CODE93_2D_DLG"},
    {313, "Code 11", &kTwoDCode11, "CODE11_2D_DLG"},
    {314, "Industrial 25", &kTwoDIndustrial25, "INDUSTRIAL25_2D_DLG"},
    {315, "Interleave 25", &kTwoDInterleave25, "INTERLEAVE25_2D_DLG"},
    {316, "Codabar", &kTwoDCodabar, "CODABAR_2D_DLG"},
    {317, "MSI", &kTwoDMsi, "MSI_2D_DLG"},
    {318, "Postal Codes", &kTwoDPostalCodes, "POSTAL_2D_DLG"},
    {319, "RSS14", &kTwoDRss14, "RSS14_2D_DLG"},
    {320, "RSS14 Limited", &kTwoDRss14Limited, ""},
    {321, "RSS14 Expanded", &kTwoDRss14Expanded, ""},
    {322, "PDF417", &kTwoDPdf417, ""},
    {323, "MicroPDF417", &kTwoDMicroPdf417, ""},
    {324, "Code 128 Emulation", &kTwoDCode128Emulation, ""},
    {325, "Data Matrix", &kTwoDDataMatrix, ""},
    {326, "Maxicode", &kTwoDMaxicode, ""},
    {327, "QR Code", &kTwoDQrCode, ""},
}};

// Check boxes only "2D Reader" has: "Code 11", "Postal Codes" and "PDF417" to "QR Code".
bool OnlyForTwoDReader(int id) {
  return id == kCode11CheckBox || id == kPostalCodesCheckBox || id >= kPdf417CheckBox;
}

bool& Checked(ReaderPageState& state, int id) { return state.checked[id - kFirstCheckBoxId]; }
bool Checked(const ReaderPageState& state, int id) { return state.checked[id - kFirstCheckBoxId]; }

}  // namespace

int ReaderPositionOf(std::uint8_t reader_type) {
  if ((reader_type & 0x04) != 0) return kLongRangeLaser;
  if ((reader_type & 0x01) != 0) return kTwoDReader;
  return kLaserCcdReader;
}

std::uint8_t WithReaderPosition(std::uint8_t reader_type, int position) {
  const std::uint8_t reader =
      position == kTwoDReader ? 0x01 : (position == kLongRangeLaser ? 0x04 : 0);
  return static_cast<std::uint8_t>((reader_type & ~(kReaderBits | kReaderChangedBit)) | reader);
}

bool UsesTwoDSet(std::uint8_t reader_type) { return (reader_type & kReaderBits) != 0; }

void ChooseReader(Document& doc, int position) {
  doc.record[kReaderType.offset] = WithReaderPosition(doc.record[kReaderType.offset], position);
}

std::span<const PageCheckBox> ReaderPageCheckBoxes(bool two_d) {
  if (two_d) return kTwoDCheckBoxes;
  return kLinearCheckBoxes;
}

ReaderPageState FillReaderPageState(const Document& doc) {
  ReaderPageState state;
  const std::uint8_t reader_type = doc.record[kReaderType.offset];
  state.reader = ReaderPositionOf(reader_type);
  const auto read = [&doc](const FieldDef& f) { return ReadWorking(doc, f); };
  if (UsesTwoDSet(reader_type)) {
    state.bookland_follows_ean13 = true;
    for (const PageCheckBox& box : kTwoDCheckBoxes) Checked(state, box.id) = read(*box.field) != 0;
    return state;
  }
  for (const PageCheckBox& box : kLinearCheckBoxes) {
    if (box.field != nullptr) Checked(state, box.id) = read(*box.field) != 0;
  }
  Checked(state, kEan128CheckBox) = read(kEan128) < 2;
  return state;
}

bool BooklandFollowsEan13(bool follows, int id, std::uint8_t reader_type) {
  return follows || (id == kEan13CheckBox && reader_type != 0);
}

bool PageCheckBoxEnabled(const ReaderPageState& state, int id) {
  if (id == kBooklandEanCheckBox && state.bookland_follows_ean13 &&
      !Checked(state, kEan13CheckBox)) {
    return false;
  }
  if (state.reader == kLaserCcdReader) return id != kQrCodeCheckBox;
  return state.reader == kTwoDReader || !OnlyForTwoDReader(id);
}

bool MoreButtonEnabled(const ReaderPageState& state, int id) {
  const auto boxes = ReaderPageCheckBoxes(state.reader != kLaserCcdReader);
  auto it = std::ranges::find(boxes, id, &PageCheckBox::id);
  if (it == boxes.end() || it->more_dialog.empty()) return false;
  return state.reader != kLongRangeLaser || !OnlyForTwoDReader(id);
}

namespace {

bool LinearSetInUse(const Document& doc) { return !UsesTwoDSet(doc.record[kReaderType.offset]); }
bool LongRangeLaser(const Document& doc) {
  return ReaderPositionOf(doc.record[kReaderType.offset]) == kLongRangeLaser;
}
std::int64_t ReaderShown(std::int64_t reader_type) {
  return ReaderPositionOf(static_cast<std::uint8_t>(reader_type));
}
void StoreReader(Document& doc, std::int64_t position) {
  ChooseReader(doc, static_cast<int>(position));
}
constexpr ChoiceControl kSettingLists[2][2] = {
    {{"Scan mode :", kScanModeNames, &kScanMode},
     {"Read redundancy :", kReadRedundancyNames, &kReadRedundancy}},
    {{"Reader option 1 :", kTwoDList401Names, &kTwoDList401},
     {"Reader option 2 :", kTwoDList402Names, &kTwoDList402}},
};
std::int64_t Ean128Shown(std::int64_t stored) { return stored < 2 ? 1 : 0; }
void StoreEan128(Document& doc, std::int64_t checked) {
  WriteWorking(doc, kEan128, checked != 0 ? 1 : 2);
}

}  // namespace

bool MayChangeReader(const Document& doc) { return doc.product() == 3; }

std::span<const ChoiceControl> ReaderSettingLists(bool two_d) { return kSettingLists[two_d]; }

OwnedBindings ReaderPageBindings(bool two_d) {
  OwnedBindings table;
  table.lines.push_back({.control = "barcode_reader",
                         .kind = ControlKind::kList,
                         .field = &kReaderType,
                         .store = StoreReader,
                         .enabled = MayChangeReader,
                         .shown = ReaderShown});
  table.lines.push_back({.control = "rfid_reader", .field = &kRfidReader, .on_ok = true});
  const FieldBinding setting{
      .kind = ControlKind::kList, .enabled = LinearSetInUse, .working = true, .on_ok = true};
  FieldBinding line = setting;
  for (const ChoiceControl& list : ReaderSettingLists(two_d)) {
    line.control = &list == &kSettingLists[two_d][0] ? "scan_mode" : "read_redundancy";
    line.field = list.field;
    line.choice = &list;
    table.lines.push_back(line);
  }
  line.choice = nullptr;
  line.control = "time_out";
  line.kind = ControlKind::kNumberEdit;
  line.field = two_d ? &kTwoDBox201 : &kTimeOut;
  line.box = &kTimeOutBox;
  table.lines.push_back(line);
  line.control = "aim_duration";
  line.field = &kAimDuration;
  line.enabled = LongRangeLaser;
  line.box = &kAimDurationBox;
  table.lines.push_back(line);
  for (const PageCheckBox& box : ReaderPageCheckBoxes(two_d)) {
    FieldBinding mark{.control = table.Name("symbology_" + std::to_string(box.id - 300)),
                      .field = box.field,
                      .working = true,
                      .on_ok = true};
    if (box.field == nullptr) {  // the linear set's "EAN128"
      mark.field = &kEan128;
      mark.store = StoreEan128;
      mark.shown = Ean128Shown;
    }
    table.lines.push_back(mark);
  }
  return table;
}

void ApplyReaderPage(Document& doc) {
  if (LongRangeLaser(doc)) {
    for (const PageCheckBox& box : kTwoDCheckBoxes) {
      if (OnlyForTwoDReader(box.id)) WriteWorking(doc, *box.field, 0);
    }
  }
  CopyReaderBlocksToRecord(doc);
}

}  // namespace veltrix
