#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/settings_input.h"
#include "resources/strings.h"

namespace veltrix::cli {

int RunNewCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValueOptions[] = {"--product", "--out"};
  const ParsedArgs parsed = ParseArgs(args, kValueOptions, {});
  if (!parsed.error.empty()) return Fail(io, "new: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 0, 0); !error.empty()) {
    return Fail(io, "new: " + error);
  }
  const std::string* product_text = parsed.value("--product");
  const std::string* out = parsed.value("--out");
  if (!product_text || !out) return Fail(io, "new: --product N and --out FILE are required");

  const int products = static_cast<int>(ProductNames().size());
  const std::optional<int> product = ParseInt(*product_text, 0, products);
  if (!product) {
    return Fail(
        io, "new: product '" + *product_text + "' is not one of 0.." + std::to_string(products));
  }
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, *product);
  return SaveSettingsOutput(*doc, *out, io) ? kExitOk : kExitUsage;
}

}  // namespace veltrix::cli
