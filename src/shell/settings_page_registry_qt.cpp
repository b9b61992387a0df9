#include "shell/settings_page_registry_qt.h"

#include <QString>

#include "shell/unavailable_page.h"

namespace veltrix {

const SettingsPageRegistry& SettingsPageRegistry::Installed() {
  static const SettingsPageRegistry registry = [] {
    SettingsPageRegistry r;
    RegisterSettingsPages(r);
    return r;
  }();
  return registry;
}

SettingsPage* SettingsPageRegistry::Create(SheetPageId id, Document& doc, QWidget* parent) const {
  const Factory& factory = factories_[static_cast<int>(id)];
  if (factory) return factory(doc, parent);
  const SheetPageInfo& info = SheetPageInfoOf(id);
  return new UnavailablePage(
      doc, QString::fromUtf8(info.caption.data(), static_cast<int>(info.caption.size())), parent);
}

}  // namespace veltrix
