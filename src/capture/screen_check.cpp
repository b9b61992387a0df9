#include "capture/screen_check.h"

#include <algorithm>

#include "capture/identification.h"
#include "capture/screen_file.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"

namespace veltrix {
namespace {

bool HasFieldAt(const PageRecord& page, int row, int column) {
  const std::vector<FieldEntry> fields = FieldEntries(page);
  return std::ranges::any_of(
      fields, [&](const FieldEntry& f) { return f.row == row && f.column == column; });
}

}  // namespace

std::vector<ScreenCheck> CheckScreens(const Document& doc, std::span<const PageRecord> screens) {
  const int k = CharacteristicLengthOf(doc.record);
  const int pages =
      std::min<int>(static_cast<int>(ReadNumber(doc.record, kTotalPages)), kPageCount);
  const std::span<const std::uint8_t> record(doc.record);
  std::vector<ScreenCheck> checks;
  for (const PageRecord& screen : screens) {
    ScreenCheck check;
    for (int p = 0; p < pages; ++p) {
      const auto string = FieldBytes(record, kCharacteristicString, p);
      bool same = true;
      for (int j = 0; j < k && same; ++j) {
        const auto row = static_cast<int>(ReadNumber(doc.record, kCharacteristicRow, j));
        const auto column = static_cast<int>(ReadNumber(doc.record, kCharacteristicColumn, j));
        same = ImageCell(screen, row, column) == string[static_cast<std::size_t>(j)];
      }
      if (same) check.pages.push_back(p);
    }
    if (check.pages.size() == 1) {
      const int p = check.pages.front();
      for (int l = 0; l < kTerminalLinesPerPage; ++l) {
        const auto row = static_cast<int>(ReadNumber(doc.record, kHostRow, p, l));
        const auto column = static_cast<int>(ReadNumber(doc.record, kHostColumn, p, l));
        // Only a line mapped to a field of the page's own screen shows a host field.
        if (!HasFieldAt(doc.pages[static_cast<std::size_t>(p)], row, column)) continue;
        if (!HasFieldAt(screen, row, column)) check.missing.push_back({l, row, column});
      }
    }
    checks.push_back(std::move(check));
  }
  return checks;
}

}  // namespace veltrix
