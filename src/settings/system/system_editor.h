#ifndef VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_
#define VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/prompts/prompt_editor.h"
#include "settings/system/system_rules.h"

namespace veltrix {

// Everything the System page does to the document, without any widget: it writes the record as
// the user works and owns the prompts editor. The snapshot for Cancel and the modified flag are
// the settings sheet's (PageSnapshot).
class SystemEditor {
 public:
  explicit SystemEditor(Document& doc);

  // First showing of the page: load the prompts editor and select its first screen.
  void Initialise();

  Document& document() { return doc_; }
  const Document& document() const { return doc_; }
  PromptEditor& prompts() { return prompts_; }
  const PromptEditor& prompts() const { return prompts_; }

  // Values to load into the controls.
  std::uint32_t Value(const FieldDef& field) const;
  std::string Password() const;

  // Radio buttons, check boxes and combos store their index or state at once. Values outside the
  // field's range (a combo with no selection) are ignored.
  void SetValue(const FieldDef& field, std::int64_t value);

  // The Auto Power Off and idle edits, on every change of their text.
  NumericEdit EditAutoPowerOff(std::string_view text);
  NumericEdit EditIdle(std::string_view text);
  void EditPassword(std::string_view text);

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
  NumericEdit EditNumber(const FieldDef& field, std::string_view text);

  Document& doc_;
  PromptEditor prompts_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SYSTEM_SYSTEM_EDITOR_H_
