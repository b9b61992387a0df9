#ifndef VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_
#define VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// The network and wireless section. Texts are NUL-terminated within their width; text defaults
// live beside the routine in network_settings.cpp.
inline constexpr FieldDef kSubnetMask{.name = "SubnetMask",
                                      .offset = 3783,
                                      .width = 24,
                                      .type = FieldType::kText,
                                      .meaning = "dotted text, at most 23 characters"};
inline constexpr FieldDef kGateway{.name = "Gateway",
                                   .offset = 3807,
                                   .width = 24,
                                   .type = FieldType::kText,
                                   .meaning = "dotted text, at most 23 characters"};
inline constexpr FieldDef kDnsServer{.name = "DnsServer",
                                     .offset = 3831,
                                     .width = 24,
                                     .type = FieldType::kText,
                                     .meaning = "dotted text, at most 23 characters"};
inline constexpr FieldDef kDhcpServer{
    .name = "DhcpServer",
    .offset = 3855,
    .max = 1,
    .default_value = 1,
    .meaning = "1 Enable DHCP Server (the four addresses unused)"};
inline constexpr FieldDef kTerminalIp{
    .name = "TerminalIp",
    .offset = 3856,
    .width = 24,
    .type = FieldType::kText,
    .meaning = "the terminal's own address, at most 23 characters"};
inline constexpr FieldDef kLocalName{
    .name = "LocalName",
    .offset = 3880,
    .width = 20,
    .type = FieldType::kText,
    .meaning = "the terminal's name, at most 19; its first 10 bytes go to the host as device name"};
// Five host entries, 50 bytes apart.
inline constexpr FieldDef kHostIpOrName{.name = "HostIpOrName",
                                        .offset = 3900,
                                        .width = 50,
                                        .type = FieldType::kText,
                                        .count = 5,
                                        .stride = 50,
                                        .meaning = "host address or name, at most 49 characters"};
inline constexpr FieldDef kActiveHostIpOrName{.name = "ActiveHostIpOrName",
                                              .offset = 4150,
                                              .max = 4,
                                              .meaning = "index 0-4 of the host entry in use"};
inline constexpr FieldDef kTelnetPort{.name = "TelnetPort",
                                      .offset = 4151,
                                      .width = 2,
                                      .type = FieldType::kU16,
                                      .max = 65535,
                                      .default_value = 23,
                                      .meaning = "TCP port of the host"};
// The security bits byte; bits 3-7 belong to nobody and are left alone by the page.
inline constexpr FieldDef kSecurity{.name = "Security",
                                    .offset = 4153,
                                    .type = FieldType::kBits,
                                    .bit_lo = 0,
                                    .bit_count = 1,
                                    .max = 1,
                                    .default_value = 1,
                                    .meaning = "0 Share Key, 1 Open System"};
inline constexpr FieldDef kWepKeyEnabled{.name = "WepKeyEnabled",
                                         .offset = 4153,
                                         .type = FieldType::kBits,
                                         .bit_lo = 1,
                                         .bit_count = 1,
                                         .max = 1,
                                         .meaning = "1 WEP on"};
inline constexpr FieldDef kEapEnabled{.name = "EapEnabled",
                                      .offset = 4153,
                                      .type = FieldType::kBits,
                                      .bit_lo = 2,
                                      .bit_count = 1,
                                      .max = 1,
                                      .meaning = "1 EAP on"};
inline constexpr FieldDef kWepKeyLength{
    .name = "WepKeyLength", .offset = 4154, .max = 1, .meaning = "0 64 bits, 1 128 bits"};
inline constexpr FieldDef kActiveWepKey{
    .name = "ActiveWepKey", .offset = 4155, .max = 3, .meaning = "index 0-3 of the key in use"};
// Four raw keys, 16 bytes apart; only the first 5 or 13 bytes are the key.
inline constexpr FieldDef kWepKey{
    .name = "WepKey",
    .offset = 4156,
    .width = 16,
    .type = FieldType::kBytes,
    .count = 4,
    .stride = 16,
    .meaning = "raw key bytes: the first 5 or 13 are the key, the rest zero"};
inline constexpr FieldDef kEapId{.name = "EapId",
                                 .offset = 4220,
                                 .width = 33,
                                 .type = FieldType::kText,
                                 .meaning = "EAP identity, at most 32 characters"};
inline constexpr FieldDef kEapPassword{.name = "EapPassword",
                                       .offset = 4253,
                                       .width = 33,
                                       .type = FieldType::kText,
                                       .meaning = "EAP password, at most 32 characters"};
inline constexpr FieldDef kSsid{.name = "Ssid",
                                .offset = 4286,
                                .width = 20,
                                .type = FieldType::kText,
                                .meaning = "network name, at most 19 characters"};
inline constexpr FieldDef kLoginName{.name = "LoginName",
                                     .offset = 4306,
                                     .width = 20,
                                     .type = FieldType::kText,
                                     .meaning = "the login name, at most 19 characters"};
// Key field indices: 0 none, 1-9 FN+1..FN+9, 10 FN+0.
inline constexpr FieldDef kLoginNameKey{.name = "LoginNameKey",
                                        .offset = 4326,
                                        .max = 10,
                                        .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0"};
inline constexpr FieldDef kLoginPassword{.name = "LoginPassword",
                                         .offset = 4327,
                                         .width = 20,
                                         .type = FieldType::kText,
                                         .meaning = "the login password, at most 19 characters"};
inline constexpr FieldDef kLoginPasswordKey{.name = "LoginPasswordKey",
                                            .offset = 4347,
                                            .max = 10,
                                            .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0"};
inline constexpr FieldDef kLogoutKey{.name = "LogoutKey",
                                     .offset = 4348,
                                     .max = 10,
                                     .meaning = "0 Disable, 1-9 FN+1..FN+9, 10 FN+0"};
inline constexpr FieldDef kLogoutCommand{.name = "LogoutCommand",
                                         .offset = 4349,
                                         .width = 10,
                                         .type = FieldType::kText,
                                         .meaning = "the logout command, at most 9 characters"};
inline constexpr FieldDef kKeepAliveMinutes{
    .name = "KeepAliveMinutes", .offset = 4359, .meaning = "keep-alive interval in minutes"};
inline constexpr FieldDef kAutoSignOn{
    .name = "AutoSignOn", .offset = 59659, .max = 1, .meaning = "1 Auto Sign On"};

// Every field of this section, declared once.
std::span<const FieldDef* const> NetworkFields();

// The section's default routine (run by SetDefaults in the fixed order, and by "Reset"):
// releases the function keys of the three login key fields, then restores every field.
void SetNetworkDefaults(Document& doc);

// Appends this section's summary lines below `parent` (the "Wireless LAN" item).
void AppendNetworkSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NETWORK_NETWORK_SETTINGS_H_
