#ifndef VELTRIX_SHELL_COMMANDS_H_
#define VELTRIX_SHELL_COMMANDS_H_

#include <functional>
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
  void Configure() { open_settings_sheet_(); }
  // The product box chose `index`: true when the document was replaced by its defaults.
  bool ChangeProduct(int index);
  // Closing: true when the window may close (asks "Save the program ?" while modified).
  bool QueryClose();

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

  Document& doc_;
  UserPrompt& prompt_;
  FileChooser& chooser_;
  std::function<void()> open_settings_sheet_;
  SettingsFileIo io_;
  // The open file was not a whole, accepted settings file: Save asks before replacing it.
  bool file_is_foreign_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_COMMANDS_H_
