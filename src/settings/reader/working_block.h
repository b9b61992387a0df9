#ifndef VELTRIX_SETTINGS_READER_WORKING_BLOCK_H_
#define VELTRIX_SETTINGS_READER_WORKING_BLOCK_H_

#include <cstdint>
#include <span>

#include "settings/document.h"
#include "settings/field.h"

namespace veltrix {

// The reader editors change two working blocks beside the record; each holds the same bytes in
// the same order as its stored image in the record. Reader fields are declared at their record
// offsets; these helpers find the working copy a field lives in.

enum class ReaderBlock : std::uint8_t { kNone, kTwoD, kLinear };

// The block whose stored image holds every byte of `f` (kNone for record-only fields).
ReaderBlock BlockOf(const FieldDef& f);

// `f` moved so that its offset addresses a block image whose first byte is record byte `base`.
FieldDef Rebased(const FieldDef& f, std::uint32_t base);

// The working copy of `f` where it has one, else the record itself (for record-only fields).
std::uint32_t ReadWorking(const Document& doc, const FieldDef& f);
void WriteWorking(Document& doc, const FieldDef& f, std::uint32_t value);
std::span<std::uint8_t> WorkingBytes(Document& doc, const FieldDef& f);
std::span<const std::uint8_t> WorkingBytes(const Document& doc, const FieldDef& f);
// ApplyDefault on the working copy of `f` (or the record for record-only fields).
void ApplyWorkingDefault(Document& doc, const FieldDef& f);

// The copies made by the page's apply, by file writes and by file opens.
void CopyReaderBlocksToRecord(Document& doc);
void CopyRecordToReaderBlocks(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_WORKING_BLOCK_H_
