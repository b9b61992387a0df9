#include "settings/network/network_choices.h"

#include <algorithm>
#include <array>

#include "settings/emulation/number_edit.h"
#include "settings/field.h"
#include "settings/network/network_settings.h"
#include "settings/network/wep_key.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 2> kAuthentication = {"Share Key", "Open System"};
constexpr std::array<std::string_view, 2> kKeyLengths = {"64 bits (5 bytes)",
                                                         "128 bits (13 bytes)"};

void PadText(Document& doc, const FieldDef& f, int index) {
  auto bytes = FieldBytes(std::span<std::uint8_t>(doc.record), f, index);
  auto end = std::find(bytes.begin(), bytes.end(), 0);
  std::fill(end, bytes.end(), 0);
}

}  // namespace

std::span<const std::string_view> AuthenticationChoices() { return kAuthentication; }
std::span<const std::string_view> WepKeyLengthChoices() { return kKeyLengths; }

NetworkControlStates NetworkControlStatesOf(const Document& doc) {
  return {.address_edits = ReadNumber(doc.record, kDhcpServer) == 0,
          .eap_edits = ReadNumber(doc.record, kEapEnabled) != 0,
          .wep_controls = ReadNumber(doc.record, kWepKeyEnabled) != 0};
}

void StoreActiveHostText(Document& doc, std::string_view text) {
  const int active = static_cast<int>(ReadNumber(doc.record, kActiveHostIpOrName));
  WriteText(doc.record, kHostIpOrName, text, active);
}

void PadNetworkTexts(Document& doc) {
  for (const FieldDef* f : NetworkFields()) {
    if (f->type != FieldType::kText) continue;
    if (f == &kHostIpOrName) {
      PadText(doc, *f, static_cast<int>(ReadNumber(doc.record, kActiveHostIpOrName)));
    } else {
      PadText(doc, *f, 0);
    }
  }
}

namespace {

bool AddressesEnabled(const Document& doc) { return NetworkControlStatesOf(doc).address_edits; }
bool EapEnabled(const Document& doc) { return NetworkControlStatesOf(doc).eap_edits; }
bool WepEnabled(const Document& doc) { return NetworkControlStatesOf(doc).wep_controls; }

constexpr FieldBinding kNetworkBindings[] = {
    {"dhcp_server", ControlKind::kCheckBox, &kDhcpServer},
    {"subnet_mask", ControlKind::kTextEdit, &kSubnetMask, 0, nullptr, nullptr, nullptr,
     AddressesEnabled},
    {"gateway", ControlKind::kTextEdit, &kGateway, 0, nullptr, nullptr, nullptr, AddressesEnabled},
    {"dns_server", ControlKind::kTextEdit, &kDnsServer, 0, nullptr, nullptr, nullptr,
     AddressesEnabled},
    {"terminal_ip", ControlKind::kTextEdit, &kTerminalIp, 0, nullptr, nullptr, nullptr,
     AddressesEnabled},
    {"local_name", ControlKind::kTextEdit, &kLocalName},
    {"ssid", ControlKind::kTextEdit, &kSsid},
    {"eap", ControlKind::kCheckBox, &kEapEnabled},
    {"eap_id", ControlKind::kTextEdit, &kEapId, 0, nullptr, nullptr, nullptr, EapEnabled},
    {"eap_password", ControlKind::kTextEdit, &kEapPassword, 0, nullptr, nullptr, nullptr,
     EapEnabled},
    {"authentication", ControlKind::kRadioGroup, &kSecurity},
    {"wep", ControlKind::kCheckBox, &kWepKeyEnabled},
    {"wep_key_length", ControlKind::kList, &kWepKeyLength, 0, nullptr,
     [](Document& doc, std::int64_t v) { ChangeWepKeyLength(doc, static_cast<int>(v)); }, nullptr,
     WepEnabled},
    {"active_wep_key", ControlKind::kRadioGroup, &kActiveWepKey, 0, nullptr, nullptr, nullptr,
     WepEnabled},
    {"telnet_port", ControlKind::kNumberEdit, &kTelnetPort, 0,
     [](std::string_view text, const FieldDef&) { return TelnetPortEdit(text); }},
    {"keep_alive", ControlKind::kNumberEdit, &kKeepAliveMinutes, 0,
     [](std::string_view text, const FieldDef&) { return KeepAliveEdit(text); }},
    {"login_name", ControlKind::kTextEdit, &kLoginName},
    {"login_name_key", ControlKind::kKeyCombo, &kLoginNameKey},
    {"login_password", ControlKind::kTextEdit, &kLoginPassword},
    {"login_password_key", ControlKind::kKeyCombo, &kLoginPasswordKey},
    {"logout_command", ControlKind::kTextEdit, &kLogoutCommand},
    {"logout_key", ControlKind::kKeyCombo, &kLogoutKey},
    {"auto_sign_on", ControlKind::kCheckBox, &kAutoSignOn},
};

}  // namespace

std::span<const FieldBinding> NetworkBindings() { return kNetworkBindings; }

}  // namespace veltrix
