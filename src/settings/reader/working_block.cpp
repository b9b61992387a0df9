#include "settings/reader/working_block.h"

#include <algorithm>

namespace veltrix {
namespace {

bool Inside(const FieldDef& f, std::size_t base, std::size_t size) {
  return f.offset >= base && f.LastByte() < base + size;
}

// The image and the record offset of its first byte for `f`: a working block or the record.
template <typename Doc, typename Bytes>
Bytes ImageOf(Doc& doc, const FieldDef& f, std::uint32_t& base) {
  switch (BlockOf(f)) {
    case ReaderBlock::kLinear:
      base = kReaderBlock2Offset;
      return Bytes(doc.reader_block2);
    case ReaderBlock::kTwoD:
      base = kReaderBlock1Offset;
      return Bytes(doc.reader_block1);
    case ReaderBlock::kNone:
      break;
  }
  base = 0;
  return Bytes(doc.record);
}

}  // namespace

ReaderBlock BlockOf(const FieldDef& f) {
  if (Inside(f, kReaderBlock2Offset, kReaderBlock2Size)) return ReaderBlock::kLinear;
  if (Inside(f, kReaderBlock1Offset, kReaderBlock1Size)) return ReaderBlock::kTwoD;
  return ReaderBlock::kNone;
}

FieldDef Rebased(const FieldDef& f, std::uint32_t base) {
  FieldDef moved = f;
  moved.offset -= base;
  if (f.type == FieldType::kSplitU16) moved.offset_hi -= base;
  return moved;
}

std::uint32_t ReadWorking(const Document& doc, const FieldDef& f) {
  std::uint32_t base = 0;
  auto image = ImageOf<const Document, std::span<const std::uint8_t>>(doc, f, base);
  return ReadNumber(image, Rebased(f, base));
}

void WriteWorking(Document& doc, const FieldDef& f, std::uint32_t value) {
  std::uint32_t base = 0;
  auto image = ImageOf<Document, std::span<std::uint8_t>>(doc, f, base);
  WriteNumber(image, Rebased(f, base), value);
}

std::span<std::uint8_t> WorkingBytes(Document& doc, const FieldDef& f) {
  std::uint32_t base = 0;
  auto image = ImageOf<Document, std::span<std::uint8_t>>(doc, f, base);
  return FieldBytes(image, Rebased(f, base));
}

std::span<const std::uint8_t> WorkingBytes(const Document& doc, const FieldDef& f) {
  std::uint32_t base = 0;
  auto image = ImageOf<const Document, std::span<const std::uint8_t>>(doc, f, base);
  return FieldBytes(image, Rebased(f, base));
}

void ApplyWorkingDefault(Document& doc, const FieldDef& f) {
  std::uint32_t base = 0;
  auto image = ImageOf<Document, std::span<std::uint8_t>>(doc, f, base);
  ApplyDefault(image, Rebased(f, base));
}

void CopyReaderBlocksToRecord(Document& doc) {
  std::copy(doc.reader_block1.begin(), doc.reader_block1.end(),
            doc.record.begin() + kReaderBlock1Offset);
  std::copy(doc.reader_block2.begin(), doc.reader_block2.end(),
            doc.record.begin() + kReaderBlock2Offset);
}

void CopyRecordToReaderBlocks(Document& doc) {
  std::copy_n(doc.record.begin() + kReaderBlock1Offset, kReaderBlock1Size,
              doc.reader_block1.begin());
  std::copy_n(doc.record.begin() + kReaderBlock2Offset, kReaderBlock2Size,
              doc.reader_block2.begin());
}

}  // namespace veltrix
