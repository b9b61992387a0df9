// The strict program reader: every malformed form is refused with its line before anything is
// sent, and the forms other tools write (LF, S0, S1/S2, S5, S8, lower case) frame exactly as the
// same program written as CRLF S3 records does.
#include "download/srecord_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "download/srecord_framer.h"

namespace veltrix {
namespace {

std::vector<std::uint8_t> Bytes(const std::string& s) { return {s.begin(), s.end()}; }

// One record with a right count and checksum: type, address of `address_bytes`, data.
std::string Rec(char type, std::uint32_t address, int address_bytes,
                const std::vector<std::uint8_t>& data) {
  std::vector<std::uint8_t> body{static_cast<std::uint8_t>(address_bytes + data.size() + 1)};
  for (int i = address_bytes - 1; i >= 0; --i)
    body.push_back(static_cast<std::uint8_t>(address >> (8 * i)));
  body.insert(body.end(), data.begin(), data.end());
  unsigned sum = 0;
  for (auto b : body) sum += b;
  body.push_back(static_cast<std::uint8_t>(0xFF - (sum & 0xFF)));
  std::string s = {'S', type};
  static const char* hex = "0123456789ABCDEF";
  for (auto b : body) s += {hex[b >> 4], hex[b & 15]};
  return s;
}

std::vector<std::uint8_t> Data(int n, int seed) {
  std::vector<std::uint8_t> d;
  for (int i = 0; i < n; ++i) d.push_back(static_cast<std::uint8_t>(i * 37 + seed));
  return d;
}

std::vector<std::vector<std::uint8_t>> Frames(const std::vector<std::uint8_t>& text) {
  SRecordFramer framer;
  framer.Feed(text);
  EXPECT_TRUE(framer.ended());
  return {framer.frames().begin(), framer.frames().end()};
}

struct Refused {
  const char* name;
  std::string file;
  std::string error;
};

TEST(ProgramReader, RefusesEveryMalformedFormNamingItsLine) {
  const std::string good = Rec('3', 0x100, 4, Data(4, 1));
  const std::string end = Rec('9', 0, 2, {});
  std::string bad_sum = good;
  bad_sum.back() = bad_sum.back() == '0' ? '1' : '0';
  const Refused cases[] = {
      {"empty", "", "The file is empty."},
      {"only blank lines", "\n  \r\n", "The file holds no S-records."},
      {"bad checksum", good + "\n" + bad_sum + "\n" + end + "\n",
       "Line 2: checksum is " + bad_sum.substr(bad_sum.size() - 2) + ", the record's bytes give " +
           good.substr(good.size() - 2) + "."},
      {"not hex", good + "\nS30900000104G2030405E4\n",
       "Line 2: \"G\" is not a hexadecimal digit (column 13)."},
      {"blank inside", "S309 0000010401020304E8\n",
       "Line 1: a blank inside the record (column 5)."},
      {"odd digits", good.substr(0, good.size() - 1) + "\n",
       "Line 1: the record has an odd number of hexadecimal digits."},
      {"unknown type", "S4030000FC\n", "Line 1: record type S4 is not known."},
      {"not a record", ":10010000214601360121470136007EFE09D2190140\n",
       "Line 1: a record starts with \"S\", not \":\"."},
      {"count too large", "S30A0000010401020304E7\n",
       "Line 1: the count is 0A, the record holds 09 bytes."},
      {"too short", "S3030000FC\n", "Line 1: the record is too short for an S3 record."},
      {"no data", end + "\n", "Line 1: the end record comes before any data."},
      {"no end", good + "\n", "The file has no end record (S7, S8 or S9)."},
      {"wrong count record", good + "\n" + Rec('5', 2, 2, {}) + "\n" + end,
       "Line 2: the count record says 2 data records, the file holds 1."},
      {"record after the end", good + "\n" + end + "\n" + good + "\n",
       "Line 3: a record after the end record."},
      {"past the address space", Rec('3', 0xFFFFFFFE, 4, Data(4, 0)) + "\n" + end,
       "Line 1: the data runs past address FFFFFFFF."},
  };
  for (const Refused& c : cases) {
    const ProgramCheck check = CheckProgram(Bytes(c.file));
    EXPECT_FALSE(check.ok) << c.name;
    EXPECT_EQ(check.error, c.error) << c.name;
  }
}

TEST(ProgramReader, OtherToolsFormsFrameAsTheCrlfS3Original) {
  // 600 bytes at 0x1F00 in records of 32, then 40 bytes at 0x8000: two ranges.
  std::vector<std::pair<std::uint32_t, std::vector<std::uint8_t>>> records;
  for (int at = 0; at < 600; at += 32)
    records.push_back({0x1F00u + at, Data(std::min(32, 600 - at), at)});
  records.push_back({0x8000, Data(40, 7)});
  auto write = [&](char type, int address_bytes, const std::string& eol, const std::string& head,
                   const std::string& tail) {
    std::string s = head;
    for (const auto& [address, data] : records) s += Rec(type, address, address_bytes, data) + eol;
    return s + tail;
  };
  const std::string crlf = write('3', 4, "\r\n", "", Rec('7', 0, 4, {}) + "\r\n");
  const auto expected = Frames(Bytes(crlf));
  ASSERT_GT(expected.size(), 3u);

  std::string lower = write('3', 4, "\n", "", Rec('7', 0, 4, {}) + "\n");
  for (char& c : lower) c = static_cast<char>(c == 'S' ? c : std::tolower(c));
  const std::string header = Rec('0', 0, 2, {'h', 'e', 'l', 'l', 'o'});
  const std::string count = Rec('5', static_cast<std::uint32_t>(records.size()), 2, {});
  const std::pair<const char*, std::string> forms[] = {
      {"CRLF S3", crlf},
      {"srec_cat: LF, S0, S1, S5, S9",
       write('1', 2, "\n", header + "\n", count + "\n" + Rec('9', 0, 2, {}) + "\n")},
      {"S2 records, S8 end, CR line ends", write('2', 3, "\r", "", Rec('8', 0, 3, {}) + "\r")},
      {"lower case, LF", lower},
      {"blank lines and trailing blanks",
       write('3', 4, "  \t\n\n", "\n", Rec('7', 0, 4, {}) + " \n\n")},
  };
  for (const auto& [name, file] : forms) {
    const ProgramCheck check = CheckProgram(Bytes(file));
    ASSERT_TRUE(check.ok) << name << ": " << check.error;
    EXPECT_EQ(Frames(check.program.text), expected) << name;
    EXPECT_EQ(check.program.data_bytes, 640u) << name;
    ASSERT_EQ(check.program.ranges.size(), 2u) << name;
    EXPECT_EQ(check.program.ranges[0].first, 0x1F00u);
    EXPECT_EQ(check.program.ranges[0].last, 0x1F00u + 599);
    EXPECT_EQ(check.program.ranges[1].last, 0x8000u + 39);
  }
}

TEST(ProgramReader, RecordsLongerThanAnS3RecordHoldsAreSplit) {
  // An S1 record of 252 data bytes cannot become one S3 record (its count would be 257).
  const std::string file = Rec('1', 0x10, 2, Data(252, 3)) + "\n" + Rec('9', 0, 2, {}) + "\n";
  const ProgramCheck check = CheckProgram(Bytes(file));
  ASSERT_TRUE(check.ok) << check.error;
  std::vector<std::uint8_t> sent;
  for (const auto& frame : Frames(check.program.text))
    sent.insert(sent.end(), frame.begin() + 7, frame.end() - 2);
  EXPECT_EQ(sent, Data(252, 3));
}

}  // namespace
}  // namespace veltrix
