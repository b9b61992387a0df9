#ifndef VELTRIX_RESOURCES_STRINGS_H_
#define VELTRIX_RESOURCES_STRINGS_H_

#include <string_view>
#include <vector>

namespace veltrix {

// The string table: the text of string resource `id`, empty when there is none.
std::string_view StringResource(int id);

// The caption of every message box that reports a failure.
inline constexpr std::string_view kErrorCaption = "Error";

// The product names of the product list (entry 1 = "Dravin S", 2 = "Dravin R").
std::vector<std::string_view> ProductNames();

}  // namespace veltrix

#endif  // VELTRIX_RESOURCES_STRINGS_H_
