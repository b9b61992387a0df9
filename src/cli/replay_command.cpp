#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <ostream>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "tn5250/replay.h"

namespace veltrix::cli {

namespace {

bool ReadStream(const std::string& path, std::vector<std::uint8_t>& bytes) {
  if (path == "-") {
    bytes.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    return true;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

}  // namespace

int RunReplayCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValues[] = {"--emulation", "--local-name", "--keys"};
  constexpr std::string_view kFlags[] = {"--json"};
  const ParsedArgs parsed = ParseArgs(args, kValues, kFlags);
  if (!parsed.error.empty()) return Fail(io, "replay: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 1); !error.empty()) {
    return Fail(io, "replay: " + error +
                        " (replay [--emulation N] [--local-name NAME] [--keys KEYS] [--json] "
                        "STREAM)");
  }
  SessionConfig config;
  if (const std::string* value = parsed.value("--emulation")) {
    if (value->size() != 1 || (*value)[0] < '0' || (*value)[0] > '6') {
      return Fail(io,
                  "replay: --emulation takes a host language from 0 to 6, not '" + *value + "'");
    }
    config.emulation_type = (*value)[0] - '0';
  }
  if (const std::string* value = parsed.value("--local-name")) config.local_name = *value;
  ReplayStep step;
  if (const std::string* value = parsed.value("--keys")) {
    std::string error;
    if (!ParseReplayKeys(*value, config.emulation_type, step.keys, error)) {
      return Fail(io, "replay: --keys: " + error);
    }
  }
  const std::string& path = parsed.positional[0];
  if (!ReadStream(path, step.host)) return Fail(io, "replay: cannot read '" + path + "'");
  ReplayRun run(config);
  run.Run({&step, 1});
  io.out << (parsed.has_flag("--json") ? run.Json() : run.Text());
  return kExitOk;
}

}  // namespace veltrix::cli
