#include "settings/field_binding.h"

#include "settings/emulation/function_keys.h"

namespace veltrix {

std::int64_t BoundValue(const Document& doc, const FieldBinding& binding) {
  if (binding.field == nullptr || !binding.field->numeric()) return 0;
  return ReadNumber(doc.record, *binding.field, binding.index);
}

std::string BoundText(const Document& doc, const FieldBinding& binding) {
  if (binding.field == nullptr) return {};
  if (binding.field->numeric()) return std::to_string(BoundValue(doc, binding));
  return ReadText(doc.record, *binding.field, binding.index);
}

bool BoundEnabled(const Document& doc, const FieldBinding& binding) {
  return binding.enabled == nullptr || binding.enabled(doc);
}

BindingOutcome StoreBoundValue(Document& doc, const FieldBinding& binding, std::int64_t value) {
  BindingOutcome outcome;
  const FieldDef* field = binding.field;
  if (field == nullptr || !field->numeric() || value < field->min || value > field->max) {
    return outcome;
  }
  if (binding.kind == ControlKind::kKeyCombo) {
    const int old_k = static_cast<int>(BoundValue(doc, binding));
    outcome.refused = ApplyFunctionKeyCombo(doc, *field, old_k, static_cast<int>(value),
                                            RoleOfKeyField(*field)) == KeyComboResult::kRefused;
  } else if (binding.store != nullptr) {
    binding.store(doc, value);
  } else {
    WriteNumber(doc.record, *field, static_cast<std::uint32_t>(value), binding.index);
  }
  return outcome;
}

BindingOutcome StoreBoundText(Document& doc, const FieldBinding& binding, std::string_view text) {
  BindingOutcome outcome;
  if (binding.field == nullptr) return outcome;
  if (binding.kind == ControlKind::kNumberEdit && binding.number != nullptr) {
    const NumericEdit edit = binding.number(text, *binding.field);
    outcome.rewrite = edit.rewrite;
    if (binding.store != nullptr) {
      binding.store(doc, edit.value);
    } else {
      WriteNumber(doc.record, *binding.field, edit.value, binding.index);
    }
  } else if (binding.store_text != nullptr) {
    binding.store_text(doc, text);
  } else if (!binding.field->numeric()) {
    WriteText(doc.record, *binding.field, text, binding.index);
  }
  return outcome;
}

const FieldBinding* FindBinding(std::span<const FieldBinding> table, std::string_view control) {
  for (const FieldBinding& b : table) {
    if (b.control == control) return &b;
  }
  return nullptr;
}

}  // namespace veltrix
