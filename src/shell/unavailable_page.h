#ifndef VELTRIX_SHELL_UNAVAILABLE_PAGE_H_
#define VELTRIX_SHELL_UNAVAILABLE_PAGE_H_

#include <QString>

#include "settings/settings_page.h"

namespace veltrix {

// Stands in for a page that this build does not have: a line saying so, nothing to edit.
class UnavailablePage : public SettingsPage {
  Q_OBJECT

 public:
  UnavailablePage(Document& doc, const QString& caption, QWidget* parent = nullptr);

  void Initialise(Document& /*doc*/) override {}
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_UNAVAILABLE_PAGE_H_
