#ifndef VELTRIX_SETTINGS_FIELD_REGISTRY_H_
#define VELTRIX_SETTINGS_FIELD_REGISTRY_H_

#include <array>
#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"

namespace veltrix {

// The record's header: the format tag, restamped on every open and save, and the product.
inline constexpr auto kHeaderFieldTable = std::to_array<FieldDef>({
    {.name = "FormatTag",
     .offset = kFormatTagOffset,
     .width = kFormatTagWidth,
     .type = FieldType::kText,
     .meaning = "layout letter and version; restamped on open",
     .default_text = "I100",
     .reserved = true},
    {.name = "ProductIndex",
     .offset = kProductOffset,
     .max = kProductCount,
     .meaning = "0 no product, 1 Dravin S, 2 Dravin R"},
});
inline constexpr const FieldDef& kFormatTag = FieldNamed(kHeaderFieldTable, "FormatTag");
inline constexpr const FieldDef& kProductIndex = FieldNamed(kHeaderFieldTable, "ProductIndex");

// Every field of the settings record, section by section in record order of the sections.
std::span<const FieldDef* const> AllFields();

// The field with this name (as the summary labels it), or nullptr.
const FieldDef* FindField(std::string_view name);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_REGISTRY_H_
