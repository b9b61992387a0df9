#include "settings/field_registry.h"

#include <vector>

#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/network/network_settings.h"
#include "settings/prompts/prompts.h"
#include "settings/reader/reader_settings.h"
#include "settings/screen/screen_pages.h"
#include "settings/system/system_settings.h"

namespace veltrix {
namespace {
constexpr auto kHeaderFields = FieldPointers(kHeaderFieldTable);
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
