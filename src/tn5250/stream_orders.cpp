// The Write to Display orders: one small function each, reached through the order table.
#include <algorithm>
#include <array>

#include "tn5250/code_tables.h"
#include "tn5250/data_stream.h"
#include "tn5250/stream_items.h"

namespace veltrix {

namespace {

using Item = std::span<const std::uint8_t>;

// Order addresses are 1-based; a row of 1 with a column of 0 is taken as column 1.
CellAddress OrderAddress(std::uint8_t row, std::uint8_t column) {
  if (row == 1 && column == 0) column = 1;
  return {row - 1, column - 1};
}

void SetBufferAddress(DataStreamInterpreter& s, Item item) {
  const CellAddress a = OrderAddress(item[1], item[2]);
  s.host().ps.SetCursor(a.row, a.column);
  if (a.row < 0 || a.column < 0) s.Trace(TraceCode::kSbaParameterError);
}

void InsertCursor(DataStreamInterpreter& s, Item item) {
  const CellAddress a = OrderAddress(item[1], item[2]);
  // An insert cursor off the screen would leave the user's cursor nowhere: the order is dropped.
  if (!s.host().ps.OnScreen(a.row, a.column)) {
    s.Trace(TraceCode::kCursorOffScreen);
    return;
  }
  s.host().ps.SetCursor(a.row, a.column);
  s.host().ps.SetInsertCursor(a.row, a.column);
}

void MoveCursor(DataStreamInterpreter& s, Item item) {
  const CellAddress a = OrderAddress(item[1], item[2]);
  s.host().ps.SetCursor(a.row, a.column);
}

// The linear cells [first, last] that a fill from the current address to the end address
// covers, clipped to the screen; an end before the start runs to the end of the screen.
struct Span {
  int first;
  int last;
};

Span FillSpan(const PresentationSpace& ps, CellAddress end, bool include_end) {
  const int screen = ps.Rows() * ps.Columns();
  const int first = std::max(ps.Linear(ps.Cursor()), 0);
  int last = ps.Linear(end) - (include_end ? 0 : 1);
  if (ps.Linear(end) < ps.Linear(ps.Cursor())) last = screen - 1;
  return {first, std::min(last, screen - 1)};
}

void RepeatToAddress(DataStreamInterpreter& s, Item item) {
  HostContext& h = s.host();
  PresentationSpace& ps = h.ps;
  std::uint8_t c = HostToDisplay(h.emulation_type, item[3]);
  if (c == 0xFF) c = 0;
  const CellAddress end = OrderAddress(item[1], item[2]);
  const Span span = FillSpan(ps, end, true);
  ps.FillLinear(span.first, span.last, c);
  const CellAddress next = ps.Advance(end);
  ps.SetCursor(next.row, next.column);
  h.MarkRepaint();
}

void EraseToAddress(DataStreamInterpreter& s, Item item) {
  HostContext& h = s.host();
  PresentationSpace& ps = h.ps;
  const int length = item[3];
  if (length < 2 || length > 5) s.Trace(TraceCode::kEraseToAddressLengthError);
  bool character = false;
  bool colour = false;
  bool display = false;
  for (std::size_t i = 4; i < item.size(); ++i) {
    switch (item[i]) {
      case 0x00:
        character = true;
        break;
      case 0x01:
        colour = true;
        break;
      case 0x03:
        display = true;
        break;
      case 0xFF:
        character = colour = display = true;
        break;
      case 0x02:
      case 0x05:
        break;
      default:
        s.Trace(TraceCode::kInvalidEaParameter);
        break;
    }
  }
  const CellAddress end = OrderAddress(item[1], item[2]);
  const Span span = FillSpan(ps, end, false);
  for (int i = span.first; i <= span.last; ++i) {
    ps.EraseCell(i % ps.Columns(), i / ps.Columns(), character, colour, display);
  }
  const CellAddress next = ps.Advance(end);
  ps.SetCursor(next.row, next.column);
  h.MarkRepaint();
}

void StartOfHeader(DataStreamInterpreter& s, Item item) {
  const int length = item[1];
  if (length < 1 || length > 7) s.Trace(TraceCode::kSohLengthError);
  s.host().fields.Clear();
  if (item.size() > 5) s.host().ps.SetErrorRow(item[5]);
}

void TransparentData(DataStreamInterpreter& s, Item item) {
  // Exactly the bytes the order holds are written, as they stand.
  PresentationSpace& ps = s.host().ps;
  for (std::size_t i = 3; i < item.size(); ++i) ps.WriteAtCursor(item[i]);
  s.host().MarkRepaint();
}

void WriteExtendedAttribute(DataStreamInterpreter& s, Item item) {
  PresentationSpace& ps = s.host().ps;
  const std::uint8_t type = item[1];
  const std::uint8_t value = item[2];
  if (type == 1) {
    if (value != 0) ps.SetCurrentAttribute((ps.CurrentAttribute() & 0xE0) | value);
  } else if (type == 2) {
    if (value != 0) ps.SetCurrentAttribute(ps.CurrentAttribute() & 0xF8);
  } else if (type != 3) {
    s.Trace(TraceCode::kWeaTypeError);
  }
}

void StartOfField(DataStreamInterpreter& s, Item item) {
  HostContext& h = s.host();
  PresentationSpace& ps = h.ps;
  if ((item[1] & 0xC0) == 0) return;  // an output-only field: not a table entry
  ps.SetCurrentAttribute(0);
  ps.WriteAtCursor(0);
  FieldRecord f;
  f.format1 = item[1];
  f.format2 = item[2];
  std::size_t at = 3;
  if (item.size() >= 8 && (item[3] & 0xC0) != 0) {
    f.control1 = item[3];
    f.control2 = item[4];
    if (f.control1 == 0x80) f.resequence = f.control2;
    at = 5;
  }
  if (item.size() < at + 3) return;
  f.attribute = AttributeToDisplay(item[at]);
  if (!f.IsBypass()) f.attribute |= kAttrUnderline;
  f.length = (item[at + 1] << 8) | item[at + 2];
  const CellAddress first = ps.Cursor();
  f.row = static_cast<std::uint8_t>(first.row);
  f.column = static_cast<std::uint8_t>(first.column);
  FieldTable& fields = h.fields;
  f.number = 1;
  if (fields.LastField()) f.number = static_cast<std::uint8_t>(fields.ReadField().number + 1);
  if (ps.InScreen(first.row, first.column)) fields.AppendField(f);
  if (ps.InScreen(first.row, first.column))
    ps.SetAttributeLinear(ps.Linear(first), f.length, f.attribute);
  if (f.attribute != 0) ps.SetCurrentAttribute(f.attribute);
  h.MarkRepaint();
}

constexpr std::array<StreamItem, 10> kOrders = {{
    {kOrderSetBufferAddress, SetBufferAddress, 3},
    {kOrderInsertCursor, InsertCursor, 3},
    {kOrderMoveCursor, MoveCursor, 3},
    {kOrderRepeatToAddress, RepeatToAddress, 4},
    {kOrderEraseToAddress, EraseToAddress, kLengthField, {.offset = 3, .bytes = 1}},
    {kOrderStartOfHeader,
     StartOfHeader,
     kLengthField,
     {.offset = 1, .bytes = 1, .counts_itself = false}},
    {kOrderTransparentData, TransparentData, kLengthField, {.offset = 1, .bytes = 2}},
    {kOrderWriteExtendedAttribute, WriteExtendedAttribute, 3},
    {kOrderStartOfField, StartOfField,
     kLengthField},  // its own length rule: the format words present
    {kOrderWriteStructuredField,
     nullptr,
     kLengthField,
     {.offset = 1, .bytes = 2}},  // Write to Display Structured Field
}};

constexpr std::array<std::int8_t, 256> MakeOrderIndex() {
  std::array<std::int8_t, 256> index{};
  index.fill(-1);
  for (std::size_t i = kOrders.size(); i-- > 0;) {
    index[kOrders[i].code] = static_cast<std::int8_t>(i);
  }
  return index;
}

constexpr std::array<std::int8_t, 256> kOrderIndex = MakeOrderIndex();

}  // namespace

const StreamItem* FindOrder(std::uint8_t code) {
  const int i = kOrderIndex[code];
  return i < 0 ? nullptr : &kOrders[i];
}

}  // namespace veltrix
