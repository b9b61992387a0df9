#ifndef VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_
#define VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "settings/binding_session.h"

namespace veltrix::testing {

// A page's or dialog's controls on `table`, as it opens on `doc`.
inline BindingSession Session(Document& doc, std::span<const FieldBinding> table) {
  BindingSession session(doc);
  session.Use(table);
  return session;
}

// The check boxes, or the radio groups and lists, in the table's order; and what they show.
inline std::vector<std::string_view> Controls(const BindingSession& session, bool choices) {
  std::vector<std::string_view> names;
  for (const FieldBinding& b : session.table()) {
    if (choices ? b.choice != nullptr : b.kind == ControlKind::kCheckBox)
      names.push_back(b.control);
  }
  return names;
}
inline std::vector<std::int64_t> Values(const BindingSession& session, bool choices) {
  std::vector<std::int64_t> values;
  for (std::string_view control : Controls(session, choices))
    values.push_back(session.Value(control));
  return values;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_BINDING_DRIVER_H_
