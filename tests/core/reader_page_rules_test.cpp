#include "settings/reader/reader_page_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
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
#include "support/binding_driver.h"

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

TEST(ReaderPageBindings, DefaultsOfEachSet) {
  const struct {
    std::uint8_t reader_type;
    int reader;
    bool rfid;
    int first_list, second_list, number;
    std::vector<int> on;  // check boxes ticked, 301-327
  } kCases[] = {
      // 9B C9: Code 39, Industrial, Interleave, Codabar, MSI off ... ; EAN128 checked while
      // below 2.
      {0x00, kLaserCcdReader, false, 6, 0, 3, {301, 304, 305, 307, 310, 313, 316, 323, 324, 325}},
      // "2D Reader" with the RFID reader.
      {0x03,
       kTwoDReader,
       true,
       1,
       1,
       9,
       {301, 302, 304, 305, 307, 308, 309, 310, 315, 318, 319, 320, 321, 322, 325, 326, 327}},
  };
  for (const auto& c : kCases) {
    auto doc = testing::DefaultDocument(1);
    doc->record[kReaderType.offset] = c.reader_type;
    const OwnedBindings bindings = ReaderPageBindings(UsesTwoDSet(c.reader_type));
    BindingSession page = testing::Session(*doc, bindings.lines);
    EXPECT_EQ(c.reader, page.Value("barcode_reader"));
    EXPECT_EQ(c.rfid, page.Value("rfid_reader") != 0);
    EXPECT_EQ(c.first_list, page.Value("scan_mode"));
    EXPECT_EQ(c.second_list, page.Value("read_redundancy"));
    EXPECT_EQ(std::to_string(c.number), page.Text("time_out"));
    const ReaderPageState state = FillReaderPageState(*doc);
    for (int id = 301; id <= 327; ++id) {
      const bool want = std::find(c.on.begin(), c.on.end(), id) != c.on.end();
      EXPECT_EQ(want, state.checked[id - 301]) << int{c.reader_type} << " " << id;
      if (id < 327 || c.reader_type != 0) {
        EXPECT_EQ(want, page.Value("symbology_" + std::to_string(id - 300)) != 0) << id;
      }
    }
  }
}

TEST(ReaderPageState, EnablingFollowsTheReader) {
  ReaderPageState state;
  state.reader = kLaserCcdReader;
  EXPECT_TRUE(PageCheckBoxEnabled(state, 313));
  EXPECT_TRUE(PageCheckBoxEnabled(state, 326));

  // The linear set's 306 follows 305 only once 305 was toggled with a ReaderType other than 0.
  PageCheckBoxToggled(state, 305, 0x00);
  EXPECT_TRUE(PageCheckBoxEnabled(state, 306));
  PageCheckBoxToggled(state, 305, 0x08);
  EXPECT_FALSE(PageCheckBoxEnabled(state, 306));

  state = ReaderPageState{};
  state.reader = kTwoDReader;
  state.bookland_follows_ean13 = true;  // as the two-dimensional set opens
  state.checked[305 - 301] = false;
  EXPECT_FALSE(PageCheckBoxEnabled(state, 306));  // Bookland EAN needs EAN13
  state.checked[305 - 301] = true;
  EXPECT_TRUE(PageCheckBoxEnabled(state, 306));
  for (int id : {313, 318, 322, 327}) EXPECT_TRUE(PageCheckBoxEnabled(state, id)) << id;
  EXPECT_TRUE(MoreButtonEnabled(state, 313));

  state.reader = kLongRangeLaser;
  for (int id : {313, 318, 322, 323, 324, 325, 326, 327}) {
    EXPECT_FALSE(PageCheckBoxEnabled(state, id)) << id;
  }
  EXPECT_TRUE(PageCheckBoxEnabled(state, 321));
  EXPECT_FALSE(MoreButtonEnabled(state, 313));
  EXPECT_FALSE(MoreButtonEnabled(state, 318));
  EXPECT_TRUE(MoreButtonEnabled(state, 319));
  EXPECT_FALSE(MoreButtonEnabled(state, 320));  // no dialog behind it
}

}  // namespace
}  // namespace veltrix
