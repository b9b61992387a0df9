// The document commands (New, Open, Save, Save As, Exit, product change, Undo) with a file system
// in memory and the user's answers queued, from the scripts in tests/core/data/shell_commands.txt
// (the file's header explains the steps).
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "shell/command_table.h"
#include "shell/commands.h"
#include "support/case_file.h"
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

  // Runs one step; false when a check did not hold.
  bool Step(const std::vector<std::string>& w, const std::string& rest);

  std::unique_ptr<Document> doc_;
  FakeUserPrompt prompt_;
  FakeFileChooser chooser_;
  FakeFiles files_;
  int sheets_ = 0;
  DocumentCommands commands_;
  std::size_t said_ = 0;  // the messages checked so far
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
  ASSERT_TRUE(commands_.ChangeProduct(1));
  EXPECT_TRUE(commands_.CheckProduct(id));
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, ProductRuleTest,
                         ::testing::Values(kCmdNew, kCmdOpen, kCmdDownloadProgram));

std::optional<std::string> NameOrNone(const std::string& word) {
  if (word == "none") return std::nullopt;
  return word;
}

std::string Unescaped(std::string text) {
  for (std::size_t at; (at = text.find("\\n")) != std::string::npos;) text.replace(at, 2, "\n");
  return text;
}

bool DocumentCommandsTest::Step(const std::vector<std::string>& w, const std::string& rest) {
  const std::string& verb = w[0];
  const auto yes = [&w](std::size_t i) { return w.at(i) == "yes"; };
  // Doing: what the user did or has prepared.
  if (verb == "product") return commands_.ChangeProduct(std::stoi(w[1])) == (w.size() < 3);
  if (verb == "name") doc_->file_name = w[1];
  if (verb == "byte") doc_->record[kSomeByte] = static_cast<std::uint8_t>(std::stoi(w[1]));
  if (verb == "touch") doc_->modified = true;
  if (verb == "file") files_.files[w[1]] = static_cast<std::uint8_t>(std::stoi(w[2]));
  if (verb == "report") files_.reports[w[1]] = {std::stoul(w[2]), std::stoul(w[3]), yes(4), false};
  if (verb == "fail-writes") files_.fail_writes = true;
  if (verb == "read-only") files_.read_only = true;
  if (verb == "opens") chooser_.open_result = NameOrNone(w[1]);
  if (verb == "saves-as") chooser_.save_result = NameOrNone(w[1]);
  if (verb == "answer") {
    for (std::size_t i = 1; i < w.size(); ++i) {
      prompt_.answers.push_back(w[i] == "Yes"  ? PromptAnswer::kYes
                                : w[i] == "No" ? PromptAnswer::kNo
                                               : PromptAnswer::kCancel);
    }
  }
  if (verb == "new") commands_.New();
  if (verb == "configure") commands_.Configure();
  if (verb == "open") return commands_.Open() == yes(2);
  if (verb == "save") return commands_.Save() == yes(2);
  if (verb == "save-as") return commands_.SaveAs() == yes(2);
  if (verb == "close") return commands_.QueryClose() == yes(2);
  if (verb == "undo") return commands_.Undo() == yes(2);
  // Checking.
  if (verb == "said") {
    if (said_ >= prompt_.shown.size()) return false;
    const FakeUserPrompt::Shown& shown = prompt_.shown[said_++];
    return shown.text == Unescaped(rest);
  }
  if (verb == "caption") return prompt_.shown.at(said_ - 1).caption == rest;
  if (verb == "exclamation") return prompt_.shown.at(said_ - 1).icon == PromptIcon::kExclamation;
  if (verb == "silent") return said_ == prompt_.shown.size();
  if (verb == "holds") {
    const auto it = files_.files.find(w[1]);
    return w[2] == "-" ? it == files_.files.end()
                       : it != files_.files.end() && it->second == std::stoi(w[2]);
  }
  if (verb == "writes") return files_.writes == std::stoi(w[1]);
  if (verb == "sheets") return sheets_ == std::stoi(w[1]);
  if (verb == "modified") return doc_->modified == yes(1);
  if (verb == "unsaved") return commands_.HasUnsavedChanges() == yes(1);
  if (verb == "can-undo") return commands_.CanUndo() == yes(1);
  if (verb == "byte-is") return doc_->record[kSomeByte] == std::stoi(w[1]);
  if (verb == "product-is") return doc_->product() == std::stoi(w[1]);
  if (verb == "name-is") return doc_->file_name == (w[1] == "-" ? "" : w[1]);
  if (verb == "chooser") {
    return w[1] == "filter"      ? chooser_.last_filter.description == rest.substr(7)
           : w[1] == "initial"   ? chooser_.last_initial == (w[2] == "-" ? "" : w[2])
           : w[1] == "extension" ? chooser_.last_extension == w[2]
                                 : chooser_.save_calls == std::stoi(w[2]);
  }
  return true;
}

class CommandScript : public DocumentCommandsTest,
                      public ::testing::WithParamInterface<testing::DataCase> {};

TEST_P(CommandScript, Runs) {
  for (const testing::CaseLine& line : GetParam().lines) {
    const std::vector<std::string> w = testing::Words(line.text);
    const std::size_t blank = line.text.find(' ');
    const std::string rest = blank == std::string::npos ? "" : line.text.substr(blank + 1);
    EXPECT_TRUE(Step(w, rest)) << "line " << line.number << ": " << line.text;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, CommandScript,
                         ::testing::ValuesIn(testing::ReadDataCases("shell_commands.txt")),
                         [](const auto& info) {
                           return "line" + std::to_string(info.param.number);
                         });

}  // namespace
}  // namespace veltrix
