#ifndef VELTRIX_RESOURCES_JSON_WRITER_H_
#define VELTRIX_RESOURCES_JSON_WRITER_H_

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix {

// Writes one JSON value, compact, for every command and report that prints JSON. Objects and
// arrays are opened and closed in order; the writer puts the commas and colons.
//
//   JsonWriter json;
//   json.Object().Key("pages").Array().Value(1).Value(2).End().End();
class JsonWriter {
 public:
  JsonWriter& Object();
  JsonWriter& Array();
  JsonWriter& End();  // closes the innermost object or array
  JsonWriter& Key(std::string_view key);

  // UTF-8 text; control characters are escaped, other bytes go through.
  JsonWriter& Value(std::string_view text);
  JsonWriter& Value(const char* text) { return Value(std::string_view(text)); }
  JsonWriter& Value(bool value);
  template <std::integral T>
  requires(!std::same_as<T, bool>) JsonWriter& Value(T value) {
    return Literal(std::to_string(value));
  }
  // Single-byte terminal text: bytes from 0x7F up are written as \u00XX, so the output is plain
  // ASCII and valid JSON whatever the bytes are.
  JsonWriter& Bytes(std::string_view bytes);
  // A value that is already JSON (a number formatted by the caller).
  JsonWriter& Literal(std::string_view json);

  // Key and value at once.
  template <typename T>
  JsonWriter& Field(std::string_view key, const T& value) {
    return Key(key).Value(value);
  }

  const std::string& text() const { return out_; }

 private:
  void BeforeValue();
  void Quoted(std::string_view text, bool ascii);

  std::string out_;
  struct Open {
    char close;
    bool has_items;
  };
  std::vector<Open> open_;
  bool after_key_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_RESOURCES_JSON_WRITER_H_
