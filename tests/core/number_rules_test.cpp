// The rules that correct number edits as they are typed, from tests/core/data/number_rules.txt.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "settings/emulation/number_edit.h"
#include "settings/reader/number_box.h"
#include "settings/system/system_rules.h"
#include "settings/system/system_settings.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

using Rule = std::function<NumericEdit(std::string_view)>;

Rule Box(const NumberBoxRule& rule) {
  return [&rule](std::string_view text) { return CorrectNumberText(text, rule); };
}

const std::map<std::string, Rule>& Rules() {
  static const std::map<std::string, Rule> rules = {
      {"scroll_step", ScrollStepEdit},
      {"view_origin_80", [](std::string_view t) { return ViewOriginEdit(t, 80); }},
      {"view_origin_25", [](std::string_view t) { return ViewOriginEdit(t, 25); }},
      {"message_time_out", MessageTimeOutEdit},
      {"telnet_port", TelnetPortEdit},
      {"keep_alive", KeepAliveEdit},
      {"time_out_box", Box(kTimeOutBox)},
      {"aim_duration_box", Box(kAimDurationBox)},
      {"linear_length_box", Box(kLinearLengthBox)},
      {"two_d_length_box", Box(kTwoDLengthBox)},
      {"rfid_length_box", Box(kRfidLengthBox)},
      {"rfid_delay_box", Box(kRfidDelayBox)},
      {"vibrator_box", Box(kVibratorBox)},
      {"auto_power_off", [](std::string_view t) { return CorrectFieldEdit(t, kAutoPowerOff); }},
      {"idle", [](std::string_view t) { return CorrectFieldEdit(t, kTurnOffIfIdleFor); }},
  };
  return rules;
}

TEST(NumberRules, CorrectWhatIsTyped) {
  const auto cases = testing::ReadDataCases("number_rules.txt");
  ASSERT_FALSE(cases.empty());
  for (const testing::DataCase& c : cases) {
    ASSERT_TRUE(Rules().contains(c.name)) << c.name;
    for (const testing::CaseLine& line : c.lines) {
      const std::size_t close = line.text.find('"', 1);
      std::istringstream rest(line.text.substr(close + 1));
      std::uint32_t value = 0;
      std::string shown;
      rest >> value >> shown;
      const std::optional<std::string> rewrite =
          shown == "-" ? std::nullopt : std::optional<std::string>(shown);
      EXPECT_EQ((NumericEdit{value, rewrite}), Rules().at(c.name)(line.text.substr(1, close - 1)))
          << "line " << line.number << ": " << line.text;
    }
  }
}

}  // namespace
}  // namespace veltrix
