#include "settings/system/system_editor.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "settings/page_snapshot.h"
#include "settings/prompts/prompts.h"
#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

class SystemEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
    doc_->modified = true;
    // As the sheet does it: snapshot first, then the page fills its controls.
    snapshot_.Take(*doc_);
    editor_ = std::make_unique<SystemEditor>(*doc_);
    editor_->Initialise();
  }
  // A control of the page's binding table, as the user changes it.
  BindingOutcome Type(std::string_view control, std::string_view text) {
    return StoreBoundText(*doc_, *FindBinding(SystemBindings(), control), text);
  }
  void Choose(std::string_view control, std::int64_t value) {
    StoreBoundValue(*doc_, *FindBinding(SystemBindings(), control), value);
  }
  std::int64_t Shown(std::string_view control) {
    return BoundValue(*doc_, *FindBinding(SystemBindings(), control));
  }
  // OK as the sheet gives it to this page.
  void Ok() {
    editor_->Apply();
    snapshot_.MarkApplied(*doc_);
  }
  std::unique_ptr<Document> doc_;
  PageSnapshot snapshot_{SnapshotScope::kRecord};
  std::unique_ptr<SystemEditor> editor_;
};

TEST_F(SystemEditorTest, InitialiseStartsOnTheFirstScreen) {
  editor_->SelectScreen(5);
  editor_->Initialise();
  EXPECT_EQ(0, editor_->prompts().selected());
  EXPECT_EQ("1. Telnet   ", editor_->Rows()[0].text);
}

TEST_F(SystemEditorTest, ValuesOutsideTheFieldRangeAreIgnored) {
  Choose("download_via", 2);
  Choose("download_via", -1);  // a combo without selection
  Choose("download_via", 4);
  EXPECT_EQ(2, Shown("download_via"));
}

TEST_F(SystemEditorTest, ApplyPadsSetsModifiedAndCancelThenKeepsTheRecord) {
  Type("password", "123456789");
  Type("password", "12");
  Ok();
  EXPECT_TRUE(doc_->modified);
  for (int k = 3; k < 10; ++k) EXPECT_EQ(0, doc_->record[kPassword.offset + k]);
  EXPECT_EQ(40u, ReadText(doc_->record, kPromptText, 0).size());
  const SettingsRecord applied = doc_->record;
  EXPECT_FALSE(snapshot_.RestoreOnCancel(*doc_));
  EXPECT_EQ(applied, doc_->record);
}

// Reset after edits on many screens gives every text of the product's defaults back.
TEST(SystemEditorReset, RestoresAllTwelveScreensOfTheProduct) {
  for (int product : {1, 2}) {
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, product);
    const SettingsRecord fresh = doc->record;
    SystemEditor editor(*doc);
    editor.Initialise();
    for (int s = 0; s < kPromptScreenCount; ++s) {
      editor.SelectScreen(s);
      editor.EditPromptLine(0, "changed on screen " + std::to_string(s));
    }
    editor.Reset();
    for (int slot = 0; slot < kPromptSlotCount; ++slot) {
      EXPECT_EQ(ReadText(fresh, kPromptText, slot), ReadText(doc->record, kPromptText, slot))
          << "product " << product << " slot " << slot;
    }
  }
}

}  // namespace
}  // namespace veltrix
