#ifndef VELTRIX_SETTINGS_EMULATION_KEY_MAPPING_H_
#define VELTRIX_SETTINGS_EMULATION_KEY_MAPPING_H_

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "settings/document.h"

namespace veltrix {

// The refusal of a "Key :" combo whose key another role holds, and its caption.
inline constexpr std::string_view kKeyTakenMessage = "The function key is defined already !!";
inline constexpr std::string_view kKeyMappingCaption = "Function Key Mapping";

// One mapping entry as stored.
struct KeyMapping {
  int group = 0;  // or a role 201-206
  int host_key = 0;
};
KeyMapping ReadKeyMapping(const Document& doc, int key_number);

using KeyCodeBytes = std::array<std::uint8_t, kKeyCodeWidth>;

// The 39 rows of the Emulation page's mapping area, each a terminal key number.
inline constexpr int kMappingRowCount = 39;
std::span<const int> MappingRowKeys();
// The row button's caption ("FN+0", ..., "Up", "End ", "Tab ", "F12 ").
std::string_view MappingButtonText(int row);
// The row label: the host key name, the role's name, or "group + host key".
std::string MappingLabel(const Document& doc, int key_number);
// The row button works only for a key the product has that no role holds.
bool MappingRowEnabled(const Document& doc, int key_number);

// The summary line of key n: "<key>  =>  <host key>" and the like.
std::string MappingSummaryLine(const Document& doc, int key_number);

// Key code table entry (group * 20 + host key); five zero bytes for a combination beyond the table.
KeyCodeBytes KeyCodeTableEntry(const Document& doc, int group, int host_key);
// Index of that entry in doc.key_codes in entries, or -1 when the combination has none.
int KeyCodeTableIndex(int group, int host_key);

// OK in the "Function Key Mapping" dialog: entry n becomes (group, host key, 0) and key code n
// becomes `code`. The key code table keeps its entry: a code set for this key alone must not
// reach the other keys that a later claim or release fills from the table.
void ApplyKeyMappingChoice(Document& doc, int key_number, int group, int host_key,
                           const KeyCodeBytes& code);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_KEY_MAPPING_H_
