// Golden replays: each file under tests/core/golden/tn5250/ gives annotated host bytes and keys
// and the expected replay text. Every input is also replayed in chunks of every size from 1
// upward and must give the same text. Set VELTRIX_UPDATE_GOLDEN=1 to rewrite the expectations.
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
#include "tn5250_test_util.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

fs::path GoldenDir() { return fs::path(VELTRIX_SOURCE_DIR) / "tests/core/golden/tn5250"; }

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

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(GoldenDir(), ec)) {
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
    if (any) out += "attributes " + std::to_string(row) + " " + line + "\n";
  }
  return out;
}

class GoldenReplayTest : public ::testing::TestWithParam<std::string> {};

TEST_P(GoldenReplayTest, MatchesAtEveryChunkSize) {
  const fs::path path = GoldenDir() / (GetParam() + ".txt");
  const Golden g = ReadGolden(path);
  ASSERT_EQ(g.error, "");
  ReplayRun whole(g.config);
  whole.Run(g.steps);
  const std::string text = GoldenText(whole);
  if (std::getenv("VELTRIX_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(path) << g.head << text;
  } else {
    EXPECT_EQ(text, g.expect);
  }
  std::size_t total = 0;
  for (const ReplayStep& s : g.steps) total = std::max(total, s.host.size());
  for (std::size_t size = 1; size < total; ++size) {
    ReplayRun chunked(g.config);
    chunked.Run(g.steps, size);
    ASSERT_EQ(GoldenText(chunked), text) << "chunk size " << size;
  }
}

INSTANTIATE_TEST_SUITE_P(Tn5250, GoldenReplayTest, ::testing::ValuesIn(GoldenNames()),
                         [](const auto& info) {
                           std::string name = info.param;
                           for (char& c : name) {
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           }
                           return name;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(GoldenReplayTest);

}  // namespace
}  // namespace veltrix
