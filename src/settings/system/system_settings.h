#ifndef VELTRIX_SETTINGS_SYSTEM_SYSTEM_SETTINGS_H_
#define VELTRIX_SETTINGS_SYSTEM_SYSTEM_SETTINGS_H_

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The System section: power, backlight, key click, security and download port. Flags are 0 (off,
// "Disable") or 1 (on, "Enable").
inline constexpr FieldDef kPowerOn{.name = "PowerOn",
                                   .offset = 25,
                                   .max = 1,
                                   .default_value = 0,
                                   .meaning = "0 resume the program, 1 restart it"};
// Seconds; the terminal keeps the low byte at 26 and the high byte at 62. 255 * 255 is the
// terminal's upper bound, not 65535.
inline constexpr FieldDef kAutoPowerOff{.name = "AutoPowerOff",
                                        .offset = 26,
                                        .type = FieldType::kSplitU16,
                                        .offset_hi = 62,
                                        .min = 1,
                                        .max = 65025,
                                        .default_value = 180,
                                        .meaning = "auto power-off time in seconds"};
inline constexpr FieldDef kKeyClick{
    .name = "KeyClick", .offset = 27, .max = 1, .default_value = 1, .meaning = "key click flag"};
inline constexpr FieldDef kBacklight{.name = "Backlight",
                                     .offset = 28,
                                     .max = 1,
                                     .default_value = 0,
                                     .meaning = "0 off at power up, 1 on at power up"};
inline constexpr FieldDef kTurnOffIfIdleFor{.name = "TurnOffIfIdleFor",
                                            .offset = 29,
                                            .min = 1,
                                            .max = 9,
                                            .default_value = 2,
                                            .meaning = "backlight idle time, units of 10 seconds"};
inline constexpr FieldDef kTcpIpSettings{
    .name = "TcpIpSettings", .offset = 30, .max = 1, .meaning = "protects TCP / IP Settings"};
inline constexpr FieldDef kEmulationSettings{
    .name = "EmulationSettings", .offset = 31, .max = 1, .meaning = "protects Emulation Settings"};
inline constexpr FieldDef kSetDateTime{
    .name = "SetDateTime", .offset = 32, .max = 1, .meaning = "protects Set Date & Time"};
inline constexpr FieldDef kKeepAlive{
    .name = "KeepAlive", .offset = 33, .max = 1, .meaning = "protects Keep Alive"};
inline constexpr FieldDef kUtilityMenu{
    .name = "UtilityMenu", .offset = 34, .max = 1, .meaning = "protects the Utility Menu"};
// 0 to 9 characters, NUL-terminated; Apply fills the bytes behind the text with NULs.
inline constexpr FieldDef kPassword{.name = "Password",
                                    .offset = 50,
                                    .width = 10,
                                    .type = FieldType::kText,
                                    .meaning = "the terminal's password"};
inline constexpr FieldDef kDownloadVia{.name = "DownloadVia",
                                       .offset = 60,
                                       .max = 3,
                                       .meaning = "port the terminal downloads through"};
inline constexpr FieldDef kBaudRate{
    .name = "BaudRate", .offset = 61, .max = 3, .meaning = "serial download speed"};

// The security flags and the reserved bytes behind them, which the default routine clears.
inline constexpr std::size_t kSecurityBlockOffset = 30;
inline constexpr std::size_t kSecurityBlockSize = 20;
static_assert(kSecurityBlockOffset + kSecurityBlockSize == kPassword.offset);

// The most characters a password may have (the tenth byte is its NUL).
inline constexpr std::size_t kPasswordMaxLength = kPassword.width - 1;

// The security check boxes, in the page's order, with their captions.
struct SecurityFlag {
  const FieldDef* field;
  std::string_view caption;
};
inline constexpr std::array<SecurityFlag, 5> kSecurityFlags{{
    {&kTcpIpSettings, "TCP / IP Settings"},
    {&kEmulationSettings, "Emulation Settings"},
    {&kSetDateTime, "Set Date && Time"},
    {&kKeepAlive, "Keep Alive"},
    {&kUtilityMenu, "Utility Menu"},
}};

// Names of the DownloadVia and BaudRate values, as the combos and the summary show them.
inline constexpr std::array<std::string_view, 4> kDownloadViaNames{"Cradle-IR", "RS-232", "IrDA",
                                                                   "RF"};
inline constexpr std::array<std::string_view, 4> kBaudRateNames{"115200 bps", "57600 bps",
                                                                "38400 bps", "9600 bps"};

// Every field of this section, declared once.
std::span<const FieldDef* const> SystemFields();

// The section's default routine (run by SetDefaults in the fixed order, and by the page's Reset).
void SetSystemDefaults(Document& doc);

// Appends this section's summary lines below `parent`, including the "Security" and
// "Prompts and Messages" branches.
void AppendSystemSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SYSTEM_SYSTEM_SETTINGS_H_
