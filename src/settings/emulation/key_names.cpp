#include "settings/emulation/key_names.h"

#include <array>

#include "settings/emulation/choice_text.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 50> kTerminalKeyNames = {
    "FN+0",  "FN+1",  "FN+2",  "FN+3",  "FN+4",   "FN+5",  "FN+6",  "FN+7",  "FN+8",  "FN+9",
    "FN+A",  "FN+B",  "FN+C",  "FN+D",  "FN+E",   "FN+F",  "FN+G",  "FN+H",  "FN+I",  "FN+J",
    "FN+K",  "FN+L",  "FN+M",  "FN+N",  "FN+O",   "FN+P",  "FN+Q",  "FN+R",  "FN+S",  "FN+T",
    "FN+U",  "FN+V",  "FN+W",  "FN+X",  "FN+Y",   "FN+Z",  "Up   ", "Down ", "Left ", "Right ",
    "Home ", "End  ", "PgUp ", "PgDn ", "Insert", "Del  ", "TAB  ", "F11  ", "F12  ", ""};

constexpr std::array<std::string_view, kHostKeyCount> kHostKeyNames = {
    "Undefined", "PF1",  "PF2",   "PF3",    "PF4",  "PF5",        "PF6",    "PF7",
    "PF8",       "PF9",  "PF10",  "PF11",   "PF12", "PF13",       "PF14",   "PF15",
    "PF16",      "PF17", "PF18",  "PF19",   "PF20", "PF21",       "PF22",   "PF23",
    "PF24",      "ATTN", "BEGIN", "DELETE", "END",  "ERASEINPUT", "FIELD+", "FIELD-",
    "FIELDEXIT", "LAST", "NEXT",  "PGDN",   "PGUP", "PREVIOUS",   "RECORD"};

constexpr std::array<std::string_view, kKeyGroupCount> kGroupNames = {"nil", "Shift", "Alt"};

constexpr std::array<std::string_view, kLastRole - kFirstRole + 1> kRoleNames = {
    "Name Key", "Password Key", "Exit Key", "Navigator Key", "Message Key", "SwtichKey"};

constexpr std::array<std::string_view, kKeyFieldChoiceCount> kKeyFieldChoices = {
    "Disable", "FN+1", "FN+2", "FN+3", "FN+4", "FN+5", "FN+6", "FN+7", "FN+8", "FN+9", "FN+0"};

}  // namespace

std::string_view TerminalKeyName(int key_number) {
  if (key_number < 0 || key_number >= static_cast<int>(kTerminalKeyNames.size())) return {};
  return kTerminalKeyNames[key_number];
}

std::string HostKeyName(int host_key) { return ChoiceText(kHostKeyNames, host_key); }
std::span<const std::string_view> HostKeyNames() { return kHostKeyNames; }

std::string KeyGroupName(int group) { return ChoiceText(kGroupNames, group); }
std::span<const std::string_view> KeyGroupNames() { return kGroupNames; }

std::string RoleName(int role) {
  if (role >= kFirstRole && role <= kLastRole) return std::string(kRoleNames[role - kFirstRole]);
  return std::to_string(role);
}

std::span<const std::string_view> KeyFieldChoices() { return kKeyFieldChoices; }
std::string KeyFieldChoiceName(int k) { return ChoiceText(kKeyFieldChoices, k); }

}  // namespace veltrix
