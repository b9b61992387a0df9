#include "settings/system/system_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

struct EditCase {
  const char* name;
  const char* text;
  std::uint32_t value;
  const char* rewrite;  // nullptr: the edit keeps what was typed
};

void PrintTo(const EditCase& c, std::ostream* os) { *os << c.name; }

class AutoPowerOffEditTest : public ::testing::TestWithParam<EditCase> {};

TEST_P(AutoPowerOffEditTest, StoresAndRewrites) {
  const EditCase& c = GetParam();
  const NumericEdit edit = CorrectFieldEdit(c.text, kAutoPowerOff);
  EXPECT_EQ(c.value, edit.value);
  if (c.rewrite == nullptr) {
    EXPECT_FALSE(edit.rewrite.has_value()) << *edit.rewrite;
  } else {
    EXPECT_EQ(c.rewrite, edit.rewrite.value_or("<none>"));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AutoPowerOffEditTest,
    ::testing::Values(EditCase{"Empty", "", 1, "1"}, EditCase{"Zero", "0", 1, "1"},
                      EditCase{"Zeros", "000", 1, "1"}, EditCase{"One", "1", 1, nullptr},
                      EditCase{"Plain", "300", 300, nullptr},
                      EditCase{"LeadingZero", "0300", 300, "300"},
                      EditCase{"UpperBound", "65025", 65025, nullptr},
                      EditCase{"JustAbove", "65026", 65025, "65025"},
                      EditCase{"Above16Bits", "70000", 65025, "65025"},
                      EditCase{"Huge", "99999999999999999999999", 65025, "65025"},
                      EditCase{"Letters", "12a", 1, "1"}, EditCase{"Blank", " 5", 1, "1"},
                      EditCase{"Sign", "-5", 1, "1"}),
    [](const auto& info) { return std::string(info.param.name); });

class IdleEditTest : public ::testing::TestWithParam<EditCase> {};

TEST_P(IdleEditTest, StoresAndRewrites) {
  const EditCase& c = GetParam();
  const NumericEdit edit = CorrectFieldEdit(c.text, kTurnOffIfIdleFor);
  EXPECT_EQ(c.value, edit.value);
  EXPECT_EQ(c.rewrite != nullptr, edit.rewrite.has_value());
  if (c.rewrite != nullptr && edit.rewrite) EXPECT_EQ(c.rewrite, *edit.rewrite);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, IdleEditTest,
    ::testing::Values(EditCase{"Empty", "", 1, "1"}, EditCase{"Zero", "0", 1, "1"},
                      EditCase{"Five", "5", 5, nullptr}, EditCase{"Nine", "9", 9, nullptr},
                      EditCase{"Twelve", "12", 9, "9"}, EditCase{"LeadingZero", "07", 7, "7"},
                      EditCase{"Letter", "x", 1, "1"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Password, KeepsTheFirstNineCharactersAndANul) {
  SettingsRecord record{};
  StorePassword(record, "123456789012");
  EXPECT_EQ("123456789", ReadText(record, kPassword));
  EXPECT_EQ(0, record[kPassword.offset + 9]);
}

TEST(Password, NoCheckOfTheCharacters) {
  SettingsRecord record{};
  StorePassword(record, "ab c!");
  EXPECT_EQ("ab c!", ReadText(record, kPassword));
}

TEST(Password, ShorterEntryKeepsOldBytesUntilFinished) {
  SettingsRecord record{};
  StorePassword(record, "987654321");
  StorePassword(record, "12");
  EXPECT_EQ("12", ReadText(record, kPassword));
  EXPECT_EQ('6', record[kPassword.offset + 3]);
  FinishPassword(record);
  EXPECT_EQ("12", ReadText(record, kPassword));
  EXPECT_TRUE(std::all_of(record.begin() + kPassword.offset + 2,
                          record.begin() + kPassword.offset + 10, [](auto b) { return b == 0; }));
  EXPECT_EQ(0, record[kPassword.offset + 10]) << "the byte behind the password is not touched";
}

TEST(Password, FinishClearsTheTenthByteOfAFullRecord) {
  SettingsRecord record{};
  std::fill_n(record.begin() + kPassword.offset, 10, 'x');
  FinishPassword(record);
  EXPECT_EQ("xxxxxxxxx", ReadText(record, kPassword));
  EXPECT_EQ(0, record[kPassword.offset + 9]);
  EXPECT_EQ(kDownloadVia.offset, kPassword.offset + 10);
}

}  // namespace
}  // namespace veltrix
