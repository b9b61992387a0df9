#include "settings/prompts/prompts.h"

#include <algorithm>

namespace veltrix {
namespace {

// Default text of one line for "Dravin S" (variant 1) and "Dravin R" (variants 2 and 3), without
// the padding blanks. Lines beyond a screen's slots are never read.
struct DefaultLine {
  std::string_view s;
  std::string_view r;
};
using ScreenDefaults = std::array<DefaultLine, kPromptRowsPerScreen>;

constexpr std::array<ScreenDefaults, kPromptScreenCount> kDefaults{{
    // Main Menu
    {{{"1. Telnet", "1. Telnet"}, {"2. Utilities", "2. Utilities"}, {"", ""}, {"", ""}}},
    // Utilities
    {{{"1.TCP/IP Setting", "1.TCP/IP Settings"},
      {"2.Emulation para", "2.Emulation settings"},
      {"3.Reader Test", "3.Reader Test"},
      {"4.Backlight", "4.Backlight"},
      {"5.Batt. Voltage", "5.Battery Voltage"},
      {"6.Set Date/Time", "6.Set Date & Time"},
      {"7.Baud rate", "7.Baud rate"},
      {"8.Download", "8.Download"}}},
    // TCP / IP Settings
    {{{"1. Subnet Mask", "1. Subnet Mask"},
      {"2. Gateway", "2. Default Gateway"},
      {"3. DHCP Server", "3. DHCP Server"},
      {"4. SSID", "4. SSID"},
      {"5. Terminal IP", "5. Terminal IP"},
      {"6. Host IP/Name", "6. Host IP or Name"},
      {"7. Telnet Port", "7. Telnet Port"},
      {"8. View Settings", "8. View Settings"}}},
    // Emulation Settings; line 8 names the next emulation option the terminal keeps.
    {{{"1.Host Language", "1. Host Language"},
      {"2.Login Name", "2. Login Name"},
      {"3.Login Password", "3. Login Password"},
      {"4.Navigator", "4. Navigator"},
      {"5.H scroll steps", "5. Hori scroll steps"},
      {"6.V scroll steps", "6. Vert scroll steps"},
      {"7.Cursor Track", "7. Cursor Tracking"},
      {"8.Trim Spaces", "8. Trim Spaces"}}},
    // Backlight
    {{{"Turn OFF backlit", "Turn OFF backlight"},
      {"Turn ON  backlit", "Turn ON  backlight"},
      {"Backlit off if", "Turn baclight off if"},
      {"idle for _0 sec.", "idle for _0 seconds."}}},
    // Navigator
    {{{"1. None", "1. None"},
      {"2. Icon", "2. Icon"},
      {"3. 20x15", "3. 20x15"},
      {"4. 32x24", "4. 32x24"}}},
    // Download Port
    {{{"1.Via Cradle", "1.Via Cradle-IR"},
      {"2.Via RS-232", "2.Via RS-232"},
      {"3.Via IrDA", "3.Via IrDA"},
      {"4.Via RF", "4.Via RF"}}},
    // Battery Voltage
    {{{"Batt Voltage", "Battery Voltage"}, {"", ""}, {"Main:", "Main:"}, {"Backup:", "Backup:"}}},
    // Connecting
    {{{"Connecting..", "Connecting..."},
      {"", ""},
      {"Press ESC to", "Press ESC to"},
      {"cancel.", "cancel."}}},
    // Download Messages
    {{{"Downloading", "Downloading..."},
      {"Please wait", "Please wait..."},
      {"Download OK!", "Download OK!"},
      {"Download NG!", "Download failed"}}},
    // Error Messages; line 7 reports a value outside the allowed range.
    {{{"Data too short!", "Data is too short!"},
      {"Data too long!", "Data is too long!"},
      {"Err leading code", "Wrong leading code!"},
      {"Press any key...", "Press any key..."},
      {"Wrong Password!", "Wrong Password!"},
      {"Wrong Value!", "Wrong Value!"},
      {"Out of range!", "Value out of range!"},
      {"", ""}}},
    // Miscellaneous
    {{{"Input Password", "Input Password"},
      {"[Up/DOWN] select", "[Up/DOWN] to select"},
      {"[Enter]: confirm", "[Enter]: to confirm"},
      {"[ ESC ]: cancel", "[ ESC ]: to cancel"},
      {" Current :", " Current :"},
      {" New :", " New :"},
      {"", ""},
      {"", ""}}},
}};

constexpr auto kPromptFields = FieldPointers(kPromptFieldTable);

constexpr std::size_t kScreenNameWidth = 30;

bool ValidScreen(int screen) { return screen >= 0 && screen < kPromptScreenCount; }
bool ValidVariant(int variant) { return variant >= 1 && variant <= 3; }

}  // namespace

int PromptSlot(int screen, int line) {
  if (!ValidScreen(screen)) return -1;
  const PromptScreen& s = kPromptScreens[static_cast<std::size_t>(screen)];
  if (line < 0 || line >= s.slot_count) return -1;
  return s.first_slot + line;
}

std::optional<int> PromptVariant(int product) {
  if (!ValidVariant(product)) return std::nullopt;
  return product;
}

int PromptDefaultWidth(int variant, int screen) {
  if (!ValidScreen(screen)) return 0;
  const int limit = kPromptScreens[static_cast<std::size_t>(screen)].width_limit;
  // The smaller terminal has 12 or 16 columns where the larger one has 15 or 20.
  if (variant == 1) return limit == 15 ? 12 : 16;
  return limit;
}

std::string PromptScreenName(int variant, int screen) {
  if (!ValidVariant(variant) || !ValidScreen(screen)) return {};
  const PromptScreen& s = kPromptScreens[static_cast<std::size_t>(screen)];
  std::string name = std::string(s.name) + " (" +
                     std::to_string(PromptDefaultWidth(variant, screen)) + "*" +
                     std::to_string(s.lines_edited) + ")";
  name.resize(std::max(name.size(), kScreenNameWidth), ' ');
  return name;
}

std::string PromptDefaultText(int variant, int screen, int line) {
  if (!ValidVariant(variant) || PromptSlot(screen, line) < 0) return {};
  const DefaultLine& d =
      kDefaults[static_cast<std::size_t>(screen)][static_cast<std::size_t>(line)];
  std::string text(variant == 1 ? d.s : d.r);
  text.resize(std::max<std::size_t>(text.size(), PromptDefaultWidth(variant, screen)), ' ');
  return text;
}

std::span<const FieldDef* const> PromptFields() { return kPromptFields; }

void SetPromptDefaults(Document& doc) {
  const std::optional<int> variant = PromptVariant(doc.product());
  if (!variant) return;
  for (int screen = 0; screen < kPromptScreenCount; ++screen) {
    for (int line = 0; line < kPromptScreens[static_cast<std::size_t>(screen)].slot_count; ++line) {
      WriteText(doc.record, kPromptText, PromptDefaultText(*variant, screen, line),
                PromptSlot(screen, line));
    }
  }
}

void PadPromptsForTerminal(Document& doc) {
  for (int slot = 0; slot < kPromptSlotCount; ++slot) {
    std::span<std::uint8_t> bytes =
        FieldBytes(std::span<std::uint8_t>(doc.record), kPromptText, slot);
    auto end = std::find(bytes.begin(), bytes.begin() + kPromptTextMax, 0);
    std::fill(end, bytes.begin() + kPromptTextMax, ' ');
    bytes[kPromptTextMax] = 0;
  }
}

void AppendPromptSummary(const Document& doc, SummaryNode& parent) {
  const std::optional<int> variant = PromptVariant(doc.product());
  if (!variant) return;
  for (int screen = 0; screen < kPromptScreenCount; ++screen) {
    SummaryNode& node = parent.Add(PromptScreenName(*variant, screen));
    for (int line = 0; line < kPromptScreens[static_cast<std::size_t>(screen)].lines_edited;
         ++line) {
      node.Add(ReadText(doc.record, kPromptText, PromptSlot(screen, line)));
    }
  }
}

}  // namespace veltrix
