#include "settings/system/system_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

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
