#ifndef VELTRIX_SHELL_PORTS_H_
#define VELTRIX_SHELL_PORTS_H_

#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

// How a message box presents itself.
enum class PromptIcon { kNone, kInformation, kExclamation, kQuestion };

enum class PromptAnswer { kYes, kNo, kCancel };

// The user prompt port: modal message boxes. The Qt adapter shows real boxes; tests inject
// answers through a fake.
class UserPrompt {
 public:
  virtual ~UserPrompt() = default;
  // A message with an OK button.
  virtual void ShowMessage(std::string_view caption, std::string_view text, PromptIcon icon) = 0;
  // A question with Yes, No and Cancel buttons (question icon).
  virtual PromptAnswer AskYesNoCancel(std::string_view caption, std::string_view text) = 0;
  // A question with Yes and No only (question icon); true for Yes.
  virtual bool AskYesNo(std::string_view caption, std::string_view text) {
    return AskYesNoCancel(caption, text) == PromptAnswer::kYes;
  }
};

// One filter of a file dialog: the description shown ("Settings (*.QVL)") and the pattern
// ("*.QVL").
struct FileFilter {
  std::string description;
  std::string pattern;
};

// The file chooser port: the standard open and save dialogs. Both return nothing on cancel.
class FileChooser {
 public:
  virtual ~FileChooser() = default;
  // Asks for an existing file; `initial` is the name the dialog starts with.
  virtual std::optional<std::string> ChooseFileToOpen(const FileFilter& filter,
                                                      std::string_view initial) = 0;
  // Asks for a name to save under, confirming before an existing file is replaced.
  // `default_extension` (without the dot) is appended by the dialog when the name has none.
  virtual std::optional<std::string> ChooseFileToSave(const FileFilter& filter,
                                                      std::string_view default_extension) = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_PORTS_H_
