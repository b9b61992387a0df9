#include <gtest/gtest.h>

#include "tn5250/display_text.h"
#include "tn5250/replay.h"
#include "tn5250_test_util.h"

namespace veltrix {
namespace {

using testing::Hex;
using testing::Record;
using testing::RecordingListener;

class SessionTest : public ::testing::Test {
 protected:
  void FeedRecord(std::string_view body) { session.Receive(Record(Hex(body))); }
  RecordingListener listener;
  Session session{{}, &listener};
};

TEST_F(SessionTest, RecordOfLengthTenEndsAfterItsHeader) {
  FeedRecord("");
  FeedRecord("04 40 04 11 00 40 11 01 00 C1");
  EXPECT_EQ(session.Screen().Character(0, 0), 'A');
}

TEST_F(SessionTest, ReportsAWholeScreenChangeOncePerChunkThatChangedIt) {
  std::vector<std::uint8_t> two = Record(Hex("04 40 04 11 00 08 C1"));
  const auto second = Record(Hex("04 11 00 08 11 02 02 C2"));
  two.insert(two.end(), second.begin(), second.end());
  session.Receive(two);
  ASSERT_EQ(listener.changes.size(), 1u);
  EXPECT_EQ(listener.changes[0].kind, ScreenChange::Kind::kWhole);
  session.Receive(Hex("FF FD 18"));  // negotiation only: no repaint
  EXPECT_EQ(listener.changes.size(), 1u);
}

TEST_F(SessionTest, KeyRepaintsNameTheCellOrTheWholeScreen) {
  FeedRecord("04 40 04 11 00 08 11 02 02 1D 40 00 24 00 05 C1 C2 C3");
  listener.changes.clear();
  session.TypeCharacter('X');
  ASSERT_EQ(listener.changes.size(), 1u);
  EXPECT_EQ(listener.changes[0].kind, ScreenChange::Kind::kCell);
  EXPECT_EQ(listener.changes[0].row, 1);
  EXPECT_EQ(listener.changes[0].column, 2);
  session.KeyInput(HostKey::kTab);
  EXPECT_EQ(listener.changes.back().kind, ScreenChange::Kind::kCaret);
  EXPECT_EQ(listener.changes.back().column, 3);  // where the caret was
  session.KeyInput(HostKey::kDelete);
  EXPECT_EQ(listener.changes.back().kind, ScreenChange::Kind::kWhole);
  // A control character is not typed at all.
  listener.changes.clear();
  session.TypeCharacter('\t');
  EXPECT_TRUE(listener.changes.empty());
}

TEST_F(SessionTest, KeyboardLockChangesAreReported) {
  EXPECT_TRUE(session.KeyboardLocked());
  FeedRecord("04 11 00 08");
  FeedRecord("04 11 20 00");
  FeedRecord("04 72");  // Read Immediate locks, sends and unlocks
  EXPECT_EQ(listener.lock_events, (std::vector<bool>{false, true, false}));
  EXPECT_FALSE(session.KeyboardLocked());
}

TEST_F(SessionTest, ConnectStartsAFreshScreenButKeepsTheFieldRecords) {
  FeedRecord("04 40 04 11 00 08 11 02 02 1D 40 00 24 00 05 C1");
  session.Receive(Hex("FF FC 03"));  // clears the suppress-go-ahead flag
  EXPECT_FALSE(session.SuppressGoAheadFlag());
  session.Connect();
  EXPECT_TRUE(session.SuppressGoAheadFlag());
  EXPECT_FALSE(session.EchoFlag());
  EXPECT_TRUE(session.KeyboardLocked());
  EXPECT_EQ(session.Screen().Character(1, 2), 0);
  EXPECT_EQ(session.Fields().Count(), 1);
  EXPECT_FALSE(session.Fields().Current().IsField());
  EXPECT_EQ(session.CurrentReadMode(), ReadMode::kNone);
}

TEST_F(SessionTest, WorksWithoutAListener) {
  Session quiet;
  quiet.Receive(Record(Hex("04 40 04 11 00 0C 11 02 02 1D 40 00 24 00 05 04 72")));
  quiet.TypeCharacter('A');
  quiet.KeyInput(HostKey::kEnter);
  EXPECT_EQ(quiet.Screen().Character(1, 2), 'A');
}

struct KeyCase {
  const char* text;
  int language;
  std::vector<std::uint8_t> characters;  // typed characters; 0 marks a key
  const char* error;
};

class ReplayKeysTest : public ::testing::TestWithParam<KeyCase> {};

TEST_P(ReplayKeysTest, ParsesTextAndKeyNames) {
  const KeyCase& c = GetParam();
  std::vector<KeyStroke> keys;
  std::string error;
  const bool ok = ParseReplayKeys(c.text, c.language, keys, error);
  EXPECT_EQ(error, c.error);
  if (!ok) return;
  std::vector<std::uint8_t> got;
  for (const KeyStroke& k : keys) got.push_back(k.is_character ? k.character : 0);
  EXPECT_EQ(got, c.characters);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ReplayKeysTest,
    ::testing::Values(
        KeyCase{"ab<Enter>", 0, {'a', 'b', 0}, ""}, KeyCase{"<<F1>", 0, {'<', 'F', '1', '>'}, ""},
        KeyCase{"<F10><FieldMinus>", 0, {0, 0}, ""}, KeyCase{"\xC3\xA9", 0, {0xE9}, ""},
        KeyCase{"\xCE\xB1", 5, {0xE1}, ""}, KeyCase{"\xEF\xBD\xB1", 4, {0xB1}, ""},
        KeyCase{"<F13>", 0, {}, "unknown key <F13>"},
        KeyCase{"<Enter", 0, {}, "unterminated key name at offset 0"},
        KeyCase{"\xCE\xB1", 0, {}, "character at offset 0 cannot be typed in this language"}));

TEST(DisplayTextTest, DecodesEachLanguagesSingleByteCode) {
  EXPECT_EQ(DisplayByteToUnicode(0, 0xE9), U'\u00E9');
  EXPECT_EQ(DisplayByteToUnicode(5, 0xC1), U'\u0391');
  EXPECT_EQ(DisplayByteToUnicode(4, 0xB1), U'\uFF71');
  EXPECT_EQ(DisplayByteToUnicode(4, 0x5C), U'\u00A5');
  EXPECT_EQ(DisplayByteToUnicode(0, 0x00), U' ');
  EXPECT_EQ(DisplayByteToUnicode(0, 0x1C), U' ');
  std::string text;
  AppendUtf8(text, U'\u0391');
  std::size_t i = 0;
  EXPECT_EQ(NextUtf8(text, i), U'\u0391');
  EXPECT_EQ(i, text.size());
  const std::string bad = "\xC3";
  i = 0;
  EXPECT_EQ(NextUtf8(bad, i), U'\uFFFD');
}

TEST(ReplayJsonTest, HoldsEveryPart) {
  ReplayRun run({});
  ReplayStep step;
  step.host = Record(Hex("04 40 04 11 00 08 11 02 03 1D 40 00 24 00 04 C1 04 72"));
  run.Run({&step, 1});
  const std::string json = run.Json();
  for (const char* part :
       {"\"rows\":24", "\"columns\":80", "\"cursor\":{\"row\":1,\"column\":3}",
        "\"fields\":[{\"number\":1,\"resequence\":0,\"row\":1,\"column\":3,\"length\":4,"
        "\"ffw\":\"4000\",\"fcw\":\"0000\",\"attribute\":\"44\"}]",
        "\"keyboard_locked\":false", "\"read_mode\":0",
        "\"sent\":\"000E12A0000004000003C1404040FFEF\"",
        "\"trace\":[{\"code\":\"ResetAid\",\"offset\":13,\"text\":\"Reset AID code\\r\\n\"}]",
        "\"   A   ", "\"cells\":[\"00000000", "\"attributes\":[\"0000"}) {
    EXPECT_NE(json.find(part), std::string::npos) << part;
  }
}

TEST(ReplayJsonTest, ScreenRowsHoldADoubleByteCharacterOnce) {
  ReplayRun run({4, ""});
  ReplayStep step;
  step.host = Record(Hex("04 40 04 11 00 08 11 01 01 0E 45 41 0F"));
  run.Run({&step, 1});
  const std::string json = run.Json();
  // The screen row: blank, the character, blank, then the rest of the 80 cells as blanks.
  EXPECT_NE(json.find("\"screen\":[\" \xE4\xB8\x80 " + std::string(76, ' ') + "\","),
            std::string::npos)
      << json;
  EXPECT_NE(json.find("\"cells\":[\"2088EA20"), std::string::npos) << json;
}

}  // namespace
}  // namespace veltrix
