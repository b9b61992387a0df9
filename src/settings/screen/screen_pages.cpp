#include "settings/screen/screen_pages.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "settings/emulation/emulation_settings.h"
#include "settings/screen/terminal_screen_sizes.h"

namespace veltrix {
namespace {

constexpr auto kFields = FieldPointers(kScreenPageFieldTable);

// The section's fields end where the unused tail begins.
static_assert(kHostColumn.LastByte() == 57658);
static_assert(kTerminalScreen.LastByte() + 1 == kHostRow.offset);
static_assert(kHostRow.LastByte() + 1 == kCharacteristicString.offset);
static_assert(kCharacteristicString.LastByte() + 1 == kCharacteristicLength.offset);

template <typename... Args>
std::string Format(const char* format, Args... args) {
  char line[100];
  std::snprintf(line, sizeof line, format, args...);
  return line;
}

// The emulation section owns the font size; it chooses which list of sizes the pages use.
int FontSizeOf(const Document& doc) { return static_cast<int>(ReadNumber(doc.record, kFontSize)); }

void AppendPageLines(const Document& doc, int page, SummaryNode& item) {
  const int size_index = static_cast<int>(ReadNumber(doc.record, kReformatPageTo, page));
  const TerminalScreenSize* size = FindTerminalScreenSize(FontSizeOf(doc), size_index);
  // A size index no list knows (a damaged file) still lists every line, so no text is hidden.
  const std::string size_text =
      size ? std::string(size->text) : Format("unknown size %d", size_index);
  const int lines = size ? size->lines : kTerminalLinesPerPage;

  item.Add(Format("Reformat page %2d to %s", page + 1, size_text.c_str()));
  const bool by_row_column = ReadNumber(doc.record, kCursorLocationIsSpecifiedBy) != 0;
  item.Add(Format("Cursor location is specified by : %s",
                  by_row_column ? "Host row and column" : "Underline character"));
  for (int line = 0; line < lines; ++line) {
    SummaryNode& line_item = item.Add(Format("Terminal Line No : %2d", line + 1));
    const std::string text = ReadText(doc.record, kTerminalScreen, page, line);
    if (text.empty()) continue;
    line_item.Add(Format("Host Row, Column : %d, %d",
                         static_cast<int>(ReadNumber(doc.record, kHostRow, page, line)),
                         static_cast<int>(ReadNumber(doc.record, kHostColumn, page, line))));
    line_item.Add("Terminal Screen : " + text);
  }
}

}  // namespace

std::span<const FieldDef* const> ScreenPageFields() { return kFields; }

void SetScreenPageDefaults(Document& doc) {
  for (const FieldDef* f : kFields) ApplyDefault(doc.record, *f);
  for (PageRecord& page : doc.pages) page.fill(0);
}

void AppendScreenPageSummary(const Document& doc, SummaryNode& parent) {
  // A damaged count beyond the 50 page slots lists the 50 slots there are.
  const int pages = std::min<int>(static_cast<int>(ReadNumber(doc.record, kTotalPages)),
                                  static_cast<int>(kPageCount));
  for (int page = 0; page < pages; ++page) {
    AppendPageLines(doc, page, parent.Add(Format("Page %2d", page + 1)));
  }
}

}  // namespace veltrix
