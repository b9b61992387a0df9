#include "settings/field_binding.h"

#include <algorithm>
#include <cctype>

#include "settings/emulation/function_keys.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

// A field of the binding where it lives: the record, or its reader working block.
std::uint32_t Number(const Document& doc, const FieldBinding& b, const FieldDef& f) {
  return b.working ? ReadWorking(doc, f) : ReadNumber(doc.record, f, b.index);
}
void WriteNumberOf(Document& doc, const FieldBinding& b, const FieldDef& f, std::uint32_t value) {
  if (b.working) {
    WriteWorking(doc, f, value);
  } else {
    WriteNumber(doc.record, f, value, b.index);
  }
}
std::span<const std::uint8_t> BytesOf(const Document& doc, const FieldBinding& b,
                                      const FieldDef& f) {
  return b.working ? WorkingBytes(doc, f)
                   : FieldBytes(std::span<const std::uint8_t>(doc.record), f, b.index);
}
std::span<std::uint8_t> BytesOf(Document& doc, const FieldBinding& b, const FieldDef& f) {
  return b.working ? WorkingBytes(doc, f)
                   : FieldBytes(std::span<std::uint8_t>(doc.record), f, b.index);
}

void CopyField(Document& doc, const Document& from, const FieldBinding& b, const FieldDef& f) {
  if (f.numeric()) {
    WriteNumberOf(doc, b, f, Number(from, b, f));  // a bit field leaves its byte's other bits
  } else {
    std::ranges::copy(BytesOf(from, b, f), BytesOf(doc, b, f).begin());
  }
}

}  // namespace

std::int64_t BoundValue(const Document& doc, const FieldBinding& binding) {
  if (binding.field == nullptr || !binding.field->numeric()) return 0;
  const std::uint32_t value = Number(doc, binding, *binding.field);
  if (const ChoiceControl* choice = binding.choice) {
    const std::uint32_t flag = choice->flag != nullptr ? Number(doc, binding, *choice->flag) : 0;
    return DecodeChoice(*choice, value, flag);
  }
  return binding.shown != nullptr ? binding.shown(value) : value;
}

std::string BoundText(const Document& doc, const FieldBinding& binding) {
  if (binding.field == nullptr) return {};
  if (binding.field->numeric()) return std::to_string(BoundValue(doc, binding));
  const auto bytes = BytesOf(doc, binding, *binding.field);
  return {bytes.begin(), std::ranges::find(bytes, 0)};
}

bool BoundEnabled(const Document& doc, const FieldBinding& binding) {
  return binding.enabled == nullptr || binding.enabled(doc);
}

BindingOutcome StoreBoundValue(Document& doc, const FieldBinding& binding, std::int64_t value) {
  BindingOutcome outcome;
  const FieldDef* field = binding.field;
  if (field == nullptr || !field->numeric()) return outcome;
  if (const ChoiceControl* choice = binding.choice) {
    if (value < 0 || value >= static_cast<std::int64_t>(choice->texts.size())) return outcome;
    std::uint32_t coded = 0;
    std::uint32_t flag = 0;
    EncodeChoice(*choice, static_cast<int>(value), coded, flag);
    WriteNumberOf(doc, binding, *field, coded);
    if (choice->flag != nullptr) WriteNumberOf(doc, binding, *choice->flag, flag);
    return outcome;
  }
  if (value < field->min || value > field->max) return outcome;
  if (binding.kind == ControlKind::kKeyCombo) {
    const int old_k = static_cast<int>(BoundValue(doc, binding));
    outcome.refused = ApplyFunctionKeyCombo(doc, *field, old_k, static_cast<int>(value),
                                            RoleOfKeyField(*field)) == KeyComboResult::kRefused;
  } else if (binding.store != nullptr) {
    binding.store(doc, value);
  } else {
    WriteNumberOf(doc, binding, *field, static_cast<std::uint32_t>(value));
  }
  return outcome;
}

BindingOutcome StoreBoundText(Document& doc, const FieldBinding& binding, std::string_view text) {
  BindingOutcome outcome;
  if (binding.field == nullptr) return outcome;
  if (binding.kind == ControlKind::kNumberEdit &&
      (binding.number != nullptr || binding.box != nullptr)) {
    const NumericEdit edit = binding.box != nullptr ? CorrectNumberText(text, *binding.box)
                                                    : binding.number(text, *binding.field);
    outcome.rewrite = edit.rewrite;
    if (binding.store != nullptr) {
      binding.store(doc, edit.value);
    } else {
      WriteNumberOf(doc, binding, *binding.field, edit.value);
    }
  } else if (binding.store_text != nullptr) {
    binding.store_text(doc, text);
  } else if (!binding.field->numeric()) {
    WriteText(doc.record, *binding.field, text, binding.index);
  }
  return outcome;
}

std::vector<std::uint8_t> BoundBytes(const Document& doc, const FieldBinding& binding) {
  if (binding.field == nullptr) return {};
  std::vector<std::uint8_t> bytes;
  if (binding.field->numeric()) {
    bytes.push_back(static_cast<std::uint8_t>(Number(doc, binding, *binding.field)));
  } else {
    const auto stored = BytesOf(doc, binding, *binding.field);
    bytes.assign(stored.begin(), stored.end());
  }
  return binding.shown_bytes != nullptr ? binding.shown_bytes(bytes) : bytes;
}

void StoreBoundBytes(Document& doc, const FieldBinding& binding,
                     std::span<const std::uint8_t> bytes) {
  if (binding.field == nullptr) return;
  if (binding.field->numeric()) {
    WriteNumberOf(doc, binding, *binding.field, bytes.empty() ? 0 : bytes[0]);
    return;
  }
  const auto stored = BytesOf(doc, binding, *binding.field);
  std::size_t n = std::min(bytes.size(), stored.size());
  if (binding.grid_limit > 0) n = std::min(n, static_cast<std::size_t>(binding.grid_limit));
  std::ranges::fill(stored, 0);
  std::copy_n(bytes.begin(), n, stored.begin());
}

void CommitBound(Document& doc, const Document& pending, std::span<const FieldBinding> table) {
  for (const FieldBinding& b : table) {
    if (!b.on_ok || b.field == nullptr) continue;
    CopyField(doc, pending, b, *b.field);
    if (b.choice != nullptr && b.choice->flag != nullptr)
      CopyField(doc, pending, b, *b.choice->flag);
  }
}

void AddWorkingLines(OwnedBindings& table, std::span<const CheckBoxControl> checks) {
  for (const CheckBoxControl& check : checks) {
    table.lines.push_back({.control = table.Name(ControlName(check.text)),
                           .field = check.field,
                           .working = true,
                           .on_ok = true});
  }
}

void AddWorkingLines(OwnedBindings& table, std::span<const ChoiceControl> choices,
                     ControlKind kind) {
  for (const ChoiceControl& choice : choices) {
    table.lines.push_back({.control = table.Name(ControlName(choice.caption)),
                           .kind = kind,
                           .field = choice.field,
                           .working = true,
                           .on_ok = true,
                           .choice = &choice});
  }
}

void AddLengthBoxes(OwnedBindings& table, const FieldDef* first, const FieldDef* second,
                    const NumberBoxRule& rule) {
  for (const FieldDef* field : {first, second}) {
    table.lines.push_back({.control = field == first ? "length_1" : "length_2",
                           .kind = ControlKind::kNumberEdit,
                           .field = field,
                           .working = true,
                           .on_ok = true,
                           .box = &rule});
  }
}

std::string ControlName(std::string_view caption) {
  std::string name;
  for (char c : caption) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!name.empty() && name.back() != '_') {
      name += '_';
    }
  }
  while (!name.empty() && name.back() == '_') name.pop_back();
  return name;
}

const FieldBinding* FindBinding(std::span<const FieldBinding> table, std::string_view control) {
  for (const FieldBinding& b : table) {
    if (b.control == control) return &b;
  }
  return nullptr;
}

}  // namespace veltrix
