#include "tn5250/field_record.h"

namespace veltrix {

namespace {

void PutLe32(std::array<std::uint8_t, kFieldRecordSize>& out, int at, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) out[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
}

}  // namespace

std::array<std::uint8_t, kFieldRecordSize> FieldRecord::Serialize() const {
  std::array<std::uint8_t, kFieldRecordSize> out{};
  out[0] = number;
  out[1] = resequence;
  out[2] = column;
  out[3] = row;
  out[4] = format1;
  out[5] = format2;
  out[6] = control1;
  out[7] = control2;
  out[8] = attribute;
  PutLe32(out, 12, static_cast<std::uint32_t>(length));
  PutLe32(out, 16, next);
  PutLe32(out, 20, previous);
  return out;
}

}  // namespace veltrix
