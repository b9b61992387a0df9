#include "settings/emulation/key_mapping.h"

#include <algorithm>

#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_names.h"
#include "settings/field.h"

namespace veltrix {
namespace {

constexpr std::array<int, kMappingRowCount> kRowKeys = {
    0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  13, 17, 21, 22, 24, 25, 26, 27, 28, 29,
    30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48};

// Button captions of the named keys 36-48 differ from the summary's names.
constexpr std::array<std::string_view, 13> kNamedButtons = {
    "Up",   "Down",   "Left", "Right", "Home", "End ", "PgUp",
    "PgDn", "Insert", "Del ", "Tab ",  "F11 ", "F12 "};

constexpr std::string_view kBlanks = "  ";

bool ValidKey(int key_number) {
  return key_number >= 0 && key_number < static_cast<int>(kTerminalKeyCount);
}

}  // namespace

KeyMapping ReadKeyMapping(const Document& doc, int key_number) {
  return {static_cast<int>(ReadNumber(doc.record, kKeyMappingGroup, key_number)),
          static_cast<int>(ReadNumber(doc.record, kKeyMappingHostKey, key_number))};
}

std::span<const int> MappingRowKeys() { return kRowKeys; }

std::string_view MappingButtonText(int row) {
  if (row < 0 || row >= kMappingRowCount) return {};
  const int key = kRowKeys[row];
  if (key >= kFirstNamedKey) return kNamedButtons[key - kFirstNamedKey];
  return TerminalKeyName(key);
}

std::string MappingLabel(const Document& doc, int key_number) {
  const KeyMapping m = ReadKeyMapping(doc, key_number);
  if (m.group == 0) return HostKeyName(m.host_key);
  if (IsRole(m.group)) return RoleName(m.group);
  return KeyGroupName(m.group) + " + " + HostKeyName(m.host_key);
}

bool MappingRowEnabled(const Document& doc, int key_number) {
  if (!ValidKey(key_number)) return false;
  return doc.key_present[key_number] && !IsRole(ReadKeyMapping(doc, key_number).group);
}

std::string MappingSummaryLine(const Document& doc, int key_number) {
  const KeyMapping m = ReadKeyMapping(doc, key_number);
  std::string line(TerminalKeyName(key_number));
  line.append(kBlanks).append("=>").append(kBlanks);
  if (m.group == 0) return line + HostKeyName(m.host_key);
  if (IsRole(m.group)) return line + RoleName(m.group);
  line += KeyGroupName(m.group);
  line.append(kBlanks).append("+").append(kBlanks);
  return line + HostKeyName(m.host_key);
}

int KeyCodeTableIndex(int group, int host_key) {
  const int index = group * static_cast<int>(kHostKeysPerGroup) + host_key;
  constexpr int kEntries = static_cast<int>(kKeyGroups * kHostKeysPerGroup);
  if (group < 0 || host_key < 0 || index >= kEntries) return -1;
  return index;
}

KeyCodeBytes KeyCodeTableEntry(const Document& doc, int group, int host_key) {
  KeyCodeBytes code{};
  const int index = KeyCodeTableIndex(group, host_key);
  if (index < 0) return code;
  std::copy_n(doc.key_codes.begin() + index * kKeyCodeWidth, kKeyCodeWidth, code.begin());
  return code;
}

void ApplyKeyMappingChoice(Document& doc, int key_number, int group, int host_key,
                           const KeyCodeBytes& code) {
  if (!ValidKey(key_number)) return;
  WriteNumber(doc.record, kKeyMappingGroup, static_cast<std::uint32_t>(group), key_number);
  WriteNumber(doc.record, kKeyMappingHostKey, static_cast<std::uint32_t>(host_key), key_number);
  WriteNumber(doc.record, kKeyMappingSpare, 0, key_number);
  auto stored = FieldBytes(std::span<std::uint8_t>(doc.record), kKeyCode, key_number);
  std::copy(code.begin(), code.end(), stored.begin());
}

}  // namespace veltrix
