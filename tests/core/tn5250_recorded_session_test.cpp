// Replays real host sessions (host-to-client bytes, Telnet included) and compares the screen
// after every host record with the one another client showed. That client renders code page 37
// while the terminal's default table is close to code page 500, so the few punctuation
// characters where the two differ are compared as equal.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "tn5250/display_text.h"
#include "tn5250/replay.h"
#include "tn5250/session.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

fs::path TraceDir() { return fs::path(VELTRIX_SHARED_DIR) / "peer-data" / "tn5250-traces"; }

std::vector<std::uint8_t> ReadBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

struct PeerScreen {
  int cursor_row = 0;
  int cursor_column = 0;
  std::vector<std::string> rows;
};

std::vector<PeerScreen> ReadPeerScreens(const fs::path& path) {
  std::ifstream in(path);
  std::vector<PeerScreen> screens;
  std::string line;
  while (std::getline(in, line)) {
    if (line.rfind("=== ", 0) == 0) {
      screens.emplace_back();
    } else if (line.rfind("# ", 0) == 0 && !screens.empty()) {
      const auto at = line.find("cursor=");
      if (at != std::string::npos) {
        std::sscanf(line.c_str() + at, "cursor=%d,%d", &screens.back().cursor_row,
                    &screens.back().cursor_column);
      }
    } else if (!screens.empty()) {
      screens.back().rows.push_back(line);
    }
  }
  return screens;
}

// Splits the host bytes after each IAC EOR (an IAC IAC pair is data).
std::vector<std::vector<std::uint8_t>> SplitAtRecordEnds(const std::vector<std::uint8_t>& bytes) {
  std::vector<std::vector<std::uint8_t>> parts(1);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    parts.back().push_back(bytes[i]);
    if (bytes[i] == 0xFF && i + 1 < bytes.size()) {
      parts.back().push_back(bytes[++i]);
      if (bytes[i] == 0xEF) parts.emplace_back();
    }
  }
  if (parts.back().empty()) parts.pop_back();
  return parts;
}

std::string RightTrimmed(std::string s) {
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

// Code page 37 and the terminal's table differ in a few punctuation characters, and the peer
// shows characters outside ASCII (such as the copyright sign) as blanks.
std::string Normalised(const std::string& text) {
  static const std::map<std::string, std::string> kSame = {
      {"!", "|"}, {"[", "|"}, {"]", "|"}, {"^", "|"}, {"¢", "|"}, {"¬", "|"}, {"|", "|"}};
  std::string out;
  std::size_t i = 0;
  while (i < text.size()) {
    const std::size_t at = i;
    NextUtf8(text, i);
    const std::string ch = text.substr(at, i - at);
    const auto it = kSame.find(ch);
    if (ch.size() > 1) {
      out += ' ';
    } else {
      out += it == kSame.end() ? ch : it->second;
    }
  }
  return RightTrimmed(out);
}

class RecordedSessionTest : public ::testing::TestWithParam<std::string> {};

TEST_P(RecordedSessionTest, ScreensMatchThePeerAfterEveryRecord) {
  const fs::path bin = TraceDir() / (GetParam() + ".bin");
  const fs::path screens_path = TraceDir() / (GetParam() + ".lib5250-screens.txt");
  if (!fs::exists(bin) || !fs::exists(screens_path)) GTEST_SKIP() << "no recorded sessions";
  const auto parts = SplitAtRecordEnds(ReadBytes(bin));
  const auto peer = ReadPeerScreens(screens_path);
  Session session;
  std::size_t record = 0;
  for (const auto& part : parts) {
    session.Receive(part);
    if (part.size() < 2 || part[part.size() - 2] != 0xFF || part.back() != 0xEF) continue;
    ASSERT_LT(record, peer.size());
    const PeerScreen& want = peer[record];
    SCOPED_TRACE("after host record " + std::to_string(record + 1));
    ASSERT_EQ(want.rows.size(), 24u);
    for (int row = 0; row < 24; ++row) {
      EXPECT_EQ(Normalised(ScreenRowText(session.Screen(), 0, row)), Normalised(want.rows[row]))
          << "row " << row;
    }
    EXPECT_EQ(session.CursorRow(), want.cursor_row);
    EXPECT_EQ(session.CursorColumn(), want.cursor_column);
    ++record;
  }
  EXPECT_EQ(record, peer.size());
}

TEST_P(RecordedSessionTest, EveryChunkSizeGivesTheSameResult) {
  const fs::path bin = TraceDir() / (GetParam() + ".bin");
  if (!fs::exists(bin)) GTEST_SKIP() << "no recorded sessions";
  const ReplayStep step{ReadBytes(bin), {}};
  ReplayRun whole({});
  whole.Run({&step, 1});
  const std::string want = whole.Text();
  // Every size up to 64, then a spread of larger ones up to the whole session.
  for (std::size_t size = 1; size < step.host.size(); size += size < 64 ? 1 : size / 4) {
    ReplayRun chunked({});
    chunked.Run({&step, 1}, size);
    ASSERT_EQ(chunked.Text(), want) << "chunk size " << size;
  }
}

INSTANTIATE_TEST_SUITE_P(Traces, RecordedSessionTest,
                         ::testing::Values("xtn5250-login", "rteplugin-login-invalid-creds",
                                           "ts5250-pub400-signon", "ts5250-pub400-signon-to-menu",
                                           "ts5250-pub400-autosignon-menu",
                                           "ts5250-pub400-jobinfo"),
                         [](const auto& info) {
                           std::string name = info.param;
                           for (char& c : name) {
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace veltrix
