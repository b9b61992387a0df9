#ifndef VELTRIX_TOOLS_DEMO_HOST_INBOUND_RECORD_H_
#define VELTRIX_TOOLS_DEMO_HOST_INBOUND_RECORD_H_

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace veltrix::demo_host {

// Field data of an inbound record. Row and column are 1-based as sent; 0 when the data came
// without a Set Buffer Address (Read Input Fields, Read Immediate).
struct InboundField {
  int row = 0;
  int column = 0;
  std::vector<std::uint8_t> data;  // host code, as sent
  std::string text;                // the same as ASCII, NULs and trailing blanks dropped
};

struct InboundRecord {
  bool ok = false;
  std::string error;  // why the record was refused (ok false)
  bool has_aid = false;
  int cursor_row = 0;  // 1-based
  int cursor_column = 0;
  std::uint8_t aid = 0;
  std::vector<std::uint8_t> data;  // everything after the AID (or after the header)
  std::vector<InboundField> fields;
};

// An AID record: header, cursor address, AID, then field data (each field with an SBA, or one
// block of data without).
InboundRecord ParseAidRecord(std::span<const std::uint8_t> record);

// An answer to Read Immediate: header, then field data without cursor address and AID.
InboundRecord ParseImmediateRecord(std::span<const std::uint8_t> record);

// Device type and model of a query reply ("3477", "0FC"); empty when the record is no query
// reply.
struct QueryReplyInfo {
  std::string device_type;
  std::string model;
};
QueryReplyInfo ParseQueryReply(std::span<const std::uint8_t> record);

// Field text as ASCII: NULs become blanks, trailing blanks are dropped.
std::string FieldText(std::span<const std::uint8_t> data);

// Whether the record's header holds: at least 10 bytes, its length field, type 12 A0.
bool HasValidHeader(std::span<const std::uint8_t> record);

// "00 0A 12 A0 ..." for logs and messages; at most kMaxHexBytes bytes, then the length.
inline constexpr std::size_t kMaxHexBytes = 256;
std::string HexBytes(std::span<const std::uint8_t> bytes);

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_INBOUND_RECORD_H_
