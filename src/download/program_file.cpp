#include "download/program_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace veltrix {

bool FileProgramSource::Open(const std::string& path, std::string* reason) {
  path_ = path;
  in_ = std::ifstream();
  size_ = 0;
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (error) {
    if (reason) *reason = error.message();
    return false;
  }
  if (!std::filesystem::is_regular_file(status)) {
    if (reason) *reason = "not a regular file";
    return false;
  }
  in_.open(path, std::ios::binary);
  if (!in_) {
    if (reason) *reason = std::strerror(errno);
    return false;
  }
  size_ = std::filesystem::file_size(path, error);
  if (error) size_ = 0;
  return true;
}

std::size_t FileProgramSource::Read(std::span<std::uint8_t> buffer) {
  if (!in_) return 0;
  in_.read(reinterpret_cast<char*>(buffer.data()), static_cast<std::streamsize>(buffer.size()));
  return static_cast<std::size_t>(in_.gcount());
}

}  // namespace veltrix
