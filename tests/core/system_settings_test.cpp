#include "settings/system/system_settings.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "default_document.h"
#include "settings/field_registry.h"
#include "settings/prompts/prompts.h"
#include "settings/system/system_editor.h"
#include "settings_test_files.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

class SystemDefaultsTest : public ::testing::TestWithParam<int> {};

TEST_P(SystemDefaultsTest, ResetRestoresEveryByteAfterChanges) {
  auto doc = testing::DefaultDocument(GetParam());
  const SettingsRecord fresh = doc->record;
  for (std::size_t i = 25; i <= 62; ++i) doc->record[i] = 0xA5;
  SetSystemDefaults(*doc);
  EXPECT_EQ(fresh, doc->record);
}

INSTANTIATE_TEST_SUITE_P(Products, SystemDefaultsTest, ::testing::Values(0, 1, 2));

TEST(SystemFields, AreRegisteredByName) {
  for (const FieldDef* f : SystemFields()) EXPECT_EQ(f, FindField(f->name)) << f->name;
}

// ---- summary, compared with golden text files ---------------------------------------------------

// Renders the "System" branch and compares it with its golden file.
void ExpectSummaryMatchesGolden(const Document& doc, const std::string& name) {
  SummaryNode system{"System", {}};
  AppendSystemSummary(doc, system);
  EXPECT_TRUE(testing::MatchesGolden(RenderSummaryText({system}), "summary/" + name));
}

// A text typed into an edit of the page.
void Type(Document& doc, std::string_view control, std::string_view text) {
  StoreBoundText(doc, *FindBinding(SystemBindings(), control), text);
}

// After OK every text is 40 characters with blanks behind; the empty password line ends after
// the colon and blank.
TEST(SystemSummary, AppliedDravinSWithEmptyPassword) {
  auto doc = testing::DefaultDocument(1);
  SystemEditor editor(*doc);
  editor.Initialise();
  Type(*doc, "password", "abc");
  Type(*doc, "password", "");
  editor.Apply();
  ExpectSummaryMatchesGolden(*doc, "system_applied_empty_password.txt");
}

}  // namespace
}  // namespace veltrix
