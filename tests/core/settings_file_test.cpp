#include "settings/settings_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/atomic_file.h"
#include "settings/file_read.h"
#include "settings/screen/screen_pages.h"
#include "settings_test_files.h"

namespace veltrix {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

using testing::DefaultDocument;

// The file image of a document as written, without touching a disk.
std::vector<std::uint8_t> FileImage(const Document& doc) {
  std::vector<std::uint8_t> image(doc.record.begin(), doc.record.end());
  for (const PageRecord& page : doc.pages) image.insert(image.end(), page.begin(), page.end());
  return image;
}

void SetTag(std::vector<std::uint8_t>& image, std::string_view tag) {
  std::fill_n(image.begin(), kFormatTagWidth, 0);
  std::copy(tag.begin(), tag.end(), image.begin());
}

bool HasCurrentTag(const Document& doc) {
  return std::memcmp(doc.record.data(), "I100\0", kFormatTagWidth) == 0;
}

class SettingsFileTest : public ::testing::Test {
 protected:
  // Writes `image` as a file and reads it into `doc` (which keeps whatever the file lacks).
  SettingsFileReport ReadImage(const std::vector<std::uint8_t>& image) {
    const std::string path = folder_.File("in.QVL");
    WriteBytes(path, image);
    SettingsFileReport report;
    EXPECT_TRUE(ReadSettingsFile(*doc_, path, &report));
    return report;
  }

  TempFolder folder_;
  std::unique_ptr<Document> doc_ = DefaultDocument(0);
};

TEST(SaveAsFileName, AppendsTheExtensionUnlessTheNameEndsInIt) {
  const struct {
    const char* chosen;
    const char* stored;
  } cases[] = {
      {"abc", "abc.QVL"},
      {"abc.qvl", "abc.qvl"},
      {".qvl", ".qvl.QVL"},
      {"QVL", "QVL.QVL"},
      {"", ".QVL"},
      {"x.qvlx", "x.qvlx.QVL"},
      {"name.QVL.bak", "name.QVL.bak.QVL"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.stored, SaveAsFileName(c.chosen)) << c.chosen;
}

TEST(FormatVersion, ParsesTheNumberAfterTheLetter) {
  const struct {
    std::string_view tag;
    int version;
  } cases[] = {
      {"I100", 100},   {"V100", 100}, {"X100", 0}, {"I  120", 120},
      {"I-100", -100}, {"I12a4", 12}, {"I", 0},    {"I99999999999999", 2147483647},
  };
  for (const auto& c : cases) {
    std::vector<std::uint8_t> record(c.tag.begin(), c.tag.end());
    record.push_back(0);
    EXPECT_EQ(c.version, FormatVersion(record)) << c.tag;
  }
}

TEST_F(SettingsFileTest, AcceptsAHigherVersionAndRestampsTheTag) {
  auto original = DefaultDocument(2);
  original->record[10] = 0x5A;  // an unused byte survives only if the file is used as read
  std::vector<std::uint8_t> image = FileImage(*original);
  SetTag(image, "I250");

  const SettingsFileReport report = ReadImage(image);
  EXPECT_FALSE(report.refused);
  EXPECT_FALSE(report.converted);
  EXPECT_TRUE(HasCurrentTag(*doc_));
  EXPECT_EQ(2, doc_->product());
  EXPECT_EQ(0x5A, doc_->record[10]);
  EXPECT_EQ(kSettingsFileSize, report.bytes_read);
}

TEST_F(SettingsFileTest, RefusedFilesBecomeTheDefaultsOfProductOne) {
  const struct {
    const char* why;
    std::string_view tag;
    std::uint8_t product;
  } cases[] = {
      {"version below 100", "I99", 2},
      {"unknown letter", "X100", 2},
      {"product beyond the list", "I100", 3},
      {"previous layout, old version", "V99", 1},
      {"no number", "I", 1},
  };
  const auto expected = DefaultDocument(1);
  for (const auto& c : cases) {
    auto original = DefaultDocument(2);
    original->record[10] = 0x5A;
    original->pages[4][100] = 7;
    std::vector<std::uint8_t> image = FileImage(*original);
    SetTag(image, c.tag);
    image[kProductOffset] = c.product;
    doc_->file_name = "kept.QVL";

    const SettingsFileReport report = ReadImage(image);
    EXPECT_TRUE(report.refused) << c.why;
    EXPECT_TRUE(HasCurrentTag(*doc_)) << c.why;
    EXPECT_EQ(1, doc_->product()) << c.why;
    EXPECT_TRUE(doc_->record == expected->record) << c.why;
    EXPECT_TRUE(doc_->pages == expected->pages) << c.why;
    EXPECT_TRUE(doc_->reader_block1 == expected->reader_block1) << c.why;
    EXPECT_TRUE(doc_->reader_block2 == expected->reader_block2) << c.why;
    EXPECT_EQ("kept.QVL", doc_->file_name) << c.why;
  }
}

TEST_F(SettingsFileTest, PreviousLayoutEmptiesThePagesAndResetsConvertedSettings) {
  auto original = DefaultDocument(2);
  WriteNumber(original->record, kTotalPages, 3);
  WriteNumber(original->record, kScreensLoaded, 1);
  WriteText(original->record, kTerminalScreen, "KEPT", 0, 0);  // line texts are not converted
  for (PageRecord& page : original->pages) page.fill(0x33);
  std::vector<std::uint8_t> image = FileImage(*original);
  SetTag(image, "V100");

  const SettingsFileReport report = ReadImage(image);
  EXPECT_TRUE(report.converted);
  EXPECT_TRUE(HasCurrentTag(*doc_));
  EXPECT_EQ(2, doc_->product());
  EXPECT_EQ(0u, ReadNumber(doc_->record, kTotalPages));
  EXPECT_EQ(0u, ReadNumber(doc_->record, kScreensLoaded));
  EXPECT_EQ("KEPT", ReadText(doc_->record, kTerminalScreen, 0, 0));
  for (const PageRecord& page : doc_->pages) {
    EXPECT_TRUE(std::ranges::all_of(page, [](std::uint8_t b) { return b == 0; }));
  }
}

TEST_F(SettingsFileTest, PreviousLayoutGetsDefaultKeysMessagesAndReaderBytes) {
  const auto expected = DefaultDocument(2);
  auto original = DefaultDocument(2);
  constexpr std::size_t kMappingFirst = 4565, kMappingLast = 4964;
  constexpr std::size_t kMessageFirst = 59660, kMessageLast = 59673;
  for (std::size_t k = kMappingFirst; k <= kMappingLast; ++k) original->record[k] = 0x77;
  for (std::size_t k = kMessageFirst; k <= kMessageLast; ++k) original->record[k] = 0x66;
  original->record[3763] = 9;
  for (std::size_t k = 3754; k <= 3771; ++k) original->record[k] = 0x44;
  original->record[3763] = 9;
  std::vector<std::uint8_t> image = FileImage(*original);
  SetTag(image, "V100");

  ReadImage(image);
  for (std::size_t k = kMappingFirst; k <= kMappingLast; ++k) {
    ASSERT_EQ(expected->record[k], doc_->record[k]) << "function key byte " << k;
  }
  // The conversion resets the message line, time-out and exclude string only; the two bytes
  // between them (FieldLengthIfExceed, MessageFunctionKey) keep what the file held.
  for (std::size_t k = kMessageFirst; k <= kMessageLast; ++k) {
    const bool kept = k == kMessageFirst + 1 || k == kMessageFirst + 2;
    ASSERT_EQ(kept ? 0x66 : expected->record[k], doc_->record[k]) << "message byte " << k;
  }
  EXPECT_EQ(1, doc_->record[3753]);
  for (std::size_t k = 3754; k <= 3771; ++k) EXPECT_EQ(0, doc_->record[k]) << "reader byte " << k;
}

TEST_F(SettingsFileTest, ShortFileIsReadAsFarAsItGoes) {
  auto original = DefaultDocument(2);
  original->pages[0].fill(0x11);
  const std::vector<std::uint8_t> full = FileImage(*original);
  const std::size_t length = kRecordSize + 216;
  doc_->record.fill(0xAB);
  for (PageRecord& page : doc_->pages) page.fill(0xAB);

  const SettingsFileReport report =
      ReadImage(std::vector<std::uint8_t>(full.begin(), full.begin() + length));
  EXPECT_EQ(length, report.bytes_read);
  EXPECT_EQ(length, report.file_size);
  EXPECT_FALSE(report.refused);
  EXPECT_TRUE(std::equal(doc_->record.begin() + kFormatTagWidth, doc_->record.end(),
                         original->record.begin() + kFormatTagWidth));
  EXPECT_EQ(0x11, doc_->pages[0][215]);
  EXPECT_EQ(0xAB, doc_->pages[0][216]);  // beyond the file: former contents
  EXPECT_EQ(0xAB, doc_->pages[1][0]);
  EXPECT_EQ(0xAB, doc_->pages[49][kPageRecordSize - 1]);
}

TEST_F(SettingsFileTest, EmptyFileKeepsTheDocumentItReadInto) {
  doc_ = DefaultDocument(2);
  doc_->record[10] = 0x5A;
  const SettingsFileReport report = ReadImage({});
  EXPECT_EQ(0u, report.bytes_read);
  EXPECT_FALSE(report.refused);
  EXPECT_EQ(2, doc_->product());
  EXPECT_EQ(0x5A, doc_->record[10]);
}

TEST_F(SettingsFileTest, OpenRebuildsTheKeyCodeTable) {
  constexpr std::size_t kMapping = 4565, kKeyCodes = 4715;
  auto original = DefaultDocument(1);
  std::fill(original->record.begin() + kMapping, original->record.begin() + kKeyCodes + 250, 0);
  auto map = [&](int n, int group, int host_key, std::uint8_t first_code) {
    original->record[kMapping + 3 * n] = static_cast<std::uint8_t>(group);
    original->record[kMapping + 3 * n + 1] = static_cast<std::uint8_t>(host_key);
    original->record[kKeyCodes + 5 * n] = first_code;
    original->record[kKeyCodes + 5 * n + 1] = 0x42;
  };
  map(3, 1, 7, 0x1B);   // stored at group 1, host key 7
  map(4, 2, 19, 0x31);  // the last slot of the table
  map(5, 3, 0, 0x32);   // no such group: ignored
  map(6, 0, 2, 0x00);   // no key code: ignored
  doc_->key_codes.fill(0xEE);

  ReadImage(FileImage(*original));
  auto slot = [&](int group, int host_key) {
    return std::span(doc_->key_codes).subspan((group * kHostKeysPerGroup + host_key) * 5, 5);
  };
  EXPECT_EQ(0x1B, slot(1, 7)[0]);
  EXPECT_EQ(0x42, slot(1, 7)[1]);
  EXPECT_EQ(0x31, slot(2, 19)[0]);
  EXPECT_EQ(0xEE, slot(0, 0)[0]);  // untouched by entries that do not qualify
  EXPECT_EQ(0xEE, slot(0, 2)[0]);
}

TEST_F(SettingsFileTest, UnopenableFilesLeaveTheDocumentAlone) {
  auto before = DefaultDocument(2);
  doc_ = DefaultDocument(2);
  EXPECT_FALSE(ReadSettingsFile(*doc_, folder_.File("missing.QVL")));
  EXPECT_FALSE(ReadSettingsFile(*doc_, folder_.path().string()));
  EXPECT_TRUE(doc_->record == before->record);
  EXPECT_FALSE(std::filesystem::exists(folder_.File("missing.QVL")));
}

TEST_F(SettingsFileTest, WriteThenReadReproducesTheDocument) {
  auto written = DefaultDocument(2);
  for (std::size_t k = 0; k < kRecordSize; ++k) {
    written->record[k] = static_cast<std::uint8_t>(k * 7 + 3);
  }
  std::copy_n("I100\0\2", 6, written->record.begin());
  for (std::size_t p = 0; p < kPageCount; ++p) written->pages[p].fill(static_cast<std::uint8_t>(p));
  written->reader_block1.fill(0x91);
  written->reader_block2.fill(0x92);
  const std::string path = folder_.File("round.QVL");
  WriteBytes(path, std::vector<std::uint8_t>(10, 0xFF));  // replaced, no temporary left
  ASSERT_TRUE(WriteSettingsFileTo(*written, path));
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder_.path()), {}));

  const std::vector<std::uint8_t> bytes = ReadBytes(path);
  ASSERT_EQ(kSettingsFileSize, bytes.size());
  EXPECT_EQ(0, std::memcmp(bytes.data(), "I100\0", 5));
  EXPECT_EQ(2, bytes[kProductOffset]);
  EXPECT_EQ(0x91, bytes[kReaderBlock1Offset]);  // working blocks are copied in before writing
  EXPECT_EQ(0x92, bytes[kReaderBlock2Offset + kReaderBlock2Size - 1]);
  EXPECT_TRUE(bytes == FileImage(*written));

  auto read = DefaultDocument(0);
  ASSERT_TRUE(ReadSettingsFile(*read, path));
  EXPECT_TRUE(read->record == written->record);
  EXPECT_TRUE(read->pages == written->pages);
  EXPECT_TRUE(read->reader_block1 == written->reader_block1);
  EXPECT_TRUE(read->reader_block2 == written->reader_block2);
}

TEST_F(SettingsFileTest, FailedSaveLeavesTheOldFileIntact) {
  doc_ = DefaultDocument(1);
  // The folder does not exist.
  EXPECT_FALSE(WriteSettingsFileTo(*doc_, folder_.File("no/such/folder/s.QVL")));
  // The name is taken by a folder: the new file cannot replace it.
  const std::string taken = folder_.File("taken.QVL");
  std::filesystem::create_directory(taken);
  EXPECT_FALSE(WriteSettingsFileTo(*doc_, taken));
  EXPECT_TRUE(std::filesystem::is_directory(taken));
  EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder_.path()), {}));
}

// Each step of the write failing in turn: the old file stays as it was and no temporary is left.
TEST_F(SettingsFileTest, EveryFailedStepOfASaveLeavesTheOldFile) {
  const std::string path = folder_.File("s.QVL");
  const std::vector<std::uint8_t> old_bytes(100, 0x42);
  const std::vector<std::uint8_t> new_bytes(5000, 0x17);
  const std::array<std::span<const std::uint8_t>, 1> parts{new_bytes};
  using Break = void (*)(FileCalls&);
  const std::pair<const char*, Break> steps[] = {
      {"open", [](FileCalls& c) { c.open = [](const char*, int, mode_t) { return -1; }; }},
      {"write",
       [](FileCalls& c) { c.write = [](int, const void*, std::size_t) -> ssize_t { return -1; }; }},
      {"fsync", [](FileCalls& c) { c.fsync = [](int) { return -1; }; }},
      {"close", [](FileCalls& c) { c.close = [](int fd) { return ::close(fd), -1; }; }},
      {"rename", [](FileCalls& c) { c.rename = [](const char*, const char*) { return -1; }; }},
  };
  for (const auto& [step, break_it] : steps) {
    WriteBytes(path, old_bytes);
    FileCalls calls = SystemFileCalls();
    break_it(calls);
    EXPECT_FALSE(WriteFileAtomically(path, parts, calls)) << step;
    EXPECT_TRUE(ReadBytes(path) == old_bytes) << step;
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder_.path()), {})) << step;
  }
}

// A read that fails half way (a bad disk, a dropped network share) is a reason, not bytes.
TEST_F(SettingsFileTest, FailedReadGivesTheSystemsReason) {
  const std::string path = folder_.File("s.QVL");
  WriteBytes(path, std::vector<std::uint8_t>(5000, 0x42));
  FileCalls calls = SystemFileCalls();
  calls.read = [](int, void*, std::size_t) -> ssize_t { return errno = EIO, -1; };
  std::string reason;
  EXPECT_FALSE(ReadRegularFile(path, 1000, &reason, calls));
  EXPECT_EQ(reason, std::strerror(EIO));
  const std::optional<FileRead> cut = ReadRegularFile(path, 1000);
  ASSERT_TRUE(cut);
  EXPECT_TRUE(cut->cut && cut->bytes.size() == 1000 && cut->file_size == 5000);
}

// What stands at the name decides how a save goes: links are saved through, other kinds of files
// are refused, a read-only file only on request, and mode, owner and group stay.
TEST_F(SettingsFileTest, SaveRespectsWhatIsAtTheName) {
  namespace fs = std::filesystem;
  const std::vector<std::uint8_t> old_bytes(10, 1), new_bytes(20, 2);
  const std::array<std::span<const std::uint8_t>, 1> parts{new_bytes};
  const std::string real = folder_.File("real.QVL"), link = folder_.File("link.QVL");
  WriteBytes(real, old_bytes);
  fs::create_symlink("real.QVL", link);
  SaveStatus status;
  ASSERT_TRUE(WriteFileAtomically(link, parts, SystemFileCalls(), &status));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_TRUE(ReadBytes(real) == new_bytes);

  const std::string fifo = folder_.File("fifo.QVL");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_FALSE(WriteFileAtomically(fifo, parts, SystemFileCalls(), &status));
  EXPECT_EQ(status.refusal, SaveRefusal::kNotRegular);
  EXPECT_TRUE(fs::is_fifo(fifo));
  // Reading a FIFO nobody writes to neither hangs nor goes without a reason.
  Document doc;
  SettingsFileReport report;
  EXPECT_FALSE(ReadSettingsFile(doc, fifo, &report));
  EXPECT_THAT(report.read_error, ::testing::HasSubstr("not a regular file"));

  WriteBytes(real, old_bytes);
  fs::permissions(real, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  EXPECT_FALSE(WriteFileAtomically(real, parts, SystemFileCalls(), &status));
  EXPECT_EQ(status.refusal, SaveRefusal::kReadOnly);
  EXPECT_TRUE(ReadBytes(real) == old_bytes);
  ASSERT_TRUE(WriteFileAtomically(real, parts, SystemFileCalls(), &status, {true}));
  EXPECT_EQ(fs::status(real).permissions() & fs::perms::all, fs::perms(0444));

  fs::permissions(real, fs::perms(0600));
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(real.c_str(), 1234, 4321), 0);
  }
  ASSERT_TRUE(WriteFileAtomically(real, parts));
  struct stat after {};
  ASSERT_EQ(::stat(real.c_str(), &after), 0);
  EXPECT_EQ(after.st_mode & 07777, 0600u);
  if (::geteuid() == 0) {
    EXPECT_EQ(std::pair(after.st_uid, after.st_gid), std::pair(1234u, 4321u));
  }

  // A leftover of a save whose process is gone goes; one of a running process stays.
  const std::string dead = TemporaryPrefixFor(real) + "999999999-x";
  const std::string alive = TemporaryPrefixFor(real) + "1-x";
  WriteBytes(dead, old_bytes);
  WriteBytes(alive, old_bytes);
  ASSERT_TRUE(WriteFileAtomically(real, parts));
  EXPECT_FALSE(fs::exists(dead));
  EXPECT_TRUE(fs::exists(alive));

  FileCalls calls = SystemFileCalls();
  calls.rename = [](const char*, const char*) { return errno = EROFS, -1; };
  EXPECT_FALSE(WriteFileAtomically(real, parts, calls, &status));
  EXPECT_EQ(status.reason, std::strerror(EROFS));
}

// Twelve veltrix-cli set at once on one file, each changing its own line: every change lands.
TEST_F(SettingsFileTest, ConcurrentSetsAllLand) {
  const std::string path = folder_.File("shared.QVL");
  const std::string cli = VELTRIX_CLI_PATH;
  ASSERT_EQ(std::system((cli + " new --product 1 --out " + path).c_str()), 0);
  std::string script;
  for (int i = 0; i < 12; ++i) {
    script += cli + " set " + path + " 'TerminalScreen[" + std::to_string(i / 8) + "][" +
              std::to_string(i % 8) + "]=L" + std::to_string(i) + "' & ";
  }
  ASSERT_EQ(std::system(("(" + script + "wait) >/dev/null 2>&1").c_str()), 0);
  auto doc = std::make_unique<Document>();
  ASSERT_TRUE(ReadSettingsFile(*doc, path));
  for (int i = 0; i < 12; ++i) {
    const std::string line(
        reinterpret_cast<const char*>(doc->record.data()) + kTerminalScreen.OffsetOf(i / 8, i % 8),
        2 + (i >= 10));
    EXPECT_EQ(line, "L" + std::to_string(i));
  }
}

// Short writes are carried on, and the file and then its folder are flushed before success.
TEST_F(SettingsFileTest, SaveFlushesTheFileAndItsFolder) {
  static int flushes;
  flushes = 0;
  FileCalls calls = SystemFileCalls();
  calls.write = [](int fd, const void* data, std::size_t size) {
    return ::write(fd, data, std::min<std::size_t>(size, 7));
  };
  calls.fsync = [](int fd) { return ++flushes, ::fsync(fd); };
  const std::string path = folder_.File("s.QVL");
  std::vector<std::uint8_t> bytes(1000);
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  const std::array<std::span<const std::uint8_t>, 2> parts{std::span(bytes).first(300),
                                                           std::span(bytes).subspan(300)};
  ASSERT_TRUE(WriteFileAtomically(path, parts, calls));
  EXPECT_TRUE(ReadBytes(path) == bytes);
  EXPECT_EQ(2, flushes);
}

TEST(WriteSettingsFile, NeedsAFileName) {
  auto doc = DefaultDocument(1);
  EXPECT_FALSE(WriteSettingsFile(*doc));
}

}  // namespace
}  // namespace veltrix
