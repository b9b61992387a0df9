#include "settings/grid/char_grid.h"

#include <algorithm>
#include <array>

#include "resources/hex_text.h"

namespace veltrix {
namespace {

// Names of 0x00-0x20 as the terminal's keyboard calls them; empty for bytes without a key.
constexpr std::array<std::string_view, 0x21> kControlNames = {
    "",      "Ins",  "Del",   "Home", "End", "Up",  "Down", "Left", "BS", "HT", "LF",
    "Right", "PgUp", "Enter", "PgDn", "F1",  "F2",  "F3",   "F4",   "F5", "F6", "F7",
    "F8",    "F9",   "F10",   "F11",  "F12", "ESC", "Exec", "",     "",   "",   "SP"};

std::string Hex(unsigned value) { return HexByte(static_cast<std::uint8_t>(value)); }

}  // namespace

int GridColumns(GridMode mode) { return mode == GridMode::kKeyCodes ? 8 : 16; }

std::string GridColumnHeader(int column) { return Hex(static_cast<unsigned>(column) * 16); }

std::string GridRowHeader(int row) { return Hex(static_cast<unsigned>(row)); }

std::string GridCellName(GridMode mode, std::uint8_t byte) {
  if (mode == GridMode::kHex) return Hex(byte);
  if (byte < kControlNames.size()) return std::string(kControlNames[byte]);
  if (byte < 0x7F) return std::string(1, static_cast<char>(byte));
  if (byte == 0x7F) return "DEL";
  return std::to_string(byte);
}

std::size_t GridShownCount(GridMode mode, std::span<const std::uint8_t> bytes) {
  if (mode == GridMode::kHex) return bytes.size();
  return static_cast<std::size_t>(std::find(bytes.begin(), bytes.end(), 0) - bytes.begin());
}

std::string GridDisplayText(GridMode mode, std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t b : bytes.first(GridShownCount(mode, bytes))) {
    text += GridCellName(mode, b);
    text += ' ';
  }
  return text;
}

GridEditor::GridEditor(GridMode mode, int limit, std::span<const std::uint8_t> start)
    : mode_(mode), limit_(std::max(limit, 0)) {
  const std::size_t shown = std::min<std::size_t>(GridShownCount(mode, start), limit_);
  bytes_.assign(start.begin(), start.begin() + static_cast<std::ptrdiff_t>(shown));
  text_ = start_text_ = GridDisplayText(mode, bytes_);
}

GridEditor::Pick GridEditor::Click(int column, int row) {
  if (column < 1 || row < 1 || column > columns() || row > kGridRows) return Pick::kIgnored;
  return PickCell(column - 1, row - 1);
}

GridEditor::Pick GridEditor::PickCell(int column, int row) {
  if (column < 0 || row < 0 || column >= columns() || row >= kGridRows) return Pick::kIgnored;
  column_ = column;
  row_ = row;
  if (static_cast<int>(bytes_.size()) >= limit_) return Pick::kTooMany;
  const std::uint8_t byte = GridByte(column, row);
  bytes_.push_back(byte);
  text_ += GridCellName(mode_, byte);
  text_ += ' ';
  return Pick::kAppended;
}

void GridEditor::MoveSelection(int columns, int rows) {
  column_ = std::clamp(column_ + columns, 0, this->columns() - 1);
  row_ = std::clamp(row_ + rows, 0, kGridRows - 1);
}

void GridEditor::Clear() {
  bytes_.clear();
  text_.clear();
}

std::vector<std::uint8_t> GridEditor::Result() const {
  std::vector<std::uint8_t> result = bytes_;
  result.resize(static_cast<std::size_t>(limit_), 0);
  return result;
}

}  // namespace veltrix
