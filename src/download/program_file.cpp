#include "download/program_file.h"

#include "settings/file_read.h"

namespace veltrix {

ProgramFile LoadProgramFile(const std::string& path) {
  ProgramFile file;
  std::optional<FileRead> read = ReadRegularFile(path, kMaxProgramFileBytes, &file.reason);
  if (!read) return file;
  if (read->cut) {
    file.status = ProgramFile::Status::kRefused;
    file.reason = "The file is larger than " + std::to_string(kMaxProgramFileBytes >> 20) + " MB.";
    return file;
  }
  ProgramCheck check = CheckProgram(read->bytes);
  if (!check.ok) {
    file.status = ProgramFile::Status::kRefused;
    file.reason = std::move(check.error);
    return file;
  }
  file.status = ProgramFile::Status::kOk;
  file.program = std::move(check.program);
  return file;
}

}  // namespace veltrix
