#include "settings/reader/symbology_options.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "default_document.h"
#include "settings/reader/length_pair.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"

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
                      PackCase{"LimitedTo127", {false, 300, 127}, 127, 127}),
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
    if (dialog.length != nullptr) EXPECT_EQ(ReaderBlock::kLinear, BlockOf(*dialog.length));
    EXPECT_EQ(&dialog, FindLinearOptionDialog(dialog.template_name));
  }
  EXPECT_EQ(nullptr, FindLinearOptionDialog("NoSuchDlg"));
}

TEST(LinearOptionDialogs, OkWithoutChangesKeepsTheDefaultBlock) {
  for (const LinearOptionDialog& dialog : LinearOptionDialogs()) {
    auto doc = testing::DefaultDocument(1);
    const auto before = doc->reader_block2;
    ApplyLinearOptions(*doc, dialog, OpenLinearOptions(*doc, dialog));
    EXPECT_EQ(before, doc->reader_block2) << dialog.template_name;
  }
}

TEST(LinearOptionDialogs, OpeningShowsTheWorkingBlock) {
  auto doc = testing::DefaultDocument(1);
  const LinearOptionState industrial =
      OpenLinearOptions(*doc, *FindLinearOptionDialog("Industrial25Dlg"));
  EXPECT_EQ((std::vector<bool>{false, true}), industrial.checked);
  EXPECT_EQ((std::vector<int>{0}), industrial.chosen);
  EXPECT_EQ((LengthPair{true, 127, 1}), industrial.length);

  EXPECT_EQ((std::vector<int>{0}),  // "None" while the transmit bit is clear
            OpenLinearOptions(*doc, *FindLinearOptionDialog("CodabarDlg")).chosen);
  EXPECT_EQ((std::vector<int>{1}),  // bit 0 shows "AIM Telepen  (Full ASCII)", radio 602
            OpenLinearOptions(*doc, *FindLinearOptionDialog("TelepenDlg")).chosen);
  EXPECT_EQ((std::vector<int>{0, 1}),
            OpenLinearOptions(*doc, *FindLinearOptionDialog("MSIDlg")).chosen);
}

struct ApplyCase {
  const char* name;
  const char* dialog;
  std::function<void(LinearOptionState&)> change;
  std::uint32_t offset;  // record offset of the first byte checked
  std::vector<std::uint8_t> want;
};

class LinearOptionApply : public ::testing::TestWithParam<ApplyCase> {};

TEST_P(LinearOptionApply, PacksTheControlsIntoTheWorkingBlock) {
  auto doc = testing::DefaultDocument(1);
  const LinearOptionDialog& dialog = *FindLinearOptionDialog(GetParam().dialog);
  LinearOptionState state = OpenLinearOptions(*doc, dialog);
  GetParam().change(state);
  ApplyLinearOptions(*doc, dialog, state);
  for (std::size_t i = 0; i < GetParam().want.size(); ++i) {
    const std::size_t at = GetParam().offset + i;
    EXPECT_EQ(GetParam().want[i], doc->reader_block2[at - 3690]) << "byte " << at;
  }
}

using State = LinearOptionState;

// clang-format off
const ApplyCase kApplyCases[] = {
    {"Code39AllOn", "Code39Dlg", [](State& s) { s.checked.assign(4, true); }, 3695, {0xFD}},
    {"Code39AllOff", "Code39Dlg", [](State& s) { s.checked.assign(4, false); }, 3695, {0x0D}},
    {"ItalianChecksumOff", "ItalyPharmaDlg", [](State& s) { s.checked[0] = false; }, 3695, {0x25}},
    {"FrenchChecksumOff", "FrenchPharmaDlg", [](State& s) { s.checked[0] = false; }, 3695, {0x29}},
    {"Industrial25FixedAsTyped", "Industrial25Dlg",
     [](State& s) { s.chosen[0] = 2; s.checked = {true, false}; s.length = {false, 10, 20}; }, 3696, {0x96}},
    {"Industrial25Lengths", "Industrial25Dlg",
     [](State& s) { s.length = {false, 10, 20}; }, 3702, {0x0A, 0x14}},
    {"Interleave25MaxMinSwapped", "Interleave25Dlg",
     [](State& s) { s.chosen[0] = 2; s.checked = {true, false}; s.length = {true, 20, 40}; }, 3695,
     {0x2E, 0x58, 0x80, 0x00, 0x19, 0x3D, 0x00, 0xFF, 0x01, 0xA8, 0x14}},
    {"Matrix25ToIndustrial", "Matrix25Dlg",
     [](State& s) { s.chosen[0] = 0; s.checked = {true, true}; }, 3696, {0x74, 0x00}},
    {"CodabarNoneClearsBits5To3", "CodabarDlg", [](State& s) { s.chosen[0] = 0; }, 3697, {0x80}},
    {"CodabarLastRadio", "CodabarDlg", [](State& s) { s.chosen[0] = 4; }, 3697, {0xB8}},
    {"CodabarFirstCharacterSet", "CodabarDlg", [](State& s) { s.chosen[0] = 1; }, 3697, {0x88}},
    {"MsiRadiosAndLengths", "MSIDlg",
     [](State& s) { s.chosen = {2, 2}; s.length = {true, 0, 0}; }, 3699, {0xA9}},
    {"MsiLengthBothZero", "MSIDlg", [](State& s) { s.length = {true, 0, 0}; }, 3708, {0x81, 0x01}},
    {"PlesseyBothOn", "PlesseyDlg", [](State& s) { s.checked = {true, true}; }, 3699, {0x1D}},
    {"UpceAllOn", "UPCEDlg", [](State& s) { s.checked.assign(3, true); }, 3699, {0x1B, 0x3F}},
    {"Ean8AllOff", "EAN8Dlg", [](State& s) { s.checked.assign(2, false); }, 3700, {0x35, 0x00}},
    {"Ean8ConvertOn", "EAN8Dlg", [](State& s) { s.checked[0] = true; }, 3700, {0x3D, 0x80}},
    {"Ean13AllOn", "EAN13Dlg", [](State& s) { s.checked.assign(6, true); }, 3699, {0x19, 0xFD}},
    {"Ean13AllOff", "EAN13Dlg", [](State& s) { s.checked.assign(6, false); }, 3699, {0x18, 0x28}},
    {"TelepenOriginalStoresOne", "TelepenDlg", [](State& s) { s.chosen[0] = 0; }, 3692, {0x02}},
    {"Rss14AllOff", "RSS14Dlg", [](State& s) { s.checked.assign(3, false); }, 3693, {0x07}},
    {"Rss14LimitedAllOff", "RSS14LimitedDlg",
     [](State& s) { s.checked.assign(3, false); }, 3693, {0x38}},
    {"Rss14ExpandedOff", "RSS14ExpandedDlg", [](State& s) { s.checked[0] = false; }, 3694, {0x00}},
    {"Ean128CodeIdOn", "EAN128Dlg", [](State& s) { s.checked[0] = true; }, 3712, {0x23}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Cases, LinearOptionApply, ::testing::ValuesIn(kApplyCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(LinearOptionDialogs, OutOfRangeStoredChoiceSelectsTheNearestRadio) {
  auto doc = testing::DefaultDocument(1);
  WriteWorking(*doc, kIndustrial25StartStop, 3);
  EXPECT_EQ((std::vector<int>{2}),
            OpenLinearOptions(*doc, *FindLinearOptionDialog("Industrial25Dlg")).chosen);
}

}  // namespace
}  // namespace veltrix
