#ifndef VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_
#define VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_

#include <QFile>
#include <QLineEdit>
#include <QtTest>

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

// The rows of tests/ui/data/number_edits.txt for `page`: columns edit, typed, shown, stored.
inline void AddNumberEditRows(const QString& page) {
  QTest::addColumn<QString>("edit");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("shown");
  QTest::addColumn<int>("stored");
  QFile file(QStringLiteral(VELTRIX_SOURCE_DIR "/tests/ui/data/number_edits.txt"));
  if (!file.open(QIODevice::ReadOnly)) qFatal("no number_edits.txt");
  for (const QByteArray& line : file.readAll().split('\n')) {
    const QList<QByteArray> f = line.simplified().split(' ');
    if (f.size() != 5 || f[0].startsWith('#') || f[0] != page.toLatin1()) continue;
    QTest::newRow(qPrintable(f[1] + " " + f[2]))
        << QString(f[1]) << QString(f[2]) << QString(f[3]) << f[4].toInt();
  }
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_PAGE_TEST_H_
