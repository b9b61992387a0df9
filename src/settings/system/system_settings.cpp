#include "settings/system/system_settings.h"

#include <algorithm>
#include <array>
#include <string>

#include "settings/prompts/prompts.h"

namespace veltrix {
namespace {

constexpr auto kSystemFields = FieldPointers(kSystemFieldTable);

const char* FlagText(std::uint32_t value) { return value != 0 ? "Enable" : "Disable"; }

// The name of `value` in `names`, or its number when the record holds something the list lacks.
std::string NameOf(std::span<const std::string_view> names, std::uint32_t value) {
  if (value < names.size()) return std::string(names[value]);
  return std::to_string(value);
}

}  // namespace

std::span<const FieldDef* const> SystemFields() { return kSystemFields; }

void SetSystemDefaults(Document& doc) {
  for (const FieldDef* f : kSystemFields) ApplyDefault(doc.record, *f);
}

void AppendSystemSummary(const Document& doc, SummaryNode& parent) {
  std::span<const std::uint8_t> record(doc.record);
  auto value = [&](const FieldDef& f) { return ReadNumber(record, f); };

  parent.Add("Power On : " + std::string(value(kPowerOn) != 0 ? "Restart" : "Resume") + " Program");
  parent.Add("Auto Power Off : " + std::to_string(value(kAutoPowerOff)) + " seconds");
  parent.Add("Backlight : " +
             std::string(value(kBacklight) != 0 ? "Turn On upon power up" : "Turn Off"));
  parent.Add("Turn off if idle for " + std::to_string(value(kTurnOffIfIdleFor) * 10) + " seconds");
  parent.Add("Download via : " + NameOf(kDownloadViaNames, value(kDownloadVia)));
  parent.Add("Baud Rate : " + NameOf(kBaudRateNames, value(kBaudRate)));
  parent.Add("Key Click : " + std::string(FlagText(value(kKeyClick))));

  SummaryNode& security = parent.Add("Security");
  security.Add("Password : " + ReadText(record, kPassword));
  security.Add("TCP/IP Settings : " + std::string(FlagText(value(kTcpIpSettings))));
  security.Add("Emulation Settings : " + std::string(FlagText(value(kEmulationSettings))));
  security.Add("Set Data & Time : " + std::string(FlagText(value(kSetDateTime))));

  AppendPromptSummary(doc, parent.Add("Prompts and Messages"));
}

}  // namespace veltrix
