#ifndef VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_
#define VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_

#include <array>
#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The network and wireless section. Texts are NUL-terminated within their width.
inline constexpr auto kNetworkFieldTable = std::to_array<FieldDef>({
    {.name = "SubnetMask",
     .offset = 3783,
     .width = 24,
     .type = FieldType::kText,
     .meaning = "dotted text, at most 23 characters",
     .default_text = "255.255.128.0"},
    {.name = "Gateway",
     .offset = 3807,
     .width = 24,
     .type = FieldType::kText,
     .meaning = "dotted text, at most 23 characters",
     .default_text = "192.168.1.250"},
    {.name = "DnsServer",
     .offset = 3831,
     .width = 24,
     .type = FieldType::kText,
     .meaning = "dotted text, at most 23 characters",
     .default_text = "0.0.0.0"},
    {.name = "DhcpServer",
     .offset = 3855,
     .max = 1,
     .default_value = 1,
     .meaning = "1 Enable DHCP Server (the four addresses unused)"},
    {.name = "TerminalIp",
     .offset = 3856,
     .width = 24,
     .type = FieldType::kText,
     .meaning = "the terminal's own address, at most 23 characters",
     .default_text = "192.168.1.241"},
    {.name = "LocalName",
     .offset = 3880,
     .width = 20,
     .type = FieldType::kText,
     .meaning =
         "the terminal's name, at most 19; its first 10 bytes go to the host as device name"},
    // Five host entries, 50 bytes apart.
    {.name = "HostIpOrName",
     .offset = 3900,
     .width = 50,
     .type = FieldType::kText,
     .count = 5,
     .stride = 50,
     .meaning = "host address or name, at most 49 characters",
     .default_text = "192.168.1.10"},
    {.name = "ActiveHostIpOrName",
     .offset = 4150,
     .max = 4,
     .meaning = "index 0-4 of the host entry in use"},
    {.name = "TelnetPort",
     .offset = 4151,
     .width = 2,
     .type = FieldType::kU16,
     .max = 65535,
     .default_value = 23,
     .meaning = "TCP port of the host"},
    // The security bits byte; bits 3-7 are spare: the page leaves them alone, the defaults clear
    // them.
    {.name = "Security",
     .offset = 4153,
     .type = FieldType::kBits,
     .bit_lo = 0,
     .bit_count = 1,
     .max = 1,
     .default_value = 1,
     .meaning = "0 Share Key, 1 Open System"},
    {.name = "WepKeyEnabled",
     .offset = 4153,
     .type = FieldType::kBits,
     .bit_lo = 1,
     .bit_count = 1,
     .max = 1,
     .meaning = "1 WEP on"},
    {.name = "EapEnabled",
     .offset = 4153,
     .type = FieldType::kBits,
     .bit_lo = 2,
     .bit_count = 1,
     .max = 1,
     .meaning = "1 EAP on"},
    {.name = "SecuritySpareBits",
     .offset = 4153,
     .type = FieldType::kBits,
     .bit_lo = 3,
     .bit_count = 5,
     .max = 31,
     .meaning = "spare, zero",
     .reserved = true},
    {.name = "WepKeyLength", .offset = 4154, .max = 1, .meaning = "0 64 bits, 1 128 bits"},
    {.name = "ActiveWepKey", .offset = 4155, .max = 3, .meaning = "index 0-3 of the key in use"},
    // Four raw keys, 16 bytes apart; only the first 5 or 13 bytes are the key.
    {.name = "WepKey",
     .offset = 4156,
     .width = 16,
     .type = FieldType::kBytes,
     .count = 4,
     .stride = 16,
     .meaning = "raw key bytes: the first 5 or 13 are the key, the rest zero"},
    {.name = "EapId",
     .offset = 4220,
     .width = 33,
     .type = FieldType::kText,
     .meaning = "EAP identity, at most 32 characters"},
    {.name = "EapPassword",
     .offset = 4253,
     .width = 33,
     .type = FieldType::kText,
     .meaning = "EAP password, at most 32 characters"},
    {.name = "Ssid",
     .offset = 4286,
     .width = 20,
     .type = FieldType::kText,
     .meaning = "network name, at most 19 characters",
     .default_text = "WLAN"},
    {.name = "LoginName",
     .offset = 4306,
     .width = 20,
     .type = FieldType::kText,
     .meaning = "the login name, at most 19 characters",
     .default_text = "new"},
    // Key field indices: 0 none, 1-9 FN+1..FN+9, 10 FN+0.
    {.name = "LoginNameKey",
     .offset = 4326,
     .max = 10,
     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0",
     .key_role = kRoleNameKey},
    {.name = "LoginPassword",
     .offset = 4327,
     .width = 20,
     .type = FieldType::kText,
     .meaning = "the login password, at most 19 characters",
     .default_text = "tulip"},
    {.name = "LoginPasswordKey",
     .offset = 4347,
     .max = 10,
     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0",
     .key_role = kRolePasswordKey},
    {.name = "LogoutKey",
     .offset = 4348,
     .max = 10,
     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0",
     .key_role = kRoleExitKey},
    {.name = "LogoutCommand",
     .offset = 4349,
     .width = 10,
     .type = FieldType::kText,
     .meaning = "the logout command, at most 9 characters",
     .default_text = "EXIT"},
    {.name = "KeepAliveMinutes", .offset = 4359, .meaning = "keep-alive interval in minutes"},
    {.name = "AutoSignOn", .offset = 59659, .max = 1, .meaning = "1 Auto Sign On"},
});
inline constexpr const FieldDef& kSubnetMask = FieldNamed(kNetworkFieldTable, "SubnetMask");
inline constexpr const FieldDef& kGateway = FieldNamed(kNetworkFieldTable, "Gateway");
inline constexpr const FieldDef& kDnsServer = FieldNamed(kNetworkFieldTable, "DnsServer");
inline constexpr const FieldDef& kDhcpServer = FieldNamed(kNetworkFieldTable, "DhcpServer");
inline constexpr const FieldDef& kTerminalIp = FieldNamed(kNetworkFieldTable, "TerminalIp");
inline constexpr const FieldDef& kLocalName = FieldNamed(kNetworkFieldTable, "LocalName");
inline constexpr const FieldDef& kHostIpOrName = FieldNamed(kNetworkFieldTable, "HostIpOrName");
inline constexpr const FieldDef& kActiveHostIpOrName =
    FieldNamed(kNetworkFieldTable, "ActiveHostIpOrName");
inline constexpr const FieldDef& kTelnetPort = FieldNamed(kNetworkFieldTable, "TelnetPort");
inline constexpr const FieldDef& kSecurity = FieldNamed(kNetworkFieldTable, "Security");
inline constexpr const FieldDef& kWepKeyEnabled = FieldNamed(kNetworkFieldTable, "WepKeyEnabled");
inline constexpr const FieldDef& kEapEnabled = FieldNamed(kNetworkFieldTable, "EapEnabled");
inline constexpr const FieldDef& kWepKeyLength = FieldNamed(kNetworkFieldTable, "WepKeyLength");
inline constexpr const FieldDef& kActiveWepKey = FieldNamed(kNetworkFieldTable, "ActiveWepKey");
inline constexpr const FieldDef& kWepKey = FieldNamed(kNetworkFieldTable, "WepKey");
inline constexpr const FieldDef& kEapId = FieldNamed(kNetworkFieldTable, "EapId");
inline constexpr const FieldDef& kEapPassword = FieldNamed(kNetworkFieldTable, "EapPassword");
inline constexpr const FieldDef& kSsid = FieldNamed(kNetworkFieldTable, "Ssid");
inline constexpr const FieldDef& kLoginName = FieldNamed(kNetworkFieldTable, "LoginName");
inline constexpr const FieldDef& kLoginNameKey = FieldNamed(kNetworkFieldTable, "LoginNameKey");
inline constexpr const FieldDef& kLoginPassword = FieldNamed(kNetworkFieldTable, "LoginPassword");
inline constexpr const FieldDef& kLoginPasswordKey =
    FieldNamed(kNetworkFieldTable, "LoginPasswordKey");
inline constexpr const FieldDef& kLogoutKey = FieldNamed(kNetworkFieldTable, "LogoutKey");
inline constexpr const FieldDef& kLogoutCommand = FieldNamed(kNetworkFieldTable, "LogoutCommand");
inline constexpr const FieldDef& kKeepAliveMinutes =
    FieldNamed(kNetworkFieldTable, "KeepAliveMinutes");
inline constexpr const FieldDef& kAutoSignOn = FieldNamed(kNetworkFieldTable, "AutoSignOn");

// Every field of this section, declared once.
std::span<const FieldDef* const> NetworkFields();

// The section's default routine (run by SetDefaults in the fixed order, and by "Reset"):
// releases the function keys of the three login key fields, then restores every field.
void SetNetworkDefaults(Document& doc);

// Appends this section's summary lines below `parent` (the "Wireless LAN" item).
void AppendNetworkSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_
