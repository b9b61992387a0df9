#ifndef VELTRIX_SETTINGS_FIELD_REGISTRY_H_
#define VELTRIX_SETTINGS_FIELD_REGISTRY_H_

#include <span>
#include <string_view>

#include "settings/field.h"

namespace veltrix {

// Every field of the settings record, section by section in record order of the sections.
std::span<const FieldDef* const> AllFields();

// The field with this name (as the summary labels it), or nullptr.
const FieldDef* FindField(std::string_view name);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_REGISTRY_H_
