#ifndef VELTRIX_SETTINGS_SCREEN_SCREEN_PAGES_H_
#define VELTRIX_SETTINGS_SCREEN_SCREEN_PAGES_H_

#include <array>
#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The screen-page section of the settings record: for each of the 50 pages the terminal screen
// size, 24 terminal lines with their text and the host field they show, and the characteristic
// cells that tell the pages' host screens apart.
inline constexpr int kTerminalLinesPerPage = 24;
inline constexpr int kTerminalLineWidth = 41;  // 40 characters and the NUL
inline constexpr int kCharacteristicCells = 20;
inline constexpr int kDefaultCharacteristicLength = 20;
inline constexpr std::uint8_t kNoHostField = 255;  // HostRow/HostColumn of a line without field

inline constexpr auto kScreenPageFieldTable = std::to_array<FieldDef>({
    {.name = "ScreensLoaded",
     .offset = 4965,
     .max = 1,
     .meaning = "1 once a screen file was loaded"},
    {.name = "TotalPages", .offset = 4966, .max = kPageCount, .meaning = "number of pages"},
    {.name = "ReformatPageTo",
     .offset = 4967,
     .count = kPageCount,
     .stride = 1,
     .max = 4,
     .meaning = "terminal screen size of the page, index into the size list"},
    {.name = "TerminalScreen",
     .offset = 5017,
     .width = kTerminalLineWidth,
     .type = FieldType::kText,
     .count = kPageCount,
     .stride = kTerminalLineWidth * kTerminalLinesPerPage,
     .count2 = kTerminalLinesPerPage,
     .stride2 = kTerminalLineWidth,
     .meaning = "text of a terminal line"},
    {.name = "HostRow",
     .offset = 54217,
     .count = kPageCount,
     .stride = kTerminalLinesPerPage,
     .count2 = kTerminalLinesPerPage,
     .stride2 = 1,
     .default_value = kNoHostField,
     .meaning = "host row of the field shown on the line, 255 = none"},
    {.name = "CharacteristicString",
     .offset = 55417,
     .width = kCharacteristicCells,
     .type = FieldType::kBytes,
     .count = kPageCount,
     .stride = kCharacteristicCells,
     .meaning = "the page's characters at the characteristic cells"},
    {.name = "CharacteristicLength",
     .offset = 56417,
     .max = kCharacteristicCells,
     .default_value = kDefaultCharacteristicLength,
     .meaning = "number of characteristic cells"},
    {.name = "CharacteristicRow",
     .offset = 56418,
     .count = kCharacteristicCells,
     .stride = 1,
     .meaning = "host row of a characteristic cell"},
    {.name = "CharacteristicColumn",
     .offset = 56438,
     .count = kCharacteristicCells,
     .stride = 1,
     .meaning = "host column of a characteristic cell"},
    {.name = "CursorLocationIsSpecifiedBy",
     .offset = 56458,
     .max = 1,
     .meaning = "0 underline character, 1 host row and column"},
    {.name = "HostColumn",
     .offset = 56459,
     .count = kPageCount,
     .stride = kTerminalLinesPerPage,
     .count2 = kTerminalLinesPerPage,
     .stride2 = 1,
     .default_value = kNoHostField,
     .meaning = "host column of the field shown on the line, 255 = none"},
});
inline constexpr const FieldDef& kScreensLoaded =
    FieldNamed(kScreenPageFieldTable, "ScreensLoaded");
inline constexpr const FieldDef& kTotalPages = FieldNamed(kScreenPageFieldTable, "TotalPages");
inline constexpr const FieldDef& kReformatPageTo =
    FieldNamed(kScreenPageFieldTable, "ReformatPageTo");
inline constexpr const FieldDef& kTerminalScreen =
    FieldNamed(kScreenPageFieldTable, "TerminalScreen");
inline constexpr const FieldDef& kHostRow = FieldNamed(kScreenPageFieldTable, "HostRow");
inline constexpr const FieldDef& kCharacteristicString =
    FieldNamed(kScreenPageFieldTable, "CharacteristicString");
inline constexpr const FieldDef& kCharacteristicLength =
    FieldNamed(kScreenPageFieldTable, "CharacteristicLength");
inline constexpr const FieldDef& kCharacteristicRow =
    FieldNamed(kScreenPageFieldTable, "CharacteristicRow");
inline constexpr const FieldDef& kCharacteristicColumn =
    FieldNamed(kScreenPageFieldTable, "CharacteristicColumn");
inline constexpr const FieldDef& kCursorLocationIsSpecifiedBy =
    FieldNamed(kScreenPageFieldTable, "CursorLocationIsSpecifiedBy");
inline constexpr const FieldDef& kHostColumn = FieldNamed(kScreenPageFieldTable, "HostColumn");

// Every field of this section, declared once.
std::span<const FieldDef* const> ScreenPageFields();

// The section's default routine (run by SetDefaults in the fixed order, and by Reset): no pages,
// every line empty and without field, K = 20, and all 50 page records zero.
void SetScreenPageDefaults(Document& doc);

// Appends this section's summary lines below `parent`: one "Page" item per page with its size,
// cursor rule and terminal lines.
void AppendScreenPageSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SCREEN_SCREEN_PAGES_H_
