// The pages of the settings sheet that this build has. Plug a page in with one line:
//   registry.Register<SystemPage>(SheetPageId::kSystem);
#include "capture/screen_page.h"
#include "settings/emulation/emulation_page.h"
#include "settings/network/wireless_lan_page.h"
#include "settings/reader/barcode_page.h"
#include "settings/system/system_page.h"
#include "shell/settings_page_registry_qt.h"

namespace veltrix {

void RegisterSettingsPages(SettingsPageRegistry& registry) {
  registry.Register<SystemPage>(SheetPageId::kSystem);
  registry.Register<BarcodePage>(SheetPageId::kBarcode);
  registry.Register<WirelessLanPage>(SheetPageId::kWirelessLan);
  registry.Register<EmulationPage>(SheetPageId::kEmulation);
  registry.Register<ScreenPage>(SheetPageId::kScreen);
}

}  // namespace veltrix
