#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "default_document.h"
#include "settings/reader/length_option.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/two_d_options.h"
#include "settings/reader/working_block.h"
#include "support/binding_driver.h"

namespace veltrix {
namespace {

std::uint8_t BlockByte(const Document& doc, std::uint32_t record_offset) {
  return doc.reader_block1[record_offset - 58659];
}

// ---- the length option family ------------------------------------------------------------------

struct StoreCase {
  const char* name;
  int option;
  LengthBoxes boxes;
  StoredLengthOption want;
};

class LengthOptionStore : public ::testing::TestWithParam<StoreCase> {};

TEST_P(LengthOptionStore, AppliesTheOkRules) {
  EXPECT_EQ(GetParam().want, StoreLengthOption(GetParam().option, GetParam().boxes));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LengthOptionStore,
    ::testing::Values(
        StoreCase{"TwoLengthsPutsTheLargerFirst", kTwoLengths, {6, 10}, {kTwoLengths, 10, 6}},
        StoreCase{"RangeKeepsMinimumThenMaximum", kLengthRange, {6, 10}, {kLengthRange, 6, 10}},
        StoreCase{"OneLengthDropsTheSecondBox", kOneLength, {12, 99}, {kOneLength, 12, 0}},
        StoreCase{"AnyLengthDropsBoth", kAnyLength, {5, 5}, {kAnyLength, 0, 0}},
        StoreCase{"OneLengthOfZeroIsAny", kOneLength, {0, 40}, {kAnyLength, 0, 0}},
        StoreCase{"TwoZerosAreAny", kTwoLengths, {0, 0}, {kAnyLength, 0, 0}},
        StoreCase{"RangeWithZeroMinimum", kLengthRange, {0, 10}, {kLengthRange, 0, 10}},
        StoreCase{"TwoLengthsWithOneZero", kTwoLengths, {0, 8}, {kTwoLengths, 8, 0}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LengthOption, LabelsEnablingAndEmptiedBoxes) {
  EXPECT_EQ("Length 1 :", LengthOptionLabels(kTwoLengths).first);
  EXPECT_EQ("Length 2 :", LengthOptionLabels(kAnyLength).second);
  EXPECT_EQ("Min Len :", LengthOptionLabels(kLengthRange).first);
  EXPECT_EQ("Max Len :", LengthOptionLabels(kLengthRange).second);

  const std::vector<std::pair<bool, bool>> enabling{
      {false, false}, {true, false}, {true, true}, {true, true}};
  for (int option = kAnyLength; option <= kLengthRange; ++option) {
    EXPECT_EQ(enabling[option].first, LengthOptionEnabling(option).first) << option;
    EXPECT_EQ(enabling[option].second, LengthOptionEnabling(option).second) << option;
  }
  EXPECT_EQ((LengthBoxes{5, 9}), BoxesAfterChoosingOption(kAnyLength, {5, 9}));
  EXPECT_EQ((LengthBoxes{0, 9}), BoxesAfterChoosingOption(kOneLength, {5, 9}));
  EXPECT_EQ((LengthBoxes{0, 0}), BoxesAfterChoosingOption(kLengthRange, {5, 9}));
}

// ---- the dialogs -------------------------------------------------------------------------------

TEST(TwoDOptionDialogs, BindOnlyTwoDimensionalFieldsWithDistinctControls) {
  EXPECT_EQ(13u, TwoDOptionDialogs().size());
  for (const TwoDOptionDialog& dialog : TwoDOptionDialogs()) {
    std::set<std::string_view> names{"Length Option :"};  // controls are named after captions
    for (const CheckBoxControl& check : dialog.checks) {
      EXPECT_EQ(ReaderBlock::kTwoD, BlockOf(*check.field)) << dialog.template_name;
      EXPECT_TRUE(names.insert(check.text).second) << dialog.template_name << " " << check.text;
    }
    for (const ChoiceControl& list : dialog.lists) {
      EXPECT_EQ(ReaderBlock::kTwoD, BlockOf(*list.field)) << dialog.template_name;
      EXPECT_TRUE(names.insert(list.caption).second) << dialog.template_name << " " << list.caption;
    }
    if (dialog.length_option != nullptr) {
      EXPECT_EQ(ReaderBlock::kTwoD, BlockOf(*dialog.length2));
    }
    EXPECT_EQ(&dialog, FindTwoDOptionDialog(dialog.template_name));
  }
}

TEST(TwoDOptionDialogs, OkWithoutChangesKeepsTheDefaultBlock) {
  for (const TwoDOptionDialog& dialog : TwoDOptionDialogs()) {
    auto doc = testing::DefaultDocument(1);
    const auto before = doc->reader_block1;
    OpenTwoDOptions(*doc, dialog);
    const OwnedBindings bindings = TwoDOptionBindings(dialog);
    testing::Session(*doc, bindings.lines).Commit();
    ApplyTwoDOptions(*doc, dialog);
    EXPECT_EQ(before, doc->reader_block1) << dialog.template_name;
  }
}

TEST(TwoDOptionDialogs, Code39OpeningClearsItsSpareBitsEvenWhenCancelled) {
  auto doc = testing::DefaultDocument(1);
  doc->reader_block1[58664 - 58659] |= 0x30;
  OpenTwoDOptions(*doc, *FindTwoDOptionDialog("CODE39_2D_DLG"));
  EXPECT_EQ(0x83, BlockByte(*doc, 58664));
}

}  // namespace
}  // namespace veltrix
