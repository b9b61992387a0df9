#include "capture/terminal_preview.h"

#include <algorithm>

#include "capture/screen_file.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"
#include "settings/screen/terminal_screen_sizes.h"

namespace veltrix {

TerminalPreview PreviewPage(const Document& doc, int page, const PageRecord& screen) {
  TerminalPreview preview;
  const int font = static_cast<int>(ReadNumber(doc.record, kFontSize));
  const TerminalScreenSize* size =
      FindTerminalScreenSize(font, static_cast<int>(ReadNumber(doc.record, kReformatPageTo, page)));
  if (size == nullptr) size = &TerminalScreenSizes(font).front();  // a damaged index
  preview.size_text = std::string(size->text);
  preview.chars_per_line = size->chars_per_line;
  const std::vector<FieldEntry> fields = FieldEntries(screen);
  for (int l = 0; l < size->lines && l < kTerminalLinesPerPage; ++l) {
    std::string line = ReadText(doc.record, kTerminalScreen, page, l);
    const auto row = static_cast<int>(ReadNumber(doc.record, kHostRow, page, l));
    const auto column = static_cast<int>(ReadNumber(doc.record, kHostColumn, page, l));
    const auto field = std::ranges::find_if(
        fields, [&](const FieldEntry& f) { return f.row == row && f.column == column; });
    if (field != fields.end()) {
      line += '[';
      for (int i = 0; i < field->length; ++i) {
        const int cell = row * kHostScreenColumns + column + i;
        const std::uint8_t b =
            ImageCell(screen, cell / kHostScreenColumns, cell % kHostScreenColumns);
        line += static_cast<char>(b == 0 ? ' ' : b);
      }
      line += ']';
    }
    line.resize(static_cast<std::size_t>(size->chars_per_line), ' ');
    preview.lines.push_back(std::move(line));
  }
  return preview;
}

}  // namespace veltrix
