// The 5250 commands: one small function each, reached through the command table.
#include <algorithm>
#include <array>

#include "tn5250/data_stream.h"
#include "tn5250/stream_items.h"

namespace veltrix {

namespace {

using Item = std::span<const std::uint8_t>;

void ClearUnit(DataStreamInterpreter& s, Item) {
  HostContext& h = s.host();
  h.ps.ClearPlanes();
  h.fields.Clear();
  h.ps.ForgetInsertCursor();
  h.ps.SetErrorLine(false);
  h.ps.SetCurrentAttribute(0);
  h.SetKeyboardLocked(true);
  h.MarkRepaint();
}

void ClearUnitAlternate(DataStreamInterpreter& s, Item) {
  s.host().SetKeyboardLocked(true);
  s.host().MarkRepaint();
}

void ClearFormatTable(DataStreamInterpreter& s, Item) {
  s.host().fields.Clear();
  s.host().SetKeyboardLocked(true);
  s.host().MarkRepaint();
  s.Trace(TraceCode::kClearFormatTable);
}

void WriteToDisplay(DataStreamInterpreter& s, Item item) {
  if (item.size() >= 3) s.DoControlCharacters(item[1], item[2]);
}

void ReadCommand(DataStreamInterpreter& s, Item item, ReadMode mode) {
  if (item.size() >= 3) s.DoControlCharacters(item[1], item[2]);
  s.host().read_mode = mode;
}

void ReadInputFields(DataStreamInterpreter& s, Item item) {
  ReadCommand(s, item, ReadMode::kInputFields);
}
void ReadMdtFields(DataStreamInterpreter& s, Item item) {
  ReadCommand(s, item, ReadMode::kMdtFields);
}
void ReadMdtAlternate(DataStreamInterpreter& s, Item item) {
  ReadCommand(s, item, ReadMode::kMdtAlternate);
}

void ReadImmediate(DataStreamInterpreter& s, Item) { s.inbound().SendReadImmediate(false); }
void ReadImmediateAlternate(DataStreamInterpreter& s, Item) { s.inbound().SendReadImmediate(true); }

void ReadScreen(DataStreamInterpreter& s, Item) {
  s.Trace(TraceCode::kSaveScreen);
  s.inbound().SendShortEnter();
}

void BeginErrorMessage(HostContext& h) {
  h.MarkRepaint();
  h.ps.SetErrorLine(true);
  h.SetKeyboardLocked(true);
  h.ps.SaveErrorRow();
}

void WriteErrorCode(DataStreamInterpreter& s, Item item) {
  HostContext& h = s.host();
  h.MarkRepaint();
  h.ps.SetErrorLine(true);
  h.SetKeyboardLocked(true);
  std::size_t begin = 1;
  if (item.size() >= 5 && item[1] == 0x13) {
    if (h.ps.OnScreen(item[2] - 1, item[3] - 1)) {
      h.ps.SetCursor(item[2] - 1, item[3] - 1);
    } else {
      s.Trace(TraceCode::kCursorOffScreen);
    }
    begin = 4;
  }
  h.ps.SaveErrorRow();
  h.ps.ClearErrorRow();
  const int row = h.ps.ErrorRow();
  int column = 0;
  for (std::size_t i = begin; i < item.size() && column < h.ps.Columns(); ++i) {
    const std::uint8_t b = item[i];
    if (b == 0x04 || b == 0xFF || b == 0x00) break;
    s.WriteMessageByte(b, row, column, false);
  }
}

void WriteErrorCodeToWindow(DataStreamInterpreter& s, Item item) {
  HostContext& h = s.host();
  BeginErrorMessage(h);
  if (item.size() < 3) return;
  const int start = item[1];
  const int end = item[2];
  const int row = h.ps.ErrorRow();
  for (int i = 0; i < end - start && std::size_t(3 + i) < item.size(); ++i) {
    int column = start - 1 + i;
    s.WriteMessageByte(item[3 + i], row, column, true);
  }
}

void WriteStructuredField(DataStreamInterpreter& s, Item item) {
  static constexpr std::array<std::uint8_t, 6> kQuery = {
      kCmdWriteStructuredField, 0x00, 0x05, 0xD9, 0x70, 0x00};
  if (item.size() >= kQuery.size() && std::equal(kQuery.begin(), kQuery.end(), item.begin())) {
    s.inbound().SendQueryReply();
  }
}

// In the terminal's order; null handlers take the item and drop it.
constexpr std::array<StreamItem, 25> kCommands = {{
    {kCmdClearUnit, ClearUnit, 1},
    {kCmdClearUnitAlternate, ClearUnitAlternate, 2},
    {kCmdClearFormatTable, ClearFormatTable, 1},
    {kCmdWriteToDisplay, WriteToDisplay, 3},
    {kCmdWriteErrorCode, WriteErrorCode, kToNextEscape},
    {kCmdWriteErrorCodeToWindow, WriteErrorCodeToWindow, kToNextEscape},
    {kCmdReadInputFields, ReadInputFields, 3},
    {kCmdReadMdtFields, ReadMdtFields, 3},
    {kCmdReadMdtAlternate, ReadMdtAlternate, 3},
    {kCmdReadImmediate, ReadImmediate, 1},
    {kCmdReadImmediateAlternate, ReadImmediateAlternate, 1},
    {kCmdReadScreen, ReadScreen, 1},
    {0x64, nullptr, 1},
    {0x66, nullptr, 1},
    {0x68, nullptr, 1},
    {0x6A, nullptr, 1},
    {0x6C, nullptr, 1},
    {kCmdSaveScreen, ReadScreen, 1},             // Save Screen is answered as Read Screen
    {kCmdSavePartialScreen, nullptr, 6},         // Save Partial Screen
    {kCmdRestoreScreen, nullptr, kToRecordEnd},  // Restore Screen
    {kCmdRestorePartialScreen,
     nullptr,
     kLengthField,
     {.offset = 2, .bytes = 2}},  // Restore Partial Screen
    {kCmdRoll, nullptr, 4},       // Roll
    {kCmdWriteStructuredField, WriteStructuredField, kToRecordEnd},
    {kCmdWriteSingleStructuredField, nullptr, kLengthField, {.offset = 1, .bytes = 2}},
    {0x16, nullptr, 3},
}};

template <std::size_t N>
constexpr std::array<std::int8_t, 256> MakeIndex(const std::array<StreamItem, N>& items) {
  std::array<std::int8_t, 256> index{};
  index.fill(-1);
  for (std::size_t i = N; i-- > 0;) index[items[i].code] = static_cast<std::int8_t>(i);
  return index;
}

constexpr std::array<std::int8_t, 256> kCommandIndex = MakeIndex(kCommands);

}  // namespace

const StreamItem* FindCommand(std::uint8_t code) {
  const int i = kCommandIndex[code];
  return i < 0 ? nullptr : &kCommands[i];
}

}  // namespace veltrix
