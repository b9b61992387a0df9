#ifndef VELTRIX_DOWNLOAD_PROGRAM_FILE_H_
#define VELTRIX_DOWNLOAD_PROGRAM_FILE_H_

#include <string>

#include "download/srecord_reader.h"

namespace veltrix {

// An SHX program read from disk and checked before anything is sent. The download then goes
// out of this copy, so a retry sends what was checked even if the file changes meanwhile.
struct ProgramFile {
  enum class Status { kOk, kCannotOpen, kRefused };
  Status status = Status::kCannotOpen;
  std::string reason;  // the system's reason, or the check's line and problem
  CheckedProgram program;
};

// Only a regular file of at most kMaxProgramFileBytes is read (a FIFO or a device would hang).
ProgramFile LoadProgramFile(const std::string& path);

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_PROGRAM_FILE_H_
