#ifndef VELTRIX_SHELL_COMMANDS_H_
#define VELTRIX_SHELL_COMMANDS_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "resources/strings.h"
#include "settings/document.h"
#include "settings/settings_file.h"
#include "shell/ports.h"

namespace veltrix {

inline constexpr std::string_view kPleaseSelectProduct = "Please select product !!";
inline constexpr std::string_view kSaveTheProgram = "Save the program ?";
inline constexpr std::string_view kSettingsFilterText = "Settings (*.QVL)";
inline constexpr std::string_view kSettingsFilterPattern = "*.QVL";
inline constexpr std::string_view kSettingsExtension = "QVL";
inline constexpr std::string_view kProductChangedStatus =
    "The product change replaced the settings; Edit > Undo (Ctrl+Z) brings them back.";
inline constexpr std::string_view kUndoneStatus =
    "The settings before the product change are back.";

// Reading and writing a settings file at a path; the real functions by default, fakes in tests.
struct SettingsFileIo {
  // Nothing when the file cannot be opened; else what Open's rules found.
  std::function<std::optional<SettingsFileReport>(Document&, const std::string&)> read;
  std::function<bool(Document&, const std::string&, SaveStatus*, SaveOptions)> write;

  static SettingsFileIo Real();
};

// The document's life: New, Open, Save, Save As, the product box and closing, against the
// document, the user prompt, the file chooser and the settings sheet (a callback that shows it
// modally and returns when it is closed).
class DocumentCommands {
 public:
  DocumentCommands(Document& doc, UserPrompt& prompt, FileChooser& chooser,
                   std::function<void()> open_settings_sheet,
                   SettingsFileIo io = SettingsFileIo::Real());

  // A command that needs a product, while none is chosen: shows "Please select product !!" and
  // returns false. The caller then puts the focus on the product box.
  bool CheckProduct(int command_id);

  void New();
  // True when a file was read (the sheet has been shown; the caller selects the product).
  // With `path` (a file named on the command line) the file dialog is not shown.
  bool Open(const std::string* path = nullptr);
  bool Save();
  bool SaveAs();
  // The sheet; once it has changed the document, Undo no longer applies.
  void Configure() {
    open_settings_sheet_();
    if (HasUnsavedChanges()) undo_.reset();
  }
  // The product box chose `index`: true when the document was replaced by its defaults.
  bool ChangeProduct(int index);
  // Closing: true when the window may close (asks "Save the program ?" while modified).
  bool QueryClose();
  // Edit > Undo: the document a product change replaced comes back, until the next change.
  bool CanUndo() const { return undo_ != nullptr; }
  bool Undo();
  // The document holds changes that are not in a file: the modified flag is set, or its bytes
  // differ from what was last opened, saved or created. The title's "*" and the question
  // "Save the program ?" follow it.
  bool HasUnsavedChanges() const;

  // The file operations: each returns true when the file was read or written. A file that
  // cannot be read or written is reported with the "Error" caption.
  bool OpenSettingsFile(const std::string* path = nullptr);
  bool SaveSettingsFile();
  bool SaveSettingsFileAs();
  bool WriteSettingsFile();

 private:
  // Asks before Save replaces a file that was not a whole, accepted settings file when it was
  // opened: Yes replaces it, No saves under another name. False when nothing is to be written.
  bool ConfirmReplacingForeignFile();

  // While modified, asks "Save the program ?"; Yes saves. False on Cancel and when the save
  // fails or its file dialog is cancelled, so unsaved changes are never dropped.
  bool OfferToSave();
  // What was last opened, saved or created is what the document holds now.
  void TakeBaseline();

  Document& doc_;
  UserPrompt& prompt_;
  FileChooser& chooser_;
  std::function<void()> open_settings_sheet_;
  SettingsFileIo io_;
  // The open file was not a whole, accepted settings file: Save asks before replacing it.
  bool file_is_foreign_ = false;
  // The bytes of the file as last opened, saved or created: the record and the pages.
  std::unique_ptr<SettingsRecord> baseline_record_;
  std::unique_ptr<std::array<PageRecord, kPageCount>> baseline_pages_;
  // Before the last product change, for Undo.
  struct Undoable {
    std::unique_ptr<Document> doc;
    bool file_is_foreign = false;
    std::unique_ptr<SettingsRecord> baseline_record;
    std::unique_ptr<std::array<PageRecord, kPageCount>> baseline_pages;
  };
  std::unique_ptr<Undoable> undo_;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_COMMANDS_H_
