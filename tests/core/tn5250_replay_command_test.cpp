// The replay command of veltrix-cli, run as a program.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "tn5250_test_util.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

struct Result {
  int status;
  std::string out;
};

Result RunCli(const std::string& args) {
  const std::string command = std::string(VELTRIX_CLI_PATH) + " " + args + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  Result r{-1, ""};
  if (pipe == nullptr) return r;
  char buf[4096];
  std::size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, pipe)) > 0) r.out.append(buf, n);
  const int raw = pclose(pipe);
  r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return r;
}

class ReplayCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("veltrix-replay-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
            "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::create_directories(dir_);
    stream_ = (dir_ / "stream.bin").string();
    // Negotiation, then a screen with one input field and Read Input Fields.
    auto bytes = testing::Hex("FF FD 18");
    const auto record = testing::Record(
        testing::Hex("04 40 04 11 00 08 11 02 03 1D 40 00 24 00 06 C8 C9 04 42 00 08"));
    bytes.insert(bytes.end(), record.begin(), record.end());
    bytes.push_back(0xFF);
    bytes.push_back(0xEF);
    std::ofstream(stream_, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
  }
  void TearDown() override { fs::remove_all(dir_); }
  fs::path dir_;
  std::string stream_;
};

TEST_F(ReplayCommandTest, PrintsScreenCursorFieldsAndSentBytes) {
  const Result r = RunCli("replay --keys 'X<Enter>' " + stream_);
  EXPECT_EQ(r.status, 0);
  // Whole rows: the blanks after the last character are part of the screen.
  EXPECT_NE(r.out.find("\n   XI" + std::string(75, ' ') + "\n"), std::string::npos) << r.out;
  EXPECT_EQ(r.out.rfind(std::string(80, ' ') + "\n", 0), 0u) << r.out;
  EXPECT_NE(r.out.find("cursor 1 4\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("field number=1 resequence=0 row=1 column=3 length=6 ffw=4800 "
                       "fcw=0000 attribute=44\n"),
            std::string::npos)
      << r.out;
  EXPECT_NE(r.out.find("sent FF FB 18 00 0F 12 A0 00 00 04 00 00 03 02 05 F1 E7 C9 FF EF\n"),
            std::string::npos)
      << r.out;
}

TEST_F(ReplayCommandTest, JsonAndStandardInput) {
  const Result r = RunCli("replay --json - < " + stream_);
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out.rfind("{\"rows\":24,\"columns\":80,\"cursor\":{\"row\":1,\"column\":3}", 0), 0u)
      << r.out;
  EXPECT_NE(r.out.find("\"sent\":\"FFFB18\""), std::string::npos);
  EXPECT_NE(r.out.find("\"read_mode\":1"), std::string::npos);
}

TEST_F(ReplayCommandTest, RefusesBadArguments) {
  for (const std::string& args :
       {std::string("replay"), "replay --emulation 9 " + stream_,
        "replay --keys '<Nope>' " + stream_, "replay " + (dir_ / "missing.bin").string(),
        "replay --bogus " + stream_}) {
    const Result r = RunCli(args);
    EXPECT_EQ(r.status, 2) << args;
    EXPECT_EQ(r.out.rfind("veltrix-cli: replay: ", 0), 0u) << args << ": " << r.out;
  }
}

TEST_F(ReplayCommandTest, GreekAndLocalName) {
  const Result r = RunCli("replay --emulation 5 --local-name DEV7 --keys 'α<Enter>' " + stream_);
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("\n   αI" + std::string(75, ' ') + "\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" 02 05 F1 8A C9 FF EF\n"), std::string::npos) << r.out;
}

}  // namespace
}  // namespace veltrix
