#include <ostream>
#include <vector>

#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "settings/field_values.h"

namespace veltrix::cli {

int RunGetCommand(std::span<const std::string> args, CliIo& io) {
  const ParsedArgs parsed = ParseArgs(args, {}, {});
  if (!parsed.error.empty()) return Fail(io, "get: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 2, SIZE_MAX); !error.empty()) {
    return Fail(io, "get: " + error + " (get FILE NAME...)");
  }
  // Every name is checked before anything is printed.
  std::vector<ElementLookup> lookups;
  for (std::size_t k = 1; k < parsed.positional.size(); ++k) {
    lookups.push_back(LookUpElement(parsed.positional[k]));
    if (!lookups.back().ok()) return Fail(io, "get: " + lookups.back().error);
  }
  auto doc = LoadSettingsInput(parsed.positional[0], io);
  if (!doc) return kExitUsage;
  for (const ElementLookup& lookup : lookups) {
    for (const FieldElement& element : ElementsOf(lookup)) {
      io.out << ElementName(element) << '=' << FormatElementValue(doc->record, element) << '\n';
    }
  }
  return kExitOk;
}

}  // namespace veltrix::cli
