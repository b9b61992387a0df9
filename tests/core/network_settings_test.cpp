#include "settings/network/network_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/emulation/number_edit.h"
#include "settings/network/network_choices.h"
#include "settings/network/wep_key.h"

namespace veltrix {
namespace {

std::vector<std::uint8_t> Image(const Document& doc, std::size_t first, std::size_t last) {
  return {doc.record.begin() + first, doc.record.begin() + last + 1};
}

TEST(NetworkDefaults, ResetReleasesLoginKeysAndRestoresEverything) {
  auto doc = testing::DefaultDocument(1);
  ApplyFunctionKeyCombo(*doc, kLoginNameKey, 0, 3, kRoleNameKey);
  ApplyFunctionKeyCombo(*doc, kLoginPasswordKey, 0, 10, kRolePasswordKey);
  ApplyFunctionKeyCombo(*doc, kLogoutKey, 0, 6, kRoleExitKey);
  WriteNumber(doc->record, kAutoSignOn, 1);
  WriteNumber(doc->record, kKeepAliveMinutes, 9);
  doc->record[kSecurity.offset] = 0xFE;
  WriteText(doc->record, kHostIpOrName, "host3", 2);
  StoreWepKey(*doc, 1, std::vector<std::uint8_t>{1, 2, 3, 4, 5});

  SetNetworkDefaults(*doc);
  EXPECT_EQ(Image(*testing::DefaultDocument(1), 3783, 4448), Image(*doc, 3783, 4448));
  EXPECT_EQ(0, doc->record[59659]);
  EXPECT_EQ("PF3", MappingLabel(*doc, 3));
  EXPECT_EQ("PF10", MappingLabel(*doc, 0));
  EXPECT_EQ("PF6", MappingLabel(*doc, 6));
}

TEST(WepKeys, TextIsUpperCaseHexPairsEachFollowedByABlank) {
  EXPECT_EQ("00 00 00 00 00 ", WepKeyText(std::vector<std::uint8_t>(5, 0)));
  EXPECT_EQ("0A FF 3C ", WepKeyText(std::vector<std::uint8_t>{0x0A, 0xFF, 0x3C}));
  EXPECT_EQ("", WepKeyText({}));
}

TEST(WepKeys, LengthChangesShowAndClearTheRightBytes) {
  auto doc = testing::DefaultDocument(2);
  ChangeWepKeyLength(*doc, 1);
  std::vector<std::uint8_t> key(16);
  for (int i = 0; i < 16; ++i) key[i] = static_cast<std::uint8_t>(0x10 + i);
  StoreWepKey(*doc, 2, key);
  EXPECT_EQ("10 11 12 13 14 15 16 17 18 19 1A 1B 1C ", StoredWepKeyText(*doc, 2));
  auto stored = FieldBytes(std::span<const std::uint8_t>(doc->record), kWepKey, 2);
  EXPECT_EQ(0, stored[13]);  // only 13 bytes are the key
  EXPECT_EQ(0, stored[15]);

  ChangeWepKeyLength(*doc, 0);
  EXPECT_EQ("10 11 12 13 14 ", StoredWepKeyText(*doc, 2));
  for (int i = 5; i < 16; ++i) EXPECT_EQ(0, stored[i]) << i;

  // Back to 128 bits: the cleared bytes read as zeros.
  ChangeWepKeyLength(*doc, 1);
  EXPECT_EQ("10 11 12 13 14 00 00 00 00 00 00 00 00 ", StoredWepKeyText(*doc, 2));
  EXPECT_EQ("", StoredWepKeyText(*doc, 4));
}

TEST(WepKeys, LongerKeysShowZerosEvenWhenAFileHeldBytesBehindTheShortKey) {
  auto doc = testing::DefaultDocument(1);
  // 64-bit keys with bytes behind them, as a file can hold them.
  for (int k = 0; k < kWepKeyCount; ++k) {
    auto stored = FieldBytes(std::span<std::uint8_t>(doc->record), kWepKey, k);
    std::fill(stored.begin(), stored.end(), static_cast<std::uint8_t>(0xA0 + k));
  }
  ChangeWepKeyLength(*doc, 1);
  EXPECT_EQ("A1 A1 A1 A1 A1 00 00 00 00 00 00 00 00 ", StoredWepKeyText(*doc, 1));
  auto stored = FieldBytes(std::span<const std::uint8_t>(doc->record), kWepKey, 3);
  for (int i = 5; i < 16; ++i) EXPECT_EQ(0, stored[i]) << i;
}

TEST(HostList, ActiveIndexBeyondTheListFromAFileWritesNothing) {
  auto doc = testing::DefaultDocument(1);
  WriteNumber(doc->record, kActiveHostIpOrName, 9);
  const SettingsRecord before = doc->record;
  StoreActiveHostText(*doc, "x");
  PadNetworkTexts(*doc);
  EXPECT_EQ(before, doc->record);
}

TEST(NetworkControls, EnablingFollowsDhcpEapAndWep) {
  auto doc = testing::DefaultDocument(1);
  EXPECT_EQ((NetworkControlStates{false, false, false}), NetworkControlStatesOf(*doc));
  WriteNumber(doc->record, kDhcpServer, 0);
  WriteNumber(doc->record, kWepKeyEnabled, 1);
  EXPECT_EQ((NetworkControlStates{true, false, true}), NetworkControlStatesOf(*doc));
  WriteNumber(doc->record, kEapEnabled, 1);
  WriteNumber(doc->record, kDhcpServer, 1);
  EXPECT_EQ((NetworkControlStates{false, true, true}), NetworkControlStatesOf(*doc));
  // Ticking DHCP only disables the edits: the addresses stay stored.
  EXPECT_EQ("192.168.1.241", ReadText(doc->record, kTerminalIp));
}

}  // namespace
}  // namespace veltrix
