#ifndef VELTRIX_SETTINGS_READER_NUMBER_BOX_H_
#define VELTRIX_SETTINGS_READER_NUMBER_BOX_H_

#include <cstdint>
#include <string_view>

#include "settings/numeric_edit.h"

namespace veltrix {

// How a numeric edit box of the reader page and dialogs corrects what is typed into it, on every
// change: a text that is not a number, or a value outside min..max, is replaced; a number typed
// with leading zeros is rewritten without them.
struct NumberBoxRule {
  std::int64_t min;
  std::int64_t max;
  std::int64_t if_not_number;
  std::int64_t if_below;  // value used for numbers below min
  std::int64_t if_above;  // value used for numbers above max
};

inline constexpr NumberBoxRule kTimeOutBox{1, 255, 1, 1, 255};       // page box 201
inline constexpr NumberBoxRule kAimDurationBox{0, 255, 0, 0, 255};   // page box 202
inline constexpr NumberBoxRule kLinearLengthBox{1, 127, 1, 1, 127};  // linear length groups
inline constexpr NumberBoxRule kTwoDLengthBox{0, 127, 0, 0, 127};    // length option family
inline constexpr NumberBoxRule kRfidLengthBox{1, 65279, 0, 0, 0};    // "Start", "Max Len"
inline constexpr NumberBoxRule kRfidDelayBox{1, 65279, 1, 1, 1};     // "Delay before Reread"
inline constexpr NumberBoxRule kVibratorBox{0, 254, 0, 0, 0};        // advanced boxes 214, 216

// The value of `text` under `rule`, and the text the box must show instead when it is not the
// value as typed. A number is one or more decimal digits, optionally surrounded by blanks.
NumericEdit CorrectNumberText(std::string_view text, const NumberBoxRule& rule);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_NUMBER_BOX_H_
