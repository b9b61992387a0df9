#include "download/srecord_reader.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>

#include "resources/hex_text.h"

namespace veltrix {
namespace {

// Address bytes of each record type; 0 where the type is not one of Motorola's.
constexpr std::array<int, 10> kAddressBytes{2, 2, 3, 4, 0, 2, 3, 4, 3, 2};
// An S3 record's count byte holds address, data and checksum: 4 + 250 + 1.
constexpr std::size_t kMaxS3Data = 250;

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// Joined by appending: GCC 12 at -O3 takes "text" + string for an overlapping copy.
std::string Cat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (std::string_view part : parts) text.append(part);
  return text;
}

std::string Hex(unsigned value) { return HexByte(static_cast<std::uint8_t>(value)); }

void AppendS3(std::vector<std::uint8_t>& text, std::uint32_t address,
              std::span<const std::uint8_t> data) {
  std::vector<std::uint8_t> body{
      static_cast<std::uint8_t>(4 + data.size() + 1), static_cast<std::uint8_t>(address >> 24),
      static_cast<std::uint8_t>(address >> 16), static_cast<std::uint8_t>(address >> 8),
      static_cast<std::uint8_t>(address)};
  body.insert(body.end(), data.begin(), data.end());
  unsigned sum = 0;
  for (std::uint8_t b : body) sum += b;
  body.push_back(static_cast<std::uint8_t>(0xFF - (sum & 0xFF)));
  text.push_back('S');
  text.push_back('3');
  for (std::uint8_t b : body) {
    const std::string pair = Hex(b);
    text.insert(text.end(), pair.begin(), pair.end());
  }
  text.push_back('\r');
  text.push_back('\n');
}

class Reader {
 public:
  ProgramCheck Read(std::span<const std::uint8_t> file) {
    std::size_t at = 0;
    while (at < file.size()) {
      std::size_t end = at;
      while (end < file.size() && file[end] != '\r' && file[end] != '\n') ++end;
      ++line_;
      std::string_view line(reinterpret_cast<const char*>(file.data()) + at, end - at);
      while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
      if (!line.empty() && !Record(line)) return Refused();
      // CRLF is one line end; a lone CR or LF is one too.
      at = end + 1;
      if (end < file.size() && file[end] == '\r' && at < file.size() && file[at] == '\n') ++at;
    }
    if (!seen_record_) return Refused("The file holds no S-records.");
    if (!ended_) {
      if (check_.program.data_bytes == 0) return Refused("The file holds no data records.");
      return Refused("The file has no end record (S7, S8 or S9).");
    }
    const std::string end_record = "S9030000FC\r\n";
    check_.program.text.insert(check_.program.text.end(), end_record.begin(), end_record.end());
    check_.ok = true;
    return std::move(check_);
  }

 private:
  ProgramCheck Refused(std::string error = {}) {
    ProgramCheck refused;
    refused.error = error.empty() ? std::move(error_) : std::move(error);
    return refused;
  }

  bool Problem(const std::string& text) {
    error_ = Cat({"Line ", std::to_string(line_), ": ", text});
    return false;
  }

  bool Record(std::string_view line) {
    seen_record_ = true;
    if (ended_) return Problem("a record after the end record.");
    if (line[0] != 'S')
      return Problem(Cat({"a record starts with \"S\", not \"", line.substr(0, 1), "\"."}));
    if (line.size() < 2 || line[1] < '0' || line[1] > '9') {
      return Problem(
          std::string("\"").append(line.substr(0, 2)).append("\" is not a record type."));
    }
    const int type = line[1] - '0';
    const int address_bytes = kAddressBytes[static_cast<std::size_t>(type)];
    if (address_bytes == 0)
      return Problem(Cat({"record type S", std::to_string(type), " is not known."}));
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 2; i < line.size(); ++i) {
      if (HexValue(line[i]) < 0) {
        const char c = line[i];
        const std::string column = std::to_string(i + 1);
        return Problem(c == ' ' || c == '\t'
                           ? Cat({"a blank inside the record (column ", column, ")."})
                           : Cat({"\"", std::string(1, c), "\" is not a hexadecimal digit (column ",
                                  column, ")."}));
      }
    }
    if ((line.size() - 2) % 2 != 0)
      return Problem("the record has an odd number of hexadecimal digits.");
    for (std::size_t i = 2; i < line.size(); i += 2) {
      bytes.push_back(static_cast<std::uint8_t>(HexValue(line[i]) * 16 + HexValue(line[i + 1])));
    }
    if (bytes.empty()) return Problem("the record has no count.");
    const std::size_t count = bytes[0];
    if (count != bytes.size() - 1) {
      return Problem(Cat({"the count is ", Hex(static_cast<unsigned>(count)), ", the record holds ",
                          Hex(static_cast<unsigned>(bytes.size() - 1)), " bytes."}));
    }
    if (count < static_cast<std::size_t>(address_bytes) + 1) {
      return Problem(Cat({"the record is too short for an S", std::to_string(type), " record."}));
    }
    unsigned sum = 0;
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) sum += bytes[i];
    const unsigned expected = 0xFF - (sum & 0xFF);
    if (bytes.back() != expected) {
      return Problem(Cat(
          {"checksum is ", Hex(bytes.back()), ", the record's bytes give ", Hex(expected), "."}));
    }
    std::uint32_t address = 0;
    for (int i = 1; i <= address_bytes; ++i)
      address = address * 256 + bytes[static_cast<std::size_t>(i)];
    const std::span<const std::uint8_t> data =
        std::span(bytes).subspan(1 + static_cast<std::size_t>(address_bytes),
                                 count - 1 - static_cast<std::size_t>(address_bytes));
    switch (type) {
      case 0:
        return true;  // a header: the program's name, not sent
      case 1:
      case 2:
      case 3:
        return Data(address, data);
      case 5:
      case 6:
        if (address != static_cast<std::uint32_t>(check_.program.data_records)) {
          return Problem(Cat({"the count record says ", std::to_string(address),
                              " data records, the file holds ",
                              std::to_string(check_.program.data_records), "."}));
        }
        return true;
      default:  // 7, 8, 9
        if (check_.program.data_bytes == 0) return Problem("the end record comes before any data.");
        ended_ = true;
        return true;
    }
  }

  bool Data(std::uint32_t address, std::span<const std::uint8_t> data) {
    CheckedProgram& p = check_.program;
    ++p.data_records;
    if (data.empty()) return true;
    const std::uint64_t last = std::uint64_t{address} + data.size() - 1;
    if (last > 0xFFFFFFFFu) return Problem("the data runs past address FFFFFFFF.");
    if (!p.ranges.empty() && std::uint64_t{p.ranges.back().last} + 1 == address) {
      p.ranges.back().last = static_cast<std::uint32_t>(last);
    } else {
      p.ranges.push_back({address, static_cast<std::uint32_t>(last)});
    }
    p.data_bytes += data.size();
    for (std::size_t from = 0; from < data.size(); from += kMaxS3Data) {
      const std::size_t n = std::min(kMaxS3Data, data.size() - from);
      AppendS3(p.text, address + static_cast<std::uint32_t>(from), data.subspan(from, n));
    }
    return true;
  }

  ProgramCheck check_;
  std::string error_;
  int line_ = 0;
  bool seen_record_ = false;
  bool ended_ = false;
};

}  // namespace

ProgramCheck CheckProgram(std::span<const std::uint8_t> file) {
  if (file.empty()) {
    ProgramCheck empty;
    empty.error = "The file is empty.";
    return empty;
  }
  return Reader().Read(file);
}

}  // namespace veltrix
