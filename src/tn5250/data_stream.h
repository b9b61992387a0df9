#ifndef VELTRIX_TN5250_DATA_STREAM_H_
#define VELTRIX_TN5250_DATA_STREAM_H_

#include <array>
#include <cstdint>
#include <span>

#include "tn5250/host_context.h"
#include "tn5250/inbound_records.h"
#include "tn5250/stream_items.h"

namespace veltrix {

// A record never exceeds the 16-bit length in its header, so an item buffer of that size takes
// any command or order whole; nothing the host sends is cut or can overflow it.
inline constexpr int kItemCapacity = 65535;

// The 5250 data stream interpreter (`ProcessHostByte`): cuts the stream into records by their
// length, the records into commands and Write to Display into orders and characters, and
// carries each out through the command and order tables.
class DataStreamInterpreter {
 public:
  DataStreamInterpreter(HostContext& host, InboundRecords& inbound);

  // A new session, for the interpreter's part (the caller resets the screen).
  void Reset();
  void ProcessHostBytes(std::span<const std::uint8_t> bytes);
  void ProcessHostByte(std::uint8_t b);

  // Displays one data byte at the current address (shift-out/in, double-byte halves,
  // attribute bytes and single-byte characters).
  void DisplayDataByte(std::uint8_t b);
  // The same conversion as DisplayDataByte for a message byte written at a given cell.
  void WriteMessageByte(std::uint8_t b, int row, int& column, bool window);
  // Carries out the control characters of Write to Display and the read commands.
  void DoControlCharacters(std::uint8_t cc1, std::uint8_t cc2);
  // Cursor placement at the end of a record.
  void PlaceCursor();
  // Notes `code` at the first record byte of the command or order being carried out.
  void Trace(TraceCode code) { host_.Trace({code, item_offset_}); }

  // True between two records: no part of a record is waiting for the rest of it.
  bool BetweenRecords() const { return state_ == State::kHeader && item_count_ == 0; }

  HostContext& host() { return host_; }
  InboundRecords& inbound() { return inbound_; }
  bool double_byte() const { return double_byte_; }
  void set_double_byte(bool on) {
    double_byte_ = on;
    half_ = false;
  }

 private:
  enum class State { kHeader = 0, kAwaitEscape = 1, kCommand = 2, kOrder = 4, kData = 5 };

  void HeaderByte(std::uint8_t b);
  void CommandByte(std::uint8_t b);
  void OrderByte(std::uint8_t b);
  void DataByte(std::uint8_t b);
  void Store(std::uint8_t b);
  std::span<const std::uint8_t> Item() const;
  bool ResolveLength(const LengthField& field);
  void ResolveStartOfField();
  void ExecuteCommand();
  void ExecuteOrder();
  void EndRecord();
  bool ConvertPair(std::uint8_t& first, std::uint8_t& second);
  std::size_t FastData(const std::uint8_t* p, const std::uint8_t* end);

  HostContext& host_;
  InboundRecords& inbound_;
  State state_ = State::kHeader;
  int record_length_ = 0;
  int consumed_ = 0;
  int item_offset_ = 0;  // record offset of the item's first byte
  std::array<std::uint8_t, kItemCapacity> item_{};
  int item_count_ = 0;
  int expected_ = 0;
  bool pending_ = false;
  bool double_byte_ = false;
  bool half_ = false;
  std::uint8_t first_half_ = 0;
  // The host language's single-byte table with 0xFF already made 0.
  std::array<std::uint8_t, 256> display_{};
  int display_language_ = -1;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_DATA_STREAM_H_
