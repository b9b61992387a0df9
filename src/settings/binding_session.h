#ifndef VELTRIX_SETTINGS_BINDING_SESSION_H_
#define VELTRIX_SETTINGS_BINDING_SESSION_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix {

// The controls of one page or dialog on their binding table, as the user changes them: a line
// stored at once writes the document, a line stored on OK writes the session's copy of it, which
// Commit() brings into the document (Cancel simply drops the session). The widgets' binder and
// the tests drive the same session.
class BindingSession {
 public:
  explicit BindingSession(Document& doc) : doc_(doc) {}

  // The table (which must outlive the session); a new one replaces it and starts from the
  // document again.
  void Use(std::span<const FieldBinding> table);
  std::span<const FieldBinding> table() const { return table_; }
  // The table's line for a control, or null.
  const FieldBinding* Line(std::string_view control) const { return FindBinding(table_, control); }

  // What the user does to a line's control: a check, button id or entry; a whole text; the bytes
  // picked in the grid editor.
  BindingOutcome Set(const FieldBinding& line, std::int64_t value);
  BindingOutcome Type(const FieldBinding& line, std::string_view text);
  void Pick(const FieldBinding& line, std::span<const std::uint8_t> bytes);
  // What the line's control shows, and whether it is enabled.
  std::int64_t Value(const FieldBinding& line) const;
  std::string Text(const FieldBinding& line) const;
  std::vector<std::uint8_t> Bytes(const FieldBinding& line) const;
  bool Enabled(const FieldBinding& line) const;

  // The same by control name (a name the table lacks changes nothing and shows nothing).
  BindingOutcome Set(std::string_view control, std::int64_t value);
  BindingOutcome Type(std::string_view control, std::string_view text);
  void Pick(std::string_view control, std::span<const std::uint8_t> bytes);
  std::int64_t Value(std::string_view control) const;
  std::string Text(std::string_view control) const;
  std::vector<std::uint8_t> Bytes(std::string_view control) const;
  bool Enabled(std::string_view control) const;

  // The document the on-OK lines edit until OK (the document itself when there are none).
  Document& Pending() { return pending_ ? *pending_ : doc_; }
  const Document& Pending() const { return pending_ ? *pending_ : doc_; }
  // OK: every on-OK line's value goes into the document.
  void Commit();
  // Drops what the on-OK lines hold: they show the document again.
  void Revert();

 private:
  Document& DocOf(const FieldBinding& line) { return line.on_ok ? Pending() : doc_; }
  const Document& DocOf(const FieldBinding& line) const { return line.on_ok ? Pending() : doc_; }

  Document& doc_;
  std::unique_ptr<Document> pending_;
  std::span<const FieldBinding> table_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_BINDING_SESSION_H_
