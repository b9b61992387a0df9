// Golden replays: each file under tests/core/golden/tn5250/ gives annotated host bytes and keys
// and the expected replay text of the whole engine; each file under tests/core/golden/telnet/
// gives host bytes and what the Telnet layer alone passes on and answers. Every input is also
// replayed in chunks of every size from 1 upward and must give the same text. Set
// VELTRIX_UPDATE_GOLDEN=1 to rewrite the expectations.
//
// File format (one directive per line; "#" starts a comment outside the expect section):
//   emulation N            host language (EmulationType), default 0
//   local-name NAME        LocalName, default empty
//   host                   hex bytes follow, as they come from the host (Telnet included)
//   record                 hex bytes of a 5250 record body follow; the 10-byte header and
//                          IAC EOR are added, IAC doubled
//   keys TEXT              keys typed after the bytes so far (replay key syntax)
//   expect                 the rest of the file is the expected text
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tn5250/replay.h"
#include "tn5250/telnet_receiver.h"
#include "tn5250_test_util.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

fs::path GoldenDir(std::string_view folder) {
  return fs::path(VELTRIX_SOURCE_DIR) / "tests/core/golden" / folder;
}

struct Golden {
  SessionConfig config;
  std::vector<ReplayStep> steps;
  std::string expect;
  std::string head;  // the file up to and including the "expect" line
  std::string error;
};

void AppendHex(std::string_view text, std::vector<std::uint8_t>& out, std::string& error) {
  text = text.substr(0, text.find('#'));
  std::istringstream in{std::string(text)};
  std::string token;
  while (in >> token) {
    if (token.size() % 2 != 0) {
      error = "odd hex token " + token;
      return;
    }
    for (std::size_t i = 0; i < token.size(); i += 2) {
      out.push_back(static_cast<std::uint8_t>(std::stoul(token.substr(i, 2), nullptr, 16)));
    }
  }
}

void FinishRecord(std::vector<std::uint8_t>& body, std::vector<std::uint8_t>& host) {
  for (std::uint8_t b : testing::Record(body)) {
    host.push_back(b);
    if (b == 0xFF) host.push_back(0xFF);
  }
  host.push_back(0xFF);
  host.push_back(0xEF);
  body.clear();
}

Golden ReadGolden(const fs::path& path) {
  Golden g;
  std::ifstream in(path);
  std::string line;
  enum { kNone, kHost, kRecord } mode = kNone;
  std::vector<std::uint8_t> body;
  std::vector<std::string> pending_keys;
  auto step = [&]() -> ReplayStep& {
    if (g.steps.empty() || !g.steps.back().keys.empty()) g.steps.emplace_back();
    return g.steps.back();
  };
  auto close_record = [&] {
    if (mode == kRecord) FinishRecord(body, step().host);
    mode = kNone;
  };
  while (std::getline(in, line)) {
    g.head += line + "\n";
    const std::string word = line.substr(0, line.find(' '));
    if (line == "expect") {
      close_record();
      break;
    }
    if (word == "emulation") {
      g.config.emulation_type = std::stoi(line.substr(10));
    } else if (word == "local-name") {
      g.config.local_name = line.size() > 11 ? line.substr(11) : "";
    } else if (line == "host") {
      close_record();
      mode = kHost;
    } else if (line == "record") {
      close_record();
      mode = kRecord;
    } else if (word == "keys") {
      close_record();
      std::vector<KeyStroke> keys;
      if (!ParseReplayKeys(line.substr(5), g.config.emulation_type, keys, g.error)) return g;
      ReplayStep& s = step();
      s.keys.insert(s.keys.end(), keys.begin(), keys.end());
    } else if (line.empty() || line[0] == '#') {
      continue;
    } else if (mode == kHost) {
      AppendHex(line, step().host, g.error);
    } else if (mode == kRecord) {
      AppendHex(line, body, g.error);
    } else {
      g.error = "unexpected line: " + line;
      return g;
    }
  }
  std::stringstream rest;
  rest << in.rdbuf();
  g.expect = rest.str();
  return g;
}

std::vector<std::string> GoldenNames(std::string_view folder) {
  std::vector<std::string> names;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(GoldenDir(folder), ec)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The replay text plus the attribute plane of every row that has a non-zero attribute.
std::string GoldenText(const ReplayRun& run) {
  std::string out = run.Text();
  const PresentationSpace& ps = run.session().Screen();
  static const char* kDigits = "0123456789ABCDEF";
  for (int row = 0; row < ps.Rows(); ++row) {
    std::string line;
    bool any = false;
    for (int column = 0; column < ps.Columns(); ++column) {
      const std::uint8_t a = ps.Attribute(row, column);
      any = any || a != 0;
      line += kDigits[a >> 4];
      line += kDigits[a & 15];
    }
    if (any) out.append("attributes ").append(std::to_string(row)).append(" ").append(line) += '\n';
  }
  // Rows of the plane below the screen that hold characters (an error row placed there).
  for (int row = ps.Rows(); row < kPlaneRows; ++row) {
    std::string line;
    bool any = false;
    for (int column = 0; column < ps.Columns(); ++column) {
      const std::uint8_t c = ps.PlaneCharacter(row, column);
      any = any || c != 0;
      line += c == 0 ? ' ' : static_cast<char>(c);
    }
    if (any)
      out.append("below the screen ").append(std::to_string(row)).append(" ").append(line) += '\n';
  }
  return out;
}

// The Telnet layer alone: the data bytes it passes on, 32 to a line, each answer it sends, and
// its two flags.
struct TelnetRecorder : TelnetPeer {
  void HostData(std::span<const std::uint8_t> bytes) override {
    data.insert(data.end(), bytes.begin(), bytes.end());
  }
  void SendRaw(std::span<const std::uint8_t> bytes) override {
    sent.emplace_back(bytes.begin(), bytes.end());
  }
  std::vector<std::uint8_t> data;
  std::vector<std::vector<std::uint8_t>> sent;
};

std::string HexLine(std::string_view word, std::span<const std::uint8_t> bytes) {
  static const char* kDigits = "0123456789ABCDEF";
  std::string line(word);
  for (std::uint8_t b : bytes) {
    line += ' ';
    line += kDigits[b >> 4];
    line += kDigits[b & 15];
  }
  return line + "\n";
}

std::string TelnetText(const Golden& g, std::size_t chunk) {
  TelnetRecorder peer;
  TelnetReceiver telnet(g.config, peer);
  for (const ReplayStep& s : g.steps) {
    for (std::size_t i = 0; i < s.host.size(); i += chunk) {
      telnet.Receive(std::span(s.host).subspan(i, std::min(chunk, s.host.size() - i)));
    }
  }
  std::string out;
  for (std::size_t i = 0; i < peer.data.size(); i += 32) {
    out += HexLine(
        "data", std::span(peer.data).subspan(i, std::min<std::size_t>(32, peer.data.size() - i)));
  }
  for (const auto& answer : peer.sent) out += HexLine("sent", answer);
  out += std::string("echo ") + (telnet.echo() ? "on" : "off") + "\n";
  out += std::string("suppress-go-ahead ") + (telnet.suppress_go_ahead() ? "on" : "off") + "\n";
  return out;
}

// Checks the file's expectation against `text_of(golden, whole input)` and the same at every
// chunk size (or rewrites it).
template <typename TextOf>
void CheckGolden(const fs::path& path, TextOf text_of) {
  const Golden g = ReadGolden(path);
  ASSERT_EQ(g.error, "");
  const std::string text = text_of(g, SIZE_MAX);
  if (std::getenv("VELTRIX_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(path) << g.head << text;
  } else {
    EXPECT_EQ(text, g.expect);
  }
  std::size_t total = 0;
  for (const ReplayStep& s : g.steps) total = std::max(total, s.host.size());
  for (std::size_t size = 1; size < total; ++size) {
    ASSERT_EQ(text_of(g, size), text) << "chunk size " << size;
  }
}

class GoldenReplayTest : public ::testing::TestWithParam<std::string> {};

TEST_P(GoldenReplayTest, MatchesAtEveryChunkSize) {
  CheckGolden(GoldenDir("tn5250") / (GetParam() + ".txt"), [](const Golden& g, std::size_t size) {
    ReplayRun run(g.config);
    run.Run(g.steps, size == SIZE_MAX ? 0 : size);  // 0: the whole input at once
    return GoldenText(run);
  });
}

class TelnetGoldenTest : public ::testing::TestWithParam<std::string> {};

TEST_P(TelnetGoldenTest, MatchesAtEveryChunkSize) {
  CheckGolden(GoldenDir("telnet") / (GetParam() + ".txt"), TelnetText);
}

std::string TestName(const ::testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Tn5250, GoldenReplayTest, ::testing::ValuesIn(GoldenNames("tn5250")),
                         TestName);
INSTANTIATE_TEST_SUITE_P(Telnet, TelnetGoldenTest, ::testing::ValuesIn(GoldenNames("telnet")),
                         TestName);
// A folder that is missing or empty runs no replay at all: that fails, it is not a pass.
TEST(GoldenFolders, HoldReplays) {
  EXPECT_FALSE(GoldenNames("tn5250").empty());
  EXPECT_FALSE(GoldenNames("telnet").empty());
}

}  // namespace
}  // namespace veltrix
