#ifndef VELTRIX_SETTINGS_SETTINGS_FILE_H_
#define VELTRIX_SETTINGS_SETTINGS_FILE_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/atomic_file.h"
#include "settings/document.h"

namespace veltrix {

// What reading a settings file found, for callers that want to tell the user more than Open does.
struct SettingsFileReport {
  std::uintmax_t file_size = 0;
  std::size_t bytes_read = 0;  // at most a whole settings file
  bool refused = false;        // tag, version or product not accepted: defaults of product 1
  bool converted = false;      // a previous-layout ('V') file, converted in place
  std::string read_error;      // the system's reason when the file could not be read
};

// A whole settings file of an accepted tag, version and product: saving over it loses nothing.
bool IsWholeAcceptedFile(const SettingsFileReport& report);

// What Open's rules did to the file, one clause each ("it is 20 bytes, not 580984; read as far
// as it goes"); empty for a whole, accepted file of the current layout.
std::vector<std::string> OpenFindings(const SettingsFileReport& report);

// Reads the settings file at `path` into `doc` with every rule of Open: short files read as far
// as they go, refused tags/versions/products replaced by the defaults of product 1, the previous
// ('V') layout converted, the tag restamped "I100", the key code table rebuilt and the reader
// working blocks filled. Returns false only when the file cannot be opened (doc untouched then).
// Does not change doc.file_name or doc.modified.
bool ReadSettingsFile(Document& doc, const std::string& path);
bool ReadSettingsFile(Document& doc, const std::string& path, SettingsFileReport* report);

// The same from a file's bytes already in memory (any length; bytes past a whole settings file
// are not read).
SettingsFileReport ReadSettingsImage(Document& doc, std::span<const std::uint8_t> image);

// The checks and conversions Open makes once the file's bytes are in `doc` (steps after the
// read). Returns what it found; `bytes_read` is left to the caller.
SettingsFileReport ApplyOpenRules(Document& doc);

// The format version of a record's tag: the signed decimal number from offset 1 (leading blanks,
// optional sign, digits up to the first non-digit); 0 unless the letter is 'I' or 'V'.
int FormatVersion(std::span<const std::uint8_t> record);

// Writes the document (working blocks copied into the record first) to `path` atomically (see
// WriteFileAtomically). Returns false on failure or refusal, leaving any previous file intact;
// `status` says why.
bool WriteSettingsFileTo(Document& doc, const std::string& path, SaveStatus* status = nullptr,
                         SaveOptions options = {});

// Writes to doc.file_name (false when it is empty or the write fails).
bool WriteSettingsFile(Document& doc);

// The Save As name rule: the chosen name is kept when it is longer than four characters and ends
// in ".QVL" in any case; otherwise ".QVL" is appended.
std::string SaveAsFileName(std::string_view chosen);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SETTINGS_FILE_H_
