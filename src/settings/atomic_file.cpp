#include "settings/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <random>

namespace veltrix {
namespace {

namespace fs = std::filesystem;

int OpenFile(const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); }

std::string TemporaryPathFor(const std::string& target) {
  static std::mt19937_64 random{std::random_device{}()};
  static constexpr char kHex[] = "0123456789abcdef";
  std::string temp = target + ".tmp-";
  for (std::uint64_t r = random(), i = 0; i < 12; ++i, r >>= 4) temp += kHex[r & 0xF];
  return temp;
}

// The permissions of the file being replaced, or -1 when there is none.
int ModeOfExisting(const std::string& target) {
  struct stat old {};
  if (::stat(target.c_str(), &old) == 0 && S_ISREG(old.st_mode)) {
    return static_cast<int>(old.st_mode & 07777);
  }
  return -1;
}

bool WriteAll(const FileCalls& calls, int fd, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t n = calls.write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(n));
  }
  return true;
}

// Flushes the folder's entry for the renamed file. Some file systems refuse to flush a folder;
// the file itself is on the disk by then, so that is not a failure of the save.
void FlushFolderOf(const FileCalls& calls, const std::string& path) {
  fs::path folder = fs::path(path).parent_path();
  if (folder.empty()) folder = ".";
  const int fd = calls.open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
  if (fd < 0) return;
  calls.fsync(fd);
  calls.close(fd);
}

}  // namespace

const FileCalls& SystemFileCalls() {
  static const FileCalls calls{OpenFile, ::write, ::fsync, ::close, ::rename, ::unlink};
  return calls;
}

bool WriteFileAtomically(const std::string& path,
                         std::span<const std::span<const std::uint8_t>> parts,
                         const FileCalls& calls) {
  const std::string temp = TemporaryPathFor(path);
  const int old_mode = ModeOfExisting(path);
  const mode_t mode = old_mode >= 0 ? static_cast<mode_t>(old_mode) : 0666;  // umask applies
  const int fd = calls.open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  if (fd < 0) return false;
  bool ok = true;
  for (std::span<const std::uint8_t> part : parts) ok = ok && WriteAll(calls, fd, part);
  // The mode given to open is reduced by the umask; a replaced file keeps its own exactly.
  ok = ok && (old_mode < 0 || ::fchmod(fd, mode) == 0);
  ok = ok && calls.fsync(fd) == 0;
  ok = calls.close(fd) == 0 && ok;
  ok = ok && calls.rename(temp.c_str(), path.c_str()) == 0;
  if (!ok) {
    calls.unlink(temp.c_str());
    return false;
  }
  FlushFolderOf(calls, path);
  return true;
}

}  // namespace veltrix
