#include "settings/reader/reader_names.h"

namespace veltrix {

std::string NameOf(std::span<const std::string_view> names, std::uint32_t value) {
  if (value < names.size()) return std::string(names[value]);
  return std::to_string(value);
}

}  // namespace veltrix
