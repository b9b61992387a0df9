#include "settings/emulation/emulation_settings.h"

#include <array>
#include <string>
#include <string_view>

#include "settings/emulation/choice_text.h"
#include "settings/emulation/emulation_choices.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_names.h"

namespace veltrix {
namespace {

constexpr auto kFields = FieldPointers(kEmulationFieldTable);

constexpr std::array<std::string_view, 2> kFontSizeSummary = {"Small (6*8)", "Large (8*16)"};

// What the host session announces itself as for this language, with the language named when it
// is not the plain single-byte one.
std::string EmulationTypeText(int type) {
  const std::string terminal = IsDoubleByteLanguage(type) ? "IBM-5555-B01" : "IBM-3179-2";
  const auto languages = LanguageChoices();
  if (type <= 0 || type >= static_cast<int>(languages.size())) return terminal;
  return terminal + " (" + std::string(languages[type]) + ")";
}

int Read(const Document& doc, const FieldDef& f) {
  return static_cast<int>(ReadNumber(doc.record, f));
}

void AppendScrollLines(const Document& doc, SummaryNode& branch) {
  branch.Add("Navigator : " + ChoiceText(NavigatorChoices(), Read(doc, kNavigator)));
  branch.Add("Navigator Key : " + KeyFieldChoiceName(Read(doc, kNavigatorKey)));
  branch.Add("Horizontal Steps : " + std::to_string(Read(doc, kHorizontalSteps)));
  branch.Add("Vertical Steps : " + std::to_string(Read(doc, kVerticalSteps)));
  branch.Add("View Org X : " + std::to_string(Read(doc, kViewOrgX)));
  branch.Add("View Org Y : " + std::to_string(Read(doc, kViewOrgY)));
  branch.Add("Cursor Tracking : " + std::string(FlagText(Read(doc, kCursorTracking))));
  branch.Add("Trim Spaces : " + std::string(FlagText(Read(doc, kTrimSpaces))));
  branch.Add("Local Echo : " + std::string(FlagText(Read(doc, kDisableLocalEcho) == 0)));
}

void AppendMessageLines(const Document& doc, SummaryNode& branch) {
  branch.Add("Message Line Number: " + std::to_string(Read(doc, kMessageLineNumber)));
  branch.Add("Message Function Key: " + KeyFieldChoiceName(Read(doc, kMessageFunctionKey)));
  branch.Add("Message Time Out: " + std::to_string(Read(doc, kMessageTimeOut)) + " * 0.1 Sec");
  branch.Add("Exclude String: " + ReadText(doc.record, kExcludeString));
}

}  // namespace

std::span<const FieldDef* const> EmulationFields() { return kFields; }

void SetEmulationDefaults(Document& doc) {
  const int navigator_key = Read(doc, kNavigatorKey);
  if (navigator_key != 0) ReleaseFunctionKey(doc, navigator_key);
  for (const FieldDef* f : EmulationFields()) {
    // "Reset" keeps the user's choice for over-long fields; New has it zero already.
    if (f != &kFieldLengthIfExceed && f->numeric()) ApplyDefault(doc.record, *f);
  }
  SetEmulationMessageDefaults(doc);
}

void AppendEmulationSummary(const Document& doc, SummaryNode& parent) {
  parent.Add("Emulation Type : " + EmulationTypeText(Read(doc, kEmulationType)));
  parent.Add("Font Size : " + ChoiceText(kFontSizeSummary, Read(doc, kFontSize)));
  parent.Add("Field Length If Exceed : " +
             ChoiceText(FieldLengthChoices(), Read(doc, kFieldLengthIfExceed)));
  AppendScrollLines(doc, parent.Add("Screen Scroll & Control"));
  AppendFunctionKeySummary(doc, parent.Add("Function Key Mapping"));
  AppendMessageLines(doc, parent.Add("Message"));
}

void SetEmulationMessageDefaults(Document& doc) {
  ApplyDefault(doc.record, kMessageLineNumber);
  ApplyDefault(doc.record, kMessageTimeOut);
  // Only the text and its NUL: the bytes behind them stay as they are.
  WriteText(doc.record, kExcludeString, kExcludeString.default_text);
}

}  // namespace veltrix
