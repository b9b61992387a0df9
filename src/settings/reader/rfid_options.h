#ifndef VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_

#include <span>

#include "settings/field_binding.h"
#include "settings/reader/option_controls.h"

namespace veltrix {

// The RFID reader dialog's radio pairs: the first radio stores 0, the second 1.
inline constexpr std::string_view kWorkingModes[] = {"Toggle", "Hybrid"};
inline constexpr std::string_view kRfidControls[] = {"Always Enable", "By 5250 Command"};
inline constexpr std::string_view kReadingModes[] = {"Trigger", "Continous"};
std::span<const ChoiceControl> RfidRadioPairs();

// The dialog's controls: the "SwitchKey" list writes the record at once (a key combo under the
// claim rule: its choice stands before OK and stays on Cancel); every other control is stored on
// OK, the 16-bit values high byte first. "Start" and "Max Len" are enabled while "Read Data" is
// checked, the delimiter while "Use Delimiter" is.
std::span<const FieldBinding> RfidBindings();

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_RFID_OPTIONS_H_
