#include <algorithm>
#include <iostream>
#include <span>
#include <string>
#include <vector>

#include "cli/cli_command.h"
#include "cli/download_request.h"

#ifdef VELTRIX_CLI_LINKS
namespace veltrix::cli {
void InstallDownloadRunner();  // download_runner_qt.cpp
void InstallTlsStream();       // tls_stream_qt.cpp
}  // namespace veltrix::cli
#endif

int main(int argc, char** argv) {
  using namespace veltrix::cli;
  CliIo io{std::cout, std::cerr};
#ifdef VELTRIX_CLI_LINKS
  InstallDownloadRunner();
  InstallTlsStream();
#endif
  const std::vector<std::string> args(argv + std::min(argc, 1), argv + argc);
  if (args.empty()) {
    PrintHelp(std::cerr);
    return kExitUsage;
  }
  if (args[0] == "--version") {
    std::cout << "veltrix-cli " << VELTRIX_VERSION << '\n';
    return kExitOk;
  }
  if (args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
    PrintHelp(std::cout);
    return kExitOk;
  }
  const Command* command = FindCommand(args[0]);
  if (!command) return Fail(io, "unknown command '" + args[0] + "' (see veltrix-cli --help)");
  const std::span<const std::string> rest = std::span(args).subspan(1);
  if (!rest.empty() && (rest[0] == "--help" || rest[0] == "-h")) {
    std::cout << "usage: veltrix-cli " << command->name << ' ' << command->usage << '\n'
              << command->description << '\n';
    return kExitOk;
  }
  const int status = command->run(rest, io);
  std::cout.flush();
  return status;
}
