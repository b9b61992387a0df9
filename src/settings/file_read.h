#ifndef VELTRIX_SETTINGS_FILE_READ_H_
#define VELTRIX_SETTINGS_FILE_READ_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "settings/atomic_file.h"

namespace veltrix {

// What a bounded read found.
struct FileRead {
  std::vector<std::uint8_t> bytes;  // at most the bound
  std::uint64_t file_size = 0;      // the whole file's size
  bool cut = false;                 // the file holds more than was read
};

// Reads at most `max_bytes` of `path` when it is a regular file. A FIFO, device or folder is
// refused without waiting for a writer ("not a regular file"); any failure is nothing, with the
// system's reason in `reason`.
std::optional<FileRead> ReadRegularFile(const std::string& path, std::size_t max_bytes,
                                        std::string* reason = nullptr,
                                        const FileCalls& calls = SystemFileCalls());

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FILE_READ_H_
