#include "tn5250/session_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace veltrix {
namespace {

class FixedClock : public LocalClock {
 public:
  LocalTime now{2007, 1, 5, 9, 3, 7};
  LocalTime Now() const override { return now; }
};

// Keeps what the log writes, as text.
class MemorySink : public LogSink {
 public:
  bool Create() override {
    ++creates;
    text.clear();
    return can_create;
  }
  void Write(std::string_view t) override { text += t; }
  void Close() override { ++closes; }

  std::string text;
  int creates = 0;
  int closes = 0;
  bool can_create = true;
};

std::vector<std::uint8_t> Bytes(std::initializer_list<int> values) {
  std::vector<std::uint8_t> out;
  for (int v : values) out.push_back(static_cast<std::uint8_t>(v));
  return out;
}

TEST(LogTimeStamp, IsUnpadded) {
  EXPECT_EQ("200715937", LogTimeStamp({2007, 1, 5, 9, 3, 7}));
  EXPECT_EQ("20261231235959", LogTimeStamp({2026, 12, 31, 23, 59, 59}));
}

class SessionLogTest : public ::testing::Test {
 protected:
  FixedClock clock;
  MemorySink sink;
  SessionLog log{sink, clock};
};

TEST_F(SessionLogTest, WritesAConnectionLineByLine) {
  log.set_save_log(true);
  log.LogConnect();
  log.LogReceive(Bytes({0xFF, 0xFD, 0x18}));
  clock.now.second = 8;
  log.LogSend(Bytes({0xFF, 0xFB, 0x18}));
  log.LogReceive(Bytes({0x05}));
  // The host closes: a receive of nothing.
  log.LogReceive({});
  log.LogClose();
  EXPECT_EQ(
      "Connect:200715937\r\n"
      "Recv:200715937\r\n"
      "FF FD 18 \r\n"
      "Send:200715938\r\n"
      "FF FB 18 \r\n"
      "Recv:200715938\r\n"
      "05 \r\n"
      "Recv:200715938\r\n"
      "\r\n"
      "Close:200715938\r\n",
      sink.text);
  EXPECT_EQ(1, sink.creates);
  EXPECT_EQ(1, sink.closes);
  EXPECT_FALSE(log.is_open());
}

TEST_F(SessionLogTest, NothingIsCreatedOrWrittenWhenOff) {
  log.set_save_log(false);
  log.LogConnect();
  log.LogSend(Bytes({1, 2}));
  log.LogReceive(Bytes({3}));
  log.WriteLogLine("text");
  log.LogClose();
  EXPECT_EQ(0, sink.creates);
  EXPECT_EQ("", sink.text);
}

TEST_F(SessionLogTest, AFileThatCannotBeCreatedIsSilentlySkipped) {
  sink.can_create = false;
  log.set_save_log(true);
  log.LogConnect();
  log.LogSend(Bytes({1}));
  log.LogClose();
  EXPECT_EQ("", sink.text);
  EXPECT_EQ(0, sink.closes);
}

TEST_F(SessionLogTest, EachLoggedConnectionStartsTheFileAnew) {
  log.set_save_log(true);
  log.LogConnect();
  log.LogSend(Bytes({1}));
  log.LogClose();
  log.LogConnect();
  EXPECT_EQ(2, sink.creates);
  EXPECT_EQ("Connect:200715937\r\n", sink.text);
}

TEST_F(SessionLogTest, WriteLogLineAddsCrLfUnlessTheTextEndsALine) {
  log.set_save_log(true);
  log.LogConnect();
  sink.text.clear();
  log.WriteLogLine("one");
  log.WriteLogLine("two\n");
  EXPECT_EQ("one\r\ntwo\n", sink.text);
}

class FileLogSinkTest : public ::testing::Test {
 protected:
  void SetUp() override {
    root = std::filesystem::temp_directory_path() /
           ("veltrix-log-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
            "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(root);
  }
  void TearDown() override { std::filesystem::remove_all(root); }
  static std::string ReadAll(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
  }
  std::filesystem::path root;
};

TEST_F(FileLogSinkTest, CreatesTheDirectoryTruncatesTheFileAndRemovesBitmaps) {
  std::filesystem::path dir = LogDirectoryFor(root);
  EXPECT_EQ(root / "Logs", dir);
  std::filesystem::create_directories(dir);
  std::ofstream(dir / "old.bmp") << "x";
  std::ofstream(dir / "keep.txt") << "x";
  std::ofstream(dir / "Quarvel-TN.log") << "an older session";

  FileLogSink sink(dir);
  FixedClock clock;
  SessionLog log(sink, clock);
  log.set_save_log(true);
  log.LogConnect();
  log.LogSend(Bytes({0x05}));
  log.LogClose();

  EXPECT_EQ("Connect:200715937\r\nSend:200715937\r\n05 \r\nClose:200715937\r\n",
            ReadAll(dir / "Quarvel-TN.log"));
  EXPECT_FALSE(std::filesystem::exists(dir / "old.bmp"));
  EXPECT_TRUE(std::filesystem::exists(dir / "keep.txt"));
}

TEST_F(FileLogSinkTest, AnUnusableDirectoryIsNotAnError) {
  std::filesystem::create_directories(root);
  std::ofstream(root / "Logs") << "a file where the directory should be";
  FileLogSink sink(LogDirectoryFor(root));
  EXPECT_FALSE(sink.Create());
  sink.Write("ignored");
  sink.Close();
  EXPECT_EQ("a file where the directory should be", ReadAll(root / "Logs"));
}

}  // namespace
}  // namespace veltrix
