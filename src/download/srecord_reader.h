#ifndef VELTRIX_DOWNLOAD_SRECORD_READER_H_
#define VELTRIX_DOWNLOAD_SRECORD_READER_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace veltrix {

// Programs larger than this are refused before anything is read into memory.
inline constexpr std::size_t kMaxProgramFileBytes = 64u << 20;

// A run of addresses the program fills, both ends included.
struct ProgramRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
};

// An S-record program that passed the check, ready for the framer.
struct CheckedProgram {
  // The data records re-written as the terminal's loader reads them (S3, upper case, carriage
  // return and line feed), then one S9 end record: header and count records, blank lines and
  // the file's own line ends play no part in what is sent.
  std::vector<std::uint8_t> text;
  std::vector<ProgramRange> ranges;  // in file order, neighbouring records joined
  std::uint64_t data_bytes = 0;
  int data_records = 0;
};

// The outcome of reading a program: `error` names the line and the problem when it is refused.
struct ProgramCheck {
  bool ok = false;
  std::string error;
  CheckedProgram program;
};

// Reads a whole S-record file strictly before anything goes to a terminal: S0 headers and S5/S6
// counts are checked and dropped, S1/S2/S3 hold data, S7/S8/S9 end it; every record's count and
// checksum must hold. LF, CRLF or CR line ends, either case of hexadecimal, blank lines and
// trailing blanks are accepted; anything else is refused.
ProgramCheck CheckProgram(std::span<const std::uint8_t> file);

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_SRECORD_READER_H_
