#ifndef VELTRIX_TN5250_FIELD_TABLE_H_
#define VELTRIX_TN5250_FIELD_TABLE_H_

#include <array>
#include <span>

#include "tn5250/field_record.h"
#include "tn5250/presentation_space.h"

namespace veltrix {

inline constexpr int kFieldPoolSize = 208;

// The field format table: the host's input fields in the order of their Start of Field
// orders, with a list position for the next/previous/read/write operations and a copy of the
// current field (the one that holds the cursor). Records are handed out from a fixed pool in
// order; once the pool is full further fields are left out of the table.
class FieldTable {
 public:
  void Clear();
  // Appends a copy of record; false when the pool is full (the record is dropped).
  bool AppendField(const FieldRecord& record);

  bool FirstField();
  bool LastField();
  bool NextField();
  bool PreviousField();
  FieldRecord ReadField() const;
  void WriteField(const FieldRecord& record);
  bool TableIsEmpty() const { return count_ == 0; }
  bool AtLastField() const { return count_ > 0 && position_ == count_ - 1; }

  int Count() const { return count_; }
  // The records in table order (which is also pool order).
  std::span<const FieldRecord> Records() const { return {pool_.data(), std::size_t(count_)}; }
  // Index of the list position in Records(), -1 when the table is empty.
  int Position() const { return count_ == 0 ? -1 : position_; }
  void SetPosition(int index);

  const FieldRecord& Current() const { return current_; }
  FieldRecord& MutableCurrent() { return current_; }
  void SetCurrent(const FieldRecord& record) { current_ = record; }
  void ClearCurrent() { current_ = FieldRecord{}; }
  // Makes the record at the list position the current field.
  void CurrentFromPosition();
  // Writes the current field back over the record at the list position.
  void WriteBackCurrent();

  // Whether the cell lies inside the field (`FieldAt`).
  static bool FieldAt(const FieldRecord& record, int column, int row, int columns);
  // `FindCurrentField`: keeps the current field when it holds the cursor, else searches.
  void FindCurrentField(const PresentationSpace& ps);

 private:
  std::array<FieldRecord, kFieldPoolSize> pool_{};
  int count_ = 0;
  int position_ = 0;
  FieldRecord current_{};
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_FIELD_TABLE_H_
