#include "settings/system/system_page.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QtTest>
#include <memory>

#include "settings/document.h"
#include "settings/prompts/prompts.h"
#include "settings/system/system_settings.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "support/page_test.h"

using namespace veltrix;

class SystemPageTest : public QObject, testing::PageUnderTest<SystemPage> {
  Q_OBJECT

 private slots:
  void init() { OpenPage(2); }
  void cleanup() { ClosePage(); }

  // What the page shows is in the page scripts; here, what they cannot say.
  void promptsAreTwelveScreensInAFixedPitchFont() {
    QCOMPARE(Find<QComboBox>("prompt_screens")->count(), 12);
    QVERIFY(QFontInfo(Edit("prompt_edit_1")->font()).fixedPitch());
  }

  // A number edit emptied by the user shows its rule's minimum selected, so the next key typed
  // replaces it (the page scripts type the numbers themselves).
  void anEmptiedNumberShowsItsMinimumSelected() {
    QLineEdit* line = Edit("auto_power_off");
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Backspace);
    QVERIFY(line->hasSelectedText());
    QTest::keyClicks(line, "600");
    QCOMPARE(ReadNumber(doc_->record, kAutoPowerOff), 600u);
  }

  // After an applied file every text is padded to 40 characters: End and typing stay within the
  // line's 20 characters, and tabbing through the rows shows each text from its start.
  void appliedTextsStayWithinTheirLines() {
    page_->Apply(*doc_);
    page_->Initialise(*doc_);
    page_->show();
    page_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page_.get()));
    Find<QComboBox>("prompt_screens")->setCurrentIndex(1);
    QLineEdit* edit = Edit("prompt_edit_1");
    edit->setFocus();
    QCOMPARE(edit->text(), QString("1.TCP/IP Settings").leftJustified(20));
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, "XYZ");
    QCOMPARE(edit->text().size(), 20);
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kPromptText, PromptSlot(1, 0))),
             QString("1.TCP/IP Settings").leftJustified(40));  // as applied, nothing typed
    QLineEdit* current = edit;
    for (int k = 2; k <= 8; ++k) {
      QTest::keyClick(current, Qt::Key_Tab);
      QLineEdit* next = Edit(QString("prompt_edit_%1").arg(k));
      QCOMPARE(QApplication::focusWidget(), next);
      QVERIFY(next->text().size() <= 20);
      // The whole text fits: nothing is scrolled out of view on its left.
      QVERIFY(next->fontMetrics().horizontalAdvance(next->text()) < next->contentsRect().width());
      current = next;
    }
  }

  // The sheet has one size whatever the document holds, and fits the screen (also at 150%).
  void sheetHasOneSizeAndFitsTheScreen() {
    SettingsSheetDialog sheet(*doc_, SettingsPageRegistry::Installed());
    sheet.show();
    QVERIFY(QTest::qWaitForWindowExposed(&sheet));
    const QSize fresh = sheet.size();
    QVERIFY(sheet.frameGeometry().height() <= sheet.screen()->availableGeometry().height());
    // An applied file: every text 40 characters long.
    sheet.page(0)->findChild<QComboBox*>("prompt_screens")->setCurrentIndex(3);
    static_cast<SystemPage*>(sheet.page(0))->Apply(*doc_);
    SettingsSheetDialog applied(*doc_, SettingsPageRegistry::Installed());
    applied.show();
    QVERIFY(QTest::qWaitForWindowExposed(&applied));
    QCOMPARE(applied.size(), fresh);
  }

 private:
  QLineEdit* Edit(const QString& name) { return Find<QLineEdit>(name); }
  QLabel* Label(const QString& name) { return Find<QLabel>(name); }
};

QTEST_MAIN(SystemPageTest)
#include "system_page_test.moc"
