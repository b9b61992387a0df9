#ifndef VELTRIX_CLI_SETTINGS_INPUT_H_
#define VELTRIX_CLI_SETTINGS_INPUT_H_

#include <memory>
#include <string>
#include <string_view>

#include "cli/cli_command.h"
#include "settings/document.h"
#include "settings/settings_file.h"

namespace veltrix::cli {

// Reads a settings file exactly as the program's Open does, into a document that starts as the
// program's does at start-up (no product). A file that is not a whole, accepted settings file is
// still read, with a warning. Returns nullptr after a one-line message when the file cannot be
// read at all (missing, a folder, no permission).
std::unique_ptr<Document> LoadSettingsInput(const std::string& path, CliIo& io,
                                            SettingsFileReport* report = nullptr);

// Writes the document atomically; on failure a one-line message and false.
bool SaveSettingsOutput(Document& doc, const std::string& path, CliIo& io);

// One NAME=VALUE of `set`, stored into `doc` with every rule of the command (a key field claims
// its function key). Returns the message to show when it is refused, else an empty text.
std::string ApplySetAssignment(Document& doc, std::string_view assignment);

}  // namespace veltrix::cli

#endif  // VELTRIX_CLI_SETTINGS_INPUT_H_
