#include "settings/reader/rfid_options.h"

#include "settings/reader/reader_record_fields.h"

namespace veltrix {
namespace {

int Read(const Document& doc, const FieldDef& f) {
  return static_cast<int>(ReadNumber(doc.record, f));
}

}  // namespace

RfidState OpenRfidOptions(const Document& doc) {
  return RfidState{.read_uid = Read(doc, kRfidReadUid) != 0,
                   .read_data = Read(doc, kRfidReadData) != 0,
                   .use_delimiter = Read(doc, kRfidUseDelimiter) != 0,
                   .start = Read(doc, kRfidStart),
                   .max_len = Read(doc, kRfidMaxLen),
                   .delay = Read(doc, kRfidDelayBeforeReread),
                   .delimiter = static_cast<std::uint8_t>(Read(doc, kRfidDelimiter)),
                   .working_mode = Read(doc, kRfidWorkingMode) != 0 ? 1 : 0,
                   .reading_mode = Read(doc, kRfidReadingMode) != 0 ? 1 : 0,
                   .control = Read(doc, kRfidControl) != 0 ? 1 : 0};
}

void ApplyRfidOptions(Document& doc, const RfidState& state) {
  WriteNumber(doc.record, kRfidReadUid, state.read_uid ? 1 : 0);
  WriteNumber(doc.record, kRfidReadData, state.read_data ? 1 : 0);
  WriteNumber(doc.record, kRfidUseDelimiter, state.use_delimiter ? 1 : 0);
  WriteNumber(doc.record, kRfidDelimiter, state.delimiter);
  WriteNumber(doc.record, kRfidWorkingMode, state.working_mode != 0 ? 1 : 0);
  WriteNumber(doc.record, kRfidReadingMode, state.reading_mode != 0 ? 1 : 0);
  WriteNumber(doc.record, kRfidControl, state.control != 0 ? 1 : 0);
  // The boxes corrected what was typed; a value the user did not edit stays as it was.
  WriteNumber(doc.record, kRfidStart, static_cast<std::uint32_t>(state.start));
  WriteNumber(doc.record, kRfidMaxLen, static_cast<std::uint32_t>(state.max_len));
  WriteNumber(doc.record, kRfidDelayBeforeReread, static_cast<std::uint32_t>(state.delay));
}

RfidEnabling RfidControlsEnabled(const RfidState& state) {
  return {state.read_data, state.use_delimiter};
}

std::span<const FieldBinding> RfidBindings() {
  static constexpr FieldBinding kBindings[] = {
      {.control = "switch_key", .kind = ControlKind::kKeyCombo, .field = &kScanSwitchKeyName}};
  return kBindings;
}

}  // namespace veltrix
