#include "settings/emulation/function_keys.h"

namespace veltrix {

std::span<const FieldDef* const> FunctionKeyFields() { return {}; }

void SetFunctionKeyDefaults(Document& doc) { (void)doc; }

void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

void ApplyKeyAvailability(Document& doc) { doc.key_present.fill(true); }

void RebuildKeyCodeTable(Document& doc) { (void)doc; }

// Stubs until the function key mapping lands.
void ClaimFunctionKey(Document& doc, int k, int role) {
  (void)doc;
  (void)k;
  (void)role;
}
void ReleaseFunctionKey(Document& doc, int k) {
  (void)doc;
  (void)k;
}
bool FunctionKeyHasRole(const Document& doc, int k) {
  (void)doc;
  (void)k;
  return false;
}
KeyComboResult ApplyFunctionKeyCombo(Document& doc, const FieldDef& field, int old_k, int new_k,
                                     int role) {
  (void)doc;
  (void)field;
  (void)old_k;
  (void)new_k;
  (void)role;
  return KeyComboResult::kStored;
}

}  // namespace veltrix
