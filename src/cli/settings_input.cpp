#include "cli/settings_input.h"

#include <filesystem>
#include <system_error>

namespace veltrix::cli {

std::unique_ptr<Document> LoadSettingsInput(const std::string& path, CliIo& io,
                                            SettingsFileReport* report) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    Fail(io, "cannot open '" + path + "': no such file");
    return nullptr;
  }
  if (fs::is_directory(status)) {
    Fail(io, "cannot open '" + path + "': it is a folder");
    return nullptr;
  }
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 0);
  SettingsFileReport found;
  if (!ReadSettingsFile(*doc, path, &found)) {
    Fail(io, "cannot open '" + path + "' for reading: " + found.read_error);
    return nullptr;
  }
  for (const std::string& finding : OpenFindings(found)) Warn(io, "'" + path + "': " + finding);
  if (report) *report = found;
  return doc;
}

bool SaveSettingsOutput(Document& doc, const std::string& path, CliIo& io) {
  SaveStatus status;
  if (WriteSettingsFileTo(doc, path, &status)) return true;
  if (status.refusal == SaveRefusal::kReadOnly) {
    Fail(io, "'" + path + "' is read-only; nothing was written");
  } else {
    Fail(io, "cannot write '" + path + "': " + status.reason);
  }
  return false;
}

}  // namespace veltrix::cli
