#include "settings/emulation/function_keys.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/key_code_defaults.h"
#include "settings/emulation/key_mapping.h"
#include "settings/emulation/key_names.h"
#include "settings/field_registry.h"
#include "settings/network/network_settings.h"

namespace veltrix {
namespace {

std::vector<std::uint8_t> Hex(const std::string& text) {
  std::vector<std::uint8_t> bytes;
  std::istringstream in(text);
  std::string pair;
  while (in >> pair) bytes.push_back(static_cast<std::uint8_t>(std::stoul(pair, nullptr, 16)));
  return bytes;
}

// The five bytes of a code, zero-filled.
std::vector<std::uint8_t> Code5(const std::string& text) {
  std::vector<std::uint8_t> bytes = Hex(text);
  bytes.resize(kKeyCodeWidth, 0);
  return bytes;
}

std::vector<std::uint8_t> TableEntry(const KeyCodeTable& table, int index) {
  return {table.begin() + index * kKeyCodeWidth, table.begin() + (index + 1) * kKeyCodeWidth};
}

std::vector<std::uint8_t> StoredKeyCode(const Document& doc, int key) {
  auto bytes = FieldBytes(std::span<const std::uint8_t>(doc.record), kKeyCode, key);
  return {bytes.begin(), bytes.end()};
}

std::vector<int> Entry(const Document& doc, int key) {
  const std::uint32_t at = kKeyMappingOffset + kKeyMappingStride * key;
  return {doc.record[at], doc.record[at + 1], doc.record[at + 2]};
}

// The bytes are in the defaults golden files; here what the page shows of them.
TEST(FunctionKeyDefaults, LabelsNameThePfKeys) {
  auto doc = testing::DefaultDocument(1);
  EXPECT_EQ("Undefined", MappingLabel(*doc, 0));
  EXPECT_EQ("PF9", MappingLabel(*doc, 9));
  EXPECT_EQ("Undefined", MappingLabel(*doc, 40));
}

TEST(FunctionKeyClaims, ClaimAndReleaseNameTheRightEntry) {
  struct Case {
    int k;
    int key;
    std::string released_label;
  };
  for (const Case& c : {Case{1, 1, "PF1"}, Case{9, 9, "PF9"}, Case{10, 0, "PF10"}}) {
    auto doc = testing::DefaultDocument(1);
    ClaimFunctionKey(*doc, c.k, kRoleNavigatorKey);
    EXPECT_EQ((std::vector<int>{204, 0, 0}), Entry(*doc, c.key)) << c.k;
    EXPECT_TRUE(FunctionKeyHasRole(*doc, c.k));
    EXPECT_EQ("Navigator Key", MappingLabel(*doc, c.key));
    EXPECT_FALSE(MappingRowEnabled(*doc, c.key));
    // Claimed keys send the code of their own PF key (table entry k).
    EXPECT_EQ(TableEntry(DefaultKeyCodeTable(), c.k), StoredKeyCode(*doc, c.key));

    ReleaseFunctionKey(*doc, c.k);
    EXPECT_EQ((std::vector<int>{0, c.k, 0}), Entry(*doc, c.key));
    EXPECT_FALSE(FunctionKeyHasRole(*doc, c.k));
    EXPECT_EQ(c.released_label, MappingLabel(*doc, c.key));
    EXPECT_TRUE(MappingRowEnabled(*doc, c.key));
    EXPECT_EQ(TableEntry(DefaultKeyCodeTable(), c.k), StoredKeyCode(*doc, c.key));
  }
}

TEST(FunctionKeyClaims, IndicesThatNameNoKeyChangeNothing) {
  auto doc = testing::DefaultDocument(2);
  const SettingsRecord before = doc->record;
  for (int k : {-1, 0, 11, 255}) {
    ClaimFunctionKey(*doc, k, kRoleNameKey);
    ReleaseFunctionKey(*doc, k);
    EXPECT_FALSE(FunctionKeyHasRole(*doc, k));
  }
  EXPECT_EQ(before, doc->record);
}

// One choice in a "Key :" combo and what should follow.
struct ComboStep {
  const FieldDef* field;
  int role;
  int choice;
  KeyComboResult result;
  int field_after;
};

TEST(FunctionKeyCombo, RefusesKeysOfOtherRolesAndMovesItsOwnClaim) {
  auto doc = testing::DefaultDocument(1);
  const std::vector<ComboStep> steps = {
      {&kLoginNameKey, kRoleNameKey, 3, KeyComboResult::kStored, 3},
      // FN+3 already holds the name key: refused, password key stays as it was.
      {&kLoginPasswordKey, kRolePasswordKey, 3, KeyComboResult::kRefused, 0},
      {&kLoginPasswordKey, kRolePasswordKey, 4, KeyComboResult::kStored, 4},
      // Moving the password key releases FN+4.
      {&kLoginPasswordKey, kRolePasswordKey, 5, KeyComboResult::kStored, 5},
      // Choosing its own key again is allowed.
      {&kLoginPasswordKey, kRolePasswordKey, 5, KeyComboResult::kStored, 5},
      {&kNavigatorKey, kRoleNavigatorKey, 5, KeyComboResult::kRefused, 0},
      {&kNavigatorKey, kRoleNavigatorKey, 10, KeyComboResult::kStored, 10},
      {&kNavigatorKey, kRoleNavigatorKey, 0, KeyComboResult::kStored, 0},
  };
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const ComboStep& s = steps[i];
    const int old_k = static_cast<int>(ReadNumber(doc->record, *s.field));
    const SettingsRecord before = doc->record;
    EXPECT_EQ(s.result, ApplyFunctionKeyCombo(*doc, *s.field, old_k, s.choice, s.role)) << i;
    EXPECT_EQ(s.field_after, static_cast<int>(ReadNumber(doc->record, *s.field))) << i;
    if (s.result == KeyComboResult::kRefused) {
      EXPECT_EQ(before, doc->record) << i;
    }
  }
  EXPECT_EQ("Name Key", MappingLabel(*doc, 3));
  EXPECT_EQ("PF4", MappingLabel(*doc, 4));
  EXPECT_EQ("Password Key", MappingLabel(*doc, 5));
  // FN+0 was the navigator key and is released to PF10, not back to "Undefined".
  EXPECT_EQ("PF10", MappingLabel(*doc, 0));
  EXPECT_EQ(Code5("1B 5B 32 31 7E"), StoredKeyCode(*doc, 0));
}

TEST(FunctionKeyCombo, KeyMappedToAnOrdinaryHostKeyIsTakenOver) {
  auto doc = testing::DefaultDocument(1);
  ApplyKeyMappingChoice(*doc, 6, 0, 13, KeyCodeTableEntry(*doc, 0, 13));
  EXPECT_EQ(KeyComboResult::kStored,
            ApplyFunctionKeyCombo(*doc, kMessageFunctionKey, 0, 6, kRoleMessageKey));
  EXPECT_EQ("Message Key", MappingLabel(*doc, 6));
}

TEST(FunctionKeyCombo, OnlyAnotherRolesKeyIsTaken) {
  auto doc = testing::DefaultDocument(1);
  ClaimFunctionKey(*doc, 4, kRoleExitKey);
  EXPECT_TRUE(IsFunctionKeyTaken(*doc, 0, 4));
  EXPECT_FALSE(IsFunctionKeyTaken(*doc, 4, 4));  // its own key
  EXPECT_FALSE(IsFunctionKeyTaken(*doc, 4, 0));  // "Disable" is never refused
  EXPECT_FALSE(IsFunctionKeyTaken(*doc, 0, 5));
}

TEST(FunctionKeyDefaultRoutine, ClaimsAgainTheKeysTheKeyFieldsName) {
  auto doc = testing::DefaultDocument(2);
  struct Claim {
    const FieldDef* field;
    int k;
    int key;
    int role;
  };
  std::vector<Claim> claims = {{&kLoginNameKey, 1, 1, 201},
                               {&kLoginPasswordKey, 2, 2, 202},
                               {&kLogoutKey, 3, 3, 203},
                               {&kNavigatorKey, 10, 0, 204},
                               {&kMessageFunctionKey, 5, 5, 205}};
  if (const FieldDef* switch_key = FindField("ScanSwitchKeyName")) {
    claims.push_back({switch_key, 7, 7, 206});
  }
  for (const Claim& c : claims) WriteNumber(doc->record, *c.field, static_cast<std::uint32_t>(c.k));
  ApplyKeyMappingChoice(*doc, 8, 1, 5, KeyCodeTableEntry(*doc, 1, 5));

  SetFunctionKeyDefaults(*doc);
  for (const Claim& c : claims) {
    EXPECT_EQ((std::vector<int>{c.role, 0, 0}), Entry(*doc, c.key)) << c.field->name;
  }
  EXPECT_EQ("PF8", MappingLabel(*doc, 8));
  EXPECT_EQ(Code5("1B 5B 31 39 7E"), StoredKeyCode(*doc, 8));
}

TEST(FunctionKeyDefaultRoutine, OutOfRangeKeyFieldsFromAFileAreIgnored) {
  auto doc = testing::DefaultDocument(1);
  WriteNumber(doc->record, kLoginNameKey, 77);
  SetFunctionKeyDefaults(*doc);
  for (int n = 0; n < 50; ++n) EXPECT_LT(Entry(*doc, n)[0], 201) << n;
}

struct RebuildCase {
  std::string name;
  int group;
  int host_key;
  std::string code;
  int table_index;  // -1: the table stays as it was
};

class KeyCodeRebuild : public ::testing::TestWithParam<RebuildCase> {};

TEST_P(KeyCodeRebuild, CopiesKeyCodesOfMappedEntriesOnly) {
  const RebuildCase& c = GetParam();
  auto doc = testing::DefaultDocument(2);
  doc->key_codes.fill(0xEE);  // whatever was there before the file was read
  const std::uint32_t at = kKeyMappingOffset + kKeyMappingStride * 20;
  doc->record[at] = static_cast<std::uint8_t>(c.group);
  doc->record[at + 1] = static_cast<std::uint8_t>(c.host_key);
  auto code = FieldBytes(std::span<std::uint8_t>(doc->record), kKeyCode, 20);
  const std::vector<std::uint8_t> wanted = Code5(c.code);
  std::copy(wanted.begin(), wanted.end(), code.begin());

  const KeyCodeTable before = doc->key_codes;
  RebuildKeyCodeTable(*doc);
  // The default entries 1-9 of group 0 are copied back in from FN+1..FN+9.
  for (int k = 1; k <= 9; ++k) {
    EXPECT_EQ(TableEntry(DefaultKeyCodeTable(), k), TableEntry(doc->key_codes, k)) << k;
  }
  for (int index = 10; index < 60; ++index) {
    const auto expected = index == c.table_index ? wanted : TableEntry(before, index);
    EXPECT_EQ(expected, TableEntry(doc->key_codes, index)) << c.name << " index " << index;
  }
}

INSTANTIATE_TEST_SUITE_P(Entries, KeyCodeRebuild,
                         ::testing::Values(RebuildCase{"ShiftPf5", 1, 5, "1B 5B 4B", 25},
                                           RebuildCase{"AltPf13", 2, 13, "1B 5B 35 7E", 53},
                                           RebuildCase{"NilBeyondTwentyUsesFlatIndex", 0, 25, "41",
                                                       25},
                                           RebuildCase{"EmptyCodeIgnored", 1, 7, "00 41", -1},
                                           RebuildCase{"RoleIgnored", 204, 0, "1B 5B 32 31 7E", -1},
                                           RebuildCase{"GroupThreeIgnored", 3, 1, "41", -1},
                                           RebuildCase{"AltBeyondTableIgnored", 2, 20, "42", -1},
                                           RebuildCase{"AltLastHostKeyIgnored", 2, 38, "43", -1}),
                         [](const auto& info) { return info.param.name; });

TEST(KeyMappingArea, RowsButtonsAndEnablingFollowTheProduct) {
  ASSERT_EQ(39u, MappingRowKeys().size());
  EXPECT_EQ("FN+0", MappingButtonText(0));
  EXPECT_EQ("FN+D", MappingButtonText(10));
  EXPECT_EQ("FN+O", MappingButtonText(14));
  EXPECT_EQ("Up", MappingButtonText(26));
  EXPECT_EQ("End ", MappingButtonText(31));
  EXPECT_EQ("Tab ", MappingButtonText(36));
  EXPECT_EQ("F12 ", MappingButtonText(38));
  EXPECT_EQ("", MappingButtonText(39));

  auto doc = testing::DefaultDocument(1);
  std::vector<int> enabled;
  for (int key : MappingRowKeys()) {
    if (MappingRowEnabled(*doc, key)) enabled.push_back(key);
  }
  EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 36, 37}), enabled);
}

TEST(KeyMappingArea, DialogChoiceStoresEntryAndKeyCode) {
  auto doc = testing::DefaultDocument(2);
  const KeyCodeBytes code = KeyCodeTableEntry(*doc, 0, 13);
  EXPECT_EQ(Code5("1B 5B 56"), std::vector<std::uint8_t>(code.begin(), code.end()));
  ApplyKeyMappingChoice(*doc, 5, 0, 13, code);
  EXPECT_EQ((std::vector<int>{0, 13, 0}), Entry(*doc, 5));
  EXPECT_EQ(Code5("1B 5B 56"), StoredKeyCode(*doc, 5));
  EXPECT_EQ("PF13", MappingLabel(*doc, 5));

  // A code of the key's own stays the key's: the table keeps its entry, so a later release of
  // another key mapped to the same host key gets the table's code, not this one.
  const KeyCodeBytes table = KeyCodeTableEntry(*doc, 0, 7);
  const KeyCodeBytes custom = {0x1B, 0x41, 0, 0, 0};
  ApplyKeyMappingChoice(*doc, 24, 0, 7, custom);
  EXPECT_EQ("PF7", MappingLabel(*doc, 24));
  EXPECT_EQ(std::vector<std::uint8_t>(custom.begin(), custom.end()), StoredKeyCode(*doc, 24));
  EXPECT_EQ(table, KeyCodeTableEntry(*doc, 0, 7));
  ClaimFunctionKey(*doc, 7, kRoleNameKey);
  ReleaseFunctionKey(*doc, 7);
  EXPECT_EQ(std::vector<std::uint8_t>(table.begin(), table.end()), StoredKeyCode(*doc, 7));
  EXPECT_EQ(KeyCodeBytes{}, KeyCodeTableEntry(*doc, 2, 30));
}

TEST(KeyMappingArea, ValuesOnlyAFileCanHoldStillRead) {
  auto doc = testing::DefaultDocument(3);
  const std::uint32_t at = kKeyMappingOffset + kKeyMappingStride * 40;
  doc->record[at] = 150;
  doc->record[at + 1] = 99;
  EXPECT_EQ("150 + 99", MappingLabel(*doc, 40));
  doc->record[at] = 250;
  EXPECT_EQ("250", MappingLabel(*doc, 40));
  EXPECT_EQ("Home   =>  250", MappingSummaryLine(*doc, 40));
}

}  // namespace
}  // namespace veltrix
