#include <algorithm>
#include <ostream>

#include "cli/cli_command.h"

namespace veltrix::cli {
namespace {

constexpr Command kCommands[] = {
    {"new", "--product N --out FILE",
     "write a new settings file with the defaults of product N (0 none, 1 Dravin S, 2 Dravin R)",
     RunNewCommand},
    {"convert", "IN OUT", "read IN as the program opens a settings file and write it to OUT",
     RunConvertCommand},
    {"get", "FILE NAME...",
     "print NAME=VALUE for each field (indices from 0, e.g. TerminalScreen[0][3])", RunGetCommand},
    {"set", "FILE NAME=VALUE...",
     "change fields and save FILE; nothing is written when a value is refused", RunSetCommand},
    {"diff", "A B", "list every field and page that differs; exit 1 when they differ",
     RunDiffCommand},
    {"summary", "FILE [--json]", "print the settings summary tree (as JSON with --json)",
     RunSummaryCommand},
    {"replay", "[--emulation N] [--local-name NAME] [--keys KEYS] [--json] STREAM",
     "feed host bytes (a file, - for standard input) to a TN5250 session, type KEYS, print it",
     RunReplayCommand},
    {"screens", "FILE.SCR [--json] [--keep LIST] [--append OTHER.SCR] [--out NEW.SCR]",
     "print each captured screen of a screen file: its rows, then its fields; with --out, write "
     "the screens LIST keeps (counted from 1, as 1,3-5) and those of OTHER.SCR as a new file",
     RunScreensCommand},
    {"identify", "FILE.SCR [--json] [--into DOC.QVL] [--explain]",
     "tell a screen file's screens apart as Load does; --into stores the pages in DOC; exit 1 when "
     "they cannot be told apart",
     RunIdentifyCommand},
    {"check", "DOC.QVL FILE.SCR [--json]",
     "recognise each captured screen with DOC's pages as the terminal does (screens, pages, lines, "
     "rows and columns counted from 1); exit 1 when a screen matches no page or several, or its "
     "page shows a host field the screen does not have",
     RunCheckCommand},
    {"preview", "DOC.QVL [FILE.SCR] [--page N]",
     "show DOC's pages as the terminal's display shows them: each line's text and, between "
     "brackets, the host field mapped to it, filled from the page's screen or from each screen of "
     "FILE.SCR the terminal recognises",
     RunPreviewCommand},
    {"session",
     "HOST [--port N] [--emulation N] [--local-name NAME] [--keys KEYS] [--capture FILE.SCR "
     "[--append|--overwrite]] [--log [--log-secrets]] [--wait SECONDS] [--tls [--ca FILE.pem] "
     "[--trust SHA256:HEX]] [--json]",
     "a host session without a window: type KEYS (replay syntax, <Capture> takes the screen for "
     "FILE.SCR, written when the session ends; an existing file needs --append or --overwrite), "
     "print the last screen; exit 3 on a time-out or when the connection fails. --tls: Telnet "
     "over TLS (port 992 unless --port), the certificate verified with the system's CAs and "
     "--ca's; one that does not verify exits 2 with its fingerprint, which --trust accepts",
     RunSessionCommand},
    {"download",
     "settings FILE.QVL | program FILE.SHX [--via cradle-ir|rs-232|irda|rf] [--port DEVICE]... "
     "[--baud RATE] [--retries N] [--listen-port N] [--listen-address A] [--terminals N] "
     "[--wait SECONDS] [--json] [--check]",
     "download to a terminal as Utilities > Download does (rf: N terminals at once on the "
     "port, each attempt waiting SECONDS (10) for one; serial: one per --port); a program file is "
     "checked whole first (--check: only that); Ctrl+C stops; exit 0 when all downloaded "
     "completely, 3 when one did not",
     RunDownloadCommand},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::string_view name) {
  auto it = std::ranges::find(kCommands, name, &Command::name);
  return it == std::end(kCommands) ? nullptr : &*it;
}

void PrintHelp(std::ostream& out) {
  out << "usage: veltrix-cli COMMAND ARGS...\n"
         "Works on Veltrix settings files (.QVL) without a window.\n\n"
         "commands:\n";
  for (const Command& c : kCommands) {
    out << "  " << c.name << ' ' << c.usage << "\n      " << c.description << '\n';
  }
  out << "\nNumbers are decimal, texts plain text, byte strings hexadecimal pairs (0D 41).\n"
         "screens, identify and check count screens, pages, lines, rows and columns from 1, as\n"
         "the host window shows them; get and set show the record's own values.\n"
         "Exit status: 0 success, 1 the files differ (diff) or the screens cannot be told apart\n"
         "(identify), 2 bad usage or unreadable input, 3 a download or host session failed.\n";
}

int Fail(CliIo& io, std::string_view message) {
  io.err << "veltrix-cli: " << message << '\n';
  return kExitUsage;
}

void Warn(CliIo& io, std::string_view message) {
  io.err << "veltrix-cli: warning: " << message << '\n';
}

}  // namespace veltrix::cli
