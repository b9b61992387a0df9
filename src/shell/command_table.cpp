#include "shell/command_table.h"

#include <algorithm>

#include "resources/strings.h"

namespace veltrix {

const CommandDef* FindCommand(int id) {
  auto it = std::find_if(kCommands.begin(), kCommands.end(),
                         [id](const CommandDef& c) { return c.id == id; });
  return it == kCommands.end() ? nullptr : &*it;
}

std::string_view MenuLabel(std::string_view menu_text) {
  return menu_text.substr(0, menu_text.find('\t'));
}

std::string_view MenuShortcut(std::string_view menu_text) {
  const std::size_t tab = menu_text.find('\t');
  return tab == std::string_view::npos ? std::string_view{} : menu_text.substr(tab + 1);
}

std::string_view CommandDescription(int id) { return StringResource(id); }

std::string_view CommandTooltip(int id) { return StringResource(id + kTooltipOffset); }

bool NeedsProduct(int id) {
  const CommandDef* command = FindCommand(id);
  return command != nullptr && command->needs_product;
}

}  // namespace veltrix
