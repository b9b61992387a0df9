#include "cli/cli_args.h"

#include <algorithm>
#include <charconv>

namespace veltrix::cli {

bool ParsedArgs::has_flag(std::string_view flag) const {
  return std::ranges::find(flags, flag) != flags.end();
}

const std::string* ParsedArgs::value(std::string_view option) const {
  auto it = values.find(option);
  return it == values.end() ? nullptr : &it->second;
}

ParsedArgs ParseArgs(std::span<const std::string> args,
                     std::span<const std::string_view> value_options,
                     std::span<const std::string_view> flags) {
  ParsedArgs parsed;
  bool options_ended = false;
  for (std::size_t k = 0; k < args.size(); ++k) {
    const std::string& arg = args[k];
    if (options_ended || arg.size() < 2 || arg.compare(0, 2, "--") != 0) {
      parsed.positional.push_back(arg);
    } else if (arg == "--") {
      options_ended = true;
    } else if (std::ranges::find(flags, arg) != flags.end()) {
      parsed.flags.push_back(arg);
    } else if (std::ranges::find(value_options, arg) != value_options.end()) {
      if (k + 1 >= args.size()) {
        parsed.error = "option " + arg + " needs a value";
        return parsed;
      }
      parsed.values[arg] = args[++k];
    } else {
      parsed.error = "unknown option " + arg;
      return parsed;
    }
  }
  return parsed;
}

std::string ExpectPositional(const ParsedArgs& parsed, std::size_t at_least, std::size_t at_most) {
  const std::size_t n = parsed.positional.size();
  if (n < at_least) return "too few arguments";
  if (n > at_most) return "unexpected argument '" + parsed.positional[at_most] + "'";
  return {};
}

std::optional<int> ParseInt(std::string_view text, int low, int high) {
  int value = 0;
  const char* end = text.data() + text.size();
  const char* begin = text.data() + (!text.empty() && text.front() == '+' ? 1 : 0);
  const auto [stop, error] = std::from_chars(begin, end, value);
  if (text.empty() || error != std::errc() || stop != end || value < low || value > high) {
    return std::nullopt;
  }
  return value;
}

bool ReadIntOption(const ParsedArgs& parsed, std::string_view option, int low, int high,
                   int& value) {
  const std::string* text = parsed.value(option);
  if (text == nullptr) return true;
  const std::optional<int> n = ParseInt(*text, low, high);
  if (n) value = *n;
  return n.has_value();
}

}  // namespace veltrix::cli
