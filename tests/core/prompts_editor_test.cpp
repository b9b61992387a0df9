#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "settings/prompts/prompt_editor.h"
#include "settings/prompts/prompts.h"

namespace veltrix {
namespace {

class PromptEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 2);
    editor_.Load(doc_->record);
  }
  std::unique_ptr<Document> doc_;
  PromptEditor editor_;
};

// (screen, rows enabled) for every screen.
TEST_F(PromptEditorTest, RowsEnabledFollowTheLinesEdited) {
  constexpr int kEdited[] = {2, 8, 8, 8, 4, 4, 4, 4, 4, 4, 7, 6};
  for (int s = 0; s < kPromptScreenCount; ++s) {
    editor_.Select(s);
    const auto rows = editor_.Rows(2);
    for (int k = 0; k < 8; ++k) EXPECT_EQ(k < kEdited[s], rows[k].enabled) << s << "/" << k;
  }
}

TEST_F(PromptEditorTest, MainMenuShowsStoredBlankSlotsInDisabledRows) {
  editor_.Select(0);
  const auto rows = editor_.Rows(2);
  EXPECT_EQ("1. Telnet      ", rows[0].label);
  EXPECT_EQ("1. Telnet      ", rows[0].text);
  EXPECT_EQ(std::string(15, ' '), rows[2].text);
  EXPECT_EQ(std::string(15, ' '), rows[2].label);
  EXPECT_FALSE(rows[3].enabled);
  for (int k = 4; k < 8; ++k) {
    EXPECT_EQ("", rows[k].text);
    EXPECT_EQ("", rows[k].label);
    EXPECT_FALSE(rows[k].enabled);
  }
}

TEST_F(PromptEditorTest, UtilitiesLineSixHasTheFixedLabelForEveryProduct) {
  editor_.Select(1);
  EXPECT_EQ("6.Set Date && Time   ", editor_.Rows(2)[5].label);
  EXPECT_EQ("6.Set Date && Time   ", editor_.Rows(1)[5].label);
  EXPECT_EQ("6.Set Date & Time   ", editor_.Rows(2)[5].text);
  EXPECT_EQ("5.Batt. Voltage ", editor_.Rows(1)[4].label);
}

TEST_F(PromptEditorTest, LabelsComeFromTheDefaultsNotTheStoredText) {
  editor_.Select(0);
  editor_.EditLine(doc_->record, 0, "Host");
  EXPECT_EQ("1. Telnet      ", editor_.Rows(2)[0].label);
  EXPECT_EQ("Host", editor_.Rows(2)[0].text);
}

struct LineCase {
  const char* name;
  int screen;
  int row;
  std::string typed;
  std::string stored;
};

class PromptLineEditTest : public PromptEditorTest,
                           public ::testing::WithParamInterface<LineCase> {};

TEST_P(PromptLineEditTest, StoresAtMostTheWidthLimitIntoTheRecord) {
  const LineCase& c = GetParam();
  editor_.Select(c.screen);
  editor_.EditLine(doc_->record, c.row, c.typed);
  EXPECT_EQ(c.stored, editor_.Line(c.screen, c.row));
  EXPECT_EQ(c.stored, ReadText(doc_->record, kPromptText, PromptSlot(c.screen, c.row)));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, PromptLineEditTest,
    ::testing::Values(
        LineCase{"Utilities25Chars", 1, 2, "abcdefghijklmnopqrstuvwxy", "abcdefghijklmnopqrst"},
        LineCase{"MainMenuTakes15", 0, 1, "123456789012345678", "123456789012345"},
        LineCase{"NavigatorTakes15", 5, 3, std::string(40, 'n'), std::string(15, 'n')},
        LineCase{"EmptyLine", 11, 5, "", ""}, LineCase{"Short", 10, 6, "Oops", "Oops"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PromptEditorTest, DisabledRowsStoreNothing) {
  const SettingsRecord before = doc_->record;
  editor_.Select(0);
  editor_.EditLine(doc_->record, 2, "hidden");
  editor_.EditLine(doc_->record, 8, "none");
  editor_.EditLine(doc_->record, -1, "none");
  EXPECT_EQ(before, doc_->record);
}

TEST_F(PromptEditorTest, StoreWritesEveryScreenFromTheBuffer) {
  auto other = std::make_unique<Document>();
  SetDefaults(*other, 1);
  editor_.Store(other->record);
  EXPECT_EQ(ReadText(doc_->record, kPromptText, 67), ReadText(other->record, kPromptText, 67));
  for (int slot = 0; slot < kPromptSlotCount; ++slot) {
    EXPECT_EQ(ReadText(doc_->record, kPromptText, slot),
              ReadText(other->record, kPromptText, slot));
  }
}

TEST_F(PromptEditorTest, ASlotWithoutNulLoadsAs40Characters) {
  std::fill_n(doc_->record.begin() + 82, 41, 'w');
  editor_.Load(doc_->record);
  EXPECT_EQ(std::string(40, 'w'), editor_.Line(0, 0));
}

// An applied file holds every text padded to 40 characters: the editable rows show no more than
// their line stores, the disabled ones what is stored.
TEST_F(PromptEditorTest, EditableRowsShowNoMoreThanTheirWidth) {
  PadPromptsForTerminal(*doc_);
  editor_.Load(doc_->record);
  editor_.Select(1);
  const auto rows = editor_.Rows(2);
  EXPECT_EQ(20, rows[0].width);
  EXPECT_EQ("1.TCP/IP Settings   ", rows[0].text);
  editor_.Select(0);
  EXPECT_EQ(40u, editor_.Rows(2)[3].text.size());
}

TEST_F(PromptEditorTest, SelectIgnoresScreensOutOfRange) {
  editor_.Select(4);
  editor_.Select(12);
  editor_.Select(-1);
  EXPECT_EQ(4, editor_.selected());
}

}  // namespace
}  // namespace veltrix
