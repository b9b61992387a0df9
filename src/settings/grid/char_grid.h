#ifndef VELTRIX_SETTINGS_GRID_CHAR_GRID_H_
#define VELTRIX_SETTINGS_GRID_CHAR_GRID_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix {

inline constexpr std::string_view kGridCaption = "The Grid Control";
inline constexpr std::string_view kTooManyCharacters = "Too many characters !!!";
inline constexpr std::string_view kGridResultLabel = "Resulting text :";

// How the chart names its bytes: key names over all 256 values, two hexadecimal digits, or key
// names over 0x00-0x7F (key codes).
enum class GridMode { kKeyNames = 0, kHex = 1, kKeyCodes = 2 };

inline constexpr int kGridRows = 16;
// 16 columns, or 8 for key codes.
int GridColumns(GridMode mode);
// The cell in column c, row r stands for 16 * c + r.
inline constexpr std::uint8_t GridByte(int column, int row) {
  return static_cast<std::uint8_t>(16 * column + row);
}
// "00", "10", ... over the columns; "00" to "0F" down the rows.
std::string GridColumnHeader(int column);
std::string GridRowHeader(int row);

// A byte's name in the chart and in the display form ("Enter", "A", "SP", "200"; "C8" in
// hexadecimal mode).
std::string GridCellName(GridMode mode, std::uint8_t byte);
// How many of `bytes` the display form shows: all in hexadecimal mode, else up to the first 0.
std::size_t GridShownCount(GridMode mode, std::span<const std::uint8_t> bytes);
// Each shown byte's name followed by one blank.
std::string GridDisplayText(GridMode mode, std::span<const std::uint8_t> bytes);

// "The Grid Control" while it is open: the bytes chosen so far, at most `limit` of them.
class GridEditor {
 public:
  enum class Pick { kIgnored, kAppended, kTooMany };

  // Starts from the bytes the display form shows of `start`.
  GridEditor(GridMode mode, int limit, std::span<const std::uint8_t> start);

  GridMode mode() const { return mode_; }
  int columns() const { return GridColumns(mode_); }
  int limit() const { return limit_; }
  const std::vector<std::uint8_t>& bytes() const { return bytes_; }
  const std::string& text() const { return text_; }
  // The starting bytes' display form, which Cancel puts back into the edit.
  const std::string& start_text() const { return start_text_; }
  int selected_column() const { return column_; }
  int selected_row() const { return row_; }

  // A click on the chart where the headers take the first column and row: cell (column - 1,
  // row - 1) is selected and its byte appended, unless the limit is reached.
  Pick Click(int column, int row);
  // The same for a chart cell (0-based, headers not counted).
  Pick PickCell(int column, int row);
  // Moves the selection by the arrow keys, staying on the chart.
  void MoveSelection(int columns, int rows);
  void Clear();
  // OK: the chosen bytes, zero-filled to the limit.
  std::vector<std::uint8_t> Result() const;

 private:
  GridMode mode_;
  int limit_;
  std::vector<std::uint8_t> bytes_;
  std::string text_;
  std::string start_text_;
  int column_ = 0;
  int row_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_GRID_CHAR_GRID_H_
