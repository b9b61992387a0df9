#include "tn5250/pc_keys.h"

#include <gtest/gtest.h>

#include <ostream>

namespace veltrix {
namespace {

struct KeyRow {
  PcKey key;
  int code;
};

void PrintTo(const KeyRow& row, std::ostream* os) { *os << "key code " << row.code; }

class PcKeyTableTest : public ::testing::TestWithParam<KeyRow> {};

TEST_P(PcKeyTableTest, GivesTheTerminalKeyCode) {
  std::optional<PcKeyMapping> m = MapPcKey(GetParam().key);
  ASSERT_TRUE(m.has_value());
  EXPECT_EQ(GetParam().code, m->key_code);
  bool pad = GetParam().key == PcKey::kPadPlus || GetParam().key == PcKey::kPadMinus;
  EXPECT_EQ(pad, m->swallows_character);
}

INSTANTIATE_TEST_SUITE_P(Table, PcKeyTableTest,
                         ::testing::Values(KeyRow{PcKey::kBackspace, 8}, KeyRow{PcKey::kTab, 150},
                                           KeyRow{PcKey::kEnter, 13}, KeyRow{PcKey::kEscape, 27},
                                           KeyRow{PcKey::kPageUp, 145},
                                           KeyRow{PcKey::kPageDown, 146}, KeyRow{PcKey::kEnd, 153},
                                           KeyRow{PcKey::kHome, 152}, KeyRow{PcKey::kLeft, 142},
                                           KeyRow{PcKey::kUp, 140}, KeyRow{PcKey::kRight, 143},
                                           KeyRow{PcKey::kDown, 141}, KeyRow{PcKey::kDelete, 160},
                                           KeyRow{PcKey::kPadPlus, 161},
                                           KeyRow{PcKey::kPadMinus, 162}, KeyRow{PcKey::kF1, 128},
                                           KeyRow{PcKey::kF5, 132}, KeyRow{PcKey::kF9, 136},
                                           KeyRow{PcKey::kF10, 147}, KeyRow{PcKey::kF11, 148},
                                           KeyRow{PcKey::kF12, 149}));

TEST(PcKeyTable, OtherKeysAreIgnored) { EXPECT_FALSE(MapPcKey(PcKey::kOther).has_value()); }

TEST(PcKeyboard, PadPlusSwallowsOnlyTheNextPlus) {
  PcKeyboard keyboard;
  auto down = keyboard.KeyDown(PcKey::kPadPlus);
  ASSERT_TRUE(down.has_value());
  EXPECT_FALSE(down->is_character);
  EXPECT_EQ(161, down->key_code);
  // A "-" is not swallowed by the plus flag.
  auto minus = keyboard.Character(U'-');
  ASSERT_TRUE(minus.has_value());
  EXPECT_EQ(U'-', minus->character);
  EXPECT_FALSE(keyboard.Character(U'+').has_value());
  // The flag is spent: a second "+" types.
  auto plus = keyboard.Character(U'+');
  ASSERT_TRUE(plus.has_value());
  EXPECT_TRUE(plus->is_character);
}

TEST(PcKeyboard, PadMinusSwallowsTheMinusCharacter) {
  PcKeyboard keyboard;
  ASSERT_TRUE(keyboard.KeyDown(PcKey::kPadMinus).has_value());
  EXPECT_FALSE(keyboard.Character(U'-').has_value());
  EXPECT_TRUE(keyboard.Character(U'-').has_value());
  keyboard.KeyDown(PcKey::kPadMinus);
  keyboard.Reset();
  EXPECT_TRUE(keyboard.Character(U'-').has_value());
}

TEST(PcKeyboard, ControlCharactersAreLeftToTheKeyDownPath) {
  PcKeyboard keyboard;
  for (char32_t c : {U'\b', U'\t', U'\r', U'\x1B', U'\x7F', U'\x85'}) {
    EXPECT_FALSE(keyboard.Character(c).has_value()) << static_cast<int>(c);
  }
  for (char32_t c : {U'a', U'Z', U'0', U' ', U'.', U'\u00E9', U'\u4E00'}) {
    EXPECT_TRUE(keyboard.Character(c).has_value()) << static_cast<int>(c);
  }
}

}  // namespace
}  // namespace veltrix
