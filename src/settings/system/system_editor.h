#ifndef VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_
#define VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field_binding.h"
#include "settings/prompts/prompt_editor.h"
#include "settings/system/system_rules.h"

namespace veltrix {

// The System page's controls that edit one field each (power, backlight, the two numbers, the
// password, the security flags, key click, download port and baud rate).
std::span<const FieldBinding> SystemBindings();

// The rest of the System page without any widget: the prompts editor, "Reset" and OK. The
// snapshot for Cancel and the modified flag are the settings sheet's (PageSnapshot).
class SystemEditor {
 public:
  explicit SystemEditor(Document& doc);

  // First showing of the page: load the prompts editor and select its first screen.
  void Initialise();

  Document& document() { return doc_; }
  const Document& document() const { return doc_; }
  PromptEditor& prompts() { return prompts_; }
  const PromptEditor& prompts() const { return prompts_; }

  // The prompts combo and the eight line edits.
  std::vector<std::string> ScreenNames() const;
  void SelectScreen(int screen);
  std::array<PromptRow, kPromptRowsPerScreen> Rows() const;
  void EditPromptLine(int row, std::string_view text);

  // "Reset": the System and prompts defaults, the editor reloaded on its first screen.
  void Reset();
  // OK: pad the texts and the password as the terminal expects them.
  void Apply();

 private:
  Document& doc_;
  PromptEditor prompts_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_
