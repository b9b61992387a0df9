#ifndef VELTRIX_CLI_CLI_COMMAND_H_
#define VELTRIX_CLI_CLI_COMMAND_H_

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

namespace veltrix::cli {

// Exit codes of every command.
inline constexpr int kExitOk = 0;
inline constexpr int kExitDiffers = 1;  // a check found a difference (diff)
inline constexpr int kExitUsage = 2;    // bad usage, unreadable input or a refused value
inline constexpr int kExitFailed = 3;   // a download or a host session failed

struct CliIo {
  std::ostream& out;
  std::ostream& err;
};

// A command gets the arguments after its own name.
using CommandRun = int (*)(std::span<const std::string> args, CliIo& io);

struct Command {
  std::string_view name;
  std::string_view usage;        // arguments, shown after the name
  std::string_view description;  // one line
  CommandRun run;
};

// The command table (command_table.cpp): adding a command is one line there.
std::span<const Command> Commands();
const Command* FindCommand(std::string_view name);
void PrintHelp(std::ostream& out);

// Writes "veltrix-cli: <message>" as one line to the error stream and returns kExitUsage.
int Fail(CliIo& io, std::string_view message);
void Warn(CliIo& io, std::string_view message);

int RunNewCommand(std::span<const std::string> args, CliIo& io);
int RunConvertCommand(std::span<const std::string> args, CliIo& io);
int RunGetCommand(std::span<const std::string> args, CliIo& io);
int RunSetCommand(std::span<const std::string> args, CliIo& io);
int RunDiffCommand(std::span<const std::string> args, CliIo& io);
int RunSummaryCommand(std::span<const std::string> args, CliIo& io);
// Defined in screen_commands.cpp.
int RunScreensCommand(std::span<const std::string> args, CliIo& io);
int RunIdentifyCommand(std::span<const std::string> args, CliIo& io);
int RunCheckCommand(std::span<const std::string> args, CliIo& io);
int RunPreviewCommand(std::span<const std::string> args, CliIo& io);
// Defined in session_command.cpp.
int RunSessionCommand(std::span<const std::string> args, CliIo& io);
// Defined in download_command.cpp.
int RunDownloadCommand(std::span<const std::string> args, CliIo& io);
// Defined in replay_command.cpp.
int RunReplayCommand(std::span<const std::string> args, CliIo& io);

}  // namespace veltrix::cli

#endif  // VELTRIX_CLI_CLI_COMMAND_H_
