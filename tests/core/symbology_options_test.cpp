#include "settings/reader/symbology_options.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "default_document.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"
#include "support/binding_driver.h"

namespace veltrix {
namespace {

// ---- length groups -----------------------------------------------------------------------------

struct PackCase {
  const char* name;
  LengthPair entered;
  std::uint8_t first;
  std::uint8_t second;
};

class LengthPairPacking : public ::testing::TestWithParam<PackCase> {};

TEST_P(LengthPairPacking, StoresWhatOkStores) {
  const auto packed = PackLengthPair(GetParam().entered);
  EXPECT_EQ(GetParam().first, packed[0]);
  EXPECT_EQ(GetParam().second, packed[1]);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LengthPairPacking,
    ::testing::Values(PackCase{"MaxMinSwapsSoTheLargerIsFirst", {true, 20, 40}, 0x80 | 40, 20},
                      PackCase{"MaxMinInOrder", {true, 40, 20}, 0x80 | 40, 20},
                      PackCase{"MaxMinZeroCountsAsOne", {true, 0, 5}, 0x85, 1},
                      PackCase{"MaxMinBothZero", {true, 0, 0}, 0x81, 1},
                      PackCase{"FixedKeepsOrder", {false, 10, 20}, 10, 20},
                      PackCase{"FixedKeepsZero", {false, 0, 7}, 0, 7},
                      PackCase{"FirstLimitedTo127", {false, 300, 127}, 127, 127},
                      PackCase{"MaxMinAboveTheMaximumSwaps", {true, 120, 200}, 0x80 | 127, 120},
                      PackCase{"StoredFixedLength2Above127Kept", {false, 10, 200}, 10, 200}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LengthPair, UnpacksAndLabels) {
  const std::uint8_t interleave_default[] = {0xFE, 0x01};
  EXPECT_EQ((LengthPair{true, 126, 1}), UnpackLengthPair(interleave_default));
  const std::uint8_t fixed[] = {0x0A, 0x14};
  EXPECT_EQ((LengthPair{false, 10, 20}), UnpackLengthPair(fixed));
  EXPECT_EQ("Max Length :", LengthPairLabels(true).first);
  EXPECT_EQ("Min Length :", LengthPairLabels(true).second);
  EXPECT_EQ("Fixed Length 1:", LengthPairLabels(false).first);
  EXPECT_EQ("Fixed Length 2:", LengthPairLabels(false).second);
}

// ---- option dialogs ----------------------------------------------------------------------------

TEST(LinearOptionDialogs, BindOnlyLinearFieldsWithDistinctControls) {
  EXPECT_EQ(17u, LinearOptionDialogs().size());
  for (const LinearOptionDialog& dialog : LinearOptionDialogs()) {
    std::set<std::string_view> names;  // the controls are named after their captions
    for (const CheckBoxControl& check : dialog.checks) {
      EXPECT_EQ(ReaderBlock::kLinear, BlockOf(*check.field)) << dialog.template_name;
      EXPECT_EQ(1, check.field->bit_count) << check.field->name;
      EXPECT_TRUE(names.insert(check.text).second) << dialog.template_name << " " << check.text;
    }
    for (const ChoiceControl& group : dialog.radios) {
      EXPECT_EQ(ReaderBlock::kLinear, BlockOf(*group.field)) << dialog.template_name;
      EXPECT_TRUE(names.insert(group.caption).second) << dialog.template_name;
    }
    if (dialog.length != nullptr) {
      EXPECT_EQ(ReaderBlock::kLinear, BlockOf(*dialog.length));
    }
    EXPECT_EQ(&dialog, FindLinearOptionDialog(dialog.template_name));
  }
  EXPECT_EQ(nullptr, FindLinearOptionDialog("NoSuchDlg"));
}

TEST(LinearOptionDialogs, OkWithoutChangesKeepsTheDefaultBlock) {
  for (const LinearOptionDialog& dialog : LinearOptionDialogs()) {
    auto doc = testing::DefaultDocument(1);
    const auto before = doc->reader_block2;
    const OwnedBindings bindings = LinearOptionBindings(dialog);
    testing::Session(*doc, bindings.lines).Commit();
    ApplyLinearOptions(*doc, dialog);
    EXPECT_EQ(before, doc->reader_block2) << dialog.template_name;
  }
}

}  // namespace
}  // namespace veltrix
