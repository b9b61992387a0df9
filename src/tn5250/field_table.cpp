#include "tn5250/field_table.h"

namespace veltrix {

// Links are pool indexes plus one, so that 0 means none.
void FieldTable::Clear() {
  count_ = 0;
  position_ = 0;
  current_ = FieldRecord{};
}

bool FieldTable::AppendField(const FieldRecord& record) {
  if (count_ >= kFieldPoolSize) return false;
  FieldRecord& slot = pool_[count_];
  slot = record;
  slot.next = 0;
  slot.previous = static_cast<std::uint32_t>(count_);  // index of the previous + 1, or 0
  if (count_ > 0) pool_[count_ - 1].next = static_cast<std::uint32_t>(count_ + 1);
  if (count_ == 0) position_ = 0;
  ++count_;
  return true;
}

bool FieldTable::FirstField() {
  if (count_ == 0) return false;
  position_ = 0;
  return true;
}

bool FieldTable::LastField() {
  if (count_ == 0) return false;
  position_ = count_ - 1;
  return true;
}

bool FieldTable::NextField() {
  if (count_ == 0 || position_ + 1 >= count_) return false;
  ++position_;
  return true;
}

bool FieldTable::PreviousField() {
  if (count_ == 0 || position_ == 0) return false;
  --position_;
  return true;
}

FieldRecord FieldTable::ReadField() const { return count_ == 0 ? FieldRecord{} : pool_[position_]; }

void FieldTable::WriteField(const FieldRecord& record) {
  if (count_ == 0) return;
  FieldRecord& slot = pool_[position_];
  const std::uint32_t next = slot.next;
  const std::uint32_t previous = slot.previous;
  slot = record;
  slot.next = next;  // the links belong to the table, whatever the copy holds
  slot.previous = previous;
}

void FieldTable::SetPosition(int index) {
  if (index >= 0 && index < count_) position_ = index;
}

void FieldTable::CurrentFromPosition() { current_ = ReadField(); }

void FieldTable::WriteBackCurrent() {
  if (!current_.IsField() || count_ == 0) return;
  // Records are numbered in pool order, so the number finds the record the copy came from
  // even when the list position has moved on.
  const int index = current_.number - 1;
  if (index >= 0 && index < count_ && pool_[index].row == current_.row &&
      pool_[index].column == current_.column) {
    const int saved = position_;
    position_ = index;
    WriteField(current_);
    position_ = saved;
  } else {
    WriteField(current_);
  }
}

bool FieldTable::FieldAt(const FieldRecord& record, int column, int row, int columns) {
  if (!record.IsField() || columns <= 0) return false;
  const int start_row = record.row;
  const int start_column = record.column;
  const long long s = static_cast<long long>(start_column) + record.length;
  const long long k = s / columns;
  if (row == start_row && start_column <= column && (k != 0 || column < s)) return true;
  if (row == start_row + k && column < s % columns) return true;
  return start_row < row && row < start_row + k;
}

void FieldTable::FindCurrentField(const PresentationSpace& ps) {
  const int row = ps.CursorRow();
  const int column = ps.CursorColumn();
  if (FieldAt(current_, column, row, ps.Columns())) return;
  current_ = FieldRecord{};
  for (int i = 0; i < count_; ++i) {
    position_ = i;
    if (FieldAt(pool_[i], column, row, ps.Columns())) {
      current_ = pool_[i];
      return;
    }
  }
}

}  // namespace veltrix
