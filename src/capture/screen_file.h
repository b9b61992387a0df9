#ifndef VELTRIX_CAPTURE_SCREEN_FILE_H_
#define VELTRIX_CAPTURE_SCREEN_FILE_H_

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"

namespace veltrix {

// A screen file (".SCR"): a 20-byte header ("I100" and 16 zero bytes), then one page record per
// captured screen with nothing between or after them.
inline constexpr std::size_t kScreenFileHeaderSize = 20;
inline constexpr std::string_view kScreenFileTag = "I100";
// The loaded screen list holds this many screens.
inline constexpr std::size_t kMaxLoadedScreens = 100;

inline constexpr std::string_view kScreenFileFilter = "Host Session Screens (*.SCR)";
inline constexpr std::string_view kCreateFileFailedMessage = "Create file failed !!";
inline constexpr std::string_view kVersionErrorMessage = "Version Error";

std::array<std::uint8_t, kScreenFileHeaderSize> ScreenFileHeader();

// The host screen's columns: a field's cells run on from one row to the next across them.
inline constexpr int kHostScreenColumns = 80;

// One field entry of a page record, as stored.
struct FieldEntry {
  int number = 0;
  int resequence = 0;
  int column = 0;
  int row = 0;
  std::uint8_t format1 = 0;  // field format word
  std::uint8_t format2 = 0;
  std::uint8_t control1 = 0;  // field control word
  std::uint8_t control2 = 0;
  std::uint8_t attribute = 0;
  int length = 0;
  std::uint32_t next = 0;  // the field list's links as the engine kept them
  std::uint32_t previous = 0;
};

// The character at (row, column) of a page record's screen image; 0 outside the image.
std::uint8_t ImageCell(const PageRecord& page, int row, int column);
// The field entries up to the first with number 0 (at most 255).
std::vector<FieldEntry> FieldEntries(const PageRecord& page);

// Blanks (empties) the characters of the non-display input fields of a captured screen, such as
// a sign-on's password, so that no screen file, listing or page record holds them.
void BlankNonDisplayFields(PageRecord& page);

// A screen file read whole.
struct LoadedScreens {
  std::vector<PageRecord> screens;  // at most kMaxLoadedScreens, in file order
  std::size_t screens_in_file = 0;  // more than screens.size() when the file held more
};

// The number of screens in a screen file of `size` bytes; nothing when the size is not 20 plus a
// whole number of page records.
std::optional<std::size_t> ScreensInFileOfSize(std::size_t size);

// Splits a screen file's bytes; nothing (the file is refused with "Version Error") when its size
// is not 20 plus a whole number of page records. The header is not checked.
std::optional<LoadedScreens> ParseScreenFile(std::span<const std::uint8_t> bytes);
// Reads a file; nothing with `error` set to "Version Error" or to why it could not be read.
std::optional<LoadedScreens> ReadScreenFile(const std::filesystem::path& path, std::string& error);

// What the user is told when a file held more screens than the list takes.
std::string FirstScreensReadText(std::size_t in_file);

// An open screen file being captured to. Every append is flushed, so a failure shows at once.
class CaptureFile {
 public:
  // Creates (replaces) the file and writes the header; false when it cannot be created.
  bool Start(const std::filesystem::path& path);
  // Appends one screen; false when the write failed (the file is then incomplete).
  bool Append(const PageRecord& page);
  void Stop();
  bool capturing() const { return file_.is_open(); }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::ofstream file_;
  std::filesystem::path path_;
};

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_FILE_H_
