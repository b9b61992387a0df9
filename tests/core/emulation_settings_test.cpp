#include "settings/emulation/emulation_settings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/emulation/emulation_choices.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/network/network_settings.h"

namespace veltrix {
namespace {

std::vector<std::uint8_t> Image(const Document& doc, std::size_t first, std::size_t last) {
  return {doc.record.begin() + first, doc.record.begin() + last + 1};
}

TEST(EmulationDefaults, ResetKeepsFieldLengthChoiceAndReleasesTheNavigatorKey) {
  auto doc = testing::DefaultDocument(2);
  for (std::size_t at = 4449; at <= 4466; ++at) doc->record[at] = 0x55;
  WriteNumber(doc->record, kNavigatorKey, 0);
  ApplyFunctionKeyCombo(*doc, kNavigatorKey, 0, 4, kRoleNavigatorKey);
  WriteNumber(doc->record, kFieldLengthIfExceed, 1);
  WriteNumber(doc->record, kMessageLineNumber, 5);
  WriteText(doc->record, kExcludeString, "X");

  SetEmulationDefaults(*doc);
  EXPECT_EQ(Image(*testing::DefaultDocument(2), 4449, 4564), Image(*doc, 4449, 4564));
  EXPECT_EQ(1u, ReadNumber(doc->record, kFieldLengthIfExceed));
  EXPECT_EQ(23u, ReadNumber(doc->record, kMessageLineNumber));
  EXPECT_EQ("COPYRIGHT", ReadText(doc->record, kExcludeString));
  EXPECT_EQ("PF4", MappingLabel(*doc, 4));
}

TEST(EmulationDefaults, PageResetRestoresMappingAndKeepsLoginClaims) {
  auto doc = testing::DefaultDocument(2);
  ApplyFunctionKeyCombo(*doc, kLoginPasswordKey, 0, 7, kRolePasswordKey);
  ApplyFunctionKeyCombo(*doc, kNavigatorKey, 0, 10, kRoleNavigatorKey);
  ApplyFunctionKeyCombo(*doc, kMessageFunctionKey, 0, 1, kRoleMessageKey);
  ApplyKeyMappingChoice(*doc, 24, 0, 20, KeyCodeTableEntry(*doc, 0, 20));

  ResetEmulationSection(*doc);
  EXPECT_EQ("Password Key", MappingLabel(*doc, 7));
  EXPECT_EQ("Undefined", MappingLabel(*doc, 0));  // the default mapping, not PF10
  EXPECT_EQ("PF1", MappingLabel(*doc, 1));
  EXPECT_EQ("Undefined", MappingLabel(*doc, 24));
  EXPECT_EQ(0u, ReadNumber(doc->record, kNavigatorKey));
  EXPECT_EQ(0u, ReadNumber(doc->record, kMessageFunctionKey));
}

TEST(EmulationDefaults, MessageDefaultsTouchOnlyTheirTenBytesAndTwoFields) {
  auto doc = testing::DefaultDocument(1);
  for (std::size_t at = 59660; at < 59784; ++at) doc->record[at] = 0x77;
  SetEmulationMessageDefaults(*doc);
  std::vector<std::uint8_t> expected = {23, 0x77, 0x77, 3};
  for (char c : std::string("COPYRIGHT")) expected.push_back(static_cast<std::uint8_t>(c));
  expected.push_back(0);
  expected.resize(59783 - 59660 + 1, 0x77);
  EXPECT_EQ(expected, Image(*doc, 59660, 59783));
}

}  // namespace
}  // namespace veltrix
