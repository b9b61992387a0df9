#include "demo_host/outbound_record.h"

#include <algorithm>

#include "demo_host/ebcdic_text.h"

namespace veltrix::demo_host {

namespace {

std::uint8_t Clamp(int value, int high) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, high));
}

}  // namespace

void OutboundRecord::Command(std::uint8_t code) {
  body_.push_back(kEscape);
  body_.push_back(code);
}

void OutboundRecord::Address(int row, int column) {
  body_.push_back(Clamp(row, kRows));
  body_.push_back(Clamp(column, kColumns));
}

OutboundRecord& OutboundRecord::ClearUnit() {
  Command(kCmdClearUnit);
  return *this;
}

OutboundRecord& OutboundRecord::WriteToDisplay(std::uint8_t cc1, std::uint8_t cc2) {
  Command(kCmdWriteToDisplay);
  body_.push_back(cc1);
  body_.push_back(cc2);
  return *this;
}

OutboundRecord& OutboundRecord::SetBufferAddress(int row, int column) {
  body_.push_back(kOrderSetBufferAddress);
  Address(row, column);
  return *this;
}

OutboundRecord& OutboundRecord::InsertCursor(int row, int column) {
  body_.push_back(kOrderInsertCursor);
  Address(row, column);
  return *this;
}

OutboundRecord& OutboundRecord::RepeatToAddress(int row, int column, char ascii) {
  body_.push_back(kOrderRepeatToAddress);
  Address(row, column);
  body_.push_back(AsciiToHost(ascii));
  return *this;
}

OutboundRecord& OutboundRecord::StartField(std::uint8_t ffw1, std::uint8_t ffw2,
                                           std::uint8_t attribute, int length) {
  body_.push_back(kOrderStartOfField);
  body_.push_back(ffw1);
  body_.push_back(ffw2);
  body_.push_back(attribute);
  body_.push_back(static_cast<std::uint8_t>((length >> 8) & 0xFF));
  body_.push_back(static_cast<std::uint8_t>(length & 0xFF));
  return *this;
}

OutboundRecord& OutboundRecord::Attribute(std::uint8_t attribute) {
  body_.push_back(attribute);
  return *this;
}

OutboundRecord& OutboundRecord::Text(std::string_view ascii) {
  const auto bytes = AsciiToHost(ascii);
  body_.insert(body_.end(), bytes.begin(), bytes.end());
  return *this;
}

OutboundRecord& OutboundRecord::TextAt(int row, int column, std::string_view ascii,
                                       std::uint8_t attribute) {
  // The attribute takes the cell before the text, as on a real host screen.
  SetBufferAddress(row, column > 1 ? column - 1 : column);
  if (column > 1) Attribute(attribute);
  return Text(ascii);
}

OutboundRecord& OutboundRecord::InputField(int row, int column, int length, std::uint8_t ffw1,
                                           std::uint8_t ffw2, std::uint8_t attribute,
                                           std::string_view initial) {
  SetBufferAddress(row, column - 1);
  StartField(ffw1, ffw2, attribute, length);
  if (!initial.empty()) Text(initial.substr(0, static_cast<std::size_t>(length)));
  if (column + length <= kColumns) {
    SetBufferAddress(row, column + length);
    Attribute(kAttributeNormal);
  }
  return *this;
}

OutboundRecord& OutboundRecord::WriteErrorCode(std::string_view message, int cursor_row,
                                               int cursor_column) {
  Command(kCmdWriteErrorCode);
  if (cursor_row > 0) InsertCursor(cursor_row, cursor_column);
  Attribute(kAttributeHigh);
  Text(message);
  Attribute(kAttributeNormal);
  return *this;
}

OutboundRecord& OutboundRecord::ReadMdtFields(std::uint8_t cc1, std::uint8_t cc2) {
  Command(kCmdReadMdtFields);
  body_.push_back(cc1);
  body_.push_back(cc2);
  return *this;
}

OutboundRecord& OutboundRecord::ReadInputFields(std::uint8_t cc1, std::uint8_t cc2) {
  Command(kCmdReadInputFields);
  body_.push_back(cc1);
  body_.push_back(cc2);
  return *this;
}

OutboundRecord& OutboundRecord::ReadImmediate() {
  Command(kCmdReadImmediate);
  return *this;
}

OutboundRecord& OutboundRecord::Query() {
  Command(kCmdWriteStructuredField);
  for (const std::uint8_t b : {0x00, 0x05, 0xD9, 0x70, 0x00}) body_.push_back(b);
  return *this;
}

OutboundRecord& OutboundRecord::Raw(std::span<const std::uint8_t> bytes) {
  body_.insert(body_.end(), bytes.begin(), bytes.end());
  return *this;
}

std::vector<std::uint8_t> OutboundRecord::Finish(std::uint8_t opcode) const {
  const std::size_t length = kRecordHeaderLength + body_.size();
  const std::uint8_t header[] = {static_cast<std::uint8_t>((length >> 8) & 0xFF),
                                 static_cast<std::uint8_t>(length & 0xFF),
                                 kRecordType1,
                                 kRecordType2,
                                 0x00,
                                 0x00,
                                 kVariableHeaderLength,
                                 0x00,
                                 0x00,
                                 opcode};
  // Sized once: growing a ten-byte vector draws a false -Warray-bounds from GCC 12 at -O3.
  std::vector<std::uint8_t> record(length);
  std::copy(std::begin(header), std::end(header), record.begin());
  std::copy(body_.begin(), body_.end(), record.begin() + std::ssize(header));
  return record;
}

std::vector<std::uint8_t> FrameRecord(std::span<const std::uint8_t> record) {
  std::vector<std::uint8_t> out;
  out.reserve(record.size() + 4);
  for (const std::uint8_t b : record) {
    out.push_back(b);
    if (b == kIac) out.push_back(kIac);
  }
  out.push_back(kIac);
  out.push_back(kEor);
  return out;
}

}  // namespace veltrix::demo_host
