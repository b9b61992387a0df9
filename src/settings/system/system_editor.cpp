#include "settings/system/system_editor.h"

#include <array>

#include "settings/prompts/prompts.h"
#include "settings/system/system_settings.h"

namespace veltrix {

namespace {

// The controls that edit one field each; the security check boxes follow from their table.
constexpr auto kBindings = [] {
  std::array<FieldBinding, 8 + kSecurityFlags.size()> table{{
      {"power_on", ControlKind::kRadioGroup, &kPowerOn},
      {"backlight", ControlKind::kRadioGroup, &kBacklight},
      {"auto_power_off", ControlKind::kNumberEdit, &kAutoPowerOff, 0, CorrectFieldEdit},
      {"idle", ControlKind::kNumberEdit, &kTurnOffIfIdleFor, 0, CorrectFieldEdit},
      {"password", ControlKind::kTextEdit, &kPassword},
      {"key_click", ControlKind::kCheckBox, &kKeyClick},
      {"download_via", ControlKind::kList, &kDownloadVia},
      {"baud_rate", ControlKind::kList, &kBaudRate},
  }};
  for (std::size_t i = 0; i < kSecurityFlags.size(); ++i) {
    table[8 + i] = {kSecurityFlags[i].field->name, ControlKind::kCheckBox, kSecurityFlags[i].field};
  }
  return table;
}();

}  // namespace

std::span<const FieldBinding> SystemBindings() { return kBindings; }

SystemEditor::SystemEditor(Document& doc) : doc_(doc) {}

void SystemEditor::Initialise() {
  prompts_.Select(0);
  prompts_.Load(doc_.record);
}

std::vector<std::string> SystemEditor::ScreenNames() const {
  return PromptScreenNames(doc_.product());
}

void SystemEditor::SelectScreen(int screen) { prompts_.Select(screen); }

std::array<PromptRow, kPromptRowsPerScreen> SystemEditor::Rows() const {
  return prompts_.Rows(doc_.product());
}

void SystemEditor::EditPromptLine(int row, std::string_view text) {
  prompts_.EditLine(doc_.record, row, text);
}

void SystemEditor::Reset() {
  SetSystemDefaults(doc_);
  SetPromptDefaults(doc_);
  prompts_.Select(0);
  prompts_.Load(doc_.record);
}

void SystemEditor::Apply() {
  PadPromptsForTerminal(doc_);
  FinishPassword(doc_.record);
}

}  // namespace veltrix
