#include "settings/prompts/prompt_editor.h"

#include <algorithm>
#include <optional>

namespace veltrix {
namespace {

constexpr int kUtilitiesScreen = 1;
constexpr int kDateTimeLine = 5;
constexpr std::string_view kDateTimeLabel = "6.Set Date && Time   ";

int BufferIndex(int screen, int line) { return screen * kPromptRowsPerScreen + line; }

const PromptScreen& ScreenAt(int screen) {
  return kPromptScreens[static_cast<std::size_t>(screen)];
}

}  // namespace

void PromptEditor::Load(std::span<const std::uint8_t> record) {
  for (Slot& slot : buffer_) slot.fill(0);
  for (int screen = 0; screen < kPromptScreenCount; ++screen) {
    for (int line = 0; line < ScreenAt(screen).slot_count; ++line) {
      std::span<const std::uint8_t> bytes =
          FieldBytes(record, kPromptText, PromptSlot(screen, line));
      Slot& slot = buffer_[static_cast<std::size_t>(BufferIndex(screen, line))];
      std::copy(bytes.begin(), bytes.end(), slot.begin());
      slot.back() = 0;  // a slot without its NUL still reads as at most 40 characters
    }
  }
}

void PromptEditor::Store(std::span<std::uint8_t> record) const {
  for (int screen = 0; screen < kPromptScreenCount; ++screen) {
    for (int line = 0; line < ScreenAt(screen).slot_count; ++line) {
      WriteText(record, kPromptText, Line(screen, line), PromptSlot(screen, line));
    }
  }
}

void PromptEditor::Select(int screen) {
  if (screen >= 0 && screen < kPromptScreenCount) selected_ = screen;
}

std::array<PromptRow, kPromptRowsPerScreen> PromptEditor::Rows(int product) const {
  std::array<PromptRow, kPromptRowsPerScreen> rows;
  const std::optional<int> variant = PromptVariant(product);
  const PromptScreen& screen = ScreenAt(selected_);
  for (int k = 0; k < kPromptRowsPerScreen; ++k) {
    PromptRow& row = rows[static_cast<std::size_t>(k)];
    row.text = Line(selected_, k);
    row.width = screen.width_limit;
    row.enabled = k < screen.lines_edited;
    if (row.enabled) {
      // The blanks an applied file holds behind the width are padding the terminal never shows.
      row.text.resize(std::min<std::size_t>(row.text.size(), screen.width_limit));
      row.label = variant ? PromptLineLabel(*variant, selected_, k) : std::string();
    } else {
      row.label = row.text;
    }
  }
  return rows;
}

void PromptEditor::EditLine(std::span<std::uint8_t> record, int row, std::string_view text) {
  const PromptScreen& screen = ScreenAt(selected_);
  if (row < 0 || row >= screen.lines_edited) return;
  const std::size_t n = std::min<std::size_t>(text.size(), screen.width_limit);
  Slot& slot = buffer_[static_cast<std::size_t>(BufferIndex(selected_, row))];
  std::copy_n(text.begin(), n, slot.begin());
  slot[n] = 0;
  Store(record);
}

std::string PromptEditor::Line(int screen, int line) const {
  if (screen < 0 || screen >= kPromptScreenCount || line < 0 || line >= kPromptRowsPerScreen) {
    return {};
  }
  const Slot& slot = buffer_[static_cast<std::size_t>(BufferIndex(screen, line))];
  return std::string(slot.data());
}

std::string PromptLineLabel(int variant, int screen, int line) {
  if (screen == kUtilitiesScreen && line == kDateTimeLine) return std::string(kDateTimeLabel);
  return PromptDefaultText(variant, screen, line);
}

std::vector<std::string> PromptScreenNames(int product) {
  std::vector<std::string> names;
  const std::optional<int> variant = PromptVariant(product);
  if (!variant) return names;
  for (int screen = 0; screen < kPromptScreenCount; ++screen) {
    names.push_back(PromptScreenName(*variant, screen));
  }
  return names;
}

}  // namespace veltrix
