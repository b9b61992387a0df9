#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/document.h"
#include "settings/page_snapshot.h"
#include "shell/sheet_lifecycle.h"

namespace veltrix {
namespace {

constexpr std::size_t kSomeByte = 100;  // any byte of the record

// Logs every call; writes `value` into the record on Apply when asked to.
class FakePage : public SheetPage {
 public:
  FakePage(int index, std::vector<std::string>& log) : index_(index), log_(log) {}
  void Initialise(Document& doc) override {
    log_.push_back("init " + std::to_string(index_) + (doc.modified ? " modified" : " clear"));
  }
  void Apply(Document&) override { log_.push_back("apply " + std::to_string(index_)); }
  void SetActive(Document&) override { log_.push_back("active " + std::to_string(index_)); }
  void QueryCancel(Document&) override { log_.push_back("cancel " + std::to_string(index_)); }

 private:
  int index_;
  std::vector<std::string>& log_;
};

class SheetLifecycleTest : public ::testing::Test {
 protected:
  SheetLifecycleTest() : doc_(std::make_unique<Document>()) {
    SetDefaults(*doc_, 1);
    for (int i = 0; i < kSheetPageCount; ++i) pages_.push_back(FakePage(i, log_));
  }
  SheetLifecycle MakeSheet() {
    return SheetLifecycle(*doc_, [this](int index) -> SheetPage* { return &pages_[index]; });
  }

  std::unique_ptr<Document> doc_;
  std::vector<std::string> log_;
  std::vector<FakePage> pages_;
};

TEST_F(SheetLifecycleTest, PagesAreCreatedOnFirstShowAndActivatedOnEveryShow) {
  SheetLifecycle sheet = MakeSheet();
  sheet.Open();
  sheet.Show(4);
  sheet.Show(0);
  sheet.Show(4);
  EXPECT_TRUE(sheet.created(0));
  EXPECT_FALSE(sheet.created(1));
  EXPECT_TRUE(sheet.created(4));
  EXPECT_EQ(log_, (std::vector<std::string>{"init 0 clear", "active 0", "init 4 clear", "active 4",
                                            "active 0", "active 4"}));
}

TEST_F(SheetLifecycleTest, CancelAtOnceLeavesTheRecordAndClearsTheFlag) {
  doc_->modified = true;
  const SettingsRecord before = doc_->record;
  SheetLifecycle sheet = MakeSheet();
  sheet.Open();
  doc_->record[kSomeByte] ^= 0xFF;  // the page writes as the user works
  sheet.Cancel();
  EXPECT_EQ(doc_->record, before);
  EXPECT_FALSE(doc_->modified);
  EXPECT_EQ(log_.back(), "cancel 0");
}

TEST_F(SheetLifecycleTest, OkAppliesCreatedPagesInPageOrderAndSetsTheFlag) {
  SheetLifecycle sheet = MakeSheet();
  sheet.Open();
  sheet.Show(3);
  sheet.Show(1);
  log_.clear();
  sheet.Ok();
  EXPECT_EQ(log_, (std::vector<std::string>{"apply 0", "apply 1", "apply 3"}));
  EXPECT_TRUE(doc_->modified);
}

TEST_F(SheetLifecycleTest, SystemChangeSurvivesCancelOnTheScreenPage) {
  SheetLifecycle sheet = MakeSheet();
  sheet.Open();
  doc_->record[kSomeByte] = 0x5A;  // changed on the System page
  sheet.Show(4);                   // the Screen page's snapshot already holds it
  doc_->pages[0][0] = 7;           // changed on the Screen page
  sheet.Cancel();
  EXPECT_EQ(doc_->record[kSomeByte], 0x5A);
  EXPECT_EQ(doc_->pages[0][0], 0);
  EXPECT_EQ(log_.back(), "cancel 4");
}

// The Barcode page keeps no snapshot: shown alone it neither clears nor sets the flag.
TEST_F(SheetLifecycleTest, BarcodePageAloneLeavesTheFlag) {
  for (const bool modified : {false, true}) {
    doc_->modified = modified;
    log_.clear();
    SheetLifecycle sheet = MakeSheet();
    sheet.Show(1);
    EXPECT_EQ(log_.front(), modified ? "init 1 modified" : "init 1 clear");
    sheet.Ok();
    EXPECT_EQ(doc_->modified, modified);
  }
}

TEST_F(SheetLifecycleTest, CancelOnTheBarcodePageRestoresNothing) {
  SheetLifecycle sheet = MakeSheet();
  sheet.Open();
  sheet.Show(1);
  doc_->record[kSomeByte] = 0x33;
  sheet.Cancel();
  EXPECT_EQ(doc_->record[kSomeByte], 0x33);
}

TEST_F(SheetLifecycleTest, EmulationSnapshotCoversTheKeyCodeTable) {
  SheetLifecycle sheet = MakeSheet();
  sheet.Show(3);
  const auto key_codes = doc_->key_codes;
  doc_->key_codes[0] ^= 0xFF;
  doc_->pages[1][1] = 9;  // not the Emulation page's to restore
  sheet.Cancel();
  EXPECT_EQ(doc_->key_codes, key_codes);
  EXPECT_EQ(doc_->pages[1][1], 9);
}

TEST_F(SheetLifecycleTest, OutOfRangeOrRefusedPagesAreIgnored) {
  SheetLifecycle sheet(*doc_, [](int) -> SheetPage* { return nullptr; });
  sheet.Show(-1);
  sheet.Show(kSheetPageCount);
  sheet.Open();
  sheet.Ok();
  sheet.Cancel();
  EXPECT_EQ(sheet.current(), -1);
  EXPECT_FALSE(sheet.created(0));
}

struct SnapshotCase {
  SnapshotScope scope;
  bool restores_record;
  bool restores_key_codes;
  bool restores_pages;
};

class PageSnapshotTest : public ::testing::TestWithParam<SnapshotCase> {};

TEST_P(PageSnapshotTest, RestoresWhatItsScopeNamesWhileUnmodified) {
  const SnapshotCase& c = GetParam();
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 2);
  doc->modified = true;
  PageSnapshot snapshot(c.scope);
  snapshot.Take(*doc);
  EXPECT_EQ(doc->modified, c.scope == SnapshotScope::kNone);
  doc->modified = false;

  doc->record[kSomeByte] = 0xA1;
  doc->key_codes[5] = 0xA2;
  doc->pages[49][10423] = 0xA3;
  EXPECT_EQ(snapshot.RestoreOnCancel(*doc), c.scope != SnapshotScope::kNone);
  EXPECT_EQ(doc->record[kSomeByte] != 0xA1, c.restores_record);
  EXPECT_EQ(doc->key_codes[5] != 0xA2, c.restores_key_codes);
  EXPECT_EQ(doc->pages[49][10423] != 0xA3, c.restores_pages);
}

INSTANTIATE_TEST_SUITE_P(
    Scopes, PageSnapshotTest,
    ::testing::Values(SnapshotCase{SnapshotScope::kNone, false, false, false},
                      SnapshotCase{SnapshotScope::kRecord, true, false, false},
                      SnapshotCase{SnapshotScope::kRecordAndKeyCodes, true, true, false},
                      SnapshotCase{SnapshotScope::kRecordAndPages, true, false, true}));

TEST(PageSnapshot, NothingIsRestoredOnceOkSetTheFlag) {
  auto doc = std::make_unique<Document>();
  PageSnapshot snapshot(SnapshotScope::kRecord);
  snapshot.Take(*doc);
  doc->record[kSomeByte] = 1;
  snapshot.MarkApplied(*doc);
  EXPECT_TRUE(doc->modified);
  EXPECT_FALSE(snapshot.RestoreOnCancel(*doc));
  EXPECT_EQ(doc->record[kSomeByte], 1);
}

}  // namespace
}  // namespace veltrix
