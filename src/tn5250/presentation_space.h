#ifndef VELTRIX_TN5250_PRESENTATION_SPACE_H_
#define VELTRIX_TN5250_PRESENTATION_SPACE_H_

#include <array>
#include <cstdint>
#include <span>

namespace veltrix {

inline constexpr int kPlaneRows = 33;
inline constexpr int kPlaneColumns = 128;
inline constexpr int kPlaneSize = kPlaneRows * kPlaneColumns;  // 4,224 bytes
inline constexpr int kScreenRows = 24;
inline constexpr int kScreenColumns = 80;
inline constexpr int kDefaultErrorRow = 23;

// Display attribute bits.
inline constexpr std::uint8_t kAttrColourMask = 0xE0;
inline constexpr std::uint8_t kAttrColumnSeparator = 0x10;
inline constexpr std::uint8_t kAttrBlink = 0x08;
inline constexpr std::uint8_t kAttrUnderline = 0x04;
inline constexpr std::uint8_t kAttrReverse = 0x01;
inline constexpr std::uint8_t kAttrNonDisplay = 0x07;  // value of bits 2-0

struct CellAddress {
  int row = 0;
  int column = 0;
  friend bool operator==(const CellAddress&, const CellAddress&) = default;
};

// The in-memory host screen: character and attribute planes (33 x 128, of which rows x columns
// are used), the cursor (which is also the interpreter's current address), the current
// attribute, the insert-cursor address and the error row with its save area.
//
// Cells are only ever stored inside the used area: a write to an address outside it is
// dropped, so nothing the host sends can reach beyond the planes.
class PresentationSpace {
 public:
  PresentationSpace();

  // Everything back to the state after a reset: 24 x 80, planes cleared, cursor (0,0), error
  // row 23, no insert-cursor address, current attribute 0, error-line flag clear.
  void Reset();
  void ClearPlanes();
  void ClearCharacterPlane();

  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  bool InScreen(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
  }

  std::uint8_t Character(int row, int column) const;
  // A character of the plane, which goes on below the screen to row kPlaneRows - 1 (a field
  // reaching past the screen's last row has its cells there); 0 beyond the plane.
  std::uint8_t PlaneCharacter(int row, int column) const {
    const bool in_plane = row >= 0 && row < kPlaneRows && column >= 0 && column < columns_;
    return in_plane ? characters_[Index(row, column)] : 0;
  }
  std::uint8_t Attribute(int row, int column) const;
  std::span<const std::uint8_t, kPlaneSize> CharacterPlane() const { return characters_; }
  std::span<const std::uint8_t, kPlaneSize> AttributePlane() const { return attributes_; }

  // Stores character and the current attribute at the cell (dropped outside the screen).
  void PutCell(int column, int row, std::uint8_t character);
  // Stores character and attribute directly (dropped outside the screen).
  void SetCell(int column, int row, std::uint8_t character, std::uint8_t attribute);
  // An error message's cells: the error row may lie below the screen, in the plane's spare rows,
  // where the host put it; only cells beyond the plane are dropped.
  void SetErrorCell(int column, int row, std::uint8_t character, std::uint8_t attribute);
  void PutErrorCell(int column, int row, std::uint8_t character) {
    SetErrorCell(column, row, character, current_attribute_);
  }
  void SetAttribute(int column, int row, std::uint8_t attribute);
  // Writes a double-byte character: first byte at (column, row), second in the next cell, and
  // marks the first cell as the left half of a pair (for painting and text output).
  void PutPairAtCursor(std::uint8_t first, std::uint8_t second);
  // The same at a given cell, without moving the cursor.
  // mark false writes two single-byte cells (a pair the host language could not convert).
  void PutPair(int column, int row, std::uint8_t first, std::uint8_t second, bool mark = true);
  // Whether the cell holds the left half of a double-byte character.
  bool IsPairStart(int row, int column) const;
  // Erases the selected parts of a cell: the character, the colour bits 7-5, the bits 4-0.
  void EraseCell(int column, int row, bool character, bool colour_bits, bool display_bits);

  CellAddress Advance(CellAddress a) const;
  CellAddress Retreat(CellAddress a) const;
  void AdvanceAddress(int& column, int& row) const;
  void RetreatAddress(int& column, int& row) const;
  int AddressDistance(int column1, int row1, int column2, int row2) const;
  // Linear index (row * columns + column) of an address, and back.
  int Linear(CellAddress a) const { return a.row * columns_ + a.column; }

  // The cursor, which is also the interpreter's current address.
  CellAddress Cursor() const { return {cursor_row_, cursor_column_}; }
  int CursorRow() const { return cursor_row_; }
  int CursorColumn() const { return cursor_column_; }
  void SetCursor(int row, int column) {
    cursor_row_ = row;
    cursor_column_ = column;
  }
  bool OnScreen(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
  }
  // Writes the bytes from p on at the cursor, each mapped through map, for as long as accept
  // holds for them and p is before stop; gives the number written. The same as WriteAtCursor
  // for each byte, done a row segment at a time.
  std::size_t WriteRun(const std::uint8_t* p, const std::uint8_t* stop,
                       const std::array<bool, 256>& accept,
                       const std::array<std::uint8_t, 256>& map);
  // Stores character with the current attribute in the cells first..last (linear indexes).
  void FillLinear(int first, int last, std::uint8_t character);
  // Sets the attribute of count cells from the linear index first, within the screen.
  void SetAttributeLinear(int first, int count, std::uint8_t attribute);

  // Writes at the cursor and advances it. Inline: this is the interpreter's hot path.
  void WriteAtCursor(std::uint8_t character) {
    if (cursor_row_ >= 0 && cursor_row_ < rows_ && cursor_column_ >= 0 &&
        cursor_column_ + 1 < columns_) {
      const int i = Index(cursor_row_, cursor_column_);
      characters_[i] = character;
      attributes_[i] = current_attribute_;
      pair_start_[i] = false;
      BreakPairBefore(cursor_row_, cursor_column_);
      ++cursor_column_;
      return;
    }
    PutCell(cursor_column_, cursor_row_, character);
    AdvanceAddress(cursor_column_, cursor_row_);
  }

  std::uint8_t CurrentAttribute() const { return current_attribute_; }
  void SetCurrentAttribute(std::uint8_t a) { current_attribute_ = a; }

  bool HasInsertCursor() const { return insert_row_ >= 0 && insert_column_ >= 0; }
  CellAddress InsertCursor() const { return {insert_row_, insert_column_}; }
  void SetInsertCursor(int row, int column) {
    insert_row_ = row;
    insert_column_ = column;
  }
  void ForgetInsertCursor() { insert_row_ = insert_column_ = -1; }

  int ErrorRow() const { return error_row_; }
  void SetErrorRow(int row);
  bool ErrorLine() const { return error_line_; }
  void SetErrorLine(bool on) { error_line_ = on; }
  void SaveErrorRow();
  void RestoreErrorRow();
  void ClearErrorRow();

 private:
  int Index(int row, int column) const { return row * kPlaneColumns + column; }
  // A write into the second half of a double-byte character leaves its first half a single
  // byte. (row, column) must be on the screen.
  void BreakPairBefore(int row, int column) {
    if (column > 0) {
      pair_start_[Index(row, column - 1)] = false;
    } else if (row > 0) {
      pair_start_[Index(row - 1, columns_ - 1)] = false;
    }
  }

  std::array<std::uint8_t, kPlaneSize> characters_{};
  std::array<std::uint8_t, kPlaneSize> attributes_{};
  std::array<std::uint8_t, kPlaneColumns> error_row_save_{};
  std::array<bool, kPlaneColumns> error_row_pairs_save_{};
  std::array<bool, kPlaneSize> pair_start_{};
  int rows_ = kScreenRows;
  int columns_ = kScreenColumns;
  int cursor_row_ = 0;
  int cursor_column_ = 0;
  int insert_row_ = -1;
  int insert_column_ = -1;
  int error_row_ = kDefaultErrorRow;
  bool error_line_ = false;
  std::uint8_t current_attribute_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_PRESENTATION_SPACE_H_
