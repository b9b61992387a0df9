#include "settings/settings_file.h"

namespace veltrix {

// Stubs until the settings file lands.
bool ReadSettingsFile(Document& doc, const std::string& path) {
  (void)doc;
  (void)path;
  return false;
}
bool WriteSettingsFileTo(Document& doc, const std::string& path) {
  (void)doc;
  (void)path;
  return false;
}
bool WriteSettingsFile(Document& doc) {
  return !doc.file_name.empty() && WriteSettingsFileTo(doc, doc.file_name);
}
std::string SaveAsFileName(std::string_view chosen) { return std::string(chosen); }

}  // namespace veltrix
