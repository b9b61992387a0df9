#include "demo_host/inbound_record.h"

#include <algorithm>
#include <cstdio>

#include "demo_host/ebcdic_text.h"
#include "demo_host/host_codes.h"

namespace veltrix::demo_host {

namespace {

// Checks the 10-byte header; the error names what is wrong and where.
bool CheckHeader(std::span<const std::uint8_t> record, InboundRecord& out) {
  char message[96];
  if (record.size() < static_cast<std::size_t>(kRecordHeaderLength)) {
    std::snprintf(message, sizeof message, "record of %zu bytes is shorter than its header",
                  record.size());
    out.error = message;
    return false;
  }
  const std::size_t length = (record[0] << 8) | record[1];
  if (length != record.size()) {
    std::snprintf(message, sizeof message, "length field %zu does not match the %zu bytes received",
                  length, record.size());
    out.error = message;
    return false;
  }
  if (record[2] != kRecordType1 || record[3] != kRecordType2) {
    std::snprintf(message, sizeof message, "record type %02X %02X at offset 2 is not 12 A0",
                  record[2], record[3]);
    out.error = message;
    return false;
  }
  return true;
}

// Splits field data at each Set Buffer Address; data before the first one is a field too.
void SplitFields(InboundRecord& out) {
  const auto& data = out.data;
  std::size_t i = 0;
  while (i < data.size()) {
    InboundField field;
    if (data[i] == kOrderSetBufferAddress) {
      // An address cut off by the record's end carries no field.
      if (i + 2 >= data.size()) break;
      field.row = data[i + 1];
      field.column = data[i + 2];
      i += 3;
    }
    while (i < data.size() && data[i] != kOrderSetBufferAddress) field.data.push_back(data[i++]);
    field.text = FieldText(field.data);
    out.fields.push_back(std::move(field));
  }
}

}  // namespace

bool HasValidHeader(std::span<const std::uint8_t> record) {
  InboundRecord unused;
  return CheckHeader(record, unused);
}

InboundRecord ParseAidRecord(std::span<const std::uint8_t> record) {
  InboundRecord out;
  if (!CheckHeader(record, out)) return out;
  if (record.size() == static_cast<std::size_t>(kRecordHeaderLength)) {
    out.ok = true;  // no read command was in force: the header alone
    return out;
  }
  if (record.size() < std::size_t{kRecordHeaderLength} + 3) {
    out.error = "record ends inside the cursor address and AID at offset 10";
    return out;
  }
  out.has_aid = true;
  out.cursor_row = record[10];
  out.cursor_column = record[11];
  out.aid = record[12];
  out.data.assign(record.begin() + 13, record.end());
  if (out.aid != kAidStructuredField) SplitFields(out);
  out.ok = true;
  return out;
}

InboundRecord ParseImmediateRecord(std::span<const std::uint8_t> record) {
  InboundRecord out;
  if (!CheckHeader(record, out)) return out;
  out.data.assign(record.begin() + kRecordHeaderLength, record.end());
  SplitFields(out);
  out.ok = true;
  return out;
}

QueryReplyInfo ParseQueryReply(std::span<const std::uint8_t> record) {
  QueryReplyInfo info;
  // Header, cursor address, AID 0x88, structured field length, D9 70, ... device type at 40.
  if (record.size() < 47 || record[12] != kAidStructuredField || record[15] != 0xD9 ||
      record[16] != 0x70) {
    return info;
  }
  info.device_type = HostToAscii(record.subspan(40, 4));
  info.model = HostToAscii(record.subspan(44, 3));
  return info;
}

std::string FieldText(std::span<const std::uint8_t> data) {
  std::string text = HostToAscii(data);
  for (char& c : text) {
    if (c == '\0') c = ' ';
  }
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::string HexBytes(std::span<const std::uint8_t> bytes) {
  std::string out;
  char hex[48];
  for (const std::uint8_t b : bytes.first(std::min(bytes.size(), kMaxHexBytes))) {
    std::snprintf(hex, sizeof hex, out.empty() ? "%02X" : " %02X", b);
    out += hex;
  }
  if (bytes.size() > kMaxHexBytes) {
    std::snprintf(hex, sizeof hex, " ... (%zu bytes)", bytes.size());
    out += hex;
  }
  return out;
}

}  // namespace veltrix::demo_host
