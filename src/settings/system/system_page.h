#ifndef VELTRIX_SETTINGS_SYSTEM_SYSTEM_PAGE_H_
#define VELTRIX_SETTINGS_SYSTEM_SYSTEM_PAGE_H_

#include <array>

#include "settings/prompts/prompts.h"
#include "settings/settings_page.h"
#include "settings/system/system_editor.h"
#include "settings/system/system_settings.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace veltrix {

class FieldBinder;

// The "System" page of the settings sheet (dialog "SYSTEM_DLG"): power, security and backlight
// on the left; the menu and message texts, the download port and key click on the right. Every
// control writes the record at once through SystemEditor.
class SystemPage : public SettingsPage {
  Q_OBJECT

 public:
  SystemPage(Document& doc, QWidget* parent = nullptr);

  void Initialise(Document& doc) override;
  void Apply(Document& doc) override;

 private:
  QWidget* BuildPowerOnGroup();
  QWidget* BuildSecurityGroup();
  QWidget* BuildBacklightGroup();
  QWidget* BuildRightSide();
  void ConnectControls();

  // Fills every control from the record, the prompts combo from the product's screen names.
  void LoadControls();
  // Shows the selected screen's eight rows.
  void ShowScreen();

  SystemEditor editor_;
  FieldBinder* binder_;
  bool loading_ = false;  // while the prompts combo is filled

  QButtonGroup* power_on_ = nullptr;
  QLineEdit* auto_power_off_ = nullptr;
  QLineEdit* password_ = nullptr;
  std::array<QCheckBox*, kSecurityFlags.size()> security_{};
  QButtonGroup* backlight_ = nullptr;
  QLineEdit* idle_ = nullptr;
  QComboBox* screens_ = nullptr;
  std::array<QLabel*, kPromptRowsPerScreen> row_labels_{};
  std::array<QLineEdit*, kPromptRowsPerScreen> row_edits_{};
  QComboBox* download_via_ = nullptr;
  QComboBox* baud_rate_ = nullptr;
  QCheckBox* key_click_ = nullptr;
  QPushButton* reset_ = nullptr;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SYSTEM_SYSTEM_PAGE_H_
