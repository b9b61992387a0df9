#ifndef VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_
#define VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_

#include <array>
#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The emulation section: options of the terminal's 5250 client and its message line. The reserved
// bytes are ones no control edits; the terminal expects these values there.
inline constexpr auto kEmulationFieldTable = std::to_array<FieldDef>({
    {.name = "EmulationType",
     .offset = 4449,
     .max = 6,
     .meaning = "host language; 1-4 are the double-byte languages"},
    {.name = "Reserved4450", .offset = 4450, .meaning = "reserved, 0", .reserved = true},
    {.name = "FontSize", .offset = 4451, .max = 1, .meaning = "0 Small (6x8), 1 Large (8x16)"},
    {.name = "Reserved4452", .offset = 4452, .meaning = "reserved, 0", .reserved = true},
    {.name = "Reserved4453", .offset = 4453, .meaning = "reserved, 0", .reserved = true},
    {.name = "Navigator",
     .offset = 4454,
     .max = 3,
     .default_value = 1,
     .meaning = "0 None, 1 Icon, 2 20*15, 3 32*24"},
    // Key field indices: 0 none, 1-9 FN+1..FN+9, 10 FN+0.
    {.name = "NavigatorKey",
     .offset = 4455,
     .max = 10,
     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0",
     .key_role = kRoleNavigatorKey},
    {.name = "HorizontalSteps",
     .offset = 4456,
     .min = 1,
     .max = 255,
     .default_value = 19,
     .meaning = "horizontal scroll step"},
    {.name = "VerticalSteps",
     .offset = 4457,
     .min = 1,
     .max = 255,
     .default_value = 7,
     .meaning = "vertical scroll step"},
    {.name = "ViewOrgX",
     .offset = 4458,
     .max = 79,
     .meaning = "view origin column of a locked screen"},
    {.name = "ViewOrgY",
     .offset = 4459,
     .max = 24,
     .meaning = "view origin row of a locked screen"},
    {.name = "CursorTracking",
     .offset = 4460,
     .max = 1,
     .default_value = 1,
     .meaning = "1 the view follows the cursor"},
    {.name = "TrimSpaces", .offset = 4461, .max = 1, .meaning = "1 Trim Spaces"},
    {.name = "RemoveEmptyLine", .offset = 4462, .max = 1, .meaning = "1 Remove Empty Line"},
    {.name = "Reserved4463", .offset = 4463, .meaning = "reserved, 0", .reserved = true},
    {.name = "Reserved4464",
     .offset = 4464,
     .default_value = 20,
     .meaning = "reserved, 20",
     .reserved = true},
    {.name = "DisableLocalEcho", .offset = 4465, .max = 1, .meaning = "1 local echo off"},
    // Always the complement of CursorTracking.
    {.name = "LockScreen",
     .offset = 4466,
     .max = 1,
     .meaning = "1 Lock Screen (the complement of CursorTracking)"},
    // Index 0-23 of the message line in the list "1".."24".
    {.name = "MessageLineNumber",
     .offset = 59660,
     .max = 23,
     .default_value = 23,
     .meaning = "index 0-23 of the message line (lines 1-24)"},
    {.name = "FieldLengthIfExceed",
     .offset = 59661,
     .max = 2,
     .meaning = "0 Reject, 1 Truncate, 2 Split To Next Field"},
    {.name = "MessageFunctionKey",
     .offset = 59662,
     .max = 10,
     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0",
     .key_role = kRoleMessageKey},
    {.name = "MessageTimeOut", .offset = 59663, .default_value = 3, .meaning = "message time-out"},
    {.name = "ExcludeString",
     .offset = 59664,
     .width = 20,
     .type = FieldType::kText,
     .meaning = "text of at most 19 characters",
     .default_text = "COPYRIGHT"},
});
inline constexpr const FieldDef& kEmulationType = FieldNamed(kEmulationFieldTable, "EmulationType");
inline constexpr const FieldDef& kFontSize = FieldNamed(kEmulationFieldTable, "FontSize");
inline constexpr const FieldDef& kNavigator = FieldNamed(kEmulationFieldTable, "Navigator");
inline constexpr const FieldDef& kNavigatorKey = FieldNamed(kEmulationFieldTable, "NavigatorKey");
inline constexpr const FieldDef& kHorizontalSteps =
    FieldNamed(kEmulationFieldTable, "HorizontalSteps");
inline constexpr const FieldDef& kVerticalSteps = FieldNamed(kEmulationFieldTable, "VerticalSteps");
inline constexpr const FieldDef& kViewOrgX = FieldNamed(kEmulationFieldTable, "ViewOrgX");
inline constexpr const FieldDef& kViewOrgY = FieldNamed(kEmulationFieldTable, "ViewOrgY");
inline constexpr const FieldDef& kCursorTracking =
    FieldNamed(kEmulationFieldTable, "CursorTracking");
inline constexpr const FieldDef& kTrimSpaces = FieldNamed(kEmulationFieldTable, "TrimSpaces");
inline constexpr const FieldDef& kRemoveEmptyLine =
    FieldNamed(kEmulationFieldTable, "RemoveEmptyLine");
inline constexpr const FieldDef& kDisableLocalEcho =
    FieldNamed(kEmulationFieldTable, "DisableLocalEcho");
inline constexpr const FieldDef& kLockScreen = FieldNamed(kEmulationFieldTable, "LockScreen");
inline constexpr const FieldDef& kMessageLineNumber =
    FieldNamed(kEmulationFieldTable, "MessageLineNumber");
inline constexpr const FieldDef& kFieldLengthIfExceed =
    FieldNamed(kEmulationFieldTable, "FieldLengthIfExceed");
inline constexpr const FieldDef& kMessageFunctionKey =
    FieldNamed(kEmulationFieldTable, "MessageFunctionKey");
inline constexpr const FieldDef& kMessageTimeOut =
    FieldNamed(kEmulationFieldTable, "MessageTimeOut");
inline constexpr const FieldDef& kExcludeString = FieldNamed(kEmulationFieldTable, "ExcludeString");

// Every field of this section, declared once.
std::span<const FieldDef* const> EmulationFields();

// The section's default routine (run by SetDefaults in the fixed order, and by "Reset"): releases
// the navigator's function key, then restores every field but `FieldLengthIfExceed`.
void SetEmulationDefaults(Document& doc);

// Appends this section's summary lines below `parent` (the "Emulation" item), including the
// "Function Key Mapping" branch.
void AppendEmulationSummary(const Document& doc, SummaryNode& parent);

// Gives `MessageLineNumber`, `MessageTimeOut` and `ExcludeString` their defaults (also used when
// a previous-layout file is converted on open).
void SetEmulationMessageDefaults(Document& doc);

// Double-byte host languages (Traditional/Simplified Chinese, Korean, Japanese).
constexpr bool IsDoubleByteLanguage(int emulation_type) {
  return emulation_type >= 1 && emulation_type <= 4;
}

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_
