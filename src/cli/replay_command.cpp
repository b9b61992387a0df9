#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <ostream>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "settings/file_read.h"
#include "tn5250/replay.h"

namespace veltrix::cli {

namespace {

// A recorded session is never this large; more is not read (and the user is told).
constexpr std::size_t kMaxStreamBytes = 64u << 20;

// Reads the stream (a regular file, or standard input for "-"), at most kMaxStreamBytes; false
// with the reason when it cannot be read. `cut` is set when there was more.
bool ReadStream(const std::string& path, std::vector<std::uint8_t>& bytes, bool& cut,
                std::string& reason) {
  cut = false;
  if (path == "-") {
    std::vector<char> buffer(64 * 1024);
    while (std::cin.read(buffer.data(), static_cast<std::streamsize>(buffer.size())) ||
           std::cin.gcount() > 0) {
      const auto n = static_cast<std::size_t>(std::cin.gcount());
      const std::size_t take = std::min(n, kMaxStreamBytes - bytes.size());
      bytes.insert(bytes.end(), buffer.begin(), buffer.begin() + static_cast<long>(take));
      if (take < n || bytes.size() == kMaxStreamBytes) {
        cut = take < n || std::cin.peek() != std::char_traits<char>::eof();
        break;
      }
    }
    if (std::cin.bad()) reason = "read error on standard input";
    return !std::cin.bad();
  }
  std::optional<FileRead> read = ReadRegularFile(path, kMaxStreamBytes, &reason);
  if (!read) return false;
  bytes = std::move(read->bytes);
  cut = read->cut;
  return true;
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
  bool cut = false;
  std::string reason;
  if (!ReadStream(path, step.host, cut, reason)) {
    return Fail(io, "replay: cannot read '" + path + "': " + reason);
  }
  if (cut) {
    Warn(io, "replay: '" + path + "' is larger than " + std::to_string(kMaxStreamBytes >> 20) +
                 " MB; only its start is replayed");
  }
  ReplayRun run(config);
  run.Run({&step, 1});
  io.out << (parsed.has_flag("--json") ? run.Json() : run.Text());
  return kExitOk;
}

}  // namespace veltrix::cli
