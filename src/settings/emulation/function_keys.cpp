#include "settings/emulation/function_keys.h"

#include <algorithm>
#include <array>
#include <vector>

#include "settings/emulation/key_code_defaults.h"
#include "settings/emulation/key_mapping.h"
#include "settings/emulation/key_names.h"
#include "settings/field_registry.h"

namespace veltrix {
namespace {

constexpr auto kFields = FieldPointers(kFunctionKeyFieldTable);

struct KeyRange {
  int first;
  int last;  // inclusive
};

// The keys each product's keyboard has; products not listed have all 50.
constexpr KeyRange kDravinSKeys[] = {{0, 9}, {36, 37}};
constexpr KeyRange kDravinRKeys[] = {{0, 9}, {13, 13}, {17, 17}, {21, 22}, {24, 39}};
constexpr KeyRange kProduct3Keys[] = {{0, 9}, {36, 48}};
constexpr KeyRange kAllKeys[] = {{0, static_cast<int>(kTerminalKeyCount) - 1}};

std::span<const KeyRange> KeysOfProduct(int product) {
  switch (product) {
    case 1:
      return kDravinSKeys;
    case 2:
      return kDravinRKeys;
    case 3:
      return kProduct3Keys;
    default:
      return kAllKeys;
  }
}

void WriteEntry(Document& doc, int key_number, int first, int second) {
  WriteNumber(doc.record, kKeyMappingGroup, static_cast<std::uint32_t>(first), key_number);
  WriteNumber(doc.record, kKeyMappingHostKey, static_cast<std::uint32_t>(second), key_number);
  WriteNumber(doc.record, kKeyMappingSpare, 0, key_number);
}

// Key code of key n = key code table entry `index`.
void CopyTableEntryToKeyCode(Document& doc, int key_number, int index) {
  auto code = FieldBytes(std::span<std::uint8_t>(doc.record), kKeyCode, key_number);
  std::copy_n(doc.key_codes.begin() + index * kKeyCodeWidth, kKeyCodeWidth, code.begin());
}

// The key fields of every section, in the order their keys are claimed again (by role).
std::span<const FieldDef* const> KeyFields() {
  static const std::vector<const FieldDef*> fields = [] {
    std::vector<const FieldDef*> v;
    for (const FieldDef* f : AllFields()) {
      if (f->key_role != kRoleNone) v.push_back(f);
    }
    std::ranges::sort(v, {}, &FieldDef::key_role);
    return v;
  }();
  return fields;
}

}  // namespace

std::span<const FieldDef* const> FunctionKeyFields() { return kFields; }

void SetFunctionKeyDefaults(Document& doc) {
  for (int n = 0; n < static_cast<int>(kTerminalKeyCount); ++n) {
    WriteEntry(doc, n, 0, n <= 9 ? n : 0);
  }
  doc.key_codes = DefaultKeyCodeTable();
  for (int n = 0; n < static_cast<int>(kTerminalKeyCount); ++n) {
    const KeyMapping m = ReadKeyMapping(doc, n);
    const int index = KeyCodeTableIndex(IsRole(m.group) ? 0 : m.group, m.host_key);
    CopyTableEntryToKeyCode(doc, n, std::max(index, 0));
  }
  for (const FieldDef* f : KeyFields()) {
    const int k = static_cast<int>(ReadNumber(doc.record, *f));
    if (k != 0) ClaimFunctionKey(doc, k, f->key_role);
  }
}

void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent) {
  for (int n = 0; n < static_cast<int>(kTerminalKeyCount); ++n) {
    if (doc.key_present[n]) parent.Add(MappingSummaryLine(doc, n));
  }
}

void ApplyKeyAvailability(Document& doc) {
  doc.key_present.fill(false);
  for (const KeyRange& range : KeysOfProduct(doc.product())) {
    std::fill(doc.key_present.begin() + range.first, doc.key_present.begin() + range.last + 1,
              true);
  }
}

void RebuildKeyCodeTable(Document& doc) {
  for (int n = 0; n < static_cast<int>(kTerminalKeyCount); ++n) {
    const KeyMapping m = ReadKeyMapping(doc, n);
    auto code = FieldBytes(std::span<const std::uint8_t>(doc.record), kKeyCode, n);
    if (m.group >= kKeyGroupCount || code[0] == 0) continue;
    const int index = KeyCodeTableIndex(m.group, m.host_key);
    if (index < 0) continue;  // no table entry for this combination
    std::copy(code.begin(), code.end(), doc.key_codes.begin() + index * kKeyCodeWidth);
  }
}

void ClaimFunctionKey(Document& doc, int k, int role) {
  const int key_number = KeyNumberOfFieldIndex(k);
  if (key_number < 0) return;
  WriteEntry(doc, key_number, role, 0);
  CopyTableEntryToKeyCode(doc, key_number, k);
}

void ReleaseFunctionKey(Document& doc, int k) {
  const int key_number = KeyNumberOfFieldIndex(k);
  if (key_number < 0) return;
  WriteEntry(doc, key_number, 0, k);
  CopyTableEntryToKeyCode(doc, key_number, k);
}

bool FunctionKeyHasRole(const Document& doc, int k) {
  const int key_number = KeyNumberOfFieldIndex(k);
  return key_number >= 0 && IsRole(ReadKeyMapping(doc, key_number).group);
}

bool IsFunctionKeyTaken(const Document& doc, int old_k, int new_k) {
  return new_k != 0 && new_k != old_k && FunctionKeyHasRole(doc, new_k);
}

int RoleOfKeyField(const FieldDef& field) { return field.key_role; }

KeyComboResult ApplyFunctionKeyCombo(Document& doc, const FieldDef& field, int old_k, int new_k,
                                     int role) {
  if (IsFunctionKeyTaken(doc, old_k, new_k)) return KeyComboResult::kRefused;
  if (old_k != 0 && old_k != new_k) ReleaseFunctionKey(doc, old_k);
  if (new_k != 0) ClaimFunctionKey(doc, new_k, role);
  WriteNumber(doc.record, field, static_cast<std::uint32_t>(new_k));
  return KeyComboResult::kStored;
}

}  // namespace veltrix
