#include "settings/settings_file.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <vector>

#include "resources/strings.h"
#include "settings/atomic_file.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/field_registry.h"
#include "settings/file_read.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"
#include "settings/screen/screen_pages.h"

namespace veltrix {
namespace {

namespace fs = std::filesystem;

constexpr int kMinimumVersion = 100;
constexpr char kCurrentLayout = 'I';
constexpr char kPreviousLayout = 'V';

bool IsBlank(std::uint8_t c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Copies the file's bytes over the record and then the page records, in file order; whatever
// the file does not hold keeps its former contents.
void CopyFileImage(std::span<const std::uint8_t> image, Document& doc) {
  const std::size_t in_record = std::min(image.size(), kRecordSize);
  std::copy_n(image.begin(), in_record, doc.record.begin());
  image = image.subspan(in_record);
  for (PageRecord& page : doc.pages) {
    const std::size_t n = std::min(image.size(), kPageRecordSize);
    std::copy_n(image.begin(), n, page.begin());
    image = image.subspan(n);
  }
}

// The previous layout differs in the screen pages, the function key mapping, a few reader bytes
// and the message settings; everything else is read with the current offsets.
void ConvertPreviousLayout(Document& doc) {
  WriteNumber(doc.record, kScreensLoaded, 0);
  WriteNumber(doc.record, kTotalPages, 0);
  for (PageRecord& page : doc.pages) page.fill(0);
  SetFunctionKeyDefaults(doc);
  ConvertPreviousReaderLayout(doc);
  SetEmulationMessageDefaults(doc);
}

int ProductCount() { return static_cast<int>(ProductNames().size()); }

// A name for the temporary file beside `target` that no one else is likely to use.
}  // namespace

int FormatVersion(std::span<const std::uint8_t> record) {
  if (record.empty() || (record[0] != kCurrentLayout && record[0] != kPreviousLayout)) return 0;
  std::size_t i = 1;
  while (i < record.size() && IsBlank(record[i])) ++i;
  bool negative = false;
  if (i < record.size() && (record[i] == '+' || record[i] == '-')) negative = record[i++] == '-';
  long long value = 0;
  for (; i < record.size() && record[i] >= '0' && record[i] <= '9'; ++i) {
    value = std::min<long long>(value * 10 + (record[i] - '0'), INT_MAX);  // saturate, never wrap
  }
  return static_cast<int>(negative ? -value : value);
}

SettingsFileReport ApplyOpenRules(Document& doc) {
  SettingsFileReport report;
  const char letter = static_cast<char>(doc.record[kFormatTagOffset]);
  if (FormatVersion(doc.record) < kMinimumVersion || doc.product() > ProductCount()) {
    SetDefaults(doc, 1);
    report.refused = true;
  } else {
    // The key-present list is not stored: make it match the product just read.
    ApplyKeyAvailability(doc);
    if (letter == kPreviousLayout) {
      ConvertPreviousLayout(doc);
      report.converted = true;
    }
  }
  ApplyDefault(doc.record, kFormatTag);
  RebuildKeyCodeTable(doc);
  CopyRecordToReaderBlocks(doc);
  return report;
}

bool IsWholeAcceptedFile(const SettingsFileReport& report) {
  return !report.refused && report.file_size == kSettingsFileSize;
}

std::vector<std::string> OpenFindings(const SettingsFileReport& report) {
  std::vector<std::string> findings;
  if (report.file_size != kSettingsFileSize) {
    findings.push_back("it is " + std::to_string(report.file_size) + " bytes, not " +
                       std::to_string(kSettingsFileSize) + "; read as far as it goes");
  }
  if (report.refused) {
    findings.push_back(
        "it has no accepted format tag, version or product; read as the defaults of product 1");
  }
  if (report.converted) findings.push_back("it has the previous layout; converted");
  return findings;
}

bool ReadSettingsFile(Document& doc, const std::string& path) {
  return ReadSettingsFile(doc, path, nullptr);
}

bool ReadSettingsFile(Document& doc, const std::string& path, SettingsFileReport* report) {
  // Only what the layout holds is read, whatever the file's size.
  std::string reason;
  std::optional<FileRead> read = ReadRegularFile(path, kSettingsFileSize, &reason);
  if (!read) {
    if (report) report->read_error = reason;
    return false;
  }
  SettingsFileReport found = ReadSettingsImage(doc, read->bytes);
  found.file_size = read->file_size;
  if (report) *report = found;
  return true;
}

SettingsFileReport ReadSettingsImage(Document& doc, std::span<const std::uint8_t> image) {
  CopyFileImage(image.first(std::min(image.size(), kSettingsFileSize)), doc);
  SettingsFileReport found = ApplyOpenRules(doc);
  found.bytes_read = std::min(image.size(), kSettingsFileSize);
  found.file_size = image.size();
  return found;
}

bool WriteSettingsFileTo(Document& doc, const std::string& path, SaveStatus* status,
                         SaveOptions options) {
  CopyReaderBlocksToRecord(doc);
  std::vector<std::span<const std::uint8_t>> parts{doc.record};
  for (const PageRecord& page : doc.pages) parts.emplace_back(page);
  return WriteFileAtomically(path, parts, SystemFileCalls(), status, options);
}

bool WriteSettingsFile(Document& doc) {
  return !doc.file_name.empty() && WriteSettingsFileTo(doc, doc.file_name);
}

std::string SaveAsFileName(std::string_view chosen) {
  constexpr std::string_view kExtension = ".QVL";
  auto same_letter = [](char a, char b) {
    return std::toupper(static_cast<unsigned char>(a)) ==
           std::toupper(static_cast<unsigned char>(b));
  };
  if (chosen.size() > kExtension.size() &&
      std::equal(kExtension.begin(), kExtension.end(), chosen.end() - kExtension.size(),
                 same_letter)) {
    return std::string(chosen);
  }
  return std::string(chosen) + std::string(kExtension);
}

}  // namespace veltrix
