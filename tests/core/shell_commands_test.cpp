#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "shell/command_table.h"
#include "shell/commands.h"
#include "support/fake_ports.h"

namespace veltrix {
namespace {

constexpr std::size_t kSomeByte = 200;

// A file system in memory: path -> the record byte kSomeByte it holds.
struct FakeFiles {
  std::map<std::string, std::uint8_t> files;
  std::map<std::string, SettingsFileReport> reports;  // default: a whole, accepted file
  bool fail_writes = false;
  bool read_only = false;  // refused until the user agrees
  int writes = 0;

  SettingsFileIo Io() {
    return SettingsFileIo{
        [this](Document& doc, const std::string& path) -> std::optional<SettingsFileReport> {
          auto it = files.find(path);
          if (it == files.end()) return std::nullopt;
          doc.record[kProductOffset] = 2;
          doc.record[kSomeByte] = it->second;
          if (reports.count(path) != 0) return reports[path];
          SettingsFileReport whole;
          whole.file_size = whole.bytes_read = kSettingsFileSize;
          return whole;
        },
        [this](Document& doc, const std::string& path, SaveStatus* status, SaveOptions options) {
          ++writes;
          if (read_only && !options.replace_read_only) {
            status->refusal = SaveRefusal::kReadOnly;
            return false;
          }
          if (fail_writes) {
            status->refusal = SaveRefusal::kFailed;
            status->reason = "No space left on device";
            return false;
          }
          files[path] = doc.record[kSomeByte];
          return true;
        }};
  }
};

class DocumentCommandsTest : public ::testing::Test {
 protected:
  DocumentCommandsTest()
      : doc_(NewDocument()),
        commands_(
            *doc_, prompt_, chooser_, [this] { ++sheets_; }, files_.Io()) {}
  static std::unique_ptr<Document> NewDocument() {
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 0);
    return doc;
  }

  void ChooseProduct(int index) { ASSERT_TRUE(commands_.ChangeProduct(index)); }
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& shown : prompt_.shown) texts.push_back(shown.text);
    return texts;
  }

  std::unique_ptr<Document> doc_;
  FakeUserPrompt prompt_;
  FakeFileChooser chooser_;
  FakeFiles files_;
  int sheets_ = 0;
  DocumentCommands commands_;
};

class ProductRuleTest : public DocumentCommandsTest, public ::testing::WithParamInterface<int> {};

TEST_P(ProductRuleTest, CommandsThatNeedAProductAreRefusedWithoutOne) {
  const int id = GetParam();
  const bool needs = FindCommand(id)->needs_product;  // which ones: the commands golden
  EXPECT_EQ(commands_.CheckProduct(id), !needs);
  if (needs) {
    ASSERT_EQ(prompt_.shown.size(), 1u);
    EXPECT_EQ(prompt_.shown[0].text, "Please select product !!");
    EXPECT_EQ(prompt_.shown[0].caption, "Veltrix - TN5250");
    EXPECT_EQ(prompt_.shown[0].icon, PromptIcon::kExclamation);
  } else {
    EXPECT_TRUE(prompt_.shown.empty());
  }
  ChooseProduct(1);
  EXPECT_TRUE(commands_.CheckProduct(id));
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, ProductRuleTest,
                         ::testing::Values(kCmdNew, kCmdOpen, kCmdDownloadProgram));

TEST_F(DocumentCommandsTest, ProductChangeReplacesTheDocumentWithoutAsking) {
  ChooseProduct(1);
  doc_->record[kSomeByte] = 0xEE;
  doc_->modified = true;
  doc_->file_name = "a.QVL";
  ChooseProduct(2);
  EXPECT_EQ(doc_->product(), 2);
  EXPECT_NE(doc_->record[kSomeByte], 0xEE);
  EXPECT_FALSE(doc_->modified);
  EXPECT_TRUE(doc_->file_name.empty());
  EXPECT_TRUE(prompt_.shown.empty());
  EXPECT_FALSE(commands_.ChangeProduct(2));  // same product: nothing happens
}

TEST_F(DocumentCommandsTest, NewWhileUnmodifiedResetsAndOpensTheSheet) {
  ChooseProduct(2);
  doc_->file_name = "x.QVL";
  commands_.New();
  EXPECT_TRUE(prompt_.shown.empty());
  EXPECT_EQ(doc_->product(), 2);
  EXPECT_TRUE(doc_->file_name.empty());
  EXPECT_EQ(sheets_, 1);
}

// Configure-OK-Configure-Cancel leaves changed bytes with the flag cleared: closing still asks,
// as the title's "*" shows; bytes put back as they were ask nothing.
TEST_F(DocumentCommandsTest, ChangedBytesAskEvenWithTheFlagCleared) {
  ChooseProduct(2);
  doc_->record[kSomeByte] ^= 0xFF;
  EXPECT_TRUE(commands_.HasUnsavedChanges());
  prompt_.answers.push_back(PromptAnswer::kCancel);
  EXPECT_FALSE(commands_.QueryClose());
  EXPECT_EQ(Texts(), std::vector<std::string>{std::string(kSaveTheProgram)});
  doc_->record[kSomeByte] ^= 0xFF;
  EXPECT_FALSE(commands_.HasUnsavedChanges());
  EXPECT_TRUE(commands_.QueryClose());
}

// A product change replaces the document without asking; Undo brings it back (file name,
// bytes, unsaved state) until the next change.
TEST_F(DocumentCommandsTest, UndoBringsBackWhatAProductChangeReplaced) {
  ChooseProduct(1);
  doc_->record[kSomeByte] = 0xEE;
  doc_->file_name = "a.QVL";
  ChooseProduct(2);
  ASSERT_TRUE(commands_.CanUndo());
  EXPECT_FALSE(commands_.HasUnsavedChanges());
  EXPECT_TRUE(commands_.Undo());
  EXPECT_EQ(doc_->product(), 1);
  EXPECT_EQ(doc_->record[kSomeByte], 0xEE);
  EXPECT_EQ(doc_->file_name, "a.QVL");
  EXPECT_TRUE(commands_.HasUnsavedChanges());
  EXPECT_FALSE(commands_.Undo());
  // A change in the sheet after a product change ends the Undo.
  ChooseProduct(2);
  sheets_ = 0;
  commands_.Configure();
  EXPECT_TRUE(commands_.CanUndo());  // the sheet changed nothing
  doc_->record[kSomeByte] ^= 0x01;
  commands_.Configure();
  EXPECT_FALSE(commands_.CanUndo());
  EXPECT_TRUE(prompt_.shown.empty());
}

struct AskCase {
  const char* name;
  PromptAnswer answer;
  bool saves;
  bool goes_on;
};

class SaveQuestionTest : public DocumentCommandsTest,
                         public ::testing::WithParamInterface<AskCase> {};

TEST_P(SaveQuestionTest, NewAsksWhileModified) {
  const AskCase& c = GetParam();
  ChooseProduct(1);
  doc_->file_name = "old.QVL";
  doc_->record[kSomeByte] = 0x11;
  doc_->modified = true;
  prompt_.answers = {c.answer};
  commands_.New();
  EXPECT_EQ(Texts(), std::vector<std::string>{"Save the program ?"});
  EXPECT_EQ(prompt_.shown[0].caption, "Veltrix - TN5250");
  EXPECT_EQ(files_.files.count("old.QVL"), c.saves ? 1u : 0u);
  EXPECT_EQ(sheets_, c.goes_on ? 1 : 0);
  EXPECT_EQ(doc_->modified, !c.goes_on);
}

TEST_P(SaveQuestionTest, CloseAsksWhileModified) {
  const AskCase& c = GetParam();
  ChooseProduct(1);
  doc_->file_name = "old.QVL";
  doc_->modified = true;
  prompt_.answers = {c.answer};
  EXPECT_EQ(commands_.QueryClose(), c.goes_on);
  EXPECT_EQ(files_.writes, c.saves ? 1 : 0);
}

TEST_P(SaveQuestionTest, OpenAsksWhileModified) {
  const AskCase& c = GetParam();
  ChooseProduct(1);
  doc_->modified = true;
  doc_->file_name = "old.QVL";
  files_.files["other.QVL"] = 0x42;
  chooser_.open_result = "other.QVL";
  prompt_.answers = {c.answer};
  EXPECT_EQ(commands_.Open(), c.goes_on);
  EXPECT_EQ(files_.files.count("old.QVL"), c.saves ? 1u : 0u);
  EXPECT_EQ(doc_->file_name, c.goes_on ? "other.QVL" : "old.QVL");
}

INSTANTIATE_TEST_SUITE_P(Answers, SaveQuestionTest,
                         ::testing::Values(AskCase{"Yes", PromptAnswer::kYes, true, true},
                                           AskCase{"No", PromptAnswer::kNo, false, true},
                                           AskCase{"Cancel", PromptAnswer::kCancel, false, false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DocumentCommandsTest, AFailedSaveInTheQuestionKeepsTheWindowAndTheChanges) {
  ChooseProduct(1);
  doc_->modified = true;
  doc_->file_name = "locked.QVL";
  doc_->record[kSomeByte] = 0x31;
  files_.fail_writes = true;
  prompt_.answers = {PromptAnswer::kYes, PromptAnswer::kYes};
  EXPECT_FALSE(commands_.QueryClose());
  commands_.New();
  EXPECT_EQ(sheets_, 0);
  EXPECT_EQ(doc_->record[kSomeByte], 0x31);
  EXPECT_TRUE(doc_->modified);
  EXPECT_EQ(Texts(),
            (std::vector<std::string>{
                "Save the program ?",
                "Could not save the settings file \"locked.QVL\".\nNo space left on device",
                "Save the program ?",
                "Could not save the settings file \"locked.QVL\".\nNo space left on device"}));
  EXPECT_EQ(prompt_.shown[1].caption, "Error");
  EXPECT_EQ(prompt_.shown[1].icon, PromptIcon::kExclamation);
}

// A read-only file is saved only when the user says so; No leaves it and the changes.
TEST_F(DocumentCommandsTest, AReadOnlyFileIsTheUsersDecision) {
  ChooseProduct(1);
  doc_->file_name = "kept.QVL";
  files_.read_only = true;
  for (PromptAnswer answer : {PromptAnswer::kNo, PromptAnswer::kYes}) {
    doc_->modified = true;
    prompt_.answers = {answer};
    commands_.Save();
    EXPECT_EQ(doc_->modified, answer == PromptAnswer::kNo);
    EXPECT_EQ(prompt_.shown.back().text, "\"kept.QVL\" is read-only. Save it anyway?");
  }
  EXPECT_EQ(files_.files.count("kept.QVL"), 1u);
}

TEST_F(DocumentCommandsTest, ACancelledSaveAsInTheQuestionKeepsTheWindow) {
  ChooseProduct(1);
  doc_->modified = true;
  prompt_.answers = {PromptAnswer::kYes};
  chooser_.save_result.reset();
  EXPECT_FALSE(commands_.QueryClose());
  EXPECT_EQ(chooser_.save_calls, 1);
  EXPECT_EQ(Texts(), std::vector<std::string>{"Save the program ?"});
}

TEST_F(DocumentCommandsTest, CloseWithoutChangesDoesNotAsk) {
  EXPECT_TRUE(commands_.QueryClose());
  EXPECT_TRUE(prompt_.shown.empty());
}

TEST_F(DocumentCommandsTest, OpenWorksWithoutAProductAndReadsTheFile) {
  files_.files["in.QVL"] = 0x42;
  chooser_.open_result = "in.QVL";
  EXPECT_TRUE(commands_.Open());
  EXPECT_EQ(doc_->record[kSomeByte], 0x42);
  EXPECT_EQ(doc_->file_name, "in.QVL");
  EXPECT_FALSE(doc_->modified);
  EXPECT_EQ(sheets_, 1);
  EXPECT_EQ(chooser_.last_filter.description, "Settings (*.QVL)");
  EXPECT_EQ(chooser_.last_filter.pattern, "*.QVL");
}

// A file that is not a whole settings file is read by Open's rules, the user is told, and Save
// asks before replacing it: No saves under another name, Yes replaces it, and from then on it is
// a settings file like any other.
TEST_F(DocumentCommandsTest, AForeignFileIsReportedAndNotReplacedWithoutAQuestion) {
  files_.files["notes.QVL"] = 1;
  files_.reports["notes.QVL"] = SettingsFileReport{20, 20, true, false};
  chooser_.open_result = "notes.QVL";
  ASSERT_TRUE(commands_.Open());
  ASSERT_EQ(prompt_.shown.size(), 1u);
  EXPECT_EQ(prompt_.shown[0].text,
            "\"notes.QVL\" was not opened as it stands:\n"
            "- it is 20 bytes, not 580984; read as far as it goes\n"
            "- it has no accepted format tag, version or product; read as the defaults of "
            "product 1\n\nSave asks before it replaces this file.");

  prompt_.answers = {PromptAnswer::kCancel, PromptAnswer::kNo, PromptAnswer::kYes};
  EXPECT_FALSE(commands_.Save());
  EXPECT_EQ(files_.writes, 0);
  chooser_.save_result = "other.QVL";
  EXPECT_TRUE(commands_.Save());
  EXPECT_EQ(files_.files.count("other.QVL"), 1u);
  EXPECT_EQ(files_.files["notes.QVL"], 1);  // untouched
  EXPECT_EQ(prompt_.shown.back().text,
            "\"notes.QVL\" was not a whole settings file when it was opened.\n"
            "Replace it with these settings?");

  chooser_.open_result = "notes.QVL";
  ASSERT_TRUE(commands_.Open());
  doc_->record[kSomeByte] = 7;
  EXPECT_TRUE(commands_.Save());  // Yes
  EXPECT_EQ(files_.files["notes.QVL"], 7);
  const std::size_t asked = prompt_.shown.size();
  EXPECT_TRUE(commands_.Save());
  EXPECT_EQ(prompt_.shown.size(), asked);
}

TEST_F(DocumentCommandsTest, CancelledOpenKeepsContentsButForgetsNameAndFlag) {
  ChooseProduct(1);
  doc_->record[kSomeByte] = 0x77;
  doc_->file_name = "kept.QVL";
  doc_->modified = true;
  prompt_.answers = {PromptAnswer::kNo};
  chooser_.open_result.reset();
  EXPECT_FALSE(commands_.Open());
  EXPECT_EQ(doc_->record[kSomeByte], 0x77);
  EXPECT_TRUE(doc_->file_name.empty());
  EXPECT_FALSE(doc_->modified);
  EXPECT_EQ(sheets_, 0);
  EXPECT_EQ(chooser_.last_initial, "");  // the name was cleared before the dialog
}

TEST_F(DocumentCommandsTest, UnreadableFileIsReportedAndOpensNothing) {
  chooser_.open_result = "missing.QVL";
  EXPECT_FALSE(commands_.Open());
  EXPECT_EQ(Texts(), std::vector<std::string>{"Could not open the settings file \"missing.QVL\"."});
  EXPECT_EQ(sheets_, 0);
  EXPECT_TRUE(doc_->file_name.empty());
}

TEST_F(DocumentCommandsTest, SaveWithANameWritesAndClearsTheFlag) {
  ChooseProduct(1);
  doc_->file_name = "doc.QVL";
  doc_->modified = true;
  doc_->record[kSomeByte] = 9;
  EXPECT_TRUE(commands_.Save());
  EXPECT_EQ(files_.files["doc.QVL"], 9);
  EXPECT_FALSE(doc_->modified);
  EXPECT_EQ(chooser_.save_calls, 0);
}

TEST_F(DocumentCommandsTest, SaveWithoutANameAsksForOne) {
  ChooseProduct(1);
  doc_->modified = true;
  chooser_.save_result = "/tmp/new.QVL";
  EXPECT_TRUE(commands_.Save());
  EXPECT_EQ(doc_->file_name, "/tmp/new.QVL");
  EXPECT_EQ(chooser_.last_extension, "QVL");
  EXPECT_FALSE(doc_->modified);
}

TEST_F(DocumentCommandsTest, FailedOrCancelledSaveKeepsTheFlag) {
  ChooseProduct(1);
  doc_->modified = true;
  chooser_.save_result.reset();
  EXPECT_FALSE(commands_.SaveAs());
  EXPECT_TRUE(doc_->modified);
  EXPECT_EQ(files_.writes, 0);

  files_.fail_writes = true;
  chooser_.save_result = "b.QVL";
  EXPECT_FALSE(commands_.SaveAs());
  EXPECT_TRUE(doc_->modified);
  EXPECT_EQ(doc_->file_name, "b.QVL");  // Save As makes the name current before writing
}

TEST_F(DocumentCommandsTest, SaveAsAlwaysAsksEvenWithAName) {
  ChooseProduct(1);
  doc_->file_name = "first.QVL";
  chooser_.save_result = "second.QVL";
  EXPECT_TRUE(commands_.SaveAs());
  EXPECT_EQ(files_.files.count("second.QVL"), 1u);
  EXPECT_EQ(files_.files.count("first.QVL"), 0u);
}

}  // namespace
}  // namespace veltrix
