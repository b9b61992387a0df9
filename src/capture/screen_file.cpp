#include "capture/screen_file.h"

#include <iterator>
#include <memory>

#include "settings/file_read.h"

namespace veltrix {

std::array<std::uint8_t, kScreenFileHeaderSize> ScreenFileHeader() {
  std::array<std::uint8_t, kScreenFileHeaderSize> header{};
  for (std::size_t i = 0; i < kScreenFileTag.size(); ++i) {
    header[i] = static_cast<std::uint8_t>(kScreenFileTag[i]);
  }
  return header;
}

std::uint8_t ImageCell(const PageRecord& page, int row, int column) {
  if (row < 0 || column < 0 || row >= static_cast<int>(kScreenImageRows) ||
      column >= static_cast<int>(kScreenImageRowBytes)) {
    return 0;
  }
  return page[kScreenImageOffset + static_cast<std::size_t>(row) * kScreenImageRowBytes +
              static_cast<std::size_t>(column)];
}

std::vector<FieldEntry> FieldEntries(const PageRecord& page) {
  std::vector<FieldEntry> entries;
  for (int i = 0; i < kMaxFieldEntries; ++i) {
    const std::size_t at = kFieldEntriesOffset + static_cast<std::size_t>(i) * kFieldEntrySize;
    if (page[at] == 0) break;
    FieldEntry e;
    e.number = page[at];
    e.resequence = page[at + 1];
    e.column = page[at + 2];
    e.row = page[at + 3];
    e.format1 = page[at + 4];
    e.format2 = page[at + 5];
    e.control1 = page[at + 6];
    e.control2 = page[at + 7];
    e.attribute = page[at + 8];
    e.length = page[at + 12] | page[at + 13] << 8;
    auto le32 = [&](std::size_t from) {
      return static_cast<std::uint32_t>(page[from] | page[from + 1] << 8 | page[from + 2] << 16 |
                                        static_cast<std::uint32_t>(page[from + 3]) << 24);
    };
    e.next = le32(at + 16);
    e.previous = le32(at + 20);
    entries.push_back(e);
  }
  return entries;
}

void BlankNonDisplayFields(PageRecord& page) {
  constexpr int kColumns = kHostScreenColumns;
  constexpr int kCells = static_cast<int>(kScreenImageRows) * kColumns;
  for (const FieldEntry& f : FieldEntries(page)) {
    if ((f.attribute & 0x07) != 0x07) continue;  // displayed
    const int first = f.row * kColumns + f.column;
    for (int i = 0; i < f.length && first + i < kCells; ++i) {
      const int cell = first + i;
      page[kScreenImageOffset + static_cast<std::size_t>(cell / kColumns) * kScreenImageRowBytes +
           static_cast<std::size_t>(cell % kColumns)] = 0;
    }
  }
}

std::optional<std::size_t> ScreensInFileOfSize(std::size_t size) {
  if (size < kScreenFileHeaderSize || (size - kScreenFileHeaderSize) % kPageRecordSize != 0) {
    return std::nullopt;
  }
  return (size - kScreenFileHeaderSize) / kPageRecordSize;
}

std::optional<LoadedScreens> ParseScreenFile(std::span<const std::uint8_t> bytes) {
  const std::optional<std::size_t> in_file = ScreensInFileOfSize(bytes.size());
  if (!in_file) return std::nullopt;
  LoadedScreens loaded;
  loaded.screens_in_file = *in_file;
  const std::size_t n = std::min(loaded.screens_in_file, kMaxLoadedScreens);
  loaded.screens.resize(n);
  for (std::size_t k = 0; k < n; ++k) {
    const auto from = bytes.subspan(kScreenFileHeaderSize + k * kPageRecordSize, kPageRecordSize);
    std::copy(from.begin(), from.end(), loaded.screens[k].begin());
    BlankNonDisplayFields(loaded.screens[k]);  // files captured before this was done
  }
  return loaded;
}

std::optional<LoadedScreens> ReadScreenFile(const std::filesystem::path& path, std::string& error) {
  // The size check comes first; no more than the screens that are loaded is read.
  std::string reason;
  std::optional<FileRead> read = ReadRegularFile(
      path.string(), kScreenFileHeaderSize + kMaxLoadedScreens * kPageRecordSize, &reason);
  if (!read) {
    error = "cannot open '" + path.string() + "': " + reason;
    return std::nullopt;
  }
  const std::optional<std::size_t> in_file =
      ScreensInFileOfSize(static_cast<std::size_t>(read->file_size));
  if (!in_file) {
    error = std::string(kVersionErrorMessage);
    return std::nullopt;
  }
  const std::size_t wanted =
      kScreenFileHeaderSize + std::min(*in_file, kMaxLoadedScreens) * kPageRecordSize;
  if (read->bytes.size() != wanted) {
    error = "cannot read '" + path.string() + "'";
    return std::nullopt;
  }
  std::optional<LoadedScreens> loaded = ParseScreenFile(read->bytes);
  if (loaded) loaded->screens_in_file = *in_file;
  return loaded;
}

std::string FirstScreensReadText(std::size_t in_file) {
  return "The file holds " + std::to_string(in_file) + " screens; the first " +
         std::to_string(kMaxLoadedScreens) + " were read.";
}

bool CaptureFile::Start(const std::filesystem::path& path) {
  Stop();
  file_.open(path, std::ios::binary | std::ios::trunc);
  if (!file_) {
    file_ = std::ofstream();
    return false;
  }
  path_ = path;
  const auto header = ScreenFileHeader();
  file_.write(reinterpret_cast<const char*>(header.data()), header.size());
  file_.flush();
  if (!file_) {
    Stop();
    return false;
  }
  return true;
}

bool CaptureFile::Append(const PageRecord& screen) {
  if (!file_.is_open()) return false;
  auto page = std::make_unique<PageRecord>(screen);
  BlankNonDisplayFields(*page);
  file_.write(reinterpret_cast<const char*>(page->data()),
              static_cast<std::streamsize>(page->size()));
  file_.flush();
  return static_cast<bool>(file_);
}

void CaptureFile::Stop() {
  if (file_.is_open()) file_.close();
  file_.clear();
}

}  // namespace veltrix
