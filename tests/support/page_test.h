#ifndef VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_
#define VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_

#include <QLineEdit>
#include <QtTest>
#include <memory>

#include "settings/document.h"

namespace veltrix::testing {

// A control of a page by its name; a missing one ends the test run with its name.
template <typename T>
T* FindControl(QWidget* page, const QString& name) {
  T* widget = page->findChild<T*>(name);
  if (widget == nullptr) qFatal("no control %s", qPrintable(name));
  return widget;
}

// Empties the edit and types `text` key by key.
inline void TypeInto(QLineEdit* edit, const QString& text) {
  edit->clear();
  QTest::keyClicks(edit, text);
}

// The document and the page a page test drives, made afresh by each test function's init().
template <typename Page>
class PageUnderTest {
 protected:
  void OpenPage(int product) {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, product);
    page_ = std::make_unique<Page>(*doc_);
    page_->Initialise(*doc_);
    page_->SetActive(*doc_);
  }
  void ClosePage() {
    page_.reset();
    doc_.reset();
  }
  template <typename T>
  T* Find(const QString& name) {
    return FindControl<T>(page_.get(), name);
  }
  void Type(const QString& name, const QString& text) { TypeInto(Find<QLineEdit>(name), text); }

  std::unique_ptr<Document> doc_;
  std::unique_ptr<Page> page_;
};

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_
