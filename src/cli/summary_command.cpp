#include <ostream>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "shell/summary.h"
#include "shell/summary_json.h"

namespace veltrix::cli {

int RunSummaryCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kFlags[] = {"--json"};
  const ParsedArgs parsed = ParseArgs(args, {}, kFlags);
  if (!parsed.error.empty()) return Fail(io, "summary: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 1); !error.empty()) {
    return Fail(io, "summary: " + error + " (summary FILE [--json])");
  }
  auto doc = LoadSettingsInput(parsed.positional[0], io);
  if (!doc) return kExitUsage;
  const std::vector<SummaryNode> tree = BuildSummary(*doc);
  if (tree.empty()) return kExitOk;  // no product chosen: the summary is empty
  io.out << (parsed.has_flag("--json") ? RenderSummaryJson(tree) : RenderSummaryText(tree));
  return kExitOk;
}

}  // namespace veltrix::cli
