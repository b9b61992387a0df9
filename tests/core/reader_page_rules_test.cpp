#include "settings/reader/reader_page_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

struct ReaderTypeCase {
  std::uint8_t byte;
  int position;
  bool two_d;
};

TEST(ReaderType, PositionsAndSets) {
  for (const ReaderTypeCase& c :
       {ReaderTypeCase{0x00, kLaserCcdReader, false}, ReaderTypeCase{0x01, kTwoDReader, true},
        ReaderTypeCase{0x04, kLongRangeLaser, true}, ReaderTypeCase{0x05, kLongRangeLaser, true},
        ReaderTypeCase{0x0A, kLaserCcdReader, false}, ReaderTypeCase{0xF3, kTwoDReader, true}}) {
    EXPECT_EQ(c.position, ReaderPositionOf(c.byte)) << int{c.byte};
    EXPECT_EQ(c.two_d, UsesTwoDSet(c.byte)) << int{c.byte};
  }
}

TEST(ReaderType, StoringAReaderKeepsTheOtherBitsAndClearsBit3) {
  EXPECT_EQ(0xF3, WithReaderPosition(0xFA, kTwoDReader));
  EXPECT_EQ(0x06, WithReaderPosition(0x0F, kLongRangeLaser));
  EXPECT_EQ(0x02, WithReaderPosition(0x0F, kLaserCcdReader));
  auto doc = testing::DefaultDocument(1);
  doc->record[kReaderType.offset] = 0x0A;
  ChooseReader(*doc, kLongRangeLaser);
  EXPECT_EQ(0x06, doc->record[kReaderType.offset]);
}

std::set<int> MoreButtons(bool two_d) {
  std::set<int> ids;
  for (const PageCheckBox& box : ReaderPageCheckBoxes(two_d)) {
    if (!box.more_dialog.empty()) ids.insert(box.id);
  }
  return ids;
}

TEST(ReaderPageCheckBoxes, BindTheRightBlockAndShowTheRightMoreButtons) {
  for (bool two_d : {false, true}) {
    std::set<int> ids;
    for (const PageCheckBox& box : ReaderPageCheckBoxes(two_d)) {
      EXPECT_TRUE(ids.insert(box.id).second) << box.id;
      if (box.field != nullptr) {
        EXPECT_EQ(two_d ? ReaderBlock::kTwoD : ReaderBlock::kLinear, BlockOf(*box.field))
            << box.text;
        EXPECT_EQ(1, box.field->bit_count) << box.text;
      }
    }
    EXPECT_EQ(two_d ? 27u : 26u, ids.size());
    EXPECT_EQ(301, *ids.begin());
  }
  EXPECT_EQ((std::set<int>{301, 302, 303, 304, 305, 306, 307, 308, 309, 310, 313, 316, 319, 320,
                           321, 322, 325}),
            MoreButtons(false));
  EXPECT_EQ((std::set<int>{301, 302, 303, 304, 310, 312, 313, 314, 315, 316, 317, 318, 319}),
            MoreButtons(true));
}

}  // namespace
}  // namespace veltrix
