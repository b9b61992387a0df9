#ifndef VELTRIX_CLI_CLI_ARGS_H_
#define VELTRIX_CLI_CLI_ARGS_H_

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix::cli {

// A command's arguments split into options and the rest, in order.
struct ParsedArgs {
  std::vector<std::string> positional;
  std::map<std::string, std::string, std::less<>> values;  // "--out FILE" -> {"--out", "FILE"}
  std::vector<std::string> flags;                          // "--json"
  std::string error;                                       // empty when the arguments are valid

  bool has_flag(std::string_view flag) const;
  const std::string* value(std::string_view option) const;
};

// `value_options` take the next argument as their value, `flags` stand alone; any other argument
// starting with "--" is an error. "--" ends the options.
ParsedArgs ParseArgs(std::span<const std::string> args,
                     std::span<const std::string_view> value_options,
                     std::span<const std::string_view> flags);

// A whole decimal number from `low` to `high`, the whole text of it; nothing otherwise. The one
// number reader of every command's options.
std::optional<int> ParseInt(std::string_view text, int low, int high);

// An option that takes such a number: true when it is absent (`value` keeps its default) or
// valid (`value` takes it), false when it is given and not a number from `low` to `high`.
bool ReadIntOption(const ParsedArgs& parsed, std::string_view option, int low, int high,
                   int& value);

// Checks the number of positional arguments; returns an error text or empty.
std::string ExpectPositional(const ParsedArgs& parsed, std::size_t at_least, std::size_t at_most);

}  // namespace veltrix::cli

#endif  // VELTRIX_CLI_CLI_ARGS_H_
