#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "settings/emulation/emulation_choices.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/network/network_settings.h"
#include "shell/summary.h"
#include "summary_golden.h"

namespace veltrix {
namespace {

std::string EmulationSummary(const Document& doc) {
  return testing::SectionSummary(doc, "Emulation", AppendEmulationSummary);
}

using testing::NoChange;
using testing::SummaryCase;

class EmulationSummaryGolden : public ::testing::TestWithParam<SummaryCase> {};

TEST_P(EmulationSummaryGolden, MatchesGoldenText) {
  testing::ExpectSummaryCaseGolden(GetParam(), EmulationSummary);
}

void ClaimedKeysAndOptions(Document& doc) {
  ChooseLanguage(doc, 4);
  WriteNumber(doc.record, kFieldLengthIfExceed, 2);
  WriteNumber(doc.record, kNavigator, 3);
  WriteNumber(doc.record, kViewOrgX, 79);
  WriteNumber(doc.record, kViewOrgY, 24);
  SetLockScreen(doc, true);
  WriteNumber(doc.record, kTrimSpaces, 1);
  WriteNumber(doc.record, kRemoveEmptyLine, 1);  // has no line
  WriteNumber(doc.record, kDisableLocalEcho, 1);
  WriteNumber(doc.record, kMessageLineNumber, 0);
  WriteNumber(doc.record, kMessageTimeOut, 44);
  WriteText(doc.record, kExcludeString, "SIGN ON");
  ApplyFunctionKeyCombo(doc, kNavigatorKey, 0, 10, kRoleNavigatorKey);
  ApplyFunctionKeyCombo(doc, kMessageFunctionKey, 0, 5, kRoleMessageKey);
  ApplyFunctionKeyCombo(doc, kLoginNameKey, 0, 2, kRoleNameKey);
  ApplyKeyMappingChoice(doc, 1, 0, 25, KeyCodeTableEntry(doc, 0, 25));
  ApplyKeyMappingChoice(doc, 13, 0, 13, KeyCodeTableEntry(doc, 0, 13));
  ApplyKeyMappingChoice(doc, 24, 1, 7, KeyCodeTableEntry(doc, 1, 7));
  ApplyKeyMappingChoice(doc, 39, 2, 11, KeyCodeTableEntry(doc, 2, 11));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, EmulationSummaryGolden,
    ::testing::Values(
        SummaryCase{"DefaultsDravinS", 1, NoChange, "emulation_defaults_product1.txt"},
        SummaryCase{"DefaultsDravinR", 2, NoChange, "emulation_defaults_product2.txt"},
        SummaryCase{"DefaultsProduct3", 3, NoChange, "emulation_defaults_product3.txt"},
        SummaryCase{"ClaimedKeys", 2, ClaimedKeysAndOptions, "emulation_claimed_keys.txt"}),
    [](const auto& info) { return info.param.name; });

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
    EXPECT_NE(std::string::npos, EmulationSummary(*doc).find("Emulation Type : " + c.line + "\n"))
        << c.type;
  }
}

TEST(EmulationSummary, MessageLineShowsTheStoredIndex) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  // "24" chosen in the list is index 23.
  EXPECT_NE(std::string::npos, EmulationSummary(*doc).find("Message Line Number: 23\n"));
  WriteNumber(doc->record, kFontSize, 5);
  WriteNumber(doc->record, kNavigator, 9);
  const std::string text = EmulationSummary(*doc);
  EXPECT_NE(std::string::npos, text.find("Font Size : 5\n"));
  EXPECT_NE(std::string::npos, text.find("Navigator : 9\n"));
}

}  // namespace
}  // namespace veltrix
