#include "settings/prompts/prompts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "default_document.h"
#include "settings/prompts/prompt_editor.h"

namespace veltrix {
namespace {

std::string SlotBytes(const Document& doc, int screen, int line) {
  const auto bytes =
      FieldBytes(std::span<const std::uint8_t>(doc.record), kPromptText, PromptSlot(screen, line));
  return std::string(bytes.begin(), bytes.end());
}

TEST(PromptScreens, OffsetsMatchTheTerminalLayout) {
  constexpr std::array<std::uint32_t, 12> kOffsets{82,   246,  574,  902,  1230, 1394,
                                                   1558, 1722, 1886, 2050, 2214, 2542};
  for (int s = 0; s < kPromptScreenCount; ++s) {
    EXPECT_EQ(kOffsets[s], kPromptText.OffsetOf(PromptSlot(s, 0))) << "screen " << s + 1;
  }
  EXPECT_EQ(-1, PromptSlot(0, 4));
  EXPECT_EQ(67, PromptSlot(11, 7));
  EXPECT_EQ(-1, PromptSlot(12, 0));
  EXPECT_EQ(-1, PromptSlot(-1, 0));
}

TEST(PromptDefaults, NoProductCopiesNothing) {
  auto doc = testing::DefaultDocument(0);
  EXPECT_TRUE(std::all_of(doc->record.begin() + 82, doc->record.begin() + 2870,
                          [](auto b) { return b == 0; }));
  doc->record[82] = 'x';
  SetPromptDefaults(*doc);
  EXPECT_EQ('x', doc->record[82]);
  doc->record[kProductOffset] = 7;  // a file with a product this version does not know
  SetPromptDefaults(*doc);
  EXPECT_EQ('x', doc->record[82]);
}

// Every default fits its variant's width, so padding gives exactly that width.
TEST(PromptDefaults, EveryTextHasItsVariantWidth) {
  for (int variant = 1; variant <= 3; ++variant) {
    for (int s = 0; s < kPromptScreenCount; ++s) {
      for (int k = 0; k < kPromptScreens[s].slot_count; ++k) {
        EXPECT_EQ(static_cast<std::size_t>(PromptDefaultWidth(variant, s)),
                  PromptDefaultText(variant, s, k).size())
            << "variant " << variant << " screen " << s + 1 << " line " << k + 1;
      }
    }
  }
}

TEST(PromptDefaults, DefaultsKeepBytesBehindTheirNul) {
  auto doc = testing::DefaultDocument(1);
  std::fill_n(doc->record.begin() + 82, 41, 'z');
  SetPromptDefaults(*doc);
  EXPECT_EQ(std::string("1. Telnet   \0zzzzzzzzzzzzzzzzzzzzzzzzzzzz", 41), SlotBytes(*doc, 0, 0));
}

TEST(PromptNames, CarryTheProductsScreenSizesPaddedTo30) {
  const std::vector<std::string> s = PromptScreenNames(1);
  const std::vector<std::string> r = PromptScreenNames(2);
  ASSERT_EQ(12u, s.size());
  ASSERT_EQ(12u, r.size());
  EXPECT_EQ("Main Menu (12*2)              ", s[0]);
  EXPECT_EQ("Main Menu (15*2)              ", r[0]);
  EXPECT_EQ("Emulation Settings (16*8)     ", s[3]);
  EXPECT_EQ("Download Messages (15*4)      ", r[9]);
  EXPECT_EQ("Error Messages (20*7)         ", r[10]);
  EXPECT_EQ("Miscellaneous (16*6)          ", s[11]);
  EXPECT_EQ(r, PromptScreenNames(3));
  EXPECT_TRUE(PromptScreenNames(0).empty());
  for (const std::string& name : s) EXPECT_EQ(30u, name.size());
}

TEST(PromptPadding, EverySlotBecomes40CharactersAndANul) {
  auto doc = testing::DefaultDocument(2);
  std::fill_n(doc->record.begin() + PromptSlot(1, 0) * 41 + 82, 41, 'q');  // no NUL at all
  PadPromptsForTerminal(*doc);
  for (int slot = 0; slot < kPromptSlotCount; ++slot) {
    const std::string text = ReadText(doc->record, kPromptText, slot);
    EXPECT_EQ(40u, text.size()) << "slot " << slot;
    EXPECT_EQ(0, doc->record[82 + slot * 41 + 40]);
  }
  EXPECT_EQ(std::string(40, 'q'), ReadText(doc->record, kPromptText, PromptSlot(1, 0)));
  EXPECT_EQ("1. Telnet" + std::string(31, ' '), ReadText(doc->record, kPromptText, 0));
  EXPECT_EQ(0, doc->record[2870]) << "nothing behind the last slot is touched";
}

}  // namespace
}  // namespace veltrix
