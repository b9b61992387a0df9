#include "capture/identification.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "capture/screen_file.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"

namespace veltrix {
namespace {

constexpr int kK = 20;

// A 24 x 80 screen of blanks with `text` written from (row, column).
PageRecord Screen(int row = 0, int column = 0, std::string_view text = "") {
  PageRecord page{};
  for (int r = 0; r < 24; ++r) {
    for (int c = 0; c < 80; ++c) page[kScreenImageOffset + r * kScreenImageRowBytes + c] = ' ';
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    page[kScreenImageOffset + row * kScreenImageRowBytes + column + i] =
        static_cast<std::uint8_t>(text[i]);
  }
  return page;
}

Identification Identify(const std::vector<PageRecord>& screens) {
  return IdentifyScreens(screens, kK, kHostScreen);
}

TEST(Identification, EveryRunStaysOnTheHostScreen) {
  for (HostScreenSize size : {HostScreenSize{24, 80}, HostScreenSize{27, 132}}) {
    const std::vector<CellRun> runs = CandidateRuns(kK, size);
    ASSERT_FALSE(runs.empty());
    for (const CellRun& run : runs) {
      for (int j = 0; j < kK; ++j) {
        EXPECT_LT(run.Cell(j).row, size.rows);
        EXPECT_LT(run.Cell(j).column, size.columns);
        EXPECT_GE(run.Cell(j).row, 2);
        EXPECT_GE(run.Cell(j).column, 2);
      }
    }
  }
  // 24 x 80 with K = 20: the diagonal from rows 2-4, every row from 2, columns 2-79.
  EXPECT_EQ(CandidateRuns(kK, {}).size(), 3u + 22u + 78u);
}

// Which run tells the screens apart depends on where they differ; duplicates are dropped.
TEST(Identification, StrategiesInOrderAndDuplicates) {
  struct Case {
    const char* name;
    std::vector<PageRecord> screens;
    int strategy;
    ScreenCell start;
    std::vector<int> pages;
  };
  const Case cases[] = {
      {"one screen", {Screen(0, 0, "A")}, 0, {2, 2}, {0}},
      {"two identical", {Screen(5, 5, "X"), Screen(5, 5, "X")}, 0, {2, 2}, {0}},
      {"A B A", {Screen(5, 5, "A"), Screen(5, 5, "B"), Screen(5, 5, "A")}, 0, {2, 2}, {0, 1}},
      {"diagonal from row 4", {Screen(23, 21, "A"), Screen(23, 21, "B")}, 0, {4, 2}, {0, 1}},
      {"along row 23", {Screen(23, 5, "A"), Screen(23, 5, "B")}, 1, {23, 2}, {0, 1}},
      {"down column 40", {Screen(10, 40, "A"), Screen(10, 40, "B")}, 2, {2, 40}, {0, 1}},
      {"different only beyond 24 x 80", {Screen(24, 5, "A"), Screen(3, 100, "B")}, 0, {2, 2}, {0}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Identification id = Identify(c.screens);
    ASSERT_TRUE(id.ok);
    EXPECT_EQ(id.run.strategy, c.strategy);
    EXPECT_EQ(id.run.start, c.start);
    EXPECT_EQ(id.pages, c.pages);
    EXPECT_FALSE(id.buffer_full);
  }
}

TEST(Identification, ADamagedCharacteristicLengthCountsAsTwenty) {
  auto doc = std::make_unique<Document>();
  for (const auto& [stored, used] : {std::pair{5, 5}, {20, 20}, {0, 20}, {21, 20}, {255, 20}}) {
    WriteNumber(doc->record, kCharacteristicLength, static_cast<std::uint32_t>(stored));
    std::string finding;
    EXPECT_EQ(CharacteristicLengthOf(doc->record, &finding), used) << stored;
    EXPECT_EQ(finding.empty(), stored == used) << finding;
  }
}

TEST(Identification, AtMostFiftyPagesAndAnEmptyList) {
  for (int n : {50, 60}) {
    std::vector<PageRecord> screens;
    for (int i = 0; i < n; ++i) {
      screens.push_back(
          Screen(2 + i % 20, 2 + i % 20, std::string(1, static_cast<char>('A' + i / 20))));
    }
    const Identification id = Identify(screens);
    ASSERT_TRUE(id.ok) << n;
    EXPECT_EQ(id.pages.size(), 50u);
    EXPECT_TRUE(id.buffer_full);
  }
  const Identification none = Identify({});
  EXPECT_TRUE(none.ok);
  EXPECT_TRUE(none.pages.empty());
  EXPECT_EQ(ScreenBufferFullText(50), " Screen buffer full !! \r\n Accept at most 50 screens. ");
}

TEST(Identification, StoredIntoTheDocument) {
  const std::vector<PageRecord> screens = {Screen(3, 3, "A"), Screen(3, 3, "A"), Screen(4, 4, "B")};
  const Identification id = Identify(screens);
  ASSERT_TRUE(id.ok);
  auto doc = std::make_unique<Document>();
  doc->pages[7].fill(9);
  StoreIdentification(*doc, screens, id, kK);
  EXPECT_EQ(ReadNumber(doc->record, kTotalPages), 2u);
  EXPECT_EQ(doc->pages[0], screens[0]);
  EXPECT_EQ(doc->pages[1], screens[2]);
  EXPECT_EQ(doc->pages[7], PageRecord{});
  // The diagonal from (2,2): page 1 holds "A" at (3,3), page 2 "B" at (4,4).
  EXPECT_EQ(FieldBytes(std::span<const std::uint8_t>(doc->record), kCharacteristicString, 0)[1],
            'A');
  EXPECT_EQ(FieldBytes(std::span<const std::uint8_t>(doc->record), kCharacteristicString, 1)[2],
            'B');
  EXPECT_EQ(ReadNumber(doc->record, kCharacteristicRow, 19), 21u);
  EXPECT_EQ(ReadNumber(doc->record, kCharacteristicColumn, 19), 21u);
}

TEST(ScreenFile, SizesThatFitTheLayoutAndNoMoreThanAHundred) {
  struct Case {
    std::size_t size;
    bool ok;
    std::size_t screens;
  };
  for (const Case& c : {Case{20, true, 0}, Case{20 + 3 * kPageRecordSize, true, 3},
                        Case{20 + 3 * kPageRecordSize + 1, false, 0}, Case{19, false, 0},
                        Case{20 + 101 * kPageRecordSize, true, 100}}) {
    const std::vector<std::uint8_t> bytes(c.size);
    const auto loaded = ParseScreenFile(bytes);
    ASSERT_EQ(loaded.has_value(), c.ok) << c.size;
    if (loaded) {
      EXPECT_EQ(loaded->screens.size(), c.screens);
    }
  }
}

TEST(ScreenFile, CapturedScreensReadBack) {
  const auto path = std::filesystem::temp_directory_path() / "veltrix_capture_test.SCR";
  CaptureFile file;
  ASSERT_TRUE(file.Start(path));
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(file.Append(Screen(2, 2, std::to_string(i))));
  file.Stop();
  EXPECT_EQ(std::filesystem::file_size(path), 52140u);
  std::string error;
  const auto loaded = ReadScreenFile(path, error);
  ASSERT_TRUE(loaded) << error;
  EXPECT_EQ(loaded->screens[4], Screen(2, 2, "4"));
  std::ifstream in(path, std::ios::binary);
  char tag[5] = {};
  in.read(tag, 4);
  EXPECT_STREQ(tag, "I100");
  std::filesystem::remove(path);
  EXPECT_FALSE(file.Start(path / "no" / "folder.SCR"));
}

}  // namespace
}  // namespace veltrix
