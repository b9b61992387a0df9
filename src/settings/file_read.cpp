#include "settings/file_read.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace veltrix {

std::optional<FileRead> ReadRegularFile(const std::string& path, std::size_t max_bytes,
                                        std::string* reason, const FileCalls& calls) {
  auto fail = [&](const char* why) -> std::optional<FileRead> {
    if (reason) *reason = why;
    return std::nullopt;
  };
  // Non-blocking, so that opening a FIFO with no writer does not wait for one.
  const int fd = calls.open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC, 0);
  if (fd < 0) return fail(std::strerror(errno));
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    calls.close(fd);
    return fail("not a regular file");
  }
  FileRead read;
  read.file_size = static_cast<std::uint64_t>(info.st_size);
  read.bytes.resize(static_cast<std::size_t>(std::min<std::uint64_t>(read.file_size, max_bytes)));
  std::size_t done = 0;
  while (done < read.bytes.size()) {
    const ssize_t n = calls.read(fd, read.bytes.data() + done, read.bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      const int error = errno;
      calls.close(fd);
      return fail(std::strerror(error));
    }
    if (n == 0) break;  // the file shrank meanwhile
    done += static_cast<std::size_t>(n);
  }
  calls.close(fd);
  read.bytes.resize(done);
  read.cut = read.file_size > done;
  return read;
}

}  // namespace veltrix
