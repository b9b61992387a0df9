#include "settings/binding_session.h"

#include <algorithm>

namespace veltrix {

void BindingSession::Use(std::span<const FieldBinding> table) {
  table_ = table;
  pending_.reset();
  if (std::ranges::any_of(table, &FieldBinding::on_ok)) pending_ = std::make_unique<Document>(doc_);
}

BindingOutcome BindingSession::Set(const FieldBinding& line, std::int64_t value) {
  return StoreBoundValue(DocOf(line), line, value);
}
BindingOutcome BindingSession::Type(const FieldBinding& line, std::string_view text) {
  return StoreBoundText(DocOf(line), line, text);
}
void BindingSession::Pick(const FieldBinding& line, std::span<const std::uint8_t> bytes) {
  StoreBoundBytes(DocOf(line), line, bytes);
}
std::int64_t BindingSession::Value(const FieldBinding& line) const {
  return BoundValue(DocOf(line), line);
}
std::string BindingSession::Text(const FieldBinding& line) const {
  return BoundText(DocOf(line), line);
}
std::vector<std::uint8_t> BindingSession::Bytes(const FieldBinding& line) const {
  return BoundBytes(DocOf(line), line);
}
bool BindingSession::Enabled(const FieldBinding& line) const {
  return BoundEnabled(DocOf(line), line);
}

BindingOutcome BindingSession::Set(std::string_view control, std::int64_t value) {
  const FieldBinding* line = Line(control);
  return line != nullptr ? Set(*line, value) : BindingOutcome{};
}
BindingOutcome BindingSession::Type(std::string_view control, std::string_view text) {
  const FieldBinding* line = Line(control);
  return line != nullptr ? Type(*line, text) : BindingOutcome{};
}
void BindingSession::Pick(std::string_view control, std::span<const std::uint8_t> bytes) {
  if (const FieldBinding* line = Line(control)) Pick(*line, bytes);
}
std::int64_t BindingSession::Value(std::string_view control) const {
  const FieldBinding* line = Line(control);
  return line != nullptr ? Value(*line) : 0;
}
std::string BindingSession::Text(std::string_view control) const {
  const FieldBinding* line = Line(control);
  return line != nullptr ? Text(*line) : std::string();
}
std::vector<std::uint8_t> BindingSession::Bytes(std::string_view control) const {
  const FieldBinding* line = Line(control);
  return line != nullptr ? Bytes(*line) : std::vector<std::uint8_t>();
}
bool BindingSession::Enabled(std::string_view control) const {
  const FieldBinding* line = Line(control);
  return line != nullptr && Enabled(*line);
}

void BindingSession::Commit() {
  if (pending_) CommitBound(doc_, *pending_, table_);
}

void BindingSession::Revert() {
  if (pending_) *pending_ = doc_;
}

}  // namespace veltrix
