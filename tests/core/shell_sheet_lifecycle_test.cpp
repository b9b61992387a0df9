#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/document.h"
#include "settings/page_snapshot.h"
#include "shell/sheet_lifecycle.h"
#include "support/case_file.h"

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

// One step of tests/core/data/sheet_lifecycle.txt; false when a check did not hold.
bool Step(SheetLifecycle& sheet, Document& doc, std::vector<std::string>& log,
          const std::vector<std::string>& w) {
  const std::string& verb = w[0];
  const auto number = [&w](std::size_t i) { return std::stoi(w.at(i)); };
  if (verb == "open") sheet.Open();
  if (verb == "show") sheet.Show(number(1));
  if (verb == "ok") sheet.Ok();
  if (verb == "cancel") sheet.Cancel();
  if (verb == "touch") doc.modified = true;
  if (verb == "byte") doc.record[kSomeByte] = static_cast<std::uint8_t>(number(1));
  if (verb == "page-byte") doc.pages[number(1)][number(2)] = static_cast<std::uint8_t>(number(3));
  if (verb == "key-code") doc.key_codes[0] = static_cast<std::uint8_t>(number(1));
  if (verb == "forget") log.clear();
  if (verb == "byte-is") return doc.record[kSomeByte] == number(1);
  if (verb == "page-byte-is") return doc.pages[number(1)][number(2)] == number(3);
  if (verb == "key-code-is") return doc.key_codes[0] == number(1);
  if (verb == "modified") return doc.modified == (w[1] == "yes");
  if (verb == "created") return sheet.created(number(1)) == (w[2] == "yes");
  if (verb == "calls") {  // every call the pages got since the last "forget", in order
    std::string calls;
    for (const std::string& entry : log) calls += (calls.empty() ? "" : ", ") + entry;
    std::string wanted;
    for (std::size_t i = 1; i < w.size(); ++i) wanted += (i > 1 ? " " : "") + w[i];
    return calls == wanted;
  }
  return true;
}

class SheetScript : public SheetLifecycleTest,
                    public ::testing::WithParamInterface<testing::DataCase> {};

TEST_P(SheetScript, Runs) {
  SheetLifecycle sheet = MakeSheet();
  for (const testing::CaseLine& line : GetParam().lines) {
    EXPECT_TRUE(Step(sheet, *doc_, log_, testing::Words(line.text)))
        << "line " << line.number << ": " << line.text;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, SheetScript,
                         ::testing::ValuesIn(testing::ReadDataCases("sheet_lifecycle.txt")),
                         [](const auto& info) {
                           return "line" + std::to_string(info.param.number);
                         });

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
