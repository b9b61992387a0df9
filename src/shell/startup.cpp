#include "shell/startup.h"

#include <algorithm>

#include "resources/strings.h"

namespace veltrix {

std::string LogDirectoryPath(std::string_view working_directory) {
  std::string path(working_directory);
  if (path.empty() || path.back() != '/') path += '/';
  path += kLogDirectoryName;
  return path;
}

std::vector<std::string> ProductNameTable() {
  std::vector<std::string> names;
  for (std::string_view name : ProductNames()) {
    if (names.size() == kMaxProducts) break;
    names.emplace_back(name.substr(0, kMaxProductNameLength));
  }
  return names;
}

WindowPlacement MainWindowPlacement(int screen_width, int screen_height) {
  return WindowPlacement{15, 15, std::max(screen_width - 30, 1), std::max(screen_height - 60, 1)};
}

}  // namespace veltrix
