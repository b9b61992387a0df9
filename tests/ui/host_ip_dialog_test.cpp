#include "tn5250/host_ip_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QtTest>

namespace veltrix {

class HostIpDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void opensFromTheActiveEntryUnchecked() {
    HostIpForm form;
    form.Open("1.1.1.1");
    form.Confirm({"1", "1", "1", "1"}, true);
    HostIpDialog dialog(form, "192.168.7");
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Host IP"));
    QCOMPARE(dialog.octet_edit(0)->text(), QStringLiteral("192"));
    QCOMPARE(dialog.octet_edit(1)->text(), QStringLiteral("168"));
    QCOMPARE(dialog.octet_edit(2)->text(), QStringLiteral("7"));
    // The fourth octet keeps its value from the last time.
    QCOMPARE(dialog.octet_edit(3)->text(), QStringLiteral("1"));
    QVERIFY(!dialog.save_log_box()->isChecked());
    QCOMPARE(dialog.save_log_box()->text(), QStringLiteral("Save Log"));
  }
  // Typed key by key into the first box, as into any address field: "." moves on to the next box.
  void editsUpdateTheOctetsAsTyped() {
    HostIpForm form;
    HostIpDialog dialog(form, "10.0.0.1");
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const QChar c : QStringLiteral("192.168.7.42")) {
      QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    }
    QCOMPARE(form.octets(), (HostOctets{192, 168, 7, 42}));
    QCOMPARE(dialog.octet_edit(3)->text(), QStringLiteral("42"));
    dialog.octet_edit(2)->setText("999");
    QCOMPARE(form.octets()[2], 7u);  // not a number in 0..255: the octet keeps its value
  }
  // Which octets are bad is the form's rule (tested in the core); the dialog shows the message.
  void badOctetShowsTheMessageAndStaysOpen() {
    HostIpForm form;
    QStringList shown;
    HostIpDialog dialog(form, "127.0.0.1", nullptr,
                        [&shown](QWidget*, const QString& message) { shown << message; });
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.octet_edit(2)->setText("256");
    dialog.accept();
    QCOMPARE(shown, QStringList{QStringLiteral("Invalid IP Address!")});
    QVERIFY(dialog.isVisible());
    QTRY_VERIFY(dialog.octet_edit(2)->hasFocus());  // the box that is wrong
    QCOMPARE(dialog.octet_edit(2)->selectedText(), QStringLiteral("256"));
    QCOMPARE(dialog.result(), 0);
  }
  void okTakesTheSaveLogBox() {
    HostIpForm form;
    HostIpDialog dialog(form, "127.0.0.1");
    dialog.show();
    dialog.save_log_box()->setChecked(true);
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(form.save_log());
    QCOMPARE(form.octets(), (HostOctets{127, 0, 0, 1}));
  }
};

}  // namespace veltrix

QTEST_MAIN(veltrix::HostIpDialogTest)
#include "host_ip_dialog_test.moc"
