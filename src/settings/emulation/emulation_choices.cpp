#include "settings/emulation/emulation_choices.h"

#include <array>

#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/number_edit.h"
#include "settings/field.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 7> kLanguages = {"Single Byte Character",
                                                        "Tranditional Chinese",
                                                        "Simplified Chinese",
                                                        "Korean",
                                                        "Japanese",
                                                        "Greek",
                                                        "French"};
constexpr std::array<std::string_view, 4> kNavigators = {"None", "Icon", "20*15", "32*24"};
constexpr std::array<std::string_view, 3> kFieldLengths = {"Reject", "Truncate",
                                                           "Split To Next Field"};

struct FontSteps {
  std::uint32_t horizontal;
  std::uint32_t vertical;
};
// Scroll steps that fit the small (6x8) and large (8x16) fonts on the terminal's display.
constexpr FontSteps kStepsOfFont[2] = {{19, 7}, {14, 3}};

void StoreFontSize(Document& doc, int font_size) {
  WriteNumber(doc.record, kFontSize, static_cast<std::uint32_t>(font_size));
  const FontSteps& steps = kStepsOfFont[font_size == 1 ? 1 : 0];
  WriteNumber(doc.record, kHorizontalSteps, steps.horizontal);
  WriteNumber(doc.record, kVerticalSteps, steps.vertical);
}

}  // namespace

std::span<const std::string_view> LanguageChoices() { return kLanguages; }
std::span<const std::string_view> NavigatorChoices() { return kNavigators; }
std::span<const std::string_view> FieldLengthChoices() { return kFieldLengths; }

void ChooseLanguage(Document& doc, int language) {
  WriteNumber(doc.record, kEmulationType, static_cast<std::uint32_t>(language));
  StoreFontSize(doc, IsDoubleByteLanguage(language) ? 1 : 0);
}

bool ChooseFontSize(Document& doc, int font_size) {
  if (static_cast<int>(ReadNumber(doc.record, kFontSize)) == font_size) return false;
  StoreFontSize(doc, font_size);
  return true;
}

void SetCursorTracking(Document& doc, bool on) {
  WriteNumber(doc.record, kCursorTracking, on ? 1 : 0);
  WriteNumber(doc.record, kLockScreen, on ? 0 : 1);
}

void SetLockScreen(Document& doc, bool on) { SetCursorTracking(doc, !on); }

void ResetEmulationSection(Document& doc) {
  SetEmulationDefaults(doc);
  SetFunctionKeyDefaults(doc);
}

namespace {

constexpr FieldBinding kEmulationBindings[] = {
    {"language", ControlKind::kList, &kEmulationType, 0, nullptr,
     [](Document& doc, std::int64_t v) { ChooseLanguage(doc, static_cast<int>(v)); }},
    {"font_size", ControlKind::kRadioGroup, &kFontSize, 0, nullptr,
     [](Document& doc, std::int64_t v) { ChooseFontSize(doc, static_cast<int>(v)); }},
    {"field_length", ControlKind::kRadioGroup, &kFieldLengthIfExceed},
    {"view_org_x", ControlKind::kNumberEdit, &kViewOrgX, 0,
     [](std::string_view text, const FieldDef&) { return ViewOriginEdit(text, 80); }},
    {"view_org_y", ControlKind::kNumberEdit, &kViewOrgY, 0,
     [](std::string_view text, const FieldDef&) { return ViewOriginEdit(text, 25); }},
    {"lock_screen", ControlKind::kCheckBox, &kLockScreen, 0, nullptr,
     [](Document& doc, std::int64_t v) { SetLockScreen(doc, v != 0); }},
    {"navigator", ControlKind::kList, &kNavigator},
    {"navigator_key", ControlKind::kKeyCombo, &kNavigatorKey},
    {"horizontal_steps", ControlKind::kNumberEdit, &kHorizontalSteps, 0,
     [](std::string_view text, const FieldDef&) { return ScrollStepEdit(text); }},
    {"vertical_steps", ControlKind::kNumberEdit, &kVerticalSteps, 0,
     [](std::string_view text, const FieldDef&) { return ScrollStepEdit(text); }},
    {"cursor_tracking", ControlKind::kCheckBox, &kCursorTracking, 0, nullptr,
     [](Document& doc, std::int64_t v) { SetCursorTracking(doc, v != 0); }},
    {"trim_spaces", ControlKind::kCheckBox, &kTrimSpaces},
    {"remove_empty_line", ControlKind::kCheckBox, &kRemoveEmptyLine},
    {"disable_local_echo", ControlKind::kCheckBox, &kDisableLocalEcho},
    {"message_line", ControlKind::kList, &kMessageLineNumber},
    {"message_key", ControlKind::kKeyCombo, &kMessageFunctionKey},
    {"message_time_out", ControlKind::kNumberEdit, &kMessageTimeOut, 0,
     [](std::string_view text, const FieldDef&) { return MessageTimeOutEdit(text); }},
    {"exclude_string", ControlKind::kTextEdit, &kExcludeString},
};

}  // namespace

std::span<const FieldBinding> EmulationBindings() { return kEmulationBindings; }

}  // namespace veltrix
