#include "settings/reader/reader_settings.h"

#include <algorithm>
#include <array>

#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

constexpr auto kReaderFieldList =
    FieldPointers(kLinearFieldTable, kTwoDFieldTable, kReaderRecordFieldTable);

// Record-only fields the reset leaves alone; the reread delay gets only its low byte.
bool KeptByReset(const FieldDef& f) {
  return &f == &kReaderType || &f == &kRfidReader || &f == &kScanSwitchKeyName ||
         &f == &kRfidControl || &f == &kRfidDelayBeforeReread;
}

}  // namespace

std::span<const FieldDef* const> ReaderFields() { return kReaderFieldList; }

void SetReaderDefaults(Document& doc) {
  doc.reader_block1.fill(0);
  doc.reader_block2.fill(0);
  for (const FieldDef* f : ReaderFields()) {
    if (BlockOf(*f) != ReaderBlock::kNone) ApplyWorkingDefault(doc, *f);
  }
  CopyReaderBlocksToRecord(doc);

  for (const FieldDef* f : ReaderFields()) {
    if (BlockOf(*f) == ReaderBlock::kNone && !KeptByReset(*f)) ApplyDefault(doc.record, *f);
  }
  // Only the low byte of the reread delay gets its default; the high byte stays as it is.
  doc.record[kRfidDelayBeforeReread.offset] =
      static_cast<std::uint8_t>(kRfidDelayBeforeReread.default_value);
}

void ConvertPreviousReaderLayout(Document& doc) {
  WriteNumber(doc.record, kScanControl, ReadNumber(doc.record, kPreviousScanControl) != 0 ? 1 : 0);
  for (const FieldDef* f : {&kReserved3754, &kPreviousScanControl, &kReserved3764}) {
    ApplyDefault(doc.record, *f);
  }
}

}  // namespace veltrix
