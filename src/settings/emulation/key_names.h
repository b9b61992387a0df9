#ifndef VELTRIX_SETTINGS_EMULATION_KEY_NAMES_H_
#define VELTRIX_SETTINGS_EMULATION_KEY_NAMES_H_

#include <span>
#include <string>
#include <string_view>

namespace veltrix {

// Terminal key numbers 0-49: 0-9 FN+0..FN+9, 10-35 FN+A..FN+Z, 36-48 the named keys, 49 none.
inline constexpr int kFirstLetterKey = 10;
inline constexpr int kFirstNamedKey = 36;
inline constexpr int kHostKeyCount = 39;
inline constexpr int kKeyGroupCount = 3;
inline constexpr int kFirstRole = 201;
inline constexpr int kLastRole = 206;

// The terminal key's name as the summary shows it (with its trailing blanks), "" for key 49 and
// for numbers outside 0-49.
std::string_view TerminalKeyName(int key_number);

// Host key names 0-38 ("Undefined", "PF1".."PF24", "ATTN", ...). A number outside the list (only
// possible from a file) reads as its decimal value, so the user sees what is stored.
std::string HostKeyName(int host_key);
std::span<const std::string_view> HostKeyNames();

// "nil", "Shift", "Alt"; other values as decimal.
std::string KeyGroupName(int group);
std::span<const std::string_view> KeyGroupNames();

// "Name Key" ... "SwtichKey" for roles 201-206; other values as decimal.
std::string RoleName(int role);
inline constexpr bool IsRole(int first_byte) { return first_byte >= kFirstRole; }

// Entries of every "Key :" combo: "Disable", "FN+1".."FN+9", "FN+0" (key field indices 0-10).
inline constexpr int kKeyFieldChoiceCount = 11;
std::span<const std::string_view> KeyFieldChoices();
// The combo entry for a key field index; indices beyond 10 (from a file) read as decimal.
std::string KeyFieldChoiceName(int k);

// The terminal key that key field index k (1-10) names: k for 1-9, FN+0 (key 0) for 10; -1 when k
// names no key.
inline constexpr int KeyNumberOfFieldIndex(int k) {
  if (k == 10) return 0;
  return k >= 1 && k <= 9 ? k : -1;
}

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_KEY_NAMES_H_
