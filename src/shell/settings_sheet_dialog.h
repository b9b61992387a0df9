#ifndef VELTRIX_SHELL_SETTINGS_SHEET_DIALOG_H_
#define VELTRIX_SHELL_SETTINGS_SHEET_DIALOG_H_

#include <QDialog>
#include <array>

#include "settings/document.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/sheet_lifecycle.h"

class QScrollArea;
class QTabWidget;
class QVBoxLayout;

namespace veltrix {

// The modal "Settings" sheet: five tabs in fixed order, OK and Cancel, no Apply. Pages come from
// the registry and are created when their tab is first shown; the contract with them is
// SheetLifecycle's.
class SettingsSheetDialog : public QDialog {
  Q_OBJECT

 public:
  SettingsSheetDialog(Document& doc, const SettingsPageRegistry& registry,
                      QWidget* parent = nullptr);

  QTabWidget* tabs() const { return tabs_; }
  // The page at `index`, or null while it has not been shown yet.
  SettingsPage* page(int index) const { return pages_[index]; }

  void accept() override;
  void reject() override;

 private:
  SheetPage* CreatePage(int index);
  // Gives every page the size, cut to the screen.
  void FitPages(QSize page_size);

  Document& doc_;
  const SettingsPageRegistry& registry_;
  QTabWidget* tabs_ = nullptr;
  std::array<QScrollArea*, kSheetPageCount> areas_{};
  std::array<QVBoxLayout*, kSheetPageCount> holders_{};
  std::array<SettingsPage*, kSheetPageCount> pages_{};
  SheetLifecycle lifecycle_;
  bool closed_ = false;
  QSize chrome_;  // the sheet around a page: tabs, buttons, frame
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SETTINGS_SHEET_DIALOG_H_
