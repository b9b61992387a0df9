#include "settings/atomic_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <random>

namespace veltrix {
namespace {

namespace fs = std::filesystem;

int OpenFile(const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); }

std::string TemporaryPathFor(const std::string& target) {
  static std::mt19937_64 random{std::random_device{}()};
  static constexpr char kHex[] = "0123456789abcdef";
  std::string temp = TemporaryPrefixFor(target) + std::to_string(::getpid()) + "-";
  for (std::uint64_t r = random(), i = 0; i < 8; ++i, r >>= 4) temp += kHex[r & 0xF];
  return temp;
}

// Follows symbolic links to the file they name (a dangling link to the name it points at).
std::string ResolveLinks(const std::string& path) {
  fs::path at = path;
  for (int hops = 0; hops < 40; ++hops) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(at, error))) break;
    const fs::path next = fs::read_symlink(at, error);
    if (error) break;
    at = next.is_absolute() ? next : at.parent_path() / next;
  }
  return at.string();
}

// Removes what saves of `target` by processes that no longer run left behind.
void RemoveLeftovers(const FileCalls& calls, const std::string& target) {
  const std::string prefix = fs::path(TemporaryPrefixFor(target)).filename().string();
  fs::path folder = fs::path(target).parent_path();
  if (folder.empty()) folder = ".";
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (!name.starts_with(prefix)) continue;
    const long pid = std::strtol(name.c_str() + prefix.size(), nullptr, 10);
    if (pid > 0 && ::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH) {
      calls.unlink(entry.path().c_str());
    }
  }
}

bool Refuse(SaveStatus* status, SaveRefusal refusal, std::string reason) {
  if (status) *status = {refusal, std::move(reason)};
  return false;
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
  static const FileCalls calls{OpenFile, ::write, ::read, ::fsync, ::close, ::rename, ::unlink};
  return calls;
}

FileUpdateLock::~FileUpdateLock() {
  if (fd_ >= 0) ::close(fd_);  // closing releases the lock
}

bool FileUpdateLock::Acquire(const std::string& path, int timeout_ms, std::string* reason) {
  const std::string target = ResolveLinks(path);
  for (int waited = 0;;) {
    const int fd = ::open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return true;
    struct stat held {};
    if (::fstat(fd, &held) != 0 || !S_ISREG(held.st_mode)) {
      ::close(fd);
      return true;
    }
    while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
      if (waited >= timeout_ms) {
        ::close(fd);
        if (reason) *reason = "another program is changing the file";
        return false;
      }
      ::usleep(10 * 1000);
      waited += 10;
    }
    // A save renames a new file over the name: the lock must be on the file the name shows now.
    struct stat now {};
    if (::stat(target.c_str(), &now) == 0 && now.st_ino == held.st_ino &&
        now.st_dev == held.st_dev) {
      fd_ = fd;
      return true;
    }
    ::close(fd);
  }
}

std::string TemporaryPrefixFor(const std::string& target) {
  const fs::path at(target);
  // Appended piece by piece: GCC 12 at -O3 takes "." + string for an overlapping copy.
  std::string name = ".";
  name += at.filename().string();
  name += ".veltrix-save-";
  return (at.parent_path() / name).string();
}

bool WriteFileAtomically(const std::string& path,
                         std::span<const std::span<const std::uint8_t>> parts,
                         const FileCalls& calls, SaveStatus* status, SaveOptions options) {
  if (status) *status = {};
  const std::string target = ResolveLinks(path);
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) {
    return Refuse(status, SaveRefusal::kNotRegular, "not a regular file");
  }
  if (exists && !options.replace_read_only &&
      ((old.st_mode & 0222) == 0 || ::access(target.c_str(), W_OK) != 0)) {
    return Refuse(status, SaveRefusal::kReadOnly, "the file is read-only");
  }
  RemoveLeftovers(calls, target);
  const std::string temp = TemporaryPathFor(target);
  // Created with the mode it keeps (the umask may only take from it), never wider for a moment.
  const mode_t mode = exists ? (old.st_mode & 07777) : 0666;
  const int fd = calls.open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode & 0666);
  if (fd < 0) return Refuse(status, SaveRefusal::kFailed, std::strerror(errno));
  bool ok = true;
  int error = 0;
  auto step = [&](bool done) {
    if (ok && !done) {
      ok = false;
      error = errno;
    }
  };
  for (std::span<const std::uint8_t> part : parts) step(ok && WriteAll(calls, fd, part));
  if (exists) {
    // The owner and group stay where the system lets us keep them (root always can; another
    // user's file becomes the saver's, as with any editor).
    if (::fchown(fd, old.st_uid, old.st_gid) != 0)
      (void)::fchown(fd, static_cast<uid_t>(-1), old.st_gid);
    step(!ok || ::fchmod(fd, mode) == 0);
  }
  step(!ok || calls.fsync(fd) == 0);
  step(calls.close(fd) == 0 || !ok);
  step(!ok || calls.rename(temp.c_str(), target.c_str()) == 0);
  if (!ok) {
    calls.unlink(temp.c_str());
    return Refuse(status, SaveRefusal::kFailed, std::strerror(error != 0 ? error : EIO));
  }
  FlushFolderOf(calls, target);
  return true;
}

}  // namespace veltrix
