#include "settings/network/network_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
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

TEST(HostList, ActiveIndexBeyondTheListFromAFileWritesNothing) {
  auto doc = testing::DefaultDocument(1);
  WriteNumber(doc->record, kActiveHostIpOrName, 9);
  const SettingsRecord before = doc->record;
  StoreActiveHostText(*doc, "x");
  PadNetworkTexts(*doc);
  EXPECT_EQ(before, doc->record);
}

}  // namespace
}  // namespace veltrix
