#ifndef VELTRIX_SETTINGS_NETWORK_NETWORK_CHOICES_H_
#define VELTRIX_SETTINGS_NETWORK_NETWORK_CHOICES_H_

#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field_binding.h"

namespace veltrix {

// "Share Key", "Open System" (the `Security` bit).
std::span<const std::string_view> AuthenticationChoices();
// "64 bits (5 bytes)", "128 bits (13 bytes)" (`WepKeyLength`).
std::span<const std::string_view> WepKeyLengthChoices();

// Which groups of Wireless LAN controls are enabled: the four address edits only without DHCP,
// the EAP edits only with EAP on, the WEP length, keys and "Active" buttons only with WEP on.
struct NetworkControlStates {
  bool address_edits = false;
  bool eap_edits = false;
  bool wep_controls = false;

  friend bool operator==(const NetworkControlStates&, const NetworkControlStates&) = default;
};
NetworkControlStates NetworkControlStatesOf(const Document& doc);

// The Wireless LAN page's controls that edit one field each, with their rules and enabling
// (the host combo and the four WEP key edits have rules of their own).
std::span<const FieldBinding> NetworkBindings();

// Text typed into the host combo: its first 49 characters go into the active host entry only.
void StoreActiveHostText(Document& doc, std::string_view text);

// Apply on the Wireless LAN page: every text field is NUL-filled behind its text to its full
// width; of the host list only the active entry, the others keep what lies behind their NUL.
void PadNetworkTexts(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NETWORK_NETWORK_CHOICES_H_
