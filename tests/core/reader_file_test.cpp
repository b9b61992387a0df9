// The reader working blocks travel through the settings file: written from the blocks, read back
// into them, and a previous-layout file gets its scan control flag moved.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/symbology_options.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"
#include "settings/settings_file.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

class ReaderFile : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("veltrix-reader-" + std::to_string(std::random_device{}()));
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }
  std::string Path(const char* name) const { return (dir_ / name).string(); }

  fs::path dir_;
};

TEST_F(ReaderFile, WritingTakesTheWorkingBlocksAndOpeningRestoresThem) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 2);
  // A dialog's OK changes only the working block until the page applies or the file is written.
  const LinearOptionDialog& telepen = *FindLinearOptionDialog("TelepenDlg");
  LinearOptionState state = OpenLinearOptions(*doc, telepen);
  state.chosen[0] = 0;
  ApplyLinearOptions(*doc, telepen, state);
  WriteWorking(*doc, kTwoDBox201, 3);
  ASSERT_TRUE(WriteSettingsFileTo(*doc, Path("a.QVL")));
  EXPECT_EQ(1u, ReadNumber(doc->record, kTelepenFormat));

  auto read = std::make_unique<Document>();
  ASSERT_TRUE(ReadSettingsFile(*read, Path("a.QVL")));
  EXPECT_EQ(doc->reader_block1, read->reader_block1);
  EXPECT_EQ(doc->reader_block2, read->reader_block2);
  EXPECT_EQ(1u, ReadWorking(*read, kTelepenFormat));
  EXPECT_EQ(3u, ReadWorking(*read, kTwoDBox201));
}

TEST_F(ReaderFile, PreviousLayoutMovesTheScanControlFlag) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  doc->record[3763] = 1;
  doc->record[3760] = 0x44;
  ASSERT_TRUE(WriteSettingsFileTo(*doc, Path("old.QVL")));
  {
    std::fstream file(Path("old.QVL"), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(0);
    file.put('V');
  }
  auto read = std::make_unique<Document>();
  ASSERT_TRUE(ReadSettingsFile(*read, Path("old.QVL")));
  EXPECT_EQ(1u, ReadNumber(read->record, kScanControl));
  EXPECT_EQ(0, read->record[3760]);
  EXPECT_EQ(0, read->record[3763]);
  EXPECT_EQ('I', read->record[0]);
}

}  // namespace
}  // namespace veltrix
