#ifndef VELTRIX_SETTINGS_EMULATION_NUMBER_EDIT_H_
#define VELTRIX_SETTINGS_EMULATION_NUMBER_EDIT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "settings/numeric_edit.h"

namespace veltrix {

// The numeric edits of the Wireless LAN and Emulation pages.

// "Telnet Port :": a number is stored modulo 65536; anything else stores 0 and a non-empty text
// becomes "0".
NumericEdit TelnetPortEdit(std::string_view text);
// "Keep Alive": 0-255, with not-a-number or negative giving 0 and leading zeros dropped.
NumericEdit KeepAliveEdit(std::string_view text);
// "Horizontal Steps :" and "Vertical Steps :": 1-255, with leading zeros dropped.
NumericEdit ScrollStepEdit(std::string_view text);
// "X" (bound 80, corrected to 79) and "Y" (bound 25, corrected to 24): digits only.
NumericEdit ViewOriginEdit(std::string_view text, std::uint32_t bound);
// "Time Out (Second)": the number's low 8 bits, no bound check.
NumericEdit MessageTimeOutEdit(std::string_view text);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_NUMBER_EDIT_H_
