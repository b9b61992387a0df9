#include "settings/field_values.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "resources/hex_text.h"
#include "settings/field_registry.h"

namespace veltrix {
namespace {

// Appended, not "'" + string: GCC 12 at -O3 takes that for an overlapping copy.
std::string Quoted(std::string_view text) { return std::string("'").append(text).append("'"); }

int IndexLimit(const FieldDef& f, std::size_t position) {
  return position == 0 ? f.count : f.count2;
}

// The largest value the field's bytes can hold, whatever range it declares.
std::int64_t StorageMax(const FieldDef& f) {
  switch (f.type) {
    case FieldType::kU16:
    case FieldType::kSplitU16:
      return 0xFFFF;
    case FieldType::kBits:
      return (std::int64_t{1} << f.bit_count) - 1;
    default:
      return 0xFF;
  }
}

std::string HexPairs(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (std::uint8_t b : bytes) {
    if (!text.empty()) text += ' ';
    AppendHexByte(text, b);
  }
  return text;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::string StoreNumber(std::span<std::uint8_t> record, const FieldElement& e,
                        std::string_view value) {
  const FieldDef& f = *e.field;
  std::int64_t number = 0;
  const char* end = value.data() + value.size();
  const char* begin = value.data() + (!value.empty() && value.front() == '+' ? 1 : 0);
  auto [stop, error] = std::from_chars(begin, end, number);
  if (value.empty() || error != std::errc() || stop != end) {
    return ElementName(e) + ": " + Quoted(value) + " is not a number";
  }
  const std::int64_t low = std::max<std::int64_t>(f.min, 0);
  const std::int64_t high = std::min(f.max, StorageMax(f));
  if (number < low || number > high) {
    return ElementName(e) + ": " + std::string(value) + " is out of range " + std::to_string(low) +
           ".." + std::to_string(high);
  }
  WriteNumber(record, f, static_cast<std::uint32_t>(number), e.i, e.j);
  return {};
}

std::string StoreText(std::span<std::uint8_t> record, const FieldElement& e,
                      std::string_view value) {
  const std::size_t room = e.field->width - 1u;
  // A file may hold a text that fills the whole field without a NUL; `get` prints it as it is,
  // and setting it back unchanged must not fail.
  const auto stored = FieldBytes(std::span<const std::uint8_t>(record), *e.field, e.i, e.j);
  if (value.size() == stored.size() &&
      std::equal(value.begin(), value.end(), stored.begin(),
                 [](char c, std::uint8_t b) { return static_cast<std::uint8_t>(c) == b; })) {
    return {};
  }
  if (value.size() > room) {
    return ElementName(e) + ": text of " + std::to_string(value.size()) +
           " characters is too long, at most " + std::to_string(room);
  }
  if (value.find('\0') != std::string_view::npos) {
    return ElementName(e) + ": text must not contain a NUL character";
  }
  WriteText(record, *e.field, value, e.i, e.j);
  return {};
}

std::string StoreBytes(std::span<std::uint8_t> record, const FieldElement& e,
                       std::string_view value) {
  std::vector<std::uint8_t> bytes;
  int high = -1;
  for (char c : value) {
    if (c == ' ' && high < 0) continue;  // blanks only between pairs
    const int digit = HexValue(c);
    if (digit < 0) {
      return ElementName(e) + ": " + Quoted(value) +
             " is not a byte string (hexadecimal pairs such as 0D 41)";
    }
    if (high < 0) {
      high = digit;
    } else {
      bytes.push_back(static_cast<std::uint8_t>(high << 4 | digit));
      high = -1;
    }
  }
  if (high >= 0) {
    return ElementName(e) + ": " + Quoted(value) + " ends in half a byte";
  }
  if (bytes.size() > e.field->width) {
    return ElementName(e) + ": " + std::to_string(bytes.size()) + " bytes are too many, at most " +
           std::to_string(e.field->width);
  }
  auto target = FieldBytes(record, *e.field, e.i, e.j);
  std::ranges::fill(target, std::uint8_t{0});
  std::ranges::copy(bytes, target.begin());
  return {};
}

// The record bytes that no declared field covers.
std::vector<bool> UndeclaredBytes() {
  std::vector<bool> undeclared(kRecordSize, true);
  for (const FieldDef* f : AllFields()) {
    for (const FieldElement& e : ElementsOf(*f)) {
      const std::uint32_t at = f->OffsetOf(e.i, e.j);
      const std::uint32_t width = f->type == FieldType::kU16 ? 2 : f->width;
      for (std::uint32_t k = at; k < at + width && k < kRecordSize; ++k) undeclared[k] = false;
      if (f->type == FieldType::kSplitU16) {
        const std::uint32_t hi = f->offset_hi + (at - f->offset);
        if (hi < kRecordSize) undeclared[hi] = false;
      }
    }
  }
  return undeclared;
}

bool SameElement(const Document& a, const Document& b, const FieldElement& e) {
  if (e.field->numeric()) {
    return ReadNumber(a.record, *e.field, e.i, e.j) == ReadNumber(b.record, *e.field, e.i, e.j);
  }
  return std::ranges::equal(FieldBytes(a.record, *e.field, e.i, e.j),
                            FieldBytes(b.record, *e.field, e.i, e.j));
}

}  // namespace

ElementLookup LookUpElement(std::string_view name) {
  ElementLookup lookup;
  const std::size_t bracket = name.find('[');
  const std::string_view base = name.substr(0, bracket);
  lookup.field = FindField(base);
  if (!lookup.field) {
    lookup.error = "unknown field " + Quoted(base);
    return lookup;
  }
  std::string_view rest = bracket == std::string_view::npos ? "" : name.substr(bracket);
  while (!rest.empty()) {
    const std::size_t close = rest.find(']');
    int index = 0;
    const char* first = rest.data() + 1;
    const char* last = rest.data() + (close == std::string_view::npos ? 0 : close);
    auto [stop, error] = std::from_chars(first, last, index);
    if (rest.front() != '[' || close == std::string_view::npos || close == 1 ||
        error != std::errc() || stop != last) {
      lookup.error = "bad index in " + Quoted(name);
      return lookup;
    }
    const std::size_t position = lookup.indices.size();
    if (static_cast<int>(position) >= lookup.field->dimensions()) {
      lookup.error = Quoted(name) + ": " + std::string(base) + " takes " +
                     std::to_string(lookup.field->dimensions()) + " index(es)";
      return lookup;
    }
    const int limit = IndexLimit(*lookup.field, position);
    if (index < 0 || index >= limit) {
      lookup.error = Quoted(name) + ": index " + std::to_string(index) + " is out of range 0.." +
                     std::to_string(limit - 1);
      return lookup;
    }
    lookup.indices.push_back(index);
    rest.remove_prefix(close + 1);
  }
  return lookup;
}

std::vector<FieldElement> ElementsOf(const ElementLookup& lookup) {
  std::vector<FieldElement> elements;
  const FieldDef* f = lookup.field;
  if (!f) return elements;
  const auto& given = lookup.indices;
  const int i_first = given.size() > 0 ? given[0] : 0;
  const int i_last = given.size() > 0 ? given[0] : f->count - 1;
  const int j_first = given.size() > 1 ? given[1] : 0;
  const int j_last = given.size() > 1 ? given[1] : f->count2 - 1;
  for (int i = i_first; i <= i_last; ++i) {
    for (int j = j_first; j <= j_last; ++j) elements.push_back({f, i, j});
  }
  return elements;
}

std::vector<FieldElement> ElementsOf(const FieldDef& field) {
  ElementLookup all;
  all.field = &field;
  return ElementsOf(all);
}

std::string ElementName(const FieldElement& e) {
  std::string name(e.field->name);
  const int dimensions = e.field->dimensions();
  if (dimensions >= 1) name.append("[").append(std::to_string(e.i)).append("]");
  if (dimensions >= 2) name.append("[").append(std::to_string(e.j)).append("]");
  return name;
}

std::string FormatElementValue(std::span<const std::uint8_t> record, const FieldElement& e) {
  switch (e.field->type) {
    case FieldType::kText:
      return ReadText(record, *e.field, e.i, e.j);
    case FieldType::kBytes:
      return HexPairs(FieldBytes(record, *e.field, e.i, e.j));
    default:
      return std::to_string(ReadNumber(record, *e.field, e.i, e.j));
  }
}

std::string StoreElementValue(std::span<std::uint8_t> record, const FieldElement& e,
                              std::string_view value) {
  switch (e.field->type) {
    case FieldType::kText:
      return StoreText(record, e, value);
    case FieldType::kBytes:
      return StoreBytes(record, e, value);
    default:
      return StoreNumber(record, e, value);
  }
}

std::vector<std::string> DiffDocuments(const Document& a, const Document& b) {
  std::vector<std::string> lines;
  for (const FieldDef* f : AllFields()) {
    for (const FieldElement& e : ElementsOf(*f)) {
      if (SameElement(a, b, e)) continue;
      std::string from = FormatElementValue(a.record, e);
      std::string to = FormatElementValue(b.record, e);
      if (from == to) {  // texts that differ only behind their NUL
        from = HexPairs(FieldBytes(a.record, *f, e.i, e.j));
        to = HexPairs(FieldBytes(b.record, *f, e.i, e.j));
      }
      lines.push_back(ElementName(e) + ": " + from + " -> " + to);
    }
  }
  static const std::vector<bool> undeclared = UndeclaredBytes();
  for (std::size_t k = 0; k < kRecordSize; ++k) {
    if (undeclared[k] && a.record[k] != b.record[k]) {
      lines.push_back("byte " + std::to_string(k) + ": " + std::to_string(a.record[k]) + " -> " +
                      std::to_string(b.record[k]));
    }
  }
  for (std::size_t page = 0; page < kPageCount; ++page) {
    if (a.pages[page] != b.pages[page]) lines.push_back("page " + std::to_string(page + 1));
  }
  return lines;
}

}  // namespace veltrix
