#ifndef VELTRIX_SETTINGS_EMULATION_EMULATION_CHOICES_H_
#define VELTRIX_SETTINGS_EMULATION_EMULATION_CHOICES_H_

#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix {

// Entries of the Emulation page's lists, in stored-index order.
std::span<const std::string_view> LanguageChoices();
std::span<const std::string_view> NavigatorChoices();
std::span<const std::string_view> FieldLengthChoices();

// "Language:" changed: stores the language and the font size and scroll steps that suit it
// (double-byte languages: large font, steps 14 and 3; others small, 19 and 7).
void ChooseLanguage(Document& doc, int language);
// A font size radio button: when it differs from the stored size, stores it with its steps and
// answers true (the page then rewrites the step edits); the same size changes nothing.
bool ChooseFontSize(Document& doc, int font_size);
// "Cursor Tracking" and "Lock Screen" are each other's complement.
void SetCursorTracking(Document& doc, bool on);
void SetLockScreen(Document& doc, bool on);

// The Emulation page's controls, each with its field and rule: the language that also sets the
// font size and steps, the font size that does so only when it changes, the numeric edits, the
// two key combos under the claim rule, "Cursor Tracking" and "Lock Screen" as complements.
std::span<const FieldBinding> EmulationBindings();

// "Reset" on the Emulation page: the emulation defaults, then the function key defaults, which
// mark again the keys the login, logout and switch-key fields still name.
void ResetEmulationSection(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_EMULATION_CHOICES_H_
