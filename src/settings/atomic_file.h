#ifndef VELTRIX_SETTINGS_ATOMIC_FILE_H_
#define VELTRIX_SETTINGS_ATOMIC_FILE_H_

#include <sys/types.h>

#include <cstdint>
#include <span>
#include <string>

namespace veltrix {

// The system calls a whole-file write makes. Tests swap one for a failing stand-in to check that
// every failure leaves the old file and no temporary file behind.
struct FileCalls {
  int (*open)(const char* path, int flags, mode_t mode);
  ssize_t (*write)(int fd, const void* data, std::size_t size);
  int (*fsync)(int fd);
  int (*close)(int fd);
  int (*rename)(const char* from, const char* to);
  int (*unlink)(const char* path);
};

// The real calls.
const FileCalls& SystemFileCalls();

// Writes `parts` one after another as the whole new content of `path`: into a temporary file in
// the same folder (created with the permissions of the file it replaces), flushed to the disk,
// renamed over `path`, and the folder flushed. False, with `path` untouched and the temporary file
// removed, when any step before the rename fails.
bool WriteFileAtomically(const std::string& path,
                         std::span<const std::span<const std::uint8_t>> parts,
                         const FileCalls& calls = SystemFileCalls());

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_ATOMIC_FILE_H_
