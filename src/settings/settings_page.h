#ifndef VELTRIX_SETTINGS_SETTINGS_PAGE_H_
#define VELTRIX_SETTINGS_SETTINGS_PAGE_H_

#include <QWidget>

#include "settings/document.h"
#include "settings/sheet_page_contract.h"

namespace veltrix {

// Base of every page of the settings sheet. A page is created by the sheet the first time its
// tab is shown, with the document it edits; it ends with the sheet.
//
// The sheet calls (see SheetPage):
//   Initialise(doc)  once, after the snapshot was taken: fill the controls;
//   SetActive(doc)   every time the page is shown;
//   Apply(doc)       on OK, in page order: store the controls;
//   QueryCancel(doc) on Cancel, only on the showing page, after the snapshot was put back.
// Snapshots and the modified flag are the sheet's business (its page table says which pages
// keep one); a page never touches doc.modified.
class SettingsPage : public QWidget, public SheetPage {
  Q_OBJECT

 public:
  explicit SettingsPage(Document& doc, QWidget* parent = nullptr) : QWidget(parent), doc_(doc) {}

  void Apply(Document& /*doc*/) override {}

 protected:
  Document& doc() { return doc_; }

 private:
  Document& doc_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SETTINGS_PAGE_H_
