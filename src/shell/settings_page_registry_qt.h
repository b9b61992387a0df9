#ifndef VELTRIX_SHELL_SETTINGS_PAGE_REGISTRY_QT_H_
#define VELTRIX_SHELL_SETTINGS_PAGE_REGISTRY_QT_H_

#include <array>
#include <functional>

#include "settings/document.h"
#include "settings/settings_page.h"
#include "settings/sheet_page_contract.h"

namespace veltrix {

// Which widget class makes each page of the settings sheet. The installed registry has every
// page; one built for a test may leave pages out, which then show empty.
class SettingsPageRegistry {
 public:
  using Factory = std::function<SettingsPage*(Document& doc, QWidget* parent)>;

  // The registry with every page this build has (see settings_pages_qt.cpp).
  static const SettingsPageRegistry& Installed();

  // One line per page: registry.Register<SystemPage>(SheetPageId::kSystem);
  // PageClass needs a constructor (Document&, QWidget* parent).
  template <typename PageClass>
  void Register(SheetPageId id) {
    Register(id, [](Document& doc, QWidget* parent) -> SettingsPage* {
      return new PageClass(doc, parent);
    });
  }
  void Register(SheetPageId id, Factory factory) {
    factories_[static_cast<int>(id)] = std::move(factory);
  }

  // Creates the page for `id` (an empty one when none is registered).
  SettingsPage* Create(SheetPageId id, Document& doc, QWidget* parent) const;

 private:
  std::array<Factory, kSheetPageCount> factories_;
};

// Registers the pages this build has; the one place a new page is plugged in.
void RegisterSettingsPages(SettingsPageRegistry& registry);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SETTINGS_PAGE_REGISTRY_QT_H_
