#ifndef VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_
#define VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix::testing {

// The user's side of a binding table without widgets, as the binder wires it: a click, choice,
// typed text or grid pick stores into the document its line edits (the dialog's copy for lines
// stored on OK), and Ok() commits that copy.
class BindingDriver {
 public:
  BindingDriver(Document& doc, std::span<const FieldBinding> table)
      : doc_(doc), pending_(doc), table_(table) {}

  BindingOutcome Set(std::string_view control, std::int64_t value) {
    return StoreBoundValue(DocOf(Line(control)), Line(control), value);
  }
  BindingOutcome Type(std::string_view control, std::string_view text) {
    return StoreBoundText(DocOf(Line(control)), Line(control), text);
  }
  void Pick(std::string_view control, const std::vector<std::uint8_t>& bytes) {
    StoreBoundBytes(DocOf(Line(control)), Line(control), bytes);
  }
  std::int64_t Value(std::string_view control) {
    return BoundValue(DocOf(Line(control)), Line(control));
  }
  std::string Text(std::string_view control) {
    return BoundText(DocOf(Line(control)), Line(control));
  }
  std::vector<std::uint8_t> Bytes(std::string_view control) {
    return BoundBytes(DocOf(Line(control)), Line(control));
  }
  bool Enabled(std::string_view control) {
    return BoundEnabled(DocOf(Line(control)), Line(control));
  }
  void Ok() { CommitBound(doc_, pending_, table_); }
  Document& pending() { return pending_; }

  // The lines of one kind, in the table's order (check boxes, or radio groups and lists).
  std::vector<std::string_view> Controls(bool choices) const {
    std::vector<std::string_view> names;
    for (const FieldBinding& b : table_) {
      if ((b.kind == ControlKind::kCheckBox && !choices) || (b.choice != nullptr && choices)) {
        names.push_back(b.control);
      }
    }
    return names;
  }

  std::vector<std::int64_t> Values(bool choices) {
    std::vector<std::int64_t> values;
    for (std::string_view control : Controls(choices)) values.push_back(Value(control));
    return values;
  }

 private:
  const FieldBinding& Line(std::string_view control) const {
    const FieldBinding* line = FindBinding(table_, control);
    if (line == nullptr) {  // a test naming a control the table lacks is itself wrong
      std::fprintf(stderr, "no control %.*s\n", static_cast<int>(control.size()), control.data());
      std::abort();
    }
    return *line;
  }
  Document& DocOf(const FieldBinding& line) { return line.on_ok ? pending_ : doc_; }

  Document& doc_;
  Document pending_;
  std::span<const FieldBinding> table_;
};

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_
