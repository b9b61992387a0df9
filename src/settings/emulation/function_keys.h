#ifndef VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
#define VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_

#include <array>
#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// Mapping entries: 50 entries of 3 bytes, entry n for terminal key n. Byte 0 holds the group
// (0 nil, 1 Shift, 2 Alt) or a role (201-206), byte 1 the host key number (0-38, 0 when the key is
// held by a role), byte 2 is always 0.
inline constexpr std::uint32_t kKeyMappingOffset = 4565;
inline constexpr std::uint32_t kKeyMappingStride = 3;
inline constexpr auto kFunctionKeyFieldTable = std::to_array<FieldDef>({
    {.name = "KeyMappingGroup",
     .offset = kKeyMappingOffset,
     .count = kTerminalKeyCount,
     .stride = kKeyMappingStride,
     .max = 206,
     .meaning = "0 nil, 1 Shift, 2 Alt, 201-206 a role"},
    {.name = "KeyMappingHostKey",
     .offset = kKeyMappingOffset + 1,
     .count = kTerminalKeyCount,
     .stride = kKeyMappingStride,
     .max = 38,
     .meaning = "host key number 0-38 (0 while a role holds the key)"},
    {.name = "KeyMappingSpare",
     .offset = kKeyMappingOffset + 2,
     .count = kTerminalKeyCount,
     .stride = kKeyMappingStride,
     .max = 0,
     .meaning = "always 0"},
    // Key codes: the byte sequence recorded for terminal key n, zero-filled.
    {.name = "KeyCode",
     .offset = 4715,
     .width = kKeyCodeWidth,
     .type = FieldType::kBytes,
     .count = kTerminalKeyCount,
     .stride = kKeyCodeWidth,
     .meaning = "the bytes the terminal key sends, zero-filled"},
});
inline constexpr const FieldDef& kKeyMappingGroup =
    FieldNamed(kFunctionKeyFieldTable, "KeyMappingGroup");
inline constexpr const FieldDef& kKeyMappingHostKey =
    FieldNamed(kFunctionKeyFieldTable, "KeyMappingHostKey");
inline constexpr const FieldDef& kKeyMappingSpare =
    FieldNamed(kFunctionKeyFieldTable, "KeyMappingSpare");
inline constexpr const FieldDef& kKeyCode = FieldNamed(kFunctionKeyFieldTable, "KeyCode");

// Every field of this section, declared once.
std::span<const FieldDef* const> FunctionKeyFields();

// The section's default routine (run by SetDefaults in the fixed order, by the Emulation page's
// "Reset" and by the previous-layout conversion): default mapping, built-in key code table, key
// codes from it, then every key field that names a key claims it again for its role.
void SetFunctionKeyDefaults(Document& doc);

// Appends the mapping's lines below `parent` (the "Function Key Mapping" item): one line per key
// the product has.
void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent);

// Fills doc.key_present from the product index.
void ApplyKeyAvailability(Document& doc);

// Rebuilds doc.key_codes from the mapping entries and key codes of the record (on open). An entry
// whose group and host key fall outside the 60-entry table leaves the table unchanged.
void RebuildKeyCodeTable(Document& doc);

// k is a key field index 1-10 (1-9 name FN+1..FN+9, 10 names FN+0); other values do nothing.
// Claim: the key's entry becomes (role, 0, 0). Release: the entry goes back to (0, k, 0), that is
// PF1..PF9 and PF10 for FN+0. Either way the key code becomes key code table entry k.
void ClaimFunctionKey(Document& doc, int k, int role);
void ReleaseFunctionKey(Document& doc, int k);
// True when the key that field index k names is already held by a role.
bool FunctionKeyHasRole(const Document& doc, int k);

// True when a "Key :" combo holding `old_k` must refuse `new_k`: another role holds that key.
bool IsFunctionKeyTaken(const Document& doc, int old_k, int new_k);

// The role a key field claims its key for (`LoginNameKey` 201 ... `ScanSwitchKeyName` 206), or 0
// when `field` is not a key field. Lets generic editors (the command line) follow the combo rule.
int RoleOfKeyField(const FieldDef& field);

enum class KeyComboResult { kStored, kRefused };
// The rule every "Key :" combo follows: refuses (and changes nothing) when `new_k` is held by
// another role; otherwise releases `old_k`, claims `new_k` for `role` and stores `new_k` in
// `field`. The caller shows "The function key is defined already !!" on kRefused.
KeyComboResult ApplyFunctionKeyCombo(Document& doc, const FieldDef& field, int old_k, int new_k,
                                     int role);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
