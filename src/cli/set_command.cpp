#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "settings/atomic_file.h"
#include "settings/emulation/function_keys.h"
#include "settings/field_values.h"
#include "settings/reader/working_block.h"

namespace veltrix::cli {

std::string ApplySetAssignment(Document& doc, std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string::npos) {
    return std::string("'").append(assignment).append("' is not NAME=VALUE");
  }
  const ElementLookup lookup = LookUpElement(assignment.substr(0, equals));
  if (!lookup.ok()) return lookup.error;
  const FieldDef& field = *lookup.field;
  if (!lookup.single()) {
    return std::string(field.name) + " needs " + std::to_string(field.dimensions()) +
           " index(es), e.g. " + std::string(field.name) +
           (field.dimensions() == 1 ? "[0]" : "[0][0]");
  }
  const int old_value = static_cast<int>(ReadNumber(doc.record, field));
  const std::string refused =
      StoreElementValue(doc.record, ElementsOf(lookup).front(), assignment.substr(equals + 1));
  if (!refused.empty()) return refused;
  // A key field claims its function key for its role, exactly as the page's "Key :" combo does.
  if (const int role = RoleOfKeyField(field); role != 0) {
    const int new_value = static_cast<int>(ReadNumber(doc.record, field));
    WriteNumber(doc.record, field, static_cast<std::uint32_t>(old_value));
    if (ApplyFunctionKeyCombo(doc, field, old_value, new_value, role) == KeyComboResult::kRefused) {
      return std::string(field.name) + ": The function key is defined already !!";
    }
  }
  return "";
}

constexpr int kSetLockWaitMs = 30000;

int RunSetCommand(std::span<const std::string> args, CliIo& io) {
  const ParsedArgs parsed = ParseArgs(args, {}, {});
  if (!parsed.error.empty()) return Fail(io, "set: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, SIZE_MAX); !error.empty()) {
    return Fail(io, "set: " + error + " (set FILE NAME=VALUE...)");
  }
  const std::string& path = parsed.positional[0];
  // Read, change and write under one lock: concurrent sets each land, one after the other.
  FileUpdateLock lock;
  if (std::string reason; !lock.Acquire(path, kSetLockWaitMs, &reason)) {
    return Fail(io, "set: '" + path + "': " + reason + "; nothing written");
  }
  SettingsFileReport report;
  auto doc = LoadSettingsInput(path, io, &report);
  if (!doc) return kExitUsage;
  // Saving such a file would replace what it holds by defaults, or empty its pages (previous
  // layout): leave that to convert, which the user asks for knowingly.
  if (!IsWholeAcceptedFile(report)) {
    return Fail(io, "set: '" + path + "' is not a complete settings file; nothing written");
  }
  if (report.converted) {
    return Fail(io,
                "set: '" + path + "' has the previous layout; run convert first; nothing written");
  }
  for (std::size_t k = 1; k < parsed.positional.size(); ++k) {
    const std::string& assignment = parsed.positional[k];
    if (std::string error = ApplySetAssignment(*doc, assignment); !error.empty()) {
      return Fail(io, "set: " + error + "; nothing written");
    }
  }
  // The reader working blocks are written over their record images on save: take the new values.
  CopyRecordToReaderBlocks(*doc);
  return SaveSettingsOutput(*doc, path, io) ? kExitOk : kExitUsage;
}

}  // namespace veltrix::cli
