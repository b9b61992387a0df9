#ifndef VELTRIX_TOOLS_DEMO_HOST_OUTBOUND_RECORD_H_
#define VELTRIX_TOOLS_DEMO_HOST_OUTBOUND_RECORD_H_

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "demo_host/host_codes.h"

namespace veltrix::demo_host {

// Builds one 5250 record from the host to the display station. Rows and columns are 1-based, as
// they travel in the orders. Finish() puts the 10-byte header with the length in front.
class OutboundRecord {
 public:
  OutboundRecord& ClearUnit();
  OutboundRecord& WriteToDisplay(std::uint8_t cc1, std::uint8_t cc2);
  OutboundRecord& SetBufferAddress(int row, int column);
  OutboundRecord& InsertCursor(int row, int column);
  OutboundRecord& RepeatToAddress(int row, int column, char ascii);
  // Start of Field at the current address: the attribute cell, then `length` field cells.
  OutboundRecord& StartField(std::uint8_t ffw1, std::uint8_t ffw2, std::uint8_t attribute,
                             int length);
  OutboundRecord& Attribute(std::uint8_t attribute);
  OutboundRecord& Text(std::string_view ascii);
  // SBA to (row, column) then the text.
  OutboundRecord& TextAt(int row, int column, std::string_view ascii,
                         std::uint8_t attribute = kAttributeNormal);
  // An input field whose first cell is (row, column), with its attribute cell just before it
  // and a normal attribute just after it; `initial` fills its first cells.
  OutboundRecord& InputField(int row, int column, int length, std::uint8_t ffw1, std::uint8_t ffw2,
                             std::uint8_t attribute, std::string_view initial = {});
  // Write Error Code; with a row the message carries an insert-cursor order first.
  OutboundRecord& WriteErrorCode(std::string_view message, int cursor_row = 0,
                                 int cursor_column = 0);
  OutboundRecord& ReadMdtFields(std::uint8_t cc1 = 0, std::uint8_t cc2 = 0);
  OutboundRecord& ReadInputFields(std::uint8_t cc1 = 0, std::uint8_t cc2 = 0);
  OutboundRecord& ReadImmediate();
  // Write Structured Field carrying the 5250 query.
  OutboundRecord& Query();
  OutboundRecord& Raw(std::span<const std::uint8_t> bytes);

  std::vector<std::uint8_t> Finish(std::uint8_t opcode = kOpcodePutGet) const;

 private:
  void Command(std::uint8_t code);
  void Address(int row, int column);

  std::vector<std::uint8_t> body_;
};

// The record as it goes on the wire: 0xFF doubled, then IAC EOR.
std::vector<std::uint8_t> FrameRecord(std::span<const std::uint8_t> record);

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_OUTBOUND_RECORD_H_
