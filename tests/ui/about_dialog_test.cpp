#include "shell/about_dialog.h"

#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

#include "resources/strings.h"

using namespace veltrix;

class AboutDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void showsTitleProductLineRightsAndLicence() {
    AboutDialog about;
    QCOMPARE(about.windowTitle(), QString("The Veltrix"));
    const QString version = QString::fromUtf8(StringResource(4002).data());
    QCOMPARE(about.product_line()->text(), "Veltrix For 5250 (" + version + ")");
    QCOMPARE(about.rights_line()->text(), QString::fromUtf8(StringResource(4003).data()));
    QVERIFY(about.licence()->isReadOnly());
    QVERIFY(about.licence()->toPlainText().startsWith("LICENCE AGREEMENT"));
    QVERIFY(QFontInfo(about.licence()->font()).fixedPitch());
  }

  void okEndsWithOneAndEscapeWithZero() {
    AboutDialog about;
    QTimer::singleShot(0, &about, [&about] {
      about.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(about.exec(), 1);
    QTimer::singleShot(0, &about, [&about] { QTest::keyClick(&about, Qt::Key_Escape); });
    QCOMPARE(about.exec(), 0);
  }
};

QTEST_MAIN(AboutDialogTest)
#include "about_dialog_test.moc"
