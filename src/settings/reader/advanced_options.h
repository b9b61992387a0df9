#ifndef VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "settings/document.h"

namespace veltrix {

// The controls of "Advanced Barcode Settings". Key code lists hold up to 9 codes; beeper
// sequences are the full 10 bytes.
struct AdvancedState {
  bool check_leading_code = false;
  std::string leading_code;  // at most 9 characters
  bool read_partial_code = false;
  int start_position = 1;
  int maximum_length = 50;
  bool add_prefix_code = false;
  std::vector<std::uint8_t> prefix_code;
  bool add_suffix_code = false;
  std::vector<std::uint8_t> suffix_code;
  int scan_control = 0;  // 0 "Always enable after login", 1 "Controled by 5250 command"
  std::array<std::uint8_t, 10> data_beeper_sequence{};
  std::array<std::uint8_t, 10> alarm_beeper_sequence{};
  int data_box214 = 0;
  int vibrator_time = 0;

  bool operator==(const AdvancedState&) const = default;
};

// The most key codes a prefix or suffix holds, and the longest leading code.
inline constexpr std::size_t kMaxKeyCodes = 9;
inline constexpr std::size_t kMaxLeadingCode = 9;

// Opening: a start below 1 shows as 1, a maximum outside 1-50 as 50; key codes up to the first 0.
AdvancedState OpenAdvancedSettings(const Document& doc);

// OK: the maximum is made at least 1 and the start limited to 1..maximum; texts and key codes are
// cut to 9 and zero-filled to 10 bytes. Boxes 214 and 216 are stored only for product 3, the only
// product that enables them.
void ApplyAdvancedSettings(Document& doc, const AdvancedState& state);

struct AdvancedEnabling {
  bool leading_code;         // box 201, while "Check Leading Code" is checked
  bool lengths;              // boxes 204 and 205, while "Read Partial Code" is checked
  bool prefix_code;          // box 211
  bool suffix_code;          // box 212
  bool box214_and_vibrator;  // only for product 3
};
AdvancedEnabling AdvancedControlsEnabled(const AdvancedState& state, int product);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_ADVANCED_OPTIONS_H_
