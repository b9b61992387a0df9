#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"
#include "shell/summary.h"
#include "summary_golden.h"

namespace veltrix {
namespace {

std::string RenderBardode(const Document& doc) {
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(doc, bardode);
  return RenderSummaryText({bardode});
}

void ExpectMatchesGolden(const Document& doc, const std::string& name) {
  testing::ExpectSummaryGolden(RenderBardode(doc), name);
}

class BardodeDefaults : public ::testing::TestWithParam<int> {};

TEST_P(BardodeDefaults, MatchGolden) {
  ExpectMatchesGolden(*testing::DefaultDocument(GetParam()), "bardode_defaults.txt");
}

INSTANTIATE_TEST_SUITE_P(Products, BardodeDefaults, ::testing::Values(1, 2));

// The summary shows the linear set whatever the reader: a two-dimensional reader with changed
// two-dimensional options reads the same as the defaults.
TEST(BardodeSummary, TwoDimensionalReaderStillShowsTheLinearSet) {
  auto doc = testing::DefaultDocument(2);
  WriteNumber(doc->record, kReaderType, 1);
  WriteNumber(doc->record, kRfidReader, 1);
  WriteWorking(*doc, kTwoDCode39, 0);
  WriteWorking(*doc, kTwoDQrCode, 0);
  WriteWorking(*doc, kTwoDList401, 3);
  CopyReaderBlocksToRecord(*doc);
  ExpectMatchesGolden(*doc, "bardode_defaults.txt");
}

TEST(BardodeSummary, ChangedSymbologyOptions) {
  auto doc = testing::DefaultDocument(1);
  const std::array<std::pair<const FieldDef*, std::uint32_t>, 31> changes{{
      {&kScanMode, 8},
      {&kReadRedundancy, 3},
      {&kTimeOut, 255},
      {&kNegativeBarcode, 1},
      {&kCode39, 0},
      {&kCode39FullAscii, 1},
      {&kCode39TransmitStartStop, 1},
      {&kItalianPharmacode, 1},
      {&kItalianPharmacodeTransmitChecksum, 0},
      {&kIndustrial25StartStop, 2},
      {&kIndustrial25VerifyChecksum, 1},
      {&kCodabarStartStopCharacter, 3},
      {&kCodabarTransmitStartStop, 1},
      {&kMsi, 1},
      {&kMsiChecksumVerification, 2},
      {&kMsiChecksumTransmission, 2},
      {&kPlessey, 1},
      {&kPlesseyConvertToUkPlessey, 1},
      {&kUpceAddon5, 1},
      {&kEan8ConvertToEan13, 1},
      {&kEan13Addon2, 1},
      {&kEan13IssnConversion, 1},
      {&kUpcaTransmitSystemNumber, 0},
      {&kRss14, 1},
      {&kRss14TransmitApplicationId, 0},
      {&kRss14Expanded, 1},
      {&kRss14ExpandedTransmitCodeId, 0},
      {&kTelepen, 1},
      {&kTelepenFormat, 1},
      {&kCode93, 0},
      {&kCode128, 0},
  }};
  for (const auto& [field, value] : changes) WriteWorking(*doc, *field, value);
  auto industrial = WorkingBytes(*doc, kIndustrial25Length);
  industrial[0] = 10;  // "Fixed Length" 10 and 20
  industrial[1] = 20;
  auto msi = WorkingBytes(*doc, kMsiLength);
  msi[0] = 0x85;  // "Max / Min Length" 5 and 2
  msi[1] = 2;
  ExpectMatchesGolden(*doc, "bardode_options_changed.txt");
}

TEST(BardodeSummary, AdvancedSettingsWithPrefixAndSuffixCodes) {
  auto doc = testing::DefaultDocument(1);
  WriteNumber(doc->record, kCheckLeadingCode, 1);
  WriteText(doc->record, kLeadingCode, "AB9");
  WriteNumber(doc->record, kReadPartialCode, 1);
  WriteNumber(doc->record, kStartPosition, 5);
  WriteNumber(doc->record, kMaximumLength, 20);
  WriteNumber(doc->record, kAddPrefixCode, 1);
  const std::array<std::uint8_t, 10> prefix{13, 65, 0, 66};  // stops at the zero byte
  std::copy(prefix.begin(), prefix.end(), doc->record.begin() + kPrefixCode.offset);
  WriteNumber(doc->record, kAddSuffixCode, 1);
  const std::array<std::uint8_t, 10> suffix{15, 32, 200, 127};
  std::copy(suffix.begin(), suffix.end(), doc->record.begin() + kSuffixCode.offset);
  WriteNumber(doc->record, kGoodBeep, 2);
  WriteNumber(doc->record, kScanControl, 1);
  WriteNumber(doc->record, kScanSwitchKeyName, 10);
  ExpectMatchesGolden(*doc, "bardode_prefix_suffix.txt");
}

// The page and its dialogs edit the working block; the summary shows what they changed even
// before the block is copied into the record.
TEST(BardodeSummary, ReadsTheLinearWorkingCopy) {
  auto doc = testing::DefaultDocument(1);
  WriteWorking(*doc, kScanMode, 1);
  EXPECT_EQ(6u, ReadNumber(doc->record, kScanMode));
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(*doc, bardode);
  EXPECT_EQ("Scan Mode : Continuous", bardode.children[0].children[0].text);
}

struct UnknownValueCase {
  const char* name;
  const FieldDef* field;
  std::uint32_t value;
  std::vector<int> path;  // child indices from the branch down to the line
  const char* want;
};

class BardodeUnknownValue : public ::testing::TestWithParam<UnknownValueCase> {};

TEST_P(BardodeUnknownValue, ShowsTheNumber) {
  auto doc = testing::DefaultDocument(1);
  WriteWorking(*doc, *GetParam().field, GetParam().value);
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(*doc, bardode);
  const SummaryNode* node = &bardode;
  for (int index : GetParam().path) node = &node->children.at(index);
  EXPECT_EQ(GetParam().want, node->text);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BardodeUnknownValue,
    ::testing::Values(
        UnknownValueCase{"ScanMode", &kScanMode, 12, {0, 0}, "Scan Mode : 12"},
        UnknownValueCase{"AutoEnter", &kAutoEnter, 2, {2, 9}, "Auto Enter : 2"},
        UnknownValueCase{"GoodBeep", &kGoodBeep, 7, {2, 10}, "Good Beep : 7"},
        UnknownValueCase{"ScanControl", &kScanControl, 3, {2, 11}, "Scan Control : 3"},
        UnknownValueCase{"SwitchKey", &kScanSwitchKeyName, 11, {2, 12}, "Scan SwitchKey Name : 11"},
        UnknownValueCase{"StartStopSelection",
                         &kIndustrial25StartStop,
                         3,
                         {1, 3, 0},
                         "Start / Stop Selection : 3"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(BardodeSummary, ControlBytesOfTheLeadingCodeShowAsQuestionMarks) {
  auto doc = testing::DefaultDocument(1);
  WriteText(doc->record, kLeadingCode, "A\nB\x7F");
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(*doc, bardode);
  EXPECT_EQ("Leading Code: A?B?", bardode.children[2].children[1].text);
}

// Whatever a loaded file holds, the branch has the same lines (only their values change).
TEST(BardodeSummary, AnyRecordGivesTheSameShape) {
  const auto lines = [](const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
  };
  const auto want = lines(RenderBardode(*testing::DefaultDocument(1)));
  std::mt19937 random(3);
  for (int round = 0; round < 50; ++round) {
    auto doc = std::make_unique<Document>();
    for (std::size_t at = 3690; at < 3783; ++at) doc->record[at] = random() & 0xFF;
    for (auto& b : doc->reader_block2) b = random() & 0xFF;
    const std::string text = RenderBardode(*doc);
    EXPECT_EQ(want, lines(text));
  }
}

}  // namespace
}  // namespace veltrix
