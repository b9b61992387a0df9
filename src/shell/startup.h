#ifndef VELTRIX_SHELL_STARTUP_H_
#define VELTRIX_SHELL_STARTUP_H_

#include <string>
#include <string_view>
#include <vector>

namespace veltrix {

inline constexpr std::size_t kMaxProducts = 10;
inline constexpr std::size_t kMaxProductNameLength = 9;
inline constexpr std::string_view kLogDirectoryName = "Logs";

// The session log's folder: the working directory joined with "Logs" by one separator.
std::string LogDirectoryPath(std::string_view working_directory);

// The product box's names from the string table (count from string 3001, names from 3002 on),
// each cut to 9 characters, at most 10 of them.
std::vector<std::string> ProductNameTable();

// Where the main window goes on a screen of the given size: at (15, 15), 30 pixels narrower and
// 60 pixels lower than the screen.
struct WindowPlacement {
  int x;
  int y;
  int width;
  int height;
  bool operator==(const WindowPlacement&) const = default;
};
WindowPlacement MainWindowPlacement(int screen_width, int screen_height);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_STARTUP_H_
