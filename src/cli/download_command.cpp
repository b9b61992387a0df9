// veltrix-cli download: the arguments, the file, then the download through the runner.
#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/download_request.h"
#include "cli/settings_input.h"
#include "download/cradle_ir_setup.h"
#include "download/program_file.h"
#include "settings/system/system_settings.h"
#include "shell/commands.h"

namespace veltrix::cli {
namespace {

DownloadRunner g_runner = nullptr;

constexpr std::array<std::string_view, 4> kViaOptions{"cradle-ir", "rs-232", "irda", "rf"};

// What --check found: the address ranges the program fills and its size.
void PrintProgram(CliIo& io, const std::string& file, const CheckedProgram& program) {
  io.out << file << ": " << program.data_records << " data records, " << program.data_bytes
         << " bytes\n";
  for (const ProgramRange& r : program.ranges) {
    char line[64];
    std::snprintf(line, sizeof line, "  %08X-%08X  %u bytes\n", r.first, r.last,
                  r.last - r.first + 1);
    io.out << line;
  }
}

}  // namespace

void SetDownloadRunner(DownloadRunner runner) { g_runner = runner; }

int RunDownloadCommand(std::span<const std::string> args, CliIo& io) {
  // --port may come several times: one download per port.
  std::vector<std::string> rest;
  DownloadRequest request;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--port") {
      if (i + 1 == args.size()) return Fail(io, "--port needs a device");
      request.ports.push_back(args[++i]);
    } else {
      rest.push_back(args[i]);
    }
  }
  static constexpr std::string_view kValues[] = {
      "--via", "--baud", "--retries", "--listen-port", "--terminals", "--listen-address", "--wait"};
  static constexpr std::string_view kFlags[] = {"--check", "--json"};
  const ParsedArgs parsed = ParseArgs(rest, kValues, kFlags);
  if (!parsed.error.empty()) return Fail(io, parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, 2); !error.empty()) return Fail(io, error);
  const std::string& what = parsed.positional[0];
  request.file = parsed.positional[1];
  if (parsed.has_flag("--check") && what != "program") {
    return Fail(io, "--check is for program files");
  }
  request.json = parsed.has_flag("--json");
  if (what == "settings") {
    request.kind = DownloadKind::kSettings;
    auto doc = LoadSettingsInput(request.file, io);
    if (!doc) return kExitUsage;
    if (doc->product() == 0) return Fail(io, std::string(kPleaseSelectProduct));
    request.record = doc->record;
    request.via =
        static_cast<DownloadVia>(std::min<std::uint32_t>(ReadNumber(doc->record, kDownloadVia), 3));
    request.rate = kDownloadRates[std::min<std::uint32_t>(ReadNumber(doc->record, kBaudRate), 3)];
  } else if (what == "program") {
    request.kind = DownloadKind::kProgram;
    ProgramFile loaded = LoadProgramFile(request.file);
    if (loaded.status == ProgramFile::Status::kCannotOpen) {
      return Fail(io, std::string(download_text::kCannotOpenFile) + " '" + request.file +
                          "': " + loaded.reason);
    }
    if (loaded.status == ProgramFile::Status::kRefused) {
      return Fail(io, request.file + ": " + loaded.reason);
    }
    if (parsed.has_flag("--check")) {
      PrintProgram(io, request.file, loaded.program);
      return kExitOk;
    }
    request.program = std::move(loaded.program.text);
  } else {
    return Fail(io, "download what? 'settings FILE.QVL' or 'program FILE.SHX'");
  }
  if (const std::string* via = parsed.value("--via")) {
    const auto it = std::ranges::find(kViaOptions, *via);
    if (it == kViaOptions.end()) return Fail(io, "--via is cradle-ir, rs-232, irda or rf");
    request.via = static_cast<DownloadVia>(it - kViaOptions.begin());
  }
  if (const std::string* baud = parsed.value("--baud")) {
    const std::optional<int> rate = ParseInt(*baud, 1, 1000000);
    if (!rate || !std::ranges::count(kDownloadRates, *rate)) {
      return Fail(io, "--baud is 115200, 57600, 38400 or 9600");
    }
    request.rate = *rate;
  }
  if (!ReadIntOption(parsed, "--retries", 0, 1000, request.retries)) {
    return Fail(io, "--retries is a count from 0");
  }
  if (!ReadIntOption(parsed, "--listen-port", 0, 65535, request.listen_port)) {
    return Fail(io, "--listen-port is a TCP port (0 picks a free one)");
  }
  if (!ReadIntOption(parsed, "--terminals", 1, 1000, request.terminals)) {
    return Fail(io, "--terminals is a count from 1");
  }
  int wait_seconds = static_cast<int>(request.listen_wait_ms / 1000);
  if (!ReadIntOption(parsed, "--wait", 1, 86400, wait_seconds)) {
    return Fail(io, "--wait is a number of seconds");
  }
  request.listen_wait_ms = std::int64_t{wait_seconds} * 1000;
  if (const std::string* address = parsed.value("--listen-address")) {
    request.listen_address = *address;
  }
  if (request.via == DownloadVia::kRf) {
    if (!request.ports.empty()) return Fail(io, "--port is for serial links, not rf");
  } else {
    if (request.ports.empty()) return Fail(io, "a serial download needs --port DEVICE");
    if (request.terminals != 1) return Fail(io, "--terminals is for rf; give --port per port");
  }
  if (g_runner == nullptr) return Fail(io, "this build has no serial or network links");
  return g_runner(request, io);
}

}  // namespace veltrix::cli
