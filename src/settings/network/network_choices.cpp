#include "settings/network/network_choices.h"

#include <algorithm>
#include <array>

#include "settings/field.h"
#include "settings/network/network_settings.h"

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

}  // namespace veltrix
