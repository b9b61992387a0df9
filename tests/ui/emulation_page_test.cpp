// The Emulation page driven as a user does, alone and inside the settings sheet.
#include "settings/emulation/emulation_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QtTest>
#include <memory>

#include "settings/document.h"
#include "settings/emulation/emulation_choices.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_key_dialog.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/network/network_settings.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "support/modal.h"
#include "support/page_test.h"

using namespace veltrix;

class EmulationPageTest : public QObject, testing::PageUnderTest<EmulationPage> {
  Q_OBJECT

 private slots:
  void init() { OpenPage(2); }
  void cleanup() { ClosePage(); }

  // Inside the sheet: Cancel puts back the record and the key code table; a language chosen
  // here changes the Screen page's sizes; a key claimed elsewhere shows when the tab is shown.
  void insideTheSheet() {
    const Document before = *doc_;
    {
      SettingsSheetDialog sheet(*doc_, SettingsPageRegistry::Installed());
      sheet.tabs()->setCurrentIndex(3);
      QWidget* page = sheet.page(3);
      // A key code of its own, picked in the grid editor key by key: Clear, Right, Enter.
      testing::WhenModal([](QWidget* w) {
        w->findChild<QComboBox*>("host_key")->setCurrentIndex(13);
        auto* code = w->findChild<QLineEdit*>("key_code");
        testing::WhenModal(
            [](QWidget* grid) {
              grid->findChild<QPushButton*>("grid_clear")->click();
              QWidget* chart = grid->findChild<QWidget*>("grid_chart");
              QTest::keyClick(chart, Qt::Key_Right);
              QTest::keyClick(chart, Qt::Key_Return);
              qobject_cast<QDialog*>(grid)->accept();
            },
            w);
        QTest::mouseClick(code, Qt::LeftButton);
        QCOMPARE(code->text(), QString("F2 "));
        qobject_cast<QDialog*>(w)->accept();
      });
      page->findChild<QPushButton*>("key_36")->click();
      QVERIFY(doc_->record != before.record);
      QVERIFY(doc_->key_codes == before.key_codes);  // the code is key 36's alone
      sheet.reject();
    }
    QVERIFY(doc_->record == before.record);
    QVERIFY(doc_->key_codes == before.key_codes);

    SettingsSheetDialog sheet(*doc_, SettingsPageRegistry::Installed());
    sheet.tabs()->setCurrentIndex(4);
    auto* sizes = sheet.page(4)->findChild<QComboBox*>("terminal_size");
    const QString small_first = sizes->itemText(0);
    sheet.tabs()->setCurrentIndex(3);
    sheet.page(3)->findChild<QComboBox*>("language")->setCurrentIndex(4);
    ClaimFunctionKey(*doc_, 6, kRoleNameKey);  // as the Wireless LAN page would
    sheet.tabs()->setCurrentIndex(4);
    QVERIFY(sizes->itemText(0) != small_first);
    sheet.tabs()->setCurrentIndex(3);
    QCOMPARE(sheet.page(3)->findChild<QLabel*>("key_label_6")->text(), QString("Name Key"));
    sheet.accept();
    QVERIFY(doc_->modified);
  }

 private:
  int Value(const FieldDef& field) { return int(ReadNumber(doc_->record, field)); }
};

QTEST_MAIN(EmulationPageTest)
#include "emulation_page_test.moc"
