#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "settings/emulation/function_keys.h"
#include "settings/network/network_choices.h"
#include "settings/network/network_settings.h"
#include "settings/network/wep_key.h"
#include "shell/summary.h"
#include "summary_golden.h"

namespace veltrix {
namespace {

std::string WirelessSummary(const Document& doc) {
  return testing::SectionSummary(doc, "Wireless LAN", AppendNetworkSummary);
}

using testing::NoChange;
using testing::SummaryCase;

class WirelessSummaryGolden : public ::testing::TestWithParam<SummaryCase> {};

TEST_P(WirelessSummaryGolden, MatchesGoldenText) {
  testing::ExpectSummaryCaseGolden(GetParam(), WirelessSummary);
}

void WepKeysAndAddresses(Document& doc) {
  WriteNumber(doc.record, kDhcpServer, 0);
  WriteText(doc.record, kSubnetMask, "255.255.255.0");
  WriteText(doc.record, kGateway, "10.0.0.1");
  WriteText(doc.record, kDnsServer, "10.0.0.2");
  WriteText(doc.record, kTerminalIp, "10.0.0.77");
  WriteText(doc.record, kLocalName, "PICKER07");
  WriteText(doc.record, kSsid, "WAREHOUSE-2");
  WriteNumber(doc.record, kSecurity, 0);
  WriteNumber(doc.record, kEapEnabled, 1);
  WriteText(doc.record, kEapId, "picker@example");
  WriteText(doc.record, kEapPassword, "s3cret");
  WriteNumber(doc.record, kWepKeyEnabled, 1);
  ChangeWepKeyLength(doc, 1);
  WriteNumber(doc.record, kActiveWepKey, 2);
  StoreWepKey(doc, 0,
              std::vector<std::uint8_t>{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF, 0x00, 0x11,
                                        0x22, 0x33, 0x44});
  StoreWepKey(doc, 2,
              std::vector<std::uint8_t>{0xFF, 0xFE, 0xFD, 0xFC, 0xFB, 0xFA, 0xF9, 0xF8, 0xF7, 0xF6,
                                        0xF5, 0xF4, 0xF3, 0xF2, 0xF1});
  StoreWepKey(doc, 3, std::vector<std::uint8_t>{0x0A});
}

void HostsAndLoginKeys(Document& doc) {
  WriteText(doc.record, kHostIpOrName, "as400.plant.local", 1);
  WriteText(doc.record, kHostIpOrName, "backup-host", 4);
  WriteNumber(doc.record, kActiveHostIpOrName, 2);
  StoreActiveHostText(doc, "10.20.30.40");
  WriteNumber(doc.record, kTelnetPort, 70000 % 65536);
  WriteText(doc.record, kLoginName, "OPERATOR");
  WriteText(doc.record, kLoginPassword, "pw");
  WriteText(doc.record, kLogoutCommand, "SIGNOFF");
  ApplyFunctionKeyCombo(doc, kLoginNameKey, 0, 3, kRoleNameKey);
  ApplyFunctionKeyCombo(doc, kLoginPasswordKey, 0, 10, kRolePasswordKey);
  ApplyFunctionKeyCombo(doc, kLogoutKey, 0, 9, kRoleExitKey);
  WriteNumber(doc.record, kAutoSignOn, 1);
  WriteNumber(doc.record, kKeepAliveMinutes, 30);  // has no line
}

INSTANTIATE_TEST_SUITE_P(
    Cases, WirelessSummaryGolden,
    ::testing::Values(SummaryCase{"DefaultsDravinS", 1, NoChange, "wireless_defaults.txt"},
                      SummaryCase{"DefaultsDravinR", 2, NoChange, "wireless_defaults.txt"},
                      SummaryCase{"DefaultsProduct3", 3, NoChange, "wireless_defaults.txt"},
                      SummaryCase{"WepKeys", 1, WepKeysAndAddresses, "wireless_wep_keys.txt"},
                      SummaryCase{"HostsAndLoginKeys", 2, HostsAndLoginKeys,
                                  "wireless_hosts_and_keys.txt"}),
    [](const auto& info) { return info.param.name; });

TEST(WirelessSummary, ValuesOnlyAFileCanHoldDoNotBreakTheLines) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  WriteNumber(doc->record, kLoginNameKey, 42);
  WriteNumber(doc->record, kWepKeyLength, 7);
  auto local_name = FieldBytes(std::span<std::uint8_t>(doc->record), kLocalName);
  std::fill(local_name.begin(), local_name.end(), 'Z');  // no NUL within the width
  const std::string text = WirelessSummary(*doc);
  EXPECT_NE(std::string::npos, text.find("Login Name Key : 42\n"));
  EXPECT_NE(std::string::npos, text.find("WEP Key Length : 64 bits (5 bytes)\n"));
  EXPECT_NE(std::string::npos, text.find("Local Name : " + std::string(20, 'Z') + "\n"));
}

}  // namespace
}  // namespace veltrix
