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
inline constexpr auto kSystemFieldTable = std::to_array<FieldDef>({
    {.name = "PowerOn",
     .offset = 25,
     .max = 1,
     .default_value = 0,
     .meaning = "0 resume the program, 1 restart it"},
    // Seconds; the terminal keeps the low byte at 26 and the high byte at 62. 255 * 255 is the
    // terminal's upper bound, not 65535.
    {.name = "AutoPowerOff",
     .offset = 26,
     .type = FieldType::kSplitU16,
     .offset_hi = 62,
     .min = 1,
     .max = 65025,
     .default_value = 180,
     .meaning = "auto power-off time in seconds"},
    {.name = "KeyClick", .offset = 27, .max = 1, .default_value = 1, .meaning = "key click flag"},
    {.name = "Backlight",
     .offset = 28,
     .max = 1,
     .default_value = 0,
     .meaning = "0 off at power up, 1 on at power up"},
    {.name = "TurnOffIfIdleFor",
     .offset = 29,
     .min = 1,
     .max = 9,
     .default_value = 2,
     .meaning = "backlight idle time, units of 10 seconds"},
    {.name = "TcpIpSettings", .offset = 30, .max = 1, .meaning = "protects TCP / IP Settings"},
    {.name = "EmulationSettings", .offset = 31, .max = 1, .meaning = "protects Emulation Settings"},
    {.name = "SetDateTime", .offset = 32, .max = 1, .meaning = "protects Set Date & Time"},
    {.name = "KeepAlive", .offset = 33, .max = 1, .meaning = "protects Keep Alive"},
    {.name = "UtilityMenu", .offset = 34, .max = 1, .meaning = "protects the Utility Menu"},
    // The rest of the security block up to the password.
    {.name = "SecurityReserved",
     .offset = 35,
     .width = 15,
     .type = FieldType::kBytes,
     .meaning = "reserved, zero",
     .reserved = true},
    // 0 to 9 characters, NUL-terminated; Apply fills the bytes behind the text with NULs.
    {.name = "Password",
     .offset = 50,
     .width = 10,
     .type = FieldType::kText,
     .meaning = "the terminal's password"},
    {.name = "DownloadVia",
     .offset = 60,
     .max = 3,
     .meaning = "port the terminal downloads through"},
    {.name = "BaudRate", .offset = 61, .max = 3, .meaning = "serial download speed"},
});
inline constexpr const FieldDef& kPowerOn = FieldNamed(kSystemFieldTable, "PowerOn");
inline constexpr const FieldDef& kAutoPowerOff = FieldNamed(kSystemFieldTable, "AutoPowerOff");
inline constexpr const FieldDef& kKeyClick = FieldNamed(kSystemFieldTable, "KeyClick");
inline constexpr const FieldDef& kBacklight = FieldNamed(kSystemFieldTable, "Backlight");
inline constexpr const FieldDef& kTurnOffIfIdleFor =
    FieldNamed(kSystemFieldTable, "TurnOffIfIdleFor");
inline constexpr const FieldDef& kTcpIpSettings = FieldNamed(kSystemFieldTable, "TcpIpSettings");
inline constexpr const FieldDef& kEmulationSettings =
    FieldNamed(kSystemFieldTable, "EmulationSettings");
inline constexpr const FieldDef& kSetDateTime = FieldNamed(kSystemFieldTable, "SetDateTime");
inline constexpr const FieldDef& kKeepAlive = FieldNamed(kSystemFieldTable, "KeepAlive");
inline constexpr const FieldDef& kUtilityMenu = FieldNamed(kSystemFieldTable, "UtilityMenu");
inline constexpr const FieldDef& kSecurityReserved =
    FieldNamed(kSystemFieldTable, "SecurityReserved");
inline constexpr const FieldDef& kPassword = FieldNamed(kSystemFieldTable, "Password");
inline constexpr const FieldDef& kDownloadVia = FieldNamed(kSystemFieldTable, "DownloadVia");
inline constexpr const FieldDef& kBaudRate = FieldNamed(kSystemFieldTable, "BaudRate");

static_assert(kSecurityReserved.offset + kSecurityReserved.width == kPassword.offset);

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
