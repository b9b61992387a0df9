#include "tn5250/presentation_space.h"

#include <algorithm>
#include <cstdlib>

namespace veltrix {

PresentationSpace::PresentationSpace() { Reset(); }

void PresentationSpace::Reset() {
  ClearPlanes();
  error_row_save_.fill(0);
  error_row_pairs_save_.fill(false);
  rows_ = kScreenRows;
  columns_ = kScreenColumns;
  cursor_row_ = cursor_column_ = 0;
  ForgetInsertCursor();
  error_row_ = kDefaultErrorRow;
  error_line_ = false;
  current_attribute_ = 0;
}

// Rows below the screen are never written (every store checks the screen), so clearing the
// screen's rows clears the planes.
void PresentationSpace::ClearPlanes() {
  const int used = rows_ * kPlaneColumns;
  std::fill_n(characters_.begin(), used, std::uint8_t{0});
  std::fill_n(attributes_.begin(), used, std::uint8_t{0});
  std::fill_n(pair_start_.begin(), used, false);
}

void PresentationSpace::ClearCharacterPlane() {
  const int used = rows_ * kPlaneColumns;
  std::fill_n(characters_.begin(), used, std::uint8_t{0});
  std::fill_n(pair_start_.begin(), used, false);
}

bool PresentationSpace::IsPairStart(int row, int column) const {
  return InScreen(row, column) && pair_start_[Index(row, column)];
}

void PresentationSpace::PutPairAtCursor(std::uint8_t first, std::uint8_t second) {
  PutPair(cursor_column_, cursor_row_, first, second);
  AdvanceAddress(cursor_column_, cursor_row_);
  AdvanceAddress(cursor_column_, cursor_row_);
}

void PresentationSpace::PutPair(int column, int row, std::uint8_t first, std::uint8_t second,
                                bool mark) {
  const CellAddress next = Advance({row, column});
  PutCell(column, row, first);
  PutCell(next.column, next.row, second);
  if (mark && InScreen(row, column) && InScreen(next.row, next.column)) {
    pair_start_[Index(row, column)] = true;
  }
}

std::uint8_t PresentationSpace::Character(int row, int column) const {
  return InScreen(row, column) ? characters_[Index(row, column)] : 0;
}

std::uint8_t PresentationSpace::Attribute(int row, int column) const {
  return InScreen(row, column) ? attributes_[Index(row, column)] : 0;
}

void PresentationSpace::PutCell(int column, int row, std::uint8_t character) {
  SetCell(column, row, character, current_attribute_);
}

void PresentationSpace::SetCell(int column, int row, std::uint8_t character,
                                std::uint8_t attribute) {
  if (!InScreen(row, column)) return;
  const int i = Index(row, column);
  characters_[i] = character;
  attributes_[i] = attribute;
  pair_start_[i] = false;
  BreakPairBefore(row, column);
}

void PresentationSpace::SetErrorCell(int column, int row, std::uint8_t character,
                                     std::uint8_t attribute) {
  if (InScreen(row, column)) return SetCell(column, row, character, attribute);
  if (row < rows_ || row >= kPlaneRows || column < 0 || column >= columns_) return;
  const int i = Index(row, column);
  characters_[i] = character;
  attributes_[i] = attribute;
  pair_start_[i] = false;
}

void PresentationSpace::SetAttribute(int column, int row, std::uint8_t attribute) {
  if (InScreen(row, column)) attributes_[Index(row, column)] = attribute;
}

void PresentationSpace::EraseCell(int column, int row, bool character, bool colour_bits,
                                  bool display_bits) {
  if (!InScreen(row, column)) return;
  const int i = Index(row, column);
  if (character) {
    characters_[i] = 0;
    pair_start_[i] = false;
    BreakPairBefore(row, column);
  }
  if (colour_bits) attributes_[i] &= static_cast<std::uint8_t>(~kAttrColourMask);
  if (display_bits) attributes_[i] &= kAttrColourMask;
}

// Addresses move along the rows; they are kept between one cell before the screen and one
// cell after it, so that a run of writes off the screen can never wander far or overflow.
CellAddress PresentationSpace::Advance(CellAddress a) const {
  int linear = std::clamp(a.row * columns_ + a.column + 1, -1, rows_ * columns_);
  if (linear < 0) return {-1, columns_ - 1};
  return {linear / columns_, linear % columns_};
}

CellAddress PresentationSpace::Retreat(CellAddress a) const {
  int linear = std::clamp(a.row * columns_ + a.column - 1, -1, rows_ * columns_);
  if (linear < 0) return {-1, columns_ - 1};
  return {linear / columns_, linear % columns_};
}

void PresentationSpace::AdvanceAddress(int& column, int& row) const {
  CellAddress a = Advance({row, column});
  row = a.row;
  column = a.column;
}

void PresentationSpace::RetreatAddress(int& column, int& row) const {
  CellAddress a = Retreat({row, column});
  row = a.row;
  column = a.column;
}

int PresentationSpace::AddressDistance(int column1, int row1, int column2, int row2) const {
  return std::abs((row1 - row2) * columns_ + column1 - column2);
}

std::size_t PresentationSpace::WriteRun(const std::uint8_t* p, const std::uint8_t* stop,
                                        const std::array<bool, 256>& accept,
                                        const std::array<std::uint8_t, 256>& map) {
  const std::uint8_t* const start = p;
  while (p < stop && accept[*p]) {
    const int room = columns_ - 1 - cursor_column_;
    if (cursor_row_ < 0 || cursor_row_ >= rows_ || cursor_column_ < 0 || room <= 0) {
      WriteAtCursor(map[*p++]);
      continue;
    }
    // Within one row: plain stores, then the attributes and marks in one go.
    const int i = Index(cursor_row_, cursor_column_);
    BreakPairBefore(cursor_row_, cursor_column_);
    std::uint8_t* out = characters_.data() + i;
    const std::uint8_t* const segment_end = p + std::min<std::ptrdiff_t>(room, stop - p);
    const std::uint8_t* const segment_start = p;
    while (p < segment_end && accept[*p]) *out++ = map[*p++];
    const int n = static_cast<int>(p - segment_start);
    std::fill_n(attributes_.data() + i, n, current_attribute_);
    std::fill_n(pair_start_.data() + i, n, false);
    cursor_column_ += n;
  }
  return static_cast<std::size_t>(p - start);
}

void PresentationSpace::FillLinear(int first, int last, std::uint8_t character) {
  first = std::max(first, 0);
  last = std::min(last, rows_ * columns_ - 1);
  if (first <= last) BreakPairBefore(first / columns_, first % columns_);
  while (first <= last) {
    const int row = first / columns_;
    const int column = first % columns_;
    const int n = std::min(columns_ - column, last - first + 1);
    const int i = Index(row, column);
    std::fill_n(characters_.data() + i, n, character);
    std::fill_n(attributes_.data() + i, n, current_attribute_);
    std::fill_n(pair_start_.data() + i, n, false);
    first += n;
  }
}

void PresentationSpace::SetAttributeLinear(int first, int count, std::uint8_t attribute) {
  int last = first + count - 1;
  first = std::max(first, 0);
  last = std::min(last, rows_ * columns_ - 1);
  while (first <= last) {
    const int row = first / columns_;
    const int column = first % columns_;
    const int n = std::min(columns_ - column, last - first + 1);
    std::fill_n(attributes_.data() + Index(row, column), n, attribute);
    first += n;
  }
}

void PresentationSpace::SetErrorRow(int row) {
  // The host's row is taken as it stands, below the screen too; a row beyond the planes would
  // write outside them, so it leaves the error row as it was.
  if (row >= 0 && row < kPlaneRows) error_row_ = row;
}

// The double-byte marks of the row travel with its characters, so a restored row shows its
// double-byte characters again.
void PresentationSpace::SaveErrorRow() {
  std::copy_n(characters_.begin() + Index(error_row_, 0), kPlaneColumns, error_row_save_.begin());
  std::copy_n(pair_start_.begin() + Index(error_row_, 0), kPlaneColumns,
              error_row_pairs_save_.begin());
}

void PresentationSpace::RestoreErrorRow() {
  std::copy_n(error_row_save_.begin(), kPlaneColumns, characters_.begin() + Index(error_row_, 0));
  std::copy_n(error_row_pairs_save_.begin(), kPlaneColumns,
              pair_start_.begin() + Index(error_row_, 0));
  BreakPairBefore(error_row_, 0);
}

void PresentationSpace::ClearErrorRow() {
  std::fill_n(characters_.begin() + Index(error_row_, 0), kPlaneColumns, std::uint8_t{0});
  std::fill_n(pair_start_.begin() + Index(error_row_, 0), kPlaneColumns, false);
  BreakPairBefore(error_row_, 0);
}

}  // namespace veltrix
