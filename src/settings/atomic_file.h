#ifndef VELTRIX_SETTINGS_ATOMIC_FILE_H_
#define VELTRIX_SETTINGS_ATOMIC_FILE_H_

#include <sys/types.h>

#include <cstdint>
#include <span>
#include <string>

namespace veltrix {

// The system calls a whole-file write or read makes. Tests swap one for a failing stand-in to
// check that every failure leaves the old file and no temporary file behind, or is reported.
struct FileCalls {
  int (*open)(const char* path, int flags, mode_t mode);
  ssize_t (*write)(int fd, const void* data, std::size_t size);
  ssize_t (*read)(int fd, void* data, std::size_t size);
  int (*fsync)(int fd);
  int (*close)(int fd);
  int (*rename)(const char* from, const char* to);
  int (*unlink)(const char* path);
};

// The real calls.
const FileCalls& SystemFileCalls();

// An advisory lock on a file for a read-modify-write (`veltrix-cli set`, the window's Save):
// other Veltrix processes changing the same file wait for it, so that no change is lost. A file
// that is missing or not a regular file is not locked (reading it fails on its own).
class FileUpdateLock {
 public:
  FileUpdateLock() = default;
  FileUpdateLock(const FileUpdateLock&) = delete;
  FileUpdateLock& operator=(const FileUpdateLock&) = delete;
  ~FileUpdateLock();
  // False with the reason when another process holds the file longer than `timeout_ms`.
  bool Acquire(const std::string& path, int timeout_ms, std::string* reason = nullptr);

 private:
  int fd_ = -1;
};

// Why a save did not happen.
enum class SaveRefusal {
  kNone,
  kReadOnly,    // the file is read-only: the user decides (SaveOptions::replace_read_only)
  kNotRegular,  // a folder, FIFO or device is never replaced by a file
  kFailed,      // a system call failed; `reason` says why
};
struct SaveStatus {
  SaveRefusal refusal = SaveRefusal::kNone;
  std::string reason;  // the system's reason ("No space left on device"), or what was refused
};
struct SaveOptions {
  bool replace_read_only = false;
};

// The prefix of a save's temporary file beside `target` (".NAME.veltrix-save-"); the writer's
// process id and a random tag follow.
std::string TemporaryPrefixFor(const std::string& target);

// Writes `parts` one after another as the whole new content of `path`. A symbolic link is saved
// through to the file it names. The new content goes into a temporary file in the same folder,
// created with the mode of the file it replaces and given its owner and group where the system
// lets us, flushed to the disk, renamed over the file, and the folder flushed. Temporary files
// that earlier saves of this file left behind (their process is gone) are removed. False, with
// the file untouched and the temporary file removed, when anything before the rename fails or
// the target is refused; `status` says why.
bool WriteFileAtomically(const std::string& path,
                         std::span<const std::span<const std::uint8_t>> parts,
                         const FileCalls& calls = SystemFileCalls(), SaveStatus* status = nullptr,
                         SaveOptions options = {});

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_ATOMIC_FILE_H_
