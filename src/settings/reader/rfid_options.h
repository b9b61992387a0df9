#ifndef VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_

#include <cstdint>
#include <span>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix {

// The controls of the RFID reader dialog. Radio pairs hold 0 for the first radio, 1 for the second.
struct RfidState {
  bool read_uid = false;
  bool read_data = false;
  bool use_delimiter = false;
  int start = 0;
  int max_len = 0;
  int delay = 0;  // tenths of a second
  std::uint8_t delimiter = 0;
  int working_mode = 0;  // "Toggle", "Hybrid"
  int reading_mode = 0;  // "Trigger", "Continous"
  int control = 0;       // "Always Enable", "By 5250 Command"

  bool operator==(const RfidState&) const = default;
};

RfidState OpenRfidOptions(const Document& doc);

// OK: stores every control into the record (the 16-bit values high byte first), the numbers as
// the dialog gives them: corrected as typed, or as stored when the user left the box alone.
void ApplyRfidOptions(Document& doc, const RfidState& state);

struct RfidEnabling {
  bool start_and_max_len;  // boxes 201 and 202, while "Read Data" is checked
  bool delimiter;          // box 203, while "Use Delimiter" is checked
};
RfidEnabling RfidControlsEnabled(const RfidState& state);

// The dialog's controls that write the record at once: the "SwitchKey" list, a key combo under
// the claim rule (its choice stands before OK and stays on Cancel).
std::span<const FieldBinding> RfidBindings();

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_
