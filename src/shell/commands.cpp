#include "shell/commands.h"

#include <utility>

#include "resources/strings.h"
#include "settings/settings_file.h"
#include "shell/command_table.h"

namespace veltrix {
namespace {

FileFilter SettingsFilter() {
  return FileFilter{std::string(kSettingsFilterText), std::string(kSettingsFilterPattern)};
}

constexpr int kSaveLockWaitMs = 5000;

std::string_view Title() { return StringResource(kWindowTitleId); }

}  // namespace

SettingsFileIo SettingsFileIo::Real() {
  return SettingsFileIo{
      [](Document& doc, const std::string& path) -> std::optional<SettingsFileReport> {
        SettingsFileReport report;
        if (!ReadSettingsFile(doc, path, &report)) return std::nullopt;
        return report;
      },
      [](Document& doc, const std::string& path, SaveStatus* status, SaveOptions options) {
        // The same lock as veltrix-cli set takes, so that neither loses the other's change.
        FileUpdateLock lock;
        if (!lock.Acquire(path, kSaveLockWaitMs, &status->reason)) {
          status->refusal = SaveRefusal::kFailed;
          return false;
        }
        return WriteSettingsFileTo(doc, path, status, options);
      }};
}

DocumentCommands::DocumentCommands(Document& doc, UserPrompt& prompt, FileChooser& chooser,
                                   std::function<void()> open_settings_sheet, SettingsFileIo io)
    : doc_(doc),
      prompt_(prompt),
      chooser_(chooser),
      open_settings_sheet_(std::move(open_settings_sheet)),
      io_(std::move(io)) {
  TakeBaseline();
}

void DocumentCommands::TakeBaseline() {
  baseline_record_ = std::make_unique<SettingsRecord>(doc_.record);
  baseline_pages_ = std::make_unique<std::array<PageRecord, kPageCount>>(doc_.pages);
}

bool DocumentCommands::HasUnsavedChanges() const {
  return doc_.modified || doc_.record != *baseline_record_ || doc_.pages != *baseline_pages_;
}

bool DocumentCommands::Undo() {
  if (!undo_) return false;
  std::swap(doc_, *undo_->doc);
  file_is_foreign_ = undo_->file_is_foreign;
  baseline_record_ = std::move(undo_->baseline_record);
  baseline_pages_ = std::move(undo_->baseline_pages);
  undo_.reset();
  return true;
}

bool DocumentCommands::CheckProduct(int command_id) {
  if (!NeedsProduct(command_id) || doc_.product() != 0) return true;
  prompt_.ShowMessage(Title(), kPleaseSelectProduct, PromptIcon::kExclamation);
  return false;
}

bool DocumentCommands::OfferToSave() {
  if (!HasUnsavedChanges()) return true;
  switch (prompt_.AskYesNoCancel(Title(), kSaveTheProgram)) {
    case PromptAnswer::kYes:
      // A save that fails or is cancelled stops the command: the changes stay in the window.
      return SaveSettingsFile();
    case PromptAnswer::kNo:
      return true;
    case PromptAnswer::kCancel:
      return false;
  }
  return false;
}

void DocumentCommands::New() {
  if (!OfferToSave()) return;
  doc_.file_name.clear();
  file_is_foreign_ = false;
  doc_.modified = false;
  SetDefaults(doc_, doc_.product());
  TakeBaseline();
  undo_.reset();
  open_settings_sheet_();
}

bool DocumentCommands::Open(const std::string* path) {
  if (!OfferToSave()) return false;
  doc_.file_name.clear();
  file_is_foreign_ = false;
  doc_.modified = false;
  if (!OpenSettingsFile(path)) return false;
  TakeBaseline();
  undo_.reset();
  open_settings_sheet_();
  return true;
}

bool DocumentCommands::Save() {
  if (!SaveSettingsFile()) return false;
  doc_.modified = false;
  TakeBaseline();
  return true;
}

bool DocumentCommands::SaveAs() {
  if (!SaveSettingsFileAs()) return false;
  doc_.modified = false;
  TakeBaseline();
  return true;
}

bool DocumentCommands::ChangeProduct(int index) {
  if (index == doc_.product() || index < 0 || index > kProductCount) return false;
  // The Part replaces the document without asking; Undo can bring it back.
  undo_ = std::make_unique<Undoable>();
  undo_->doc = std::make_unique<Document>(doc_);
  undo_->file_is_foreign = file_is_foreign_;
  undo_->baseline_record = std::move(baseline_record_);
  undo_->baseline_pages = std::move(baseline_pages_);
  doc_.file_name.clear();
  file_is_foreign_ = false;
  doc_.modified = false;
  SetDefaults(doc_, index);
  TakeBaseline();
  return true;
}

bool DocumentCommands::QueryClose() { return OfferToSave(); }

bool DocumentCommands::OpenSettingsFile(const std::string* named) {
  std::optional<std::string> path =
      named ? std::optional(*named) : chooser_.ChooseFileToOpen(SettingsFilter(), doc_.file_name);
  if (!path || path->empty()) return false;
  const std::optional<SettingsFileReport> report = io_.read(doc_, *path);
  if (!report) {
    prompt_.ShowMessage(kErrorCaption, "Could not open the settings file \"" + *path + "\".",
                        PromptIcon::kExclamation);
    return false;
  }
  doc_.file_name = *path;
  file_is_foreign_ = !IsWholeAcceptedFile(*report);
  if (const auto findings = OpenFindings(*report); !findings.empty()) {
    std::string text = "\"" + *path + "\" was not opened as it stands:";
    for (const std::string& finding : findings) text += "\n- " + finding;
    if (file_is_foreign_) text += "\n\nSave asks before it replaces this file.";
    prompt_.ShowMessage(Title(), text, PromptIcon::kExclamation);
  }
  return true;
}

bool DocumentCommands::ConfirmReplacingForeignFile() {
  const std::string question = "\"" + doc_.file_name +
                               "\" was not a whole settings file when it was opened.\n"
                               "Replace it with these settings?";
  switch (prompt_.AskYesNoCancel(Title(), question)) {
    case PromptAnswer::kYes:
      return WriteSettingsFile();
    case PromptAnswer::kNo:
      return SaveSettingsFileAs();
    case PromptAnswer::kCancel:
      return false;
  }
  return false;
}

bool DocumentCommands::SaveSettingsFile() {
  if (doc_.file_name.empty()) return SaveSettingsFileAs();
  if (file_is_foreign_) return ConfirmReplacingForeignFile();
  return WriteSettingsFile();
}

bool DocumentCommands::SaveSettingsFileAs() {
  std::optional<std::string> path = chooser_.ChooseFileToSave(SettingsFilter(), kSettingsExtension);
  if (!path || path->empty()) return false;
  doc_.file_name = SaveAsFileName(*path);
  return WriteSettingsFile();
}

bool DocumentCommands::WriteSettingsFile() {
  if (doc_.file_name.empty()) return false;
  SaveStatus status;
  bool saved = io_.write(doc_, doc_.file_name, &status, {});
  // A read-only file is the user's decision to take back.
  if (!saved && status.refusal == SaveRefusal::kReadOnly &&
      prompt_.AskYesNo(Title(), "\"" + doc_.file_name + "\" is read-only. Save it anyway?")) {
    saved = io_.write(doc_, doc_.file_name, &status, {.replace_read_only = true});
  }
  if (saved) {
    file_is_foreign_ = false;
    return true;
  }
  if (status.refusal == SaveRefusal::kReadOnly) return false;
  std::string text = "Could not save the settings file \"" + doc_.file_name + "\".";
  if (!status.reason.empty()) text += "\n" + status.reason;
  prompt_.ShowMessage(kErrorCaption, text, PromptIcon::kExclamation);
  return false;
}

}  // namespace veltrix
