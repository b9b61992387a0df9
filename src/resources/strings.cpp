#include "resources/strings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace veltrix {
namespace {

struct StringEntry {
  int id;
  std::string_view text;
};

// Sorted by id.
constexpr StringEntry kStrings[] = {
    // ---- menu command descriptions (id = command id) --------------------------------------
    // ---- toolbar tooltips (id = command id + 1000) -----------------------------------------
    // ---- product list ----------------------------------------------------------------------
    {3001, "2"},
    {3002, "Dravin S"},
    {3003, "Dravin R"},
    // ---- summary information -----------------------------------------------------------------
    {4001, "Quarvel"},
    {4002, "1.0"},
    {4003, "Copyright (C) Quarvel. All rights reserved."},
};

}  // namespace

std::string_view StringResource(int id) {
  auto it = std::find_if(std::begin(kStrings), std::end(kStrings),
                         [id](const StringEntry& e) { return e.id == id; });
  return it == std::end(kStrings) ? std::string_view{} : it->text;
}

std::vector<std::string_view> ProductNames() {
  std::string_view count_text = StringResource(3001);
  int count = 0;
  std::from_chars(count_text.data(), count_text.data() + count_text.size(), count);
  std::vector<std::string_view> names;
  for (int i = 1; i <= count; ++i) names.push_back(StringResource(3001 + i));
  return names;
}

}  // namespace veltrix
