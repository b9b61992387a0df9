#include "tn5250/presentation_space.h"

#include <algorithm>
#include <cstdlib>

namespace veltrix {

PresentationSpace::PresentationSpace() { Reset(); }

void PresentationSpace::Reset() {
  ClearPlanes();
  error_row_save_.fill(0);
  rows_ = kScreenRows;
  columns_ = kScreenColumns;
  cursor_row_ = cursor_column_ = 0;
  ForgetInsertCursor();
  error_row_ = kDefaultErrorRow;
  error_line_ = false;
  current_attribute_ = 0;
}

void PresentationSpace::ClearPlanes() {
  characters_.fill(0);
  attributes_.fill(0);
  pair_start_.fill(false);
}

void PresentationSpace::ClearCharacterPlane() {
  characters_.fill(0);
  pair_start_.fill(false);
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

void PresentationSpace::WriteAtCursor(std::uint8_t character) {
  PutCell(cursor_column_, cursor_row_, character);
  AdvanceAddress(cursor_column_, cursor_row_);
}

void PresentationSpace::SetErrorRow(int row) {
  // The host's row must name a screen row; anything else keeps the last row, where the
  // terminal shows its messages.
  error_row_ = (row >= 0 && row < rows_) ? row : rows_ - 1;
}

void PresentationSpace::SaveErrorRow() {
  std::copy_n(characters_.begin() + Index(error_row_, 0), kPlaneColumns, error_row_save_.begin());
}

void PresentationSpace::RestoreErrorRow() {
  std::copy_n(error_row_save_.begin(), kPlaneColumns, characters_.begin() + Index(error_row_, 0));
}

void PresentationSpace::ClearErrorRow() {
  std::fill_n(characters_.begin() + Index(error_row_, 0), kPlaneColumns, std::uint8_t{0});
  std::fill_n(pair_start_.begin() + Index(error_row_, 0), kPlaneColumns, false);
}

}  // namespace veltrix
