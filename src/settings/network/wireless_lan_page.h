#ifndef VELTRIX_SETTINGS_NETWORK_WIRELESS_LAN_PAGE_H_
#define VELTRIX_SETTINGS_NETWORK_WIRELESS_LAN_PAGE_H_

#include <array>

#include "settings/network/wep_key.h"
#include "settings/settings_page.h"

class QComboBox;
class QLineEdit;

namespace veltrix {

class FieldBinder;

// The "Wireless LAN" page of the settings sheet (dialog "WLAN_DLG"): addresses, security with
// the WEP keys entered through the grid editor, and the login with the host list. Every control
// writes the record at once; OK pads the texts.
class WirelessLanPage : public SettingsPage {
  Q_OBJECT

 public:
  WirelessLanPage(Document& doc, QWidget* parent = nullptr);

  void Initialise(Document& doc) override;
  void SetActive(Document& doc) override;
  void Apply(Document& doc) override;

 private:
  QWidget* BuildIp();
  QWidget* BuildSecurity();
  QWidget* BuildLogin();
  // Everything from the record: the bound controls, the keys and the host list.
  void LoadControls();
  void ShowKeys();
  void ShowHosts();

  FieldBinder* binder_;
  std::array<QLineEdit*, kWepKeyCount> keys_{};
  QComboBox* hosts_ = nullptr;
  bool loading_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NETWORK_WIRELESS_LAN_PAGE_H_
