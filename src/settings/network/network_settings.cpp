#include "settings/network/network_settings.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "settings/emulation/choice_text.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_names.h"
#include "settings/network/network_choices.h"
#include "settings/network/wep_key.h"

namespace veltrix {
namespace {

constexpr auto kFields = FieldPointers(kNetworkFieldTable);

int Read(const Document& doc, const FieldDef& f, int i = 0) {
  return static_cast<int>(ReadNumber(doc.record, f, i));
}
std::string Text(const Document& doc, const FieldDef& f, int i = 0) {
  return ReadText(doc.record, f, i);
}

void AppendIpLines(const Document& doc, SummaryNode& ip) {
  ip.Add(std::string(FlagText(Read(doc, kDhcpServer))) + " DHCP Server");
  ip.Add("Subnet Mask : " + Text(doc, kSubnetMask));
  ip.Add("Gateway : " + Text(doc, kGateway));
  ip.Add("DNS Server : " + Text(doc, kDnsServer));
  ip.Add("Terminal IP : " + Text(doc, kTerminalIp));
  ip.Add("Local Name : " + Text(doc, kLocalName));
  ip.Add("SSID : " + Text(doc, kSsid));
}

void AppendSecurityLines(const Document& doc, SummaryNode& security) {
  security.Add("Security : " + ChoiceText(AuthenticationChoices(), Read(doc, kSecurity)));
  security.Add(std::string(FlagText(Read(doc, kEapEnabled))) + " EAP");
  security.Add("EAP ID : " + Text(doc, kEapId));
  security.Add("EAP Password : " + Text(doc, kEapPassword));
  security.Add(std::string(FlagText(Read(doc, kWepKeyEnabled))) + " WEP Key");
  // Any length byte but 1 means 5-byte keys, as the keys themselves are read.
  security.Add("WEP Key Length : " +
               std::string(WepKeyLengthChoices()[WepKeyBytes(doc) == 13 ? 1 : 0]));
  security.Add("Active WEP Key " + std::to_string(Read(doc, kActiveWepKey) + 1));
  for (int i = 0; i < kWepKey.count; ++i) {
    security.Add("WEP Key " + std::to_string(i + 1) + " : " + StoredWepKeyText(doc, i));
  }
}

void AppendLoginLines(const Document& doc, SummaryNode& login) {
  login.Add("Active Host IP or Name : " + std::to_string(Read(doc, kActiveHostIpOrName) + 1));
  for (int i = 0; i < kHostIpOrName.count; ++i) {
    login.Add("Host IP or Name : " + Text(doc, kHostIpOrName, i));
  }
  login.Add("Telnet Port : " + std::to_string(Read(doc, kTelnetPort)));
  login.Add("Login Name : " + Text(doc, kLoginName));
  login.Add("Login Name Key : " + KeyFieldChoiceName(Read(doc, kLoginNameKey)));
  login.Add("Login Password : " + Text(doc, kLoginPassword));
  login.Add("Login Password Key : " + KeyFieldChoiceName(Read(doc, kLoginPasswordKey)));
  login.Add("Logout Command : " + Text(doc, kLogoutCommand));
  login.Add("Logout Key : " + KeyFieldChoiceName(Read(doc, kLogoutKey)));
  login.Add("Auto Sign On : " + std::to_string(Read(doc, kAutoSignOn)));
}

}  // namespace

std::span<const FieldDef* const> NetworkFields() { return kFields; }

void SetNetworkDefaults(Document& doc) {
  for (const FieldDef* f : NetworkFields()) {
    if (f->key_role != kRoleNone && Read(doc, *f) != 0) ReleaseFunctionKey(doc, Read(doc, *f));
  }
  for (const FieldDef* f : NetworkFields()) ApplyDefault(doc.record, *f);
}

void AppendNetworkSummary(const Document& doc, SummaryNode& parent) {
  AppendIpLines(doc, parent.Add("IP"));
  AppendSecurityLines(doc, parent.Add("Security"));
  AppendLoginLines(doc, parent.Add("Login"));
}

}  // namespace veltrix
