#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "default_document.h"
#include "settings/reader/advanced_options.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "support/binding_driver.h"

namespace veltrix {
namespace {

// ---- advanced barcode settings -----------------------------------------------------------------

TEST(AdvancedSettings, OkWithoutChangesKeepsTheRecord) {
  for (int product : {1, 2, 3}) {
    auto doc = testing::DefaultDocument(product);
    const auto before = doc->record;
    testing::Session(*doc, AdvancedBindings()).Commit();
    ApplyAdvancedSettings(*doc);
    EXPECT_EQ(before, doc->record) << product;
  }
}

// Stored lengths (from a file) as OK leaves them: the maximum 1-50 or 50, the start 1..maximum.
TEST(AdvancedSettings, OkLimitsTheStartToTheMaximum) {
  struct Case {
    int start, maximum, stored_start, stored_maximum;
  };
  for (const Case& c :
       {Case{5, 3, 3, 3}, Case{0, 0, 1, 50}, Case{9, 60, 9, 50}, Case{4, 20, 4, 20}}) {
    auto doc = testing::DefaultDocument(1);
    doc->record[kStartPosition.offset] = static_cast<std::uint8_t>(c.start);
    doc->record[kMaximumLength.offset] = static_cast<std::uint8_t>(c.maximum);
    BindingSession dialog = testing::Session(*doc, AdvancedBindings());
    EXPECT_EQ(c.stored_maximum, dialog.Value("maximum_length"));
    dialog.Commit();
    ApplyAdvancedSettings(*doc);
    EXPECT_EQ(c.stored_start, doc->record[kStartPosition.offset]) << c.start << "/" << c.maximum;
    EXPECT_EQ(c.stored_maximum, doc->record[kMaximumLength.offset]) << c.start << "/" << c.maximum;
  }
}

// A zero between key codes is a code the user picked: it and the codes after it are kept.
TEST(AdvancedSettings, TextsAndKeyCodesAreCutAndZeroFilled) {
  auto doc = testing::DefaultDocument(1);
  std::fill_n(doc->record.begin() + kLeadingCode.offset, 10, 0xEE);
  BindingSession dialog = testing::Session(*doc, AdvancedBindings());
  EXPECT_FALSE(dialog.Enabled("leading_code"));
  dialog.Set("check_leading_code", 1);
  EXPECT_TRUE(dialog.Enabled("leading_code"));
  dialog.Type("leading_code", "ABCDEFGHIJKL");
  dialog.Set("add_prefix_code", 1);
  dialog.Pick("prefix_code", std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  dialog.Pick("suffix_code", std::vector<std::uint8_t>{0x41, 0, 0x42});
  dialog.Set("scan_control", 1);
  EXPECT_EQ(doc->record[kScanControl.offset], 0);  // nothing before OK
  dialog.Commit();
  ApplyAdvancedSettings(*doc);

  const std::vector<std::uint8_t> leading(doc->record.begin() + 3737, doc->record.begin() + 3747);
  EXPECT_EQ((std::vector<std::uint8_t>{'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 0}), leading);
  const std::vector<std::uint8_t> prefix(doc->record.begin() + 3714, doc->record.begin() + 3724);
  EXPECT_EQ((std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0}), prefix);
  const std::vector<std::uint8_t> suffix(doc->record.begin() + 3725, doc->record.begin() + 3735);
  EXPECT_EQ((std::vector<std::uint8_t>{0x41, 0, 0x42, 0, 0, 0, 0, 0, 0, 0}), suffix);
  EXPECT_EQ(1, doc->record[kScanControl.offset]);

  BindingSession reopened = testing::Session(*doc, AdvancedBindings());
  EXPECT_EQ("ABCDEFGHI", reopened.Text("leading_code"));
  EXPECT_EQ((std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 8, 9}), reopened.Bytes("prefix_code"));
  EXPECT_EQ((std::vector<std::uint8_t>{0x41, 0, 0x42}), reopened.Bytes("suffix_code"));
}

TEST(AdvancedSettings, Box214AndVibratorAreStoredOnlyForProduct3) {
  for (int product : {1, 2, 3}) {
    auto doc = testing::DefaultDocument(product);
    doc->record[kDataBox214.offset] = 7;
    doc->record[kVibratorTime.offset] = 255;  // from a file; outside 0-254 OK stores 0
    BindingSession dialog = testing::Session(*doc, AdvancedBindings());
    EXPECT_EQ(product == 3, dialog.Enabled("data_box214")) << product;
    if (dialog.Enabled("data_box214")) dialog.Type("data_box214", "20");
    std::vector<std::uint8_t> beeper(10, 0);
    beeper[9] = 0x11;
    dialog.Pick("alarm_beeper_sequence", beeper);
    dialog.Commit();
    ApplyAdvancedSettings(*doc);
    EXPECT_EQ(product == 3 ? 20 : 7, doc->record[kDataBox214.offset]) << product;
    EXPECT_EQ(product == 3 ? 0 : 255, doc->record[kVibratorTime.offset]) << product;
    EXPECT_EQ(0x11, doc->record[kAlarmBeeperSequence.offset + 9]) << product;
  }
}

}  // namespace
}  // namespace veltrix
