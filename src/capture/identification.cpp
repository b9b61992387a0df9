#include "capture/identification.h"

#include <algorithm>

#include "capture/screen_file.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"

namespace veltrix {
namespace {

constexpr int kFirstCell = 2;  // every run starts at row 2 and column 2 or beyond

bool RunFits(const CellRun& run, int k, HostScreenSize size) {
  if (k < 1) return run.start.row < size.rows && run.start.column < size.columns;
  const ScreenCell last = run.Cell(k - 1);
  return last.row < size.rows && last.column < size.columns;
}

bool SameScreen(const PageRecord& a, const PageRecord& b, HostScreenSize size) {
  for (int r = 0; r < size.rows; ++r) {
    for (int c = 0; c < size.columns; ++c) {
      if (ImageCell(a, r, c) != ImageCell(b, r, c)) return false;
    }
  }
  return true;
}

std::vector<std::uint8_t> StringAt(const PageRecord& screen, const CellRun& run, int k) {
  std::vector<std::uint8_t> s(static_cast<std::size_t>(std::max(k, 0)));
  for (int j = 0; j < k; ++j) {
    const ScreenCell cell = run.Cell(j);
    s[static_cast<std::size_t>(j)] = ImageCell(screen, cell.row, cell.column);
  }
  return s;
}

// The characteristic cells that may not hold on the terminal what they held when captured.
std::vector<FragileCell> FragileCells(std::span<const PageRecord> screens,
                                      const Identification& id) {
  std::vector<FragileCell> fragile;
  for (std::size_t j = 0; j < id.cells.size(); ++j) {
    FragileCell f{id.cells[j]};
    f.on_message_line = f.cell.row == kHostScreen.rows - 1;
    const int cell = f.cell.row * kHostScreen.columns + f.cell.column;
    for (int p : id.pages) {
      const std::uint8_t c = id.strings[static_cast<std::size_t>(p)][j];
      f.blank_in_a_page = f.blank_in_a_page || c == 0 || c == ' ';
      for (const FieldEntry& field : FieldEntries(screens[static_cast<std::size_t>(p)])) {
        const int first = field.row * kHostScreen.columns + field.column;
        f.in_input_field = f.in_input_field || (cell >= first && cell < first + field.length);
      }
    }
    if (f.in_input_field || f.on_message_line || f.blank_in_a_page) fragile.push_back(f);
  }
  return fragile;
}

}  // namespace

int CharacteristicLengthOf(const SettingsRecord& record, std::string* finding) {
  const auto k = ReadNumber(record, kCharacteristicLength);
  if (k >= 1 && k <= static_cast<std::uint32_t>(kCharacteristicCells)) return static_cast<int>(k);
  if (finding) {
    *finding = "CharacteristicLength " + std::to_string(k) + " is outside 1 to " +
               std::to_string(kCharacteristicCells) + "; " +
               std::to_string(kDefaultCharacteristicLength) + " is used.";
  }
  return kDefaultCharacteristicLength;
}

std::string ScreenBufferFullText(int most) {
  return " Screen buffer full !! \r\n Accept at most " + std::to_string(most) + " screens. ";
}

std::vector<CellRun> CandidateRuns(int k, HostScreenSize size) {
  std::vector<CellRun> runs;
  auto add_while_fitting = [&](CellRun run, bool advance_row) {
    while (RunFits(run, k, size)) {
      runs.push_back(run);
      if (advance_row) {
        ++run.start.row;
      } else {
        ++run.start.column;
      }
    }
  };
  add_while_fitting({0, {kFirstCell, kFirstCell}, 1, 1}, true);
  add_while_fitting({1, {kFirstCell, kFirstCell}, 0, 1}, true);
  add_while_fitting({2, {kFirstCell, kFirstCell}, 1, 0}, false);
  return runs;
}

Identification IdentifyScreens(std::span<const PageRecord> screens, int k, HostScreenSize size) {
  Identification id;
  const int n = static_cast<int>(std::min(screens.size(), kMaxLoadedScreens));
  screens = screens.first(static_cast<std::size_t>(n));
  for (const CellRun& run : CandidateRuns(k, size)) {
    id.strings.clear();
    for (const PageRecord& s : screens) id.strings.push_back(StringAt(s, run, k));
    id.duplicate_of.assign(static_cast<std::size_t>(n), -1);
    bool passed = true;
    for (int a = 0; a < n && passed; ++a) {
      for (int b = a + 1; b < n && passed; ++b) {
        if (id.strings[a] != id.strings[b]) continue;
        if (!SameScreen(screens[a], screens[b], size)) {
          passed = false;
        } else if (id.duplicate_of[b] < 0) {
          id.duplicate_of[b] = a;
        }
      }
    }
    if (!passed) continue;
    id.ok = true;
    id.run = run;
    for (int j = 0; j < k; ++j) id.cells.push_back(run.Cell(j));
    for (int i = 0; i < n; ++i) {
      if (id.duplicate_of[i] >= 0) continue;
      id.pages.push_back(i);
      if (static_cast<int>(id.pages.size()) == kMaxPages) {
        id.buffer_full = true;
        break;
      }
    }
    return id;
  }
  id.strings.clear();
  id.duplicate_of.clear();
  return id;
}

void StoreIdentification(Document& doc, std::span<const PageRecord> screens,
                         const Identification& id, int k) {
  if (!id.ok) return;
  for (PageRecord& page : doc.pages) page.fill(0);
  int count = 0;
  for (int i : id.pages) {
    doc.pages[static_cast<std::size_t>(count)] = screens[static_cast<std::size_t>(i)];
    std::span<std::uint8_t> string =
        FieldBytes(std::span<std::uint8_t>(doc.record), kCharacteristicString, count);
    std::fill(string.begin(), string.end(), std::uint8_t{0});
    const auto& characters = id.strings[static_cast<std::size_t>(i)];
    std::copy_n(characters.begin(), std::min(characters.size(), string.size()), string.begin());
    if (count == 0) {
      for (int j = 0; j < k && j < static_cast<int>(id.cells.size()); ++j) {
        WriteNumber(doc.record, kCharacteristicRow, static_cast<std::uint32_t>(id.cells[j].row), j);
        WriteNumber(doc.record, kCharacteristicColumn,
                    static_cast<std::uint32_t>(id.cells[j].column), j);
      }
    }
    ++count;
  }
  WriteNumber(doc.record, kTotalPages, static_cast<std::uint32_t>(count));
}

Explanation ExplainIdentification(std::span<const PageRecord> screens, int k, HostScreenSize size,
                                  const Identification& id) {
  Explanation why;
  if (id.ok) {
    for (std::size_t x = 0; x < id.pages.size(); ++x) {
      for (std::size_t y = x + 1; y < id.pages.size(); ++y) {
        const int a = id.pages[x];
        const int b = id.pages[y];
        const auto& sa = id.strings[static_cast<std::size_t>(a)];
        const auto& sb = id.strings[static_cast<std::size_t>(b)];
        for (std::size_t j = 0; j < sa.size(); ++j) {
          if (sa[j] == sb[j]) continue;
          why.told_apart.push_back({a, b, id.cells[j], sa[j], sb[j]});
          break;
        }
      }
    }
    why.fragile = FragileCells(screens, id);
    return why;
  }
  const std::vector<CellRun> runs = CandidateRuns(k, size);
  const int n = static_cast<int>(std::min(screens.size(), kMaxLoadedScreens));
  for (int a = 0; a < n; ++a) {
    for (int b = a + 1; b < n; ++b) {
      const PageRecord& sa = screens[static_cast<std::size_t>(a)];
      const PageRecord& sb = screens[static_cast<std::size_t>(b)];
      if (SameScreen(sa, sb, size)) continue;
      const bool some_run = std::any_of(runs.begin(), runs.end(), [&](const CellRun& run) {
        return StringAt(sa, run, k) != StringAt(sb, run, k);
      });
      if (some_run) continue;
      PairDifference d{a, b, {}};
      for (int r = 0; r < size.rows; ++r) {
        for (int c = 0; c < size.columns; ++c) {
          if (ImageCell(sa, r, c) != ImageCell(sb, r, c)) d.cells.push_back({r, c});
        }
      }
      why.inseparable.push_back(std::move(d));
    }
  }
  // Each run with the pairs it cannot tell apart, and the run that needs the fewest screens
  // dropped (a greedy cover: the screen in most of the remaining pairs first).
  bool proposed = false;
  for (const CellRun& run : runs) {
    RunConflicts conflicts{run, {}};
    std::vector<std::vector<std::uint8_t>> strings;
    for (int a = 0; a < n; ++a)
      strings.push_back(StringAt(screens[static_cast<std::size_t>(a)], run, k));
    for (int a = 0; a < n; ++a) {
      for (int b = a + 1; b < n; ++b) {
        if (strings[static_cast<std::size_t>(a)] != strings[static_cast<std::size_t>(b)] ||
            SameScreen(screens[static_cast<std::size_t>(a)], screens[static_cast<std::size_t>(b)],
                       size)) {
          continue;
        }
        conflicts.pairs.push_back({a, b});
      }
    }
    std::vector<std::pair<int, int>> left = conflicts.pairs;
    std::vector<int> drop;
    while (!left.empty()) {
      std::vector<int> degree(static_cast<std::size_t>(n), 0);
      for (const auto& [a, b] : left) {
        ++degree[static_cast<std::size_t>(a)];
        ++degree[static_cast<std::size_t>(b)];
      }
      const auto most =
          static_cast<int>(std::max_element(degree.begin(), degree.end()) - degree.begin());
      drop.push_back(most);
      std::erase_if(left, [most](const auto& p) { return p.first == most || p.second == most; });
    }
    std::sort(drop.begin(), drop.end());
    if (!proposed || drop.size() < why.drop.size()) {
      why.drop = drop;
      why.drop_run = run;
      proposed = true;
    }
    why.runs.push_back(std::move(conflicts));
  }
  return why;
}

}  // namespace veltrix
