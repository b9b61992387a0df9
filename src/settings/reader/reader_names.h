#ifndef VELTRIX_SETTINGS_READER_READER_NAMES_H_
#define VELTRIX_SETTINGS_READER_READER_NAMES_H_

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace veltrix {

// The names the reader lists and summary lines show for stored values, indexed by the value.

inline constexpr std::array<std::string_view, 2> kOnOffNames{"Disable", "Enable"};
inline constexpr std::array<std::string_view, 3> kReaderNames{"1D Laser/CCD Reader", "2D Reader",
                                                              "1D Long Range Laser"};
inline constexpr std::array<std::string_view, 9> kScanModeNames{
    "Auto Off", "Continuous", "Auto Power Off", "Alternate", "Momentary",
    "Repeat",   "Laser",      "Test",           "Aiming"};
inline constexpr std::array<std::string_view, 4> kReadRedundancyNames{"None", "One time",
                                                                      "Two times", "Three times"};
inline constexpr std::array<std::string_view, 3> kStartStopNames{"Industrial 25", "Interleave 25",
                                                                 "Matrix 25"};
inline constexpr std::array<std::string_view, 4> kCodabarCharacterNames{
    "abcd / abcd", "abcd / tn*e", "ABCD / ABCD", "ABCD / TN*E"};
inline constexpr std::array<std::string_view, 3> kMsiVerificationNames{
    "Single Modulo 10", "Double Modulo 10", "Modulo 11 && 10"};
inline constexpr std::array<std::string_view, 3> kMsiTransmissionNames{
    "Last digit not transmitted", "Transmitted", "Last 2 digits not transmitted"};
inline constexpr std::array<std::string_view, 2> kLengthQualificationNames{"Fixed Length",
                                                                           "Max / Min Length"};
// Indexed by the stored Telepen format bit: the dialog stores 1 for the numeric format.
inline constexpr std::array<std::string_view, 2> kTelepenFormatNames{"AIM Telepen  (Full ASCII)",
                                                                     "Original Telepen  (Numeric)"};
inline constexpr std::array<std::string_view, 3> kGoodBeepNames{"No", "One-beep", "Two-beep"};
inline constexpr std::array<std::string_view, 2> kScanControlSummaryNames{
    "Always enable after login", "Controled by ESC command"};
inline constexpr std::array<std::string_view, 4> kLengthOptionNames{"Any Length", "One Length",
                                                                    "Two Lengths", "Range"};

// The name of `value`, or the value in decimal when a loaded file holds one outside the list.
std::string NameOf(std::span<const std::string_view> names, std::uint32_t value);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_READER_NAMES_H_
