#ifndef VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_

#include <cstddef>
#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix {

// The most key codes a prefix or suffix holds, and the longest leading code.
inline constexpr std::size_t kMaxKeyCodes = 9;
inline constexpr std::size_t kMaxLeadingCode = 9;

inline constexpr std::string_view kScanControls[] = {"Always enable after login",
                                                     "Controled by 5250 command"};

// The controls of "Advanced Barcode Settings", every one stored on OK. A start below 1 shows as
// 1, a maximum outside 1-50 as 50; key codes show up to the last that is not zero, beeper
// sequences their used length. "Leading Code" is enabled while "Check Leading Code" is checked,
// the two lengths while "Read Partial Code" is, the codes while their "Add" box is; boxes 214 and
// 216 only for product 3.
std::span<const FieldBinding> AdvancedBindings();

// OK, once the controls are stored: the maximum is made 1-50 (50 otherwise) and the
// start limited to 1..maximum; the leading code is cut to 9 and zero-filled; boxes 214 and 216
// become 0 outside 0-254 for product 3.
void ApplyAdvancedSettings(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_
