#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"

namespace veltrix::cli {

int RunConvertCommand(std::span<const std::string> args, CliIo& io) {
  const ParsedArgs parsed = ParseArgs(args, {}, {});
  if (!parsed.error.empty()) return Fail(io, "convert: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, 2); !error.empty()) {
    return Fail(io, "convert: " + error + " (convert IN OUT)");
  }
  auto doc = LoadSettingsInput(parsed.positional[0], io);
  if (!doc) return kExitUsage;
  return SaveSettingsOutput(*doc, parsed.positional[1], io) ? kExitOk : kExitUsage;
}

}  // namespace veltrix::cli
