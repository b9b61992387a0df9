#ifndef VELTRIX_DOWNLOAD_PROGRAM_FILE_H_
#define VELTRIX_DOWNLOAD_PROGRAM_FILE_H_

#include <fstream>
#include <string>

#include "download/download_engine.h"

namespace veltrix {

// An SHX program on disk, read in chunks. Only a regular file is opened (a FIFO or a device
// would hang or never end); Rewind closes and opens it again, as a retry does.
class FileProgramSource : public ProgramSource {
 public:
  // False with the system's reason when the file cannot be opened.
  bool Open(const std::string& path, std::string* reason = nullptr);
  std::uint64_t Size() override { return size_; }
  std::size_t Read(std::span<std::uint8_t> buffer) override;
  bool Rewind() override { return Open(path_); }

 private:
  std::string path_;
  std::ifstream in_;
  std::uint64_t size_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_PROGRAM_FILE_H_
