#include "capture/screen_editor.h"

#include <algorithm>

#include "capture/screen_file.h"
#include "resources/strings.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"
#include "settings/screen/terminal_screen_sizes.h"

namespace veltrix {
namespace {

constexpr std::string_view kScreenCaption = "Screen";

int FontSizeOf(const Document& doc) { return static_cast<int>(ReadNumber(doc.record, kFontSize)); }

void MovePage(Document& doc, int from, int to) {
  doc.pages[to] = doc.pages[from];
  for (int l = 0; l < kTerminalLinesPerPage; ++l) {
    WriteText(doc.record, kTerminalScreen, ReadText(doc.record, kTerminalScreen, from, l), to, l);
    WriteNumber(doc.record, kHostRow, ReadNumber(doc.record, kHostRow, from, l), to, l);
    WriteNumber(doc.record, kHostColumn, ReadNumber(doc.record, kHostColumn, from, l), to, l);
  }
  const auto string =
      FieldBytes(std::span<const std::uint8_t>(doc.record), kCharacteristicString, from);
  const std::vector<std::uint8_t> copy(string.begin(), string.end());
  auto target = FieldBytes(std::span<std::uint8_t>(doc.record), kCharacteristicString, to);
  std::copy(copy.begin(), copy.end(), target.begin());
  WriteNumber(doc.record, kReformatPageTo, ReadNumber(doc.record, kReformatPageTo, from), to);
}

void ClearSlot(Document& doc, int p) {
  doc.pages[p].fill(0);
  for (int l = 0; l < kTerminalLinesPerPage; ++l) {
    auto text = FieldBytes(std::span<std::uint8_t>(doc.record), kTerminalScreen, p, l);
    std::fill(text.begin(), text.end(), std::uint8_t{0});
    WriteNumber(doc.record, kHostColumn, 1, p, l);
    WriteNumber(doc.record, kHostRow, 0, p, l);
  }
  auto string = FieldBytes(std::span<std::uint8_t>(doc.record), kCharacteristicString, p);
  std::fill(string.begin(), string.end(), std::uint8_t{0});
  WriteNumber(doc.record, kReformatPageTo, 0, p);
}

}  // namespace

LoadOutcome LoadScreenFileInto(Document& doc, const std::filesystem::path& path) {
  LoadOutcome outcome;
  std::string error;
  const std::optional<LoadedScreens> loaded = ReadScreenFile(path, error);
  if (!loaded) {
    // A file that cannot be opened is passed over silently; a wrong size is refused.
    if (error == kVersionErrorMessage) {
      outcome.messages.push_back({std::string(kErrorCaption), error});
    }
    return outcome;
  }
  if (loaded->screens_in_file > loaded->screens.size()) {
    outcome.messages.push_back(
        {std::string(kScreenCaption), FirstScreensReadText(loaded->screens_in_file)});
  }
  std::string finding;
  const int k = CharacteristicLengthOf(doc.record, &finding);
  if (!finding.empty()) outcome.messages.push_back({std::string(kScreenCaption), finding});
  const Identification id = IdentifyScreens(loaded->screens, k, kHostScreen);
  if (!id.ok) {
    outcome.messages.push_back({std::string(kErrorCaption), std::string(kIdentifyFailedMessage)});
    return outcome;
  }
  if (id.buffer_full) {
    outcome.messages.push_back({std::string(kScreenCaption), ScreenBufferFullText(kMaxPages)});
  }
  StoreIdentification(doc, loaded->screens, id, k);
  WriteNumber(doc.record, kScreensLoaded, 1);
  outcome.loaded = true;
  return outcome;
}

void DeleteScreenPage(Document& doc, int page) {
  const int n =
      std::min(static_cast<int>(ReadNumber(doc.record, kTotalPages)), static_cast<int>(kPageCount));
  if (page < 0 || page >= n) return;
  for (int p = page; p + 1 < n; ++p) MovePage(doc, p + 1, p);
  ClearSlot(doc, n - 1);
  WriteNumber(doc.record, kTotalPages, static_cast<std::uint32_t>(n - 1));
}

int ScreenEditor::PageCount() const {
  return std::min(static_cast<int>(ReadNumber(doc_.record, kTotalPages)),
                  static_cast<int>(kPageCount));
}

// The current page's size; a size index no list knows (a damaged file) counts as the first.
const TerminalScreenSize& ScreenEditor::CurrentSize() const {
  const int font = FontSizeOf(doc_);
  const TerminalScreenSize* size = FindTerminalScreenSize(
      font, static_cast<int>(ReadNumber(doc_.record, kReformatPageTo, current_)));
  return size ? *size : TerminalScreenSizes(font)[0];
}

void ScreenEditor::Restart() {
  current_ = 0;
  first_line_ = 0;
}

void ScreenEditor::GoTo(int page) {
  current_ = std::clamp(page, 0, std::max(PageCount() - 1, 0));
  first_line_ = 0;
}

void ScreenEditor::LinesBack() { first_line_ = std::max(first_line_ - kVisibleLines, 0); }

void ScreenEditor::LinesForward() {
  if (first_line_ + kVisibleLines < CurrentSize().lines) first_line_ += kVisibleLines;
}

void ScreenEditor::ChooseSize(int index) {
  if (index < 0 || index >= kTerminalScreenSizeCount) return;
  WriteNumber(doc_.record, kReformatPageTo, static_cast<std::uint32_t>(index), current_);
  first_line_ = 0;
}

void ScreenEditor::ChooseField(int slot, int choice) {
  const int line = first_line_ + slot;
  if (slot < 0 || slot >= kVisibleLines || line >= kTerminalLinesPerPage) return;
  const std::vector<FieldEntry> fields = FieldEntries(doc_.pages[current_]);
  std::uint32_t row = kNoHostField;
  std::uint32_t column = kNoHostField;
  if (choice >= 1 && choice <= static_cast<int>(fields.size())) {
    row = static_cast<std::uint32_t>(fields[choice - 1].row);
    column = static_cast<std::uint32_t>(fields[choice - 1].column);
  }
  WriteNumber(doc_.record, kHostRow, row, current_, line);
  WriteNumber(doc_.record, kHostColumn, column, current_, line);
}

void ScreenEditor::EditText(int slot, const std::string& text) {
  const int line = first_line_ + slot;
  if (slot < 0 || slot >= kVisibleLines || line >= kTerminalLinesPerPage) return;
  const std::size_t most = static_cast<std::size_t>(std::max(CurrentSize().chars_per_line - 1, 0));
  WriteText(doc_.record, kTerminalScreen, text.substr(0, std::min(text.size(), most)), current_,
            line);
}

void ScreenEditor::DeleteCurrent() {
  if (PageCount() == 0) return;
  DeleteScreenPage(doc_, current_);
  GoTo(current_ == 0 ? 0 : current_ - 1);
}

void ScreenEditor::Reset() {
  SetScreenPageDefaults(doc_);
  Restart();
}

void ScreenEditor::PadLineTexts(int host_rows) const {
  const int slots = std::clamp(host_rows - 1, 0, kTerminalLinesPerPage);
  for (int p = 0; p < static_cast<int>(kPageCount); ++p) {
    for (int l = 0; l < slots; ++l) {
      auto text = FieldBytes(std::span<std::uint8_t>(doc_.record), kTerminalScreen, p, l);
      auto end = std::find(text.begin(), text.end(), std::uint8_t{0});
      std::fill(end, text.end(), std::uint8_t{0});
    }
  }
}

ScreenEditor::View ScreenEditor::Show() const {
  View v;
  const int pages = PageCount();
  v.total = pages;
  v.current = pages == 0 ? 0 : current_ + 1;
  v.remove = pages > 0;
  v.first = v.previous = pages > 0 && current_ > 0;
  v.next = v.last = pages > 0 && current_ < pages - 1;
  for (const TerminalScreenSize& size : TerminalScreenSizes(FontSizeOf(doc_))) {
    v.sizes.emplace_back(size.text);
  }
  v.size = static_cast<int>(ReadNumber(doc_.record, kReformatPageTo, current_));
  if (v.size >= kTerminalScreenSizeCount) v.size = 0;

  const PageRecord& page = doc_.pages[current_];
  const std::vector<FieldEntry> fields = pages > 0 ? FieldEntries(page) : std::vector<FieldEntry>{};
  v.field_choices.emplace_back(kNoFieldChoice);
  for (const FieldEntry& f : fields) v.field_choices.push_back(std::to_string(f.number));

  const int line_count = CurrentSize().lines;
  for (int s = 0; s < kVisibleLines; ++s) {
    LineView& line = v.lines[s];
    const int l = first_line_ + s;
    line.number = l + 1;
    line.enabled = l < line_count;
    if (l >= kTerminalLinesPerPage) continue;
    line.text = ReadText(doc_.record, kTerminalScreen, current_, l);
    const auto row = static_cast<int>(ReadNumber(doc_.record, kHostRow, current_, l));
    const auto column = static_cast<int>(ReadNumber(doc_.record, kHostColumn, current_, l));
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (fields[i].row == row && fields[i].column == column) {
        line.field_choice = static_cast<int>(i) + 1;
        line.x = std::to_string(column);
        line.y = std::to_string(row);
        break;
      }
    }
  }
  v.text_limit = std::max(CurrentSize().chars_per_line - 1, 0);
  const bool pages_of_lines = line_count != 8 && line_count != 4;
  v.lines_back = pages_of_lines && first_line_ > 0;
  v.lines_forward = pages_of_lines && first_line_ < line_count - kVisibleLines;

  if (pages > 0) {
    const HostScreenSize size = kHostScreen;
    for (int r = 0; r < size.rows - 1; ++r) {
      for (int c = 0; c < size.columns; ++c) {
        const std::uint8_t b = ImageCell(page, r, c);
        v.preview += static_cast<char>(b == 0 ? ' ' : b);
      }
      v.preview += '\n';
    }
    for (const FieldEntry& f : fields) v.marks.push_back({f.row, f.column, f.length, false});
    const int k = CharacteristicLengthOf(doc_.record);
    for (int j = 0; j < k; ++j) {
      v.marks.push_back({static_cast<int>(ReadNumber(doc_.record, kCharacteristicRow, j)),
                         static_cast<int>(ReadNumber(doc_.record, kCharacteristicColumn, j)), 1,
                         true});
    }
    v.terminal = PreviewPage(doc_, current_, page);
  }
  return v;
}

}  // namespace veltrix
