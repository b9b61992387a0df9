#include "settings/system/system_editor.h"

#include "settings/prompts/prompts.h"
#include "settings/system/system_settings.h"

namespace veltrix {

SystemEditor::SystemEditor(Document& doc) : doc_(doc) {}

void SystemEditor::Initialise() {
  prompts_.Select(0);
  prompts_.Load(doc_.record);
}

std::uint32_t SystemEditor::Value(const FieldDef& field) const {
  return ReadNumber(doc_.record, field);
}

std::string SystemEditor::Password() const { return ReadText(doc_.record, kPassword); }

void SystemEditor::SetValue(const FieldDef& field, std::int64_t value) {
  if (!field.numeric() || value < field.min || value > field.max) return;
  WriteNumber(doc_.record, field, static_cast<std::uint32_t>(value));
}

NumericEdit SystemEditor::EditNumber(const FieldDef& field, std::string_view text) {
  NumericEdit edit = CorrectFieldEdit(text, field);
  WriteNumber(doc_.record, field, edit.value);
  return edit;
}

NumericEdit SystemEditor::EditAutoPowerOff(std::string_view text) {
  return EditNumber(kAutoPowerOff, text);
}

NumericEdit SystemEditor::EditIdle(std::string_view text) {
  return EditNumber(kTurnOffIfIdleFor, text);
}

void SystemEditor::EditPassword(std::string_view text) { StorePassword(doc_.record, text); }

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
