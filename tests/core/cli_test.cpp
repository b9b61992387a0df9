#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "settings/document.h"
#include "settings_test_files.h"

namespace veltrix {
namespace {

using testing::ReadBytes;
using testing::ReadText;
using testing::TempFolder;
using testing::WriteBytes;

struct CliRun {
  int status = -1;
  std::string out;
  std::string err;
};

std::string Quote(const std::string& arg) {
  std::string quoted = "'";
  for (char c : arg) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

class CliTest : public ::testing::Test {
 protected:
  // Runs the built veltrix-cli with `args` and collects its exit status and output.
  CliRun Cli(const std::vector<std::string>& args) {
    std::string command = Quote(VELTRIX_CLI_PATH);
    for (const std::string& arg : args) command += " " + Quote(arg);
    const std::string out = folder_.File("stdout"), err = folder_.File("stderr");
    command += " >" + Quote(out) + " 2>" + Quote(err);
    const int raw = std::system(command.c_str());
    CliRun run;
    run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    run.out = ReadText(out);
    run.err = ReadText(err);
    return run;
  }

  // A new settings file of `product` named `name` in the test's folder.
  std::string NewFile(const std::string& name, int product) {
    const std::string path = folder_.File(name);
    EXPECT_EQ(0, Cli({"new", "--product", std::to_string(product), "--out", path}).status);
    return path;
  }

  static bool OneLine(const std::string& text) {
    return !text.empty() && text.find('\n') == text.size() - 1;
  }

  TempFolder folder_;
};

TEST_F(CliTest, HelpListsEveryCommand) {
  const CliRun help = Cli({"--help"});
  EXPECT_EQ(0, help.status);
  for (const char* command : {"new", "convert", "get", "set", "diff", "summary"}) {
    EXPECT_NE(std::string::npos, help.out.find(std::string("  ") + command + " ")) << command;
  }
  EXPECT_EQ(0, Cli({"get", "--help"}).status);
  EXPECT_EQ(2, Cli({}).status);
  const CliRun unknown = Cli({"frobnicate"});
  EXPECT_EQ(2, unknown.status);
  EXPECT_TRUE(OneLine(unknown.err)) << unknown.err;
}

TEST_F(CliTest, NewWritesAWholeSettingsFile) {
  for (int product : {0, 1, 2}) {
    const std::vector<std::uint8_t> bytes = ReadBytes(NewFile("n.QVL", product));
    ASSERT_EQ(kSettingsFileSize, bytes.size());
    EXPECT_EQ(std::string("I100", 5), std::string(bytes.begin(), bytes.begin() + 5));
    EXPECT_EQ(product, bytes[kProductOffset]);
  }
  const std::string refused = folder_.File("refused.QVL");
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"new", "--product", "3", "--out", refused},
           {"new", "--product", "one", "--out", refused},
           {"new", "--product", "1"},
           {"new", "--product", "1", "--out", refused, "extra"},
           {"new", "--colour", "1", "--out", refused},
           {"new", "--product", "1", "--out", folder_.File("no/folder/x.QVL")},
       }) {
    const CliRun run = Cli(args);
    EXPECT_EQ(2, run.status) << args.back();
    EXPECT_TRUE(OneLine(run.err)) << run.err;
  }
  EXPECT_FALSE(std::filesystem::exists(refused));
}

TEST_F(CliTest, GetPrintsNumbersTextsAndBytes) {
  const std::string file = NewFile("g.QVL", 2);
  const CliRun run = Cli({"get", file, "ProductIndex", "CharacteristicLength", "HostRow[1][2]",
                          "CharacteristicString[0]", "TerminalScreen[0][0]", "ReformatPageTo[48]"});
  EXPECT_EQ(0, run.status) << run.err;
  EXPECT_EQ(
      "ProductIndex=2\nCharacteristicLength=20\nHostRow[1][2]=255\n"
      "CharacteristicString[0]=00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
      "TerminalScreen[0][0]=\nReformatPageTo[48]=0\n",
      run.out);
  const CliRun all = Cli({"get", file, "HostColumn[3]"});
  EXPECT_EQ(24, std::count(all.out.begin(), all.out.end(), '\n'));
  EXPECT_EQ(0u, all.out.find("HostColumn[3][0]=255\n"));
}

TEST_F(CliTest, UnreadableInputIsRefusedWithOneLine) {
  const std::string file = NewFile("u.QVL", 1);
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"get", folder_.File("missing.QVL"), "TotalPages"},
           {"get", folder_.path().string(), "TotalPages"},
           {"get", file, "NoSuchField"},
           {"get", file, "HostRow[99][0]"},
           {"get", file},
           {"summary", folder_.File("missing.QVL")},
           {"diff", file, folder_.File("missing.QVL")},
           {"convert", folder_.File("missing.QVL"), folder_.File("out.QVL")},
       }) {
    const CliRun run = Cli(args);
    EXPECT_EQ(2, run.status) << args[0] << " " << args.back();
    EXPECT_TRUE(OneLine(run.err)) << run.err;
    EXPECT_EQ("", run.out);
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.File("out.QVL")));
}

TEST_F(CliTest, SetChangesFieldsAndKeepsTheRest) {
  const std::string file = NewFile("s.QVL", 1);
  const CliRun set = Cli({"set", file, "TotalPages=2", "TerminalScreen[1][3]=Item no.",
                          "HostRow[1][3]=4", "CharacteristicString[1]=41 42"});
  EXPECT_EQ(0, set.status) << set.err;
  EXPECT_EQ(kSettingsFileSize, std::filesystem::file_size(file));
  const CliRun get = Cli({"get", file, "TotalPages", "TerminalScreen[1][3]", "HostRow[1][3]",
                          "HostColumn[1][3]", "ProductIndex"});
  EXPECT_EQ(
      "TotalPages=2\nTerminalScreen[1][3]=Item no.\nHostRow[1][3]=4\n"
      "HostColumn[1][3]=255\nProductIndex=1\n",
      get.out);
}

TEST_F(CliTest, SetReachesFieldsEditedThroughTheReaderWorkingBlocks) {
  const std::string file = NewFile("w.QVL", 1);
  ASSERT_EQ("Code39=1\nTwoDUpcA=1\n", Cli({"get", file, "Code39", "TwoDUpcA"}).out);
  ASSERT_EQ(0, Cli({"set", file, "Code39=0", "TwoDUpcA=0"}).status);
  EXPECT_EQ("Code39=0\nTwoDUpcA=0\n", Cli({"get", file, "Code39", "TwoDUpcA"}).out);
}

TEST_F(CliTest, SetKeyFieldsClaimAndReleaseTheirFunctionKeys) {
  const std::string file = NewFile("k.QVL", 1);
  ASSERT_EQ(0, Cli({"set", file, "LoginNameKey=2"}).status);
  EXPECT_EQ("KeyMappingGroup[2]=201\nKeyMappingHostKey[2]=0\n",
            Cli({"get", file, "KeyMappingGroup[2]", "KeyMappingHostKey[2]"}).out);
  const std::vector<std::uint8_t> before = ReadBytes(file);
  const CliRun taken = Cli({"set", file, "NavigatorKey=2"});
  EXPECT_EQ(2, taken.status);
  EXPECT_NE(std::string::npos, taken.err.find("The function key is defined already !!"));
  EXPECT_TRUE(ReadBytes(file) == before);
  ASSERT_EQ(0, Cli({"set", file, "LoginNameKey=0"}).status);
  EXPECT_EQ("LoginNameKey=0\nKeyMappingGroup[2]=0\nKeyMappingHostKey[2]=2\n",
            Cli({"get", file, "LoginNameKey", "KeyMappingGroup[2]", "KeyMappingHostKey[2]"}).out);
}

TEST_F(CliTest, RefusedSetWritesNothing) {
  const std::string file = NewFile("r.QVL", 1);
  const std::vector<std::uint8_t> before = ReadBytes(file);
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"set", file, "TotalPages=3", "TotalPages=51"},
           {"set", file, "TotalPages=-1"},
           {"set", file, "TotalPages=x"},
           {"set", file, "TerminalScreen[0][0]=" + std::string(41, 'x')},
           {"set", file, "CharacteristicString[0]=" + std::string(21 * 2, '1')},
           {"set", file, "TotalPages=1", "NoSuchField=1"},
           {"set", file, "HostRow=1"},
           {"set", file, "HostRow[50][0]=1"},
           {"set", file, "TotalPages"},
           {"set", file},
       }) {
    const CliRun run = Cli(args);
    EXPECT_EQ(2, run.status) << args.back();
    EXPECT_TRUE(OneLine(run.err)) << run.err;
    ASSERT_TRUE(ReadBytes(file) == before) << args.back() << " changed the file";
  }
}

TEST_F(CliTest, SetLeavesIncompleteFilesAlone) {
  const std::vector<std::uint8_t> full = ReadBytes(NewFile("full.QVL", 1));
  const struct {
    const char* name;
    std::vector<std::uint8_t> bytes;
  } cases[] = {
      {"truncated.QVL", std::vector<std::uint8_t>(full.begin(), full.begin() + 70000)},
      {"garbage.QVL", std::vector<std::uint8_t>(kSettingsFileSize, 0x5A)},
      {"empty.QVL", {}},
      {"previous.QVL",
       [&full] {
         std::vector<std::uint8_t> previous = full;
         previous[0] = 'V';
         return previous;
       }()},
  };
  for (const auto& c : cases) {
    const std::string path = folder_.File(c.name);
    WriteBytes(path, c.bytes);
    const CliRun run = Cli({"set", path, "TotalPages=1"});
    EXPECT_EQ(2, run.status) << c.name;
    EXPECT_NE(std::string::npos, run.err.find("nothing written")) << run.err;
    EXPECT_TRUE(ReadBytes(path) == c.bytes) << c.name;
  }
}

TEST_F(CliTest, OddFilesAreReadAsOpenDoesWithAWarning) {
  const std::vector<std::uint8_t> full = ReadBytes(NewFile("full.QVL", 2));
  const std::string truncated = folder_.File("t.QVL");
  WriteBytes(truncated, std::vector<std::uint8_t>(full.begin(), full.begin() + 100));
  const CliRun summary = Cli({"summary", truncated});
  EXPECT_EQ(0, summary.status);
  EXPECT_NE(std::string::npos, summary.err.find("warning: "));
  EXPECT_NE(std::string::npos, summary.out.find("Terminal Model : Quarvel Dravin R"));

  const std::string garbage = folder_.File("garbage.bin");
  WriteBytes(garbage, std::vector<std::uint8_t>(1000, '#'));
  const std::string out = folder_.File("converted.QVL");
  const CliRun convert = Cli({"convert", garbage, out});
  EXPECT_EQ(0, convert.status);
  EXPECT_NE(std::string::npos, convert.err.find("defaults of product 1"));
  EXPECT_EQ("ProductIndex=1\n", Cli({"get", out, "ProductIndex"}).out);
  EXPECT_EQ(1000u, std::filesystem::file_size(garbage));  // the input is never written
}

TEST_F(CliTest, ConvertRestampsAcceptedFiles) {
  const std::string in = NewFile("in.QVL", 2);
  std::vector<std::uint8_t> bytes = ReadBytes(in);
  bytes[1] = '2';
  bytes[2] = '5';  // "I250"
  WriteBytes(in, bytes);
  const std::string out = folder_.File("out.QVL");
  EXPECT_EQ(0, Cli({"convert", in, out}).status);
  bytes[1] = '1';
  bytes[2] = '0';
  EXPECT_TRUE(ReadBytes(out) == bytes);
}

TEST_F(CliTest, DiffListsDifferencesAndSetsTheExitStatus) {
  const std::string a = NewFile("a.QVL", 1);
  const std::string b = NewFile("b.QVL", 1);
  const CliRun same = Cli({"diff", a, b});
  EXPECT_EQ(0, same.status);
  EXPECT_EQ("", same.out);

  ASSERT_EQ(0, Cli({"set", b, "TotalPages=1", "HostColumn[2][5]=7"}).status);
  std::vector<std::uint8_t> bytes = ReadBytes(b);
  bytes[kRecordSize + 2 * kPageRecordSize + 80] = 'X';  // page 3's screen image
  WriteBytes(b, bytes);
  const CliRun differ = Cli({"diff", a, b});
  EXPECT_EQ(1, differ.status);
  EXPECT_EQ("TotalPages: 0 -> 1\nHostColumn[2][5]: 255 -> 7\npage 3\n", differ.out);
}

TEST_F(CliTest, SummaryAsTextOrJson) {
  EXPECT_EQ("", Cli({"summary", NewFile("none.QVL", 0)}).out);
  EXPECT_EQ("", Cli({"summary", NewFile("none.QVL", 0), "--json"}).out);
  const std::string file = NewFile("s.QVL", 1);
  const CliRun text = Cli({"summary", file});
  EXPECT_EQ(0, text.status);
  EXPECT_EQ(0u, text.out.find("Information\n  Terminal Model : Quarvel Dravin S\n"));
  const CliRun json = Cli({"summary", file, "--json"});
  EXPECT_EQ(0, json.status);
  EXPECT_EQ(0u, json.out.find("[{\"text\":\"Information\",\"children\":[{\"text\":"
                              "\"Terminal Model : Quarvel Dravin S\",\"children\":[]}"));
  EXPECT_EQ(2, Cli({"summary", file, "--yaml"}).status);
}

}  // namespace
}  // namespace veltrix
