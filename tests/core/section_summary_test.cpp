// Summary lines that the golden cases cannot reach: values only a file can hold, the working
// copy of the reader settings, and random records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/network/network_settings.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

// One branch of the summary as text.
std::string Branch(const Document& doc, const std::string& title) {
  for (const SummaryNode& branch : BuildSummary(doc)) {
    if (branch.text == title) return RenderSummaryText({branch});
  }
  return {};
}

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
  const auto want = lines(Branch(*testing::DefaultDocument(1), "Bardode"));
  std::mt19937 random(3);
  for (int round = 0; round < 50; ++round) {
    auto doc = std::make_unique<Document>();
    for (std::size_t at = 3690; at < 3783; ++at) doc->record[at] = random() & 0xFF;
    for (auto& b : doc->reader_block2) b = random() & 0xFF;
    doc->record[kProductOffset] = 1;
    const std::string text = Branch(*doc, "Bardode");
    EXPECT_EQ(want, lines(text));
  }
}

TEST(WirelessSummary, ValuesOnlyAFileCanHoldDoNotBreakTheLines) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  WriteNumber(doc->record, kLoginNameKey, 42);
  WriteNumber(doc->record, kWepKeyLength, 7);
  auto local_name = FieldBytes(std::span<std::uint8_t>(doc->record), kLocalName);
  std::fill(local_name.begin(), local_name.end(), 'Z');  // no NUL within the width
  const std::string text = Branch(*doc, "Wireless LAN");
  EXPECT_NE(std::string::npos, text.find("Login Name Key : 42\n"));
  EXPECT_NE(std::string::npos, text.find("WEP Key Length : 64 bits (5 bytes)\n"));
  EXPECT_NE(std::string::npos, text.find("Local Name : " + std::string(20, 'Z') + "\n"));
}

TEST(EmulationSummary, EmulationTypeNamesWhatTheHostIsToldAndTheLanguage) {
  struct Case {
    int type;
    std::string line;
  };
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  for (const Case& c :
       {Case{0, "IBM-3179-2"}, Case{1, "IBM-5555-B01 (Tranditional Chinese)"},
        Case{2, "IBM-5555-B01 (Simplified Chinese)"}, Case{3, "IBM-5555-B01 (Korean)"},
        Case{5, "IBM-3179-2 (Greek)"}, Case{6, "IBM-3179-2 (French)"}, Case{9, "IBM-3179-2"}}) {
    WriteNumber(doc->record, kEmulationType, static_cast<std::uint32_t>(c.type));
    EXPECT_NE(std::string::npos,
              Branch(*doc, "Emulation").find("Emulation Type : " + c.line + "\n"))
        << c.type;
  }
}

TEST(EmulationSummary, MessageLineShowsTheStoredIndex) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  // "24" chosen in the list is index 23.
  EXPECT_NE(std::string::npos, Branch(*doc, "Emulation").find("Message Line Number: 23\n"));
  WriteNumber(doc->record, kFontSize, 5);
  WriteNumber(doc->record, kNavigator, 9);
  const std::string text = Branch(*doc, "Emulation");
  EXPECT_NE(std::string::npos, text.find("Font Size : 5\n"));
  EXPECT_NE(std::string::npos, text.find("Navigator : 9\n"));
}

}  // namespace
}  // namespace veltrix
