// veltrix-cli run as a program from the transcripts in tests/core/data/cli_transcripts.txt.
// Each case runs in a fresh working folder; the file's header explains the notation.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "settings_test_files.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

using testing::ReadBytes;
using testing::ReadText;
using testing::TempFolder;
using testing::WriteBytes;

using Case = testing::DataCase;
using Line = testing::CaseLine;

// Words split on blanks; "double quotes" keep blanks inside a word.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false, any = false;
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if (c == ' ' && !quoted) {
      if (any) words.push_back(word);
      word.clear();
      any = false;
    } else {
      word += c;
      any = true;
    }
  }
  if (any) words.push_back(word);
  return words;
}

std::string Quote(const std::string& arg) {
  std::string quoted = "'";
  for (char c : arg) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::map<std::string, std::vector<std::uint8_t>> Snapshot(const std::filesystem::path& folder) {
  std::map<std::string, std::vector<std::uint8_t>> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;  // a FIFO is never read here
    files[entry.path().filename().string()] = ReadBytes(entry.path().string());
  }
  return files;
}

class CliTranscript : public ::testing::TestWithParam<Case> {
 protected:
  // Writes a file as a "file" line describes it: hex BYTES, fill N BYTE,
  // copy SOURCE [first N] [poke OFFSET BYTE], or fifo (a FIFO nobody writes to).
  void MakeFile(const std::vector<std::string>& w) {
    if (w[1] == "fifo") {
      ASSERT_EQ(0, ::mkfifo(work_.File(w[0]).c_str(), 0600));
      return;
    }
    std::vector<std::uint8_t> bytes;
    std::size_t i = 2;
    if (w[1] == "hex") {
      for (; i < w.size(); ++i) bytes.push_back(static_cast<std::uint8_t>(std::stoul(w[i], 0, 16)));
    } else if (w[1] == "fill") {
      bytes.assign(std::stoul(w[2]), static_cast<std::uint8_t>(std::stoul(w[3], 0, 16)));
      i = 4;
    } else if (w[1] == "copy") {
      bytes = ReadBytes(work_.File(w[2]));
      for (i = 3; i + 1 < w.size(); i += 2) {
        if (w[i] == "first") bytes.resize(std::stoul(w[i + 1]));
        if (w[i] == "poke") {
          bytes.at(std::stoul(w[i + 1])) = static_cast<std::uint8_t>(std::stoul(w[i + 2], 0, 16));
          ++i;
        }
      }
    }
    WriteBytes(work_.File(w[0]), bytes);
  }

  void Run(const std::string& args) {
    std::string command = "cd " + Quote(work_.path().string()) + " && " + Quote(VELTRIX_CLI_PATH);
    for (const std::string& arg : Words(args)) command.append(" ").append(Quote(arg));
    const std::string out = output_.File("out"), err = output_.File("err");
    const int raw = std::system((command + " >" + Quote(out) + " 2>" + Quote(err)).c_str());
    status_ = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    out_ = ReadText(out);
    err_ = ReadText(err);
  }

  TempFolder work_, output_;
  int status_ = 0;
  std::string out_, err_;
};

TEST_P(CliTranscript, Runs) {
  const std::vector<Line>& lines = GetParam().lines;
  for (std::size_t i = 0; i < lines.size();) {
    const Line& command = lines[i++];
    const std::string& text = command.text;
    const std::string where = "line " + std::to_string(command.number) + ": " + text;
    if (text.rfind("file ", 0) == 0) {
      MakeFile(Words(text.substr(5)));
      continue;
    }
    if (text.rfind("size ", 0) == 0) {
      const auto w = Words(text.substr(5));
      EXPECT_EQ(std::stoul(w[1]), std::filesystem::file_size(work_.File(w[0]))) << where;
      continue;
    }
    ASSERT_EQ(0u, text.rfind("$ ", 0)) << where;
    const auto before = Snapshot(work_.path());
    Run(text.substr(2));
    // What follows the command: its output lines, then checks.
    std::string expected;
    bool whole = true, prefix = false;
    int status = 0;
    for (; i < lines.size() && lines[i].text.rfind("$ ", 0) != 0 &&
           lines[i].text.rfind("file ", 0) != 0 && lines[i].text.rfind("size ", 0) != 0;
         ++i) {
      const std::string& l = lines[i].text;
      if (l.rfind("? ", 0) == 0) {
        status = std::stoi(l.substr(2));
      } else if (l.rfind("! ", 0) == 0) {
        EXPECT_NE(std::string::npos, err_.find(l.substr(2))) << where << "\nstderr: " << err_;
      } else if (l.rfind("~ ", 0) == 0) {
        whole = false;
        EXPECT_NE(std::string::npos, out_.find(l.substr(2))) << where << "\nstdout: " << out_;
      } else if (l.size() >= 3 && l.compare(l.size() - 3, 3, "...") == 0) {
        expected += l.substr(0, l.size() - 3);
        prefix = true;
      } else {
        expected += l + "\n";
      }
    }
    EXPECT_EQ(status, status_) << where << "\nstderr: " << err_;
    if (prefix) {
      EXPECT_EQ(0u, out_.rfind(expected, 0)) << where << "\nstdout: " << out_;
    } else if (whole) {
      EXPECT_EQ(expected, out_) << where;
    }
    if (status_ == 2) {
      // Refused: one line saying why (after any warnings, or the usage), and every file of the
      // folder as it was.
      std::istringstream err(err_);
      std::vector<std::string> err_lines;
      for (std::string l; std::getline(err, l);) err_lines.push_back(l);
      const bool one_reason =
          !err_lines.empty() && err_.back() == '\n' &&
          std::all_of(err_lines.begin(), err_lines.end() - 1, [](const std::string& l) {
            return l.rfind("veltrix-cli: warning:", 0) == 0;
          });
      EXPECT_TRUE(one_reason || err_.rfind("usage:", 0) == 0) << where << "\nstderr: " << err_;
      EXPECT_TRUE(Snapshot(work_.path()) == before) << where << " changed the folder";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, CliTranscript,
                         ::testing::ValuesIn(testing::ReadDataCases("cli_transcripts.txt")),
                         [](const auto& info) {
                           std::string name;
                           for (const char c : info.param.name) {
                             name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace veltrix
