#ifndef VELTRIX_SETTINGS_PROMPTS_PROMPT_EDITOR_H_
#define VELTRIX_SETTINGS_PROMPTS_PROMPT_EDITOR_H_

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/prompts/prompts.h"

namespace veltrix {

// What one of the editor's eight label/edit rows shows.
struct PromptRow {
  std::string label;
  std::string text;  // an editable row's text is cut to `width`: no more than the line stores
  int width = 0;     // how many characters the row's edit takes
  bool enabled = false;
};

// The editor of the menu and message texts: a working copy of 12 screens x 8 lines and the
// selected screen. The record stays the truth: every stored line is written back at once.
class PromptEditor {
 public:
  // Fills the working copy from the record's 68 slots; lines a screen lacks are empty.
  void Load(std::span<const std::uint8_t> record);
  // Copies the working copy's 68 stored lines into the record.
  void Store(std::span<std::uint8_t> record) const;

  int selected() const { return selected_; }
  // Selects a screen (0..11); out-of-range choices are ignored.
  void Select(int screen);

  // The eight rows of the selected screen for a product's texts: labels from the default texts,
  // edits from the working copy; rows past the editable lines are disabled and labelled with
  // their stored text.
  std::array<PromptRow, kPromptRowsPerScreen> Rows(int product) const;

  // The user changed row `row` (0-based) of the selected screen: keeps at most the screen's width
  // of `text`, then stores the whole editor into the record. Disabled rows store nothing.
  void EditLine(std::span<std::uint8_t> record, int row, std::string_view text);

  // The working copy's text of a line (0-based screen and line, 8 lines per screen).
  std::string Line(int screen, int line) const;

 private:
  using Slot = std::array<char, kPromptSlotWidth>;
  std::array<Slot, kPromptScreenCount * kPromptRowsPerScreen> buffer_{};
  int selected_ = 0;
};

// The label of a line (0-based) that the editor shows for a variant. Utilities line 6 has the
// fixed label "6.Set Date && Time   " whatever the product, as the page's label control shows
// "&&" as one "&".
std::string PromptLineLabel(int variant, int screen, int line);

// The prompts combo's 12 entries for a product (empty when no product is chosen).
std::vector<std::string> PromptScreenNames(int product);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PROMPTS_PROMPT_EDITOR_H_
