#ifndef VELTRIX_SETTINGS_FIELD_VALUES_H_
#define VELTRIX_SETTINGS_FIELD_VALUES_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field.h"

namespace veltrix {

// One element of a field: a plain field has one, a repeated field one per index (pair).
struct FieldElement {
  const FieldDef* field = nullptr;
  int i = 0;
  int j = 0;
};

// A field named as "Name", "Name[i]" or "Name[i][j]" (indices from 0). A repeated field named
// with fewer indices than it has stands for all its elements under the indices given.
struct ElementLookup {
  const FieldDef* field = nullptr;
  std::vector<int> indices;
  std::string error;  // empty when the name is valid

  bool ok() const { return error.empty(); }
  // True when the name picks exactly one element.
  bool single() const { return field && static_cast<int>(indices.size()) == field->dimensions(); }
};

ElementLookup LookUpElement(std::string_view name);

// Every element the lookup stands for, in index order.
std::vector<FieldElement> ElementsOf(const ElementLookup& lookup);
std::vector<FieldElement> ElementsOf(const FieldDef& field);

// "Name", "Name[i]" or "Name[i][j]" as the field's dimensions require.
std::string ElementName(const FieldElement& element);

// The element's value: numbers in decimal, texts as text, byte strings as upper-case
// hexadecimal pairs separated by blanks.
std::string FormatElementValue(std::span<const std::uint8_t> record, const FieldElement& element);

// Stores `value` (written as FormatElementValue writes it) into the element. Refuses a number
// outside the field's range, a text longer than the field holds or a byte string longer than
// the field, with a message naming the element and the limit; nothing is written then. A
// shorter byte string is padded with zero bytes. Returns the message, empty on success.
std::string StoreElementValue(std::span<std::uint8_t> record, const FieldElement& element,
                              std::string_view value);

// Every difference between two documents: one "Name: a -> b" line per differing field element,
// "byte N: a -> b" for differing record bytes that no field declares, then "page N" for each
// differing page record (numbered from 1). Empty when the documents are the same.
std::vector<std::string> DiffDocuments(const Document& a, const Document& b);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_VALUES_H_
