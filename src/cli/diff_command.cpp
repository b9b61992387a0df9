#include <ostream>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "settings/field_values.h"

namespace veltrix::cli {

int RunDiffCommand(std::span<const std::string> args, CliIo& io) {
  const ParsedArgs parsed = ParseArgs(args, {}, {});
  if (!parsed.error.empty()) return Fail(io, "diff: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, 2); !error.empty()) {
    return Fail(io, "diff: " + error + " (diff A B)");
  }
  auto a = LoadSettingsInput(parsed.positional[0], io);
  if (!a) return kExitUsage;
  auto b = LoadSettingsInput(parsed.positional[1], io);
  if (!b) return kExitUsage;
  const std::vector<std::string> lines = DiffDocuments(*a, *b);
  for (const std::string& line : lines) io.out << line << '\n';
  return lines.empty() ? kExitOk : kExitDiffers;
}

}  // namespace veltrix::cli
