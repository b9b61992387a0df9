#include <gtest/gtest.h>

#include <cstring>

#include "tn5250/display_text.h"
#include "tn5250/double_byte.h"
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

TEST_F(SessionTest, QueryIsAnsweredOnlyAfterTheRecordEnds) {
  const auto query = Record(Hex("04 F3 00 05 D9 70 00"));
  session.Receive(std::span(query).first(query.size() - 1));
  EXPECT_TRUE(listener.sent.empty());
  session.Receive(std::span(query).last(1));
  EXPECT_EQ(listener.sent.size(), 73u);
}

TEST_F(SessionTest, WorksWithoutAListener) {
  Session quiet;
  quiet.Receive(Record(Hex("04 40 04 11 00 0C 11 02 02 1D 40 00 24 00 05 04 72")));
  quiet.TypeCharacter('A');
  quiet.KeyInput(HostKey::kEnter);
  EXPECT_EQ(quiet.Screen().Character(1, 2), 'A');
}

TEST(DoubleByteTest, PairsGoThroughTheLanguageTable) {
  for (int language : {0, 1, 2, 3, 4}) {
    RecordingListener listener;
    Session session({language, ""}, &listener);
    session.Receive(Record(Hex("04 40 04 11 00 40 11 01 01 0E 40 40 0F")));
    std::uint8_t first = 0x40;
    std::uint8_t second = 0x40;
    const bool converted = ConvertDoubleByte(language, first, second);
    const PresentationSpace& ps = session.Screen();
    SCOPED_TRACE("language " + std::to_string(language));
    EXPECT_EQ(ps.Character(0, 0), ' ');
    EXPECT_EQ(ps.Character(0, 1), converted ? first : 'X');
    EXPECT_EQ(ps.Character(0, 2), converted ? second : 'X');
    EXPECT_EQ(ps.IsPairStart(0, 1), converted);
    EXPECT_EQ(ps.Character(0, 3), ' ');
    EXPECT_EQ(ps.CursorColumn(), 4);
  }
}

TEST(DoubleByteTest, JapaneseBlankPairIsTheFullWidthBlank) {
  Session session({4, ""});
  session.Receive(Record(Hex("04 40 04 11 00 40 11 01 01 0E 40 40 0F")));
  EXPECT_EQ(session.Screen().Character(0, 1), 0x81);
  EXPECT_EQ(session.Screen().Character(0, 2), 0x40);
  EXPECT_EQ(ScreenRowText(session.Screen(), 4, 0).substr(0, 5), " \xE3\x80\x80 ");
}

TEST(DoubleByteTest, AttributeBytesAreHalvesInDoubleByteMode) {
  Session session;
  session.Receive(Record(Hex("04 40 04 11 00 40 11 01 01 0E 22 23 0F C1")));
  EXPECT_EQ(session.Screen().Character(0, 1), 'X');
  EXPECT_EQ(session.Screen().Character(0, 2), 'X');
  EXPECT_EQ(session.Screen().Character(0, 4), 'A');
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

// Counts the characters of UTF-8 text.
std::size_t CharacterCount(const std::string& text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++count) NextUtf8(text, i);
  return count;
}

TEST(DisplayTextTest, DoubleByteCharactersAreOneCharacterEach) {
  struct Case {
    int language;
    const char* pair;       // host pair
    const char* character;  // its character as UTF-8
  };
  for (const Case& c : {Case{4, "42 C1", "\xEF\xBC\xA1"}, Case{4, "45 41", "\xE4\xB8\x80"},
                        Case{1, "42 C1", "\xEF\xBC\xA1"}, Case{2, "42 C1", "\xEF\xBC\xA1"},
                        Case{3, "42 C1", "\xEF\xBC\xA1"}}) {
    Session session({c.language, ""});
    session.Receive(Record(Hex(std::string("04 40 04 11 00 40 11 01 01 0E ") + c.pair + " 0F C1")));
    const std::string row = ScreenRowText(session.Screen(), c.language, 0);
    SCOPED_TRACE("language " + std::to_string(c.language));
    EXPECT_EQ(row.substr(0, 1 + std::strlen(c.character) + 2),
              std::string(" ") + c.character + " A");
    EXPECT_EQ(CharacterCount(row), 79u);
  }
}

TEST(DisplayTextTest, PairsFollowTheCellsUnderThem) {
  // SO, one pair from (0,1), SI; then a single byte over the pair's second half.
  Session session({4, ""});
  session.Receive(Record(Hex("04 40 04 11 00 40 11 01 01 0E 45 41 0F")));
  EXPECT_EQ(ScreenRowText(session.Screen(), 4, 0).substr(0, 5), " \xE4\xB8\x80 ");
  session.Receive(Record(Hex("04 11 00 40 11 01 03 C2")));
  EXPECT_EQ(ScreenRowText(session.Screen(), 4, 0).substr(0, 6),
            " \xEF\xBF\xBD"
            "B ");
  // A pair in the last column belongs to its row; the next row starts after its second half.
  session.Receive(Record(Hex("04 11 00 40 11 02 4F 0E 45 41 0F C1")));
  const std::string first = ScreenRowText(session.Screen(), 4, 1);
  EXPECT_EQ(first.substr(first.size() - 3), "\xE4\xB8\x80");
  EXPECT_EQ(CharacterCount(first), 80u);
  EXPECT_EQ(ScreenRowText(session.Screen(), 4, 2).substr(0, 2), " A");
  EXPECT_EQ(CharacterCount(ScreenRowText(session.Screen(), 4, 2)), 79u);
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
