#include "settings/field_registry.h"

#include <vector>

#include "settings/screen/screen_pages.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/network/network_settings.h"
#include "settings/prompts/prompts.h"
#include "settings/reader/reader_settings.h"
#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

// The record's header: the format tag is restamped on every open and not offered as a field.
constexpr FieldDef kProductIndex{.name = "ProductIndex",
                                 .offset = kProductOffset,
                                 .max = kProductCount,
                                 .meaning = "0 no product, 1 Dravin S, 2 Dravin R"};
constexpr const FieldDef* kHeaderFields[] = {&kProductIndex};

}  // namespace

std::span<const FieldDef* const> AllFields() {
  static const std::vector<const FieldDef*> all = [] {
    std::vector<const FieldDef*> v;
    for (auto section : {std::span<const FieldDef* const>(kHeaderFields), SystemFields(),
                         PromptFields(), ReaderFields(), NetworkFields(), EmulationFields(),
                         FunctionKeyFields(), ScreenPageFields()}) {
      v.insert(v.end(), section.begin(), section.end());
    }
    return v;
  }();
  return all;
}

const FieldDef* FindField(std::string_view name) {
  for (const FieldDef* f : AllFields()) {
    if (f->name == name) return f;
  }
  return nullptr;
}

}  // namespace veltrix
