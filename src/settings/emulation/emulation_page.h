#ifndef VELTRIX_SETTINGS_EMULATION_EMULATION_PAGE_H_
#define VELTRIX_SETTINGS_EMULATION_EMULATION_PAGE_H_

#include <array>

#include "settings/emulation/key_mapping.h"
#include "settings/settings_page.h"

class QLabel;
class QPushButton;

namespace veltrix {

class FieldBinder;

// The "Emulation" page of the settings sheet (dialog "EMULATION_DLG"): language, font size,
// scrolling, the lock screen, the message line and the function key mapping. Every control
// writes the record at once; Cancel puts the record and the key code table back (the sheet's
// snapshot).
class EmulationPage : public SettingsPage {
  Q_OBJECT

 public:
  EmulationPage(Document& doc, QWidget* parent = nullptr);

  void Initialise(Document& doc) override;
  void SetActive(Document& doc) override;

 private:
  QWidget* BuildMapping();
  // The 39 mapping labels and the enabling of their buttons.
  void ShowMapping();

  FieldBinder* binder_;
  std::array<QPushButton*, kMappingRowCount> key_buttons_{};
  std::array<QLabel*, kMappingRowCount> key_labels_{};
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_EMULATION_PAGE_H_
