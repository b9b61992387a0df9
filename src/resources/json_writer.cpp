#include "resources/json_writer.h"

namespace veltrix {

void JsonWriter::BeforeValue() {
  if (after_key_) {
    after_key_ = false;
    return;
  }
  if (!open_.empty()) {
    if (open_.back().has_items) out_ += ',';
    open_.back().has_items = true;
  }
}

JsonWriter& JsonWriter::Object() {
  BeforeValue();
  out_ += '{';
  open_.push_back({'}', false});
  return *this;
}

JsonWriter& JsonWriter::Array() {
  BeforeValue();
  out_ += '[';
  open_.push_back({']', false});
  return *this;
}

JsonWriter& JsonWriter::End() {
  if (open_.empty()) return *this;
  out_ += open_.back().close;
  open_.pop_back();
  return *this;
}

JsonWriter& JsonWriter::Key(std::string_view key) {
  BeforeValue();
  Quoted(key, false);
  out_ += ':';
  after_key_ = true;
  return *this;
}

JsonWriter& JsonWriter::Value(std::string_view text) {
  BeforeValue();
  Quoted(text, false);
  return *this;
}

JsonWriter& JsonWriter::Value(bool value) { return Literal(value ? "true" : "false"); }

JsonWriter& JsonWriter::Bytes(std::string_view bytes) {
  BeforeValue();
  Quoted(bytes, true);
  return *this;
}

JsonWriter& JsonWriter::Literal(std::string_view json) {
  BeforeValue();
  out_ += json;
  return *this;
}

void JsonWriter::Quoted(std::string_view text, bool ascii) {
  constexpr char kHex[] = "0123456789abcdef";
  out_ += '"';
  for (char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '"':
        out_ += "\\\"";
        break;
      case '\\':
        out_ += "\\\\";
        break;
      case '\n':
        out_ += "\\n";
        break;
      case '\r':
        out_ += "\\r";
        break;
      case '\t':
        out_ += "\\t";
        break;
      default:
        if (byte < 0x20 || (ascii && byte >= 0x7F)) {
          out_ += "\\u00";
          out_ += kHex[byte >> 4];
          out_ += kHex[byte & 0x0F];
        } else {
          out_ += c;
        }
    }
  }
  out_ += '"';
}

}  // namespace veltrix
