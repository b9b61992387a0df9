#include "tn5250/data_stream.h"

#include <algorithm>

#include "tn5250/code_tables.h"
#include "tn5250/double_byte.h"
#include "tn5250/stream_items.h"

namespace veltrix {

namespace {

constexpr std::uint8_t kShiftOut = 0x0E;
constexpr std::uint8_t kShiftIn = 0x0F;
constexpr std::uint8_t kBlank = 0x20;

bool HasFormatWordBits(std::uint8_t b) { return (b & 0xC0) != 0; }

// Bytes that the data state displays; every other byte begins an order.
constexpr std::array<bool, 256> MakeDataByteTable() {
  std::array<bool, 256> t{};
  for (int b = 0x20; b <= 0xFE; ++b) t[b] = true;
  t[0x00] = t[0x0E] = t[0x0F] = t[0x1C] = true;
  return t;
}
constexpr std::array<bool, 256> kIsDataByte = MakeDataByteTable();

// Data bytes that are plain single-byte characters (no shift, no attribute).
constexpr std::array<bool, 256> MakePlainTable() {
  std::array<bool, 256> t = MakeDataByteTable();
  t[0x0E] = t[0x0F] = false;
  for (int b = 0x20; b <= 0x3F; ++b) t[b] = false;
  return t;
}
constexpr std::array<bool, 256> kIsPlain = MakePlainTable();

}  // namespace

DataStreamInterpreter::DataStreamInterpreter(HostContext& host, InboundRecords& inbound)
    : host_(host), inbound_(inbound) {}

void DataStreamInterpreter::Reset() {
  if (display_language_ != host_.emulation_type) {
    for (int b = 0; b < 256; ++b) {
      const std::uint8_t d = HostToDisplay(host_.emulation_type, static_cast<std::uint8_t>(b));
      display_[b] = d == 0xFF ? 0 : d;
    }
    display_language_ = host_.emulation_type;
  }
  state_ = State::kHeader;
  record_length_ = 0;
  consumed_ = 0;
  item_count_ = 0;
  expected_ = 0;
  pending_ = false;
  double_byte_ = false;
  half_ = false;
  host_.read_mode = ReadMode::kNone;
}

std::span<const std::uint8_t> DataStreamInterpreter::Item() const {
  return {item_.data(), static_cast<std::size_t>(std::min(item_count_, kItemCapacity))};
}

void DataStreamInterpreter::Store(std::uint8_t b) {
  if (item_count_ == 0) item_offset_ = consumed_ - 1;
  if (item_count_ < kItemCapacity) item_[item_count_] = b;
  if (item_count_ < kItemCapacity + 1) ++item_count_;
}

void DataStreamInterpreter::ProcessHostBytes(std::span<const std::uint8_t> bytes) {
  const std::uint8_t* p = bytes.data();
  const std::uint8_t* const end = p + bytes.size();
  while (p < end) {
    if (state_ == State::kData && !double_byte_) {
      const std::size_t taken = FastData(p, end);
      if (taken > 0) {
        p += taken;
        continue;
      }
    }
    ProcessHostByte(*p++);
  }
}

// The data state's common cases without the per-byte dispatch: runs of plain characters,
// attribute bytes, and fixed-length orders whose bytes are all in hand, executed straight from
// the input. Gives the number of bytes taken (0: leave the byte to ProcessHostByte). The
// effect is the same as feeding the bytes one at a time.
std::size_t DataStreamInterpreter::FastData(const std::uint8_t* p, const std::uint8_t* end) {
  PresentationSpace& ps = host_.ps;
  const std::uint8_t* const start = p;
  const std::uint8_t* const stop =
      p + std::min(static_cast<std::size_t>(record_length_ - consumed_),
                   static_cast<std::size_t>(end - p));
  bool wrote = false;
  while (p < stop) {
    const std::uint8_t b = *p;
    if (kIsPlain[b]) {
      p += ps.WriteRun(p, stop, kIsPlain, display_);
      wrote = true;
    } else if (b >= 0x20 && b <= 0x3F) {
      // An attribute byte: an attribute cell, then the new current attribute.
      ps.SetCurrentAttribute(0);
      ps.WriteAtCursor(0);
      ps.SetCurrentAttribute(AttributeToDisplay(b));
      wrote = true;
      ++p;
    } else {
      const StreamItem* entry = FindOrder(b);
      if (entry == nullptr || entry->length <= 0 || entry->length > stop - p) break;
      if (entry->handler != nullptr) {
        item_offset_ = consumed_ + static_cast<int>(p - start);
        entry->handler(*this, {p, static_cast<std::size_t>(entry->length)});
      }
      p += entry->length;
    }
  }
  const std::size_t taken = static_cast<std::size_t>(p - start);
  if (wrote) host_.MarkRepaint();
  consumed_ += static_cast<int>(taken);
  if (taken > 0 && consumed_ == record_length_) EndRecord();
  return taken;
}

void DataStreamInterpreter::ProcessHostByte(std::uint8_t b) {
  ++consumed_;
  switch (state_) {
    case State::kHeader:
      HeaderByte(b);
      return;
    case State::kAwaitEscape:
      if (b == kEscape) {
        item_count_ = 0;
        state_ = State::kCommand;
      }
      break;
    case State::kCommand:
      CommandByte(b);
      break;
    case State::kOrder:
      OrderByte(b);
      break;
    case State::kData:
      DataByte(b);
      break;
  }
  if (consumed_ == record_length_) EndRecord();
}

void DataStreamInterpreter::HeaderByte(std::uint8_t b) {
  if (item_count_ == 0) {
    host_.repaint = false;
    expected_ = kRecordHeaderLength;
  }
  Store(b);
  if (item_count_ < kRecordHeaderLength) return;
  record_length_ = (item_[0] << 8) | item_[1];
  host_.ps.ForgetInsertCursor();
  item_count_ = 0;
  state_ = State::kAwaitEscape;
  // A length that does not cover the header ends the record right here, so that a broken
  // header can never hold the parser.
  if (record_length_ <= kRecordHeaderLength) {
    record_length_ = kRecordHeaderLength;
    EndRecord();
  }
}

bool DataStreamInterpreter::ResolveLength(const LengthField& field) {
  if (item_count_ < field.offset + field.bytes) return false;
  int value = 0;
  for (int i = 0; i < field.bytes; ++i) value = (value << 8) | item_[field.offset + i];
  expected_ = field.offset + value + (field.counts_itself ? 0 : field.bytes);
  return true;
}

void DataStreamInterpreter::ResolveStartOfField() {
  if (item_count_ < 2) return;
  if (item_count_ < 4) {
    if (!HasFormatWordBits(item_[1])) expected_ = 4;
    return;
  }
  if (!HasFormatWordBits(item_[1])) {
    expected_ = 4;
  } else {
    expected_ = HasFormatWordBits(item_[3]) ? 8 : 6;
  }
}

void DataStreamInterpreter::CommandByte(std::uint8_t b) {
  if (item_count_ == 0) {
    const StreamItem* entry = FindCommand(b);
    expected_ = entry != nullptr ? entry->length : kToNextEscape;
    Store(b);
    pending_ = expected_ == kToRecordEnd || expected_ == kToNextEscape;
    if (expected_ > 0 && expected_ != kToRecordEnd && item_count_ >= expected_) {
      ExecuteCommand();
    }
    return;
  }
  Store(b);
  if (expected_ == kToRecordEnd) return;
  if (expected_ == kToNextEscape) {
    if (b != kEscape) return;
    --item_count_;  // the escape begins the next command
    pending_ = false;
    ExecuteCommand();
    item_count_ = 0;
    return;
  }
  if (expected_ < 0) {
    const StreamItem* entry = FindCommand(item_[0]);
    if (entry == nullptr || !ResolveLength(entry->field)) return;
  }
  if (item_count_ >= expected_) ExecuteCommand();
}

void DataStreamInterpreter::ExecuteCommand() {
  const std::uint8_t code = item_[0];
  const StreamItem* entry = FindCommand(code);
  if (entry != nullptr && entry->handler != nullptr) entry->handler(*this, Item());
  if (pending_ || expected_ == kToNextEscape) {
    // Commands running to an escape or the record's end are executed by the caller's flow.
    item_count_ = 0;
    return;
  }
  item_count_ = 0;
  state_ = code == kCmdWriteToDisplay ? State::kOrder : State::kAwaitEscape;
}

void DataStreamInterpreter::OrderByte(std::uint8_t b) {
  if (item_count_ == 0) {
    if (b == kEscape) {
      state_ = State::kCommand;
      return;
    }
    const StreamItem* entry = FindOrder(b);
    expected_ = entry != nullptr ? entry->length : 0;
    Store(b);
    return;  // an order always takes at least the byte after its code
  }
  Store(b);
  if (expected_ < 0) {
    if (item_[0] == kOrderStartOfField) {
      ResolveStartOfField();
    } else {
      const StreamItem* entry = FindOrder(item_[0]);
      if (entry != nullptr) ResolveLength(entry->field);
    }
    if (expected_ < 0) return;
  }
  if (item_count_ >= expected_) ExecuteOrder();
}

void DataStreamInterpreter::ExecuteOrder() {
  const StreamItem* entry = FindOrder(item_[0]);
  if (entry != nullptr && entry->handler != nullptr) entry->handler(*this, Item());
  item_count_ = 0;
  state_ = State::kData;
}

void DataStreamInterpreter::DataByte(std::uint8_t b) {
  if (b == kEscape) {
    item_count_ = 0;
    state_ = State::kCommand;
    return;
  }
  if (kIsDataByte[b]) {
    DisplayDataByte(b);
    return;
  }
  item_count_ = 0;
  const StreamItem* entry = FindOrder(b);
  expected_ = entry != nullptr ? entry->length : 0;
  Store(b);
  state_ = State::kOrder;
}

void DataStreamInterpreter::EndRecord() {
  if (pending_ && item_count_ > 0) {
    const StreamItem* entry = FindCommand(item_[0]);
    if (entry != nullptr && entry->handler != nullptr) entry->handler(*this, Item());
  }
  item_count_ = 0;
  state_ = State::kHeader;
  consumed_ = 0;
  pending_ = false;
  if (host_.move_cursor) PlaceCursor();
  // The address may end a record past the screen's edge; the cursor the user sees may not.
  PresentationSpace& ps = host_.ps;
  if (!ps.OnScreen(ps.CursorRow(), ps.CursorColumn())) {
    Trace(TraceCode::kCursorOffScreen);
    const int cell = std::clamp(ps.Linear(ps.Cursor()), 0, ps.Rows() * ps.Columns() - 1);
    ps.SetCursor(cell / ps.Columns(), cell % ps.Columns());
  }
}

bool DataStreamInterpreter::ConvertPair(std::uint8_t& first, std::uint8_t& second) {
  if (ConvertDoubleByte(host_.emulation_type, first, second)) return true;
  first = second = 'X';
  return false;
}

void DataStreamInterpreter::DisplayDataByte(std::uint8_t b) {
  PresentationSpace& ps = host_.ps;
  if (b == kShiftOut || b == kShiftIn) {
    set_double_byte(b == kShiftOut);
    ps.WriteAtCursor(kBlank);
  } else if (double_byte_) {
    if (!half_) {
      half_ = true;
      first_half_ = b;
      return;
    }
    half_ = false;
    std::uint8_t first = first_half_;
    std::uint8_t second = b;
    if (ConvertPair(first, second)) {
      ps.PutPairAtCursor(first, second);
    } else {
      ps.WriteAtCursor(first);
      ps.WriteAtCursor(second);
    }
  } else if (b >= 0x20 && b <= 0x3F) {
    ps.SetCurrentAttribute(0);
    ps.WriteAtCursor(0);
    ps.SetCurrentAttribute(AttributeToDisplay(b));
  } else {
    ps.WriteAtCursor(display_[b]);
  }
  host_.MarkRepaint();
}

void DataStreamInterpreter::WriteMessageByte(std::uint8_t b, int row, int& column, bool window) {
  PresentationSpace& ps = host_.ps;
  const int cols = ps.Columns();
  if (b == kShiftOut || b == kShiftIn) {
    set_double_byte(b == kShiftOut);
    if (column < cols) ps.PutErrorCell(column, row, kBlank);
    ++column;
    return;
  }
  if (double_byte_) {
    if (!half_) {
      half_ = true;
      first_half_ = b;
      if (window) ++column;  // in a window the pair fills the cell before and this one
      return;
    }
    half_ = false;
    std::uint8_t first = first_half_;
    std::uint8_t second = b;
    const bool pair = ConvertPair(first, second);
    if (window) {
      ps.PutPair(column - 1, row, first, second, pair);
      ++column;
    } else if (column + 1 < cols) {
      ps.PutPair(column, row, first, second, pair);
      column += 2;
    } else {
      ps.PutCell(column, row, first);  // a pair cut at the end of the row
      column += 2;
    }
    return;
  }
  if (b >= 0x20 && b <= 0x3F) {
    ps.SetErrorCell(column, row, 0, ps.Attribute(row, column));
  } else {
    const std::uint8_t d = HostToDisplay(host_.emulation_type, b);
    ps.PutErrorCell(column, row, d == 0xFF ? (window ? kBlank : 0) : d);
  }
  ++column;
}

void DataStreamInterpreter::DoControlCharacters(std::uint8_t cc1, std::uint8_t cc2) {
  host_.MarkRepaint();
  if (cc1 != 0) {
    Trace(TraceCode::kResetAid);
    host_.SetKeyboardLocked(true);
  }
  const int reset = cc1 >> 5;
  FieldTable& fields = host_.fields;
  const bool reset_non_bypass = reset == 2 || reset == 5 || reset == 6;
  const bool reset_all = reset == 3 || reset == 7;
  const bool fill = reset >= 4;
  const bool fill_sets_mdt = reset == 4 || reset == 6;
  if (reset >= 2) {
    for (int i = 0; i < fields.Count(); ++i) {
      fields.SetPosition(i);
      FieldRecord f = fields.ReadField();
      if (!f.HasFormat()) continue;
      if (reset_all || (reset_non_bypass && !f.IsBypass())) f.format1 &= ~kFfwModified;
      if (fill && !f.IsBypass()) {
        CellAddress cell{f.row, f.column};
        for (int k = 0; k < f.length && host_.ps.InScreen(cell.row, cell.column); ++k) {
          host_.ps.SetCell(cell.column, cell.row, 0, host_.ps.Attribute(cell.row, cell.column));
          cell = host_.ps.Advance(cell);
        }
        if (fill_sets_mdt) f.format1 |= kFfwModified;
      }
      fields.WriteField(f);
      if (host_.fields.Current().number == f.number && host_.fields.Current().IsField()) {
        fields.SetCurrent(f);
      }
    }
  }
  host_.move_cursor = (cc2 & kCc2NoCursorMove) == 0;
  if (cc2 & 0x08) {
    Trace(TraceCode::kResetAid);
    host_.SetKeyboardLocked(false);
  }
  if (cc2 & kCc2Alarm) host_.SoundAlarm();
  // The message-waiting indicator: 0x01 turns it on, 0x02 off. The terminal shows it beside the
  // screen, so a change counts as a screen change.
  const bool waiting = (cc2 & 0x02) == 0 && ((cc2 & 0x01) != 0 || host_.message_waiting);
  if (waiting != host_.message_waiting) {
    host_.message_waiting = waiting;
    host_.changed = true;
  }
}

void DataStreamInterpreter::PlaceCursor() {
  PresentationSpace& ps = host_.ps;
  FieldTable& fields = host_.fields;
  fields.ClearCurrent();
  ps.SetCursor(0, 0);
  if (ps.HasInsertCursor()) {
    const CellAddress ic = ps.InsertCursor();
    ps.SetCursor(ic.row, ic.column);
    fields.FindCurrentField(ps);
    return;
  }
  for (int i = 0; i < fields.Count(); ++i) {
    fields.SetPosition(i);
    const FieldRecord f = fields.ReadField();
    if (f.IsInput()) {
      fields.SetCurrent(f);
      ps.SetCursor(f.row, f.column);
      return;
    }
  }
}

}  // namespace veltrix
