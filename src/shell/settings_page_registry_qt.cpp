#include "shell/settings_page_registry_qt.h"

namespace veltrix {
namespace {

// An empty page for an id left out of a registry (tests build registries with a few pages only).
class BlankPage : public SettingsPage {
 public:
  using SettingsPage::SettingsPage;
  void Initialise(Document& /*doc*/) override {}
};

}  // namespace

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
  return new BlankPage(doc, parent);
}

}  // namespace veltrix
