#ifndef VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_
#define VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The terminal's own menu and message texts: 68 slots of 41 bytes (a NUL-terminated text of at
// most 40 characters) back to back, grouped into 12 screens of 4 or 8 slots. The field is indexed
// by the flat slot number 0..67; PromptSlot() turns (screen, line) into that number.
inline constexpr int kPromptSlotCount = 68;
inline constexpr int kPromptSlotWidth = 41;
inline constexpr int kPromptTextMax = kPromptSlotWidth - 1;
inline constexpr auto kPromptFieldTable = std::to_array<FieldDef>({
    {.name = "PromptText",
     .offset = 82,
     .width = kPromptSlotWidth,
     .type = FieldType::kText,
     .count = kPromptSlotCount,
     .stride = kPromptSlotWidth,
     .meaning = "menu and message line, by flat slot number"},
});
inline constexpr const FieldDef& kPromptText = FieldNamed(kPromptFieldTable, "PromptText");
static_assert(kPromptText.LastByte() == 2869);

inline constexpr int kPromptScreenCount = 12;
inline constexpr int kPromptRowsPerScreen = 8;

// One screen of the terminal: its name without the size, how many slots it has in the record, how
// many of them the editor lets the user change and how many characters a line may hold.
struct PromptScreen {
  std::string_view name;
  int slot_count;
  int lines_edited;
  int width_limit;
  int first_slot;  // flat slot number of line 1
};
inline constexpr std::array<PromptScreen, kPromptScreenCount> kPromptScreens{{
    {"Main Menu", 4, 2, 15, 0},
    {"Utilities", 8, 8, 20, 4},
    {"TCP / IP Settings", 8, 8, 20, 12},
    {"Emulation Settings", 8, 8, 20, 20},
    {"Backlight", 4, 4, 20, 28},
    {"Navigator", 4, 4, 15, 32},
    {"Download Port", 4, 4, 15, 36},
    {"Battery Voltage", 4, 4, 15, 40},
    {"Connecting", 4, 4, 15, 44},
    {"Download Messages", 4, 4, 15, 48},
    {"Error Messages", 8, 7, 20, 52},
    {"Miscellaneous", 8, 6, 20, 60},
}};
static_assert(kPromptScreens.back().first_slot + kPromptScreens.back().slot_count ==
              kPromptSlotCount);

// The flat slot number of line `line` (0-based) of screen `screen` (0-based); -1 when the screen
// has no such slot.
int PromptSlot(int screen, int line);

// The text variant of a product: 1 "Dravin S", 2 "Dravin R", 3 (same texts as 2); none for 0 or
// an unknown product.
std::optional<int> PromptVariant(int product);

// The width the default texts of `screen` are padded to in `variant` (12/16 or 15/20).
int PromptDefaultWidth(int variant, int screen);

// The screen's name for the variant, with its size, padded with blanks to 30 characters.
std::string PromptScreenName(int variant, int screen);

// The default text of a line (0-based screen and line), padded to the variant's width.
std::string PromptDefaultText(int variant, int screen, int line);

// Every field of this section, declared once.
std::span<const FieldDef* const> PromptFields();

// The section's default routine: copies the product's default texts into the 68 slots (bytes
// behind each text's NUL are left as they were). With no product chosen it copies nothing.
void SetPromptDefaults(Document& doc);

// Pads every slot with blanks behind its text to 40 characters, NUL in the 41st byte, as the
// terminal expects them after Apply.
void PadPromptsForTerminal(Document& doc);

// Appends one line per screen (its stored-width name) with its edited lines below `parent`.
void AppendPromptSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_
