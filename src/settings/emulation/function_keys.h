#ifndef VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
#define VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "shell/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> FunctionKeyFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetFunctionKeyDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent);

// Fills doc.key_present from the product index.
void ApplyKeyAvailability(Document& doc);

// Rebuilds doc.key_codes from the mapping entries and key codes of the record (on open).
void RebuildKeyCodeTable(Document& doc);

// Roles a terminal FN key can be claimed for (the first byte of a mapping entry).
enum FunctionKeyRole : int {
  kRoleNameKey = 201,
  kRolePasswordKey = 202,
  kRoleExitKey = 203,
  kRoleNavigatorKey = 204,
  kRoleMessageKey = 205,
  kRoleSwitchKey = 206,
};

// k is a key field index 1-10 (1-9 name FN+1..FN+9, 10 names FN+0).
void ClaimFunctionKey(Document& doc, int k, int role);
void ReleaseFunctionKey(Document& doc, int k);
// True when the key that field index k names is already held by a role.
bool FunctionKeyHasRole(const Document& doc, int k);

enum class KeyComboResult { kStored, kRefused };
// The rule every "Key :" combo follows: refuses (and changes nothing) when `new_k` is held by
// another role; otherwise releases `old_k`, claims `new_k` for `role` and stores `new_k` in
// `field`. The caller shows "The function key is defined already !!" on kRefused.
KeyComboResult ApplyFunctionKeyCombo(Document& doc, const FieldDef& field, int old_k, int new_k,
                                     int role);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
