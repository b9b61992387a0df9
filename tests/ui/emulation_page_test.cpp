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

  // The font size button already chosen changes nothing, not even steps typed by hand.
  void fontSizeAndLanguageSetTheSteps() {
    Type("horizontal_steps", "25");
    Find<QRadioButton>("font_size_0")->click();
    QCOMPARE(Value(kHorizontalSteps), 25);
    Find<QRadioButton>("font_size_1")->click();
    QCOMPARE(Value(kHorizontalSteps), 14);
    QCOMPARE(Find<QLineEdit>("horizontal_steps")->text(), QString("14"));
    // A language sets the font size and both steps (the core's table): French is small.
    Find<QComboBox>("language")->setCurrentIndex(6);
    QVERIFY(Find<QRadioButton>("font_size_0")->isChecked());
    QCOMPARE(Find<QLineEdit>("vertical_steps")->text(), QString("7"));
    QCOMPARE(Value(kEmulationType), 6);
  }

  void numberEditsAreCorrectedAsTyped_data() { testing::AddNumberEditRows("emulation"); }
  void numberEditsAreCorrectedAsTyped() {
    QFETCH(QString, edit);
    QFETCH(QString, typed);
    Type(edit, typed);
    QTEST(Find<QLineEdit>(edit)->text(), "shown");
    const FieldBinding* b = FindBinding(EmulationBindings(), edit.toStdString());
    QTEST(int(BoundValue(*doc_, *b)), "stored");
  }

  void cursorTrackingAndLockScreenExcludeEachOther() {
    Find<QCheckBox>("lock_screen")->click();
    QVERIFY(!Find<QCheckBox>("cursor_tracking")->isChecked());
    QCOMPARE(std::pair(Value(kCursorTracking), Value(kLockScreen)), std::pair(0, 1));
    Find<QCheckBox>("cursor_tracking")->click();
    QVERIFY(!Find<QCheckBox>("lock_screen")->isChecked());
    QCOMPARE(std::pair(Value(kCursorTracking), Value(kLockScreen)), std::pair(1, 0));
    QVERIFY(!Find<QCheckBox>("disable_local_echo")->isVisibleTo(page_.get()));
  }

  // FN+2 as navigator key: its row reads "Navigator Key" and its button is off; the message key
  // cannot take it too; "Disable" gives FN+2 back to PF2.
  void keyCombosClaimAndRelease() {
    Find<QComboBox>("navigator_key")->setCurrentIndex(2);
    QCOMPARE(Find<QLabel>("key_label_2")->text(), QString("Navigator Key"));
    QVERIFY(!Find<QPushButton>("key_2")->isEnabled());
    QString message;
    testing::AnswerMessageBox(&message);
    Find<QComboBox>("message_key")->setCurrentIndex(2);
    QCOMPARE(message, QString("Function Key Mapping: The function key is defined already !!"));
    QCOMPARE(Find<QComboBox>("message_key")->currentIndex(), 0);
    QCOMPARE(Value(kMessageFunctionKey), 0);
    Find<QComboBox>("navigator_key")->setCurrentIndex(0);
    QCOMPARE(Find<QLabel>("key_label_2")->text(), QString("PF2"));
    QVERIFY(Find<QPushButton>("key_2")->isEnabled());
  }

  void mappingDialogOkAndCancel_data() {
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("label");
    QTest::newRow("OK") << true << "PF13";
    QTest::newRow("Cancel") << false << "PF5";
  }
  void mappingDialogOkAndCancel() {
    QFETCH(bool, ok);
    QString code_shown;
    testing::WhenModal([&](QWidget* w) {
      auto* dialog = qobject_cast<FunctionKeyDialog*>(w);
      QVERIFY(dialog);
      QVERIFY(!dialog->findChild<QComboBox*>("group")->isEnabled());
      auto* host = dialog->findChild<QComboBox*>("host_key");
      QCOMPARE(host->currentText(), QString("PF5"));
      host->setFocus();
      QTest::keyClicks(host, "PF13");  // typed as a user picks from a list
      host->setCurrentIndex(13);
      code_shown = dialog->findChild<QLineEdit*>("key_code")->text();
      ok ? dialog->accept() : dialog->reject();
    });
    Find<QPushButton>("key_5")->click();
    QCOMPARE(code_shown, QString("ESC [ V "));
    QTEST(Find<QLabel>("key_label_5")->text(), "label");
    const auto code = FieldBytes(std::span<const std::uint8_t>(doc_->record), kKeyCode, 5);
    QCOMPARE(code[2], std::uint8_t(ok ? 0x56 : 0x4D));
  }

  void resetKeepsFieldLengthAndRestoresTheRest() {
    Find<QRadioButton>("field_length_1")->click();
    Find<QComboBox>("language")->setCurrentIndex(4);
    Find<QComboBox>("navigator_key")->setCurrentIndex(3);
    WriteNumber(doc_->record, kLoginNameKey, 4);
    ClaimFunctionKey(*doc_, 4, kRoleNameKey);
    Find<QPushButton>("reset")->click();
    QCOMPARE(Value(kFieldLengthIfExceed), 1);
    QCOMPARE(Find<QComboBox>("language")->currentIndex(), 0);
    QCOMPARE(Find<QLabel>("key_label_3")->text(), QString("PF3"));
    QCOMPARE(Find<QLabel>("key_label_4")->text(), QString("Name Key"));
  }

  // A group the list does not hold (from a file) survives OK instead of locking the key.
  void storedGroupTheListLacksSurvivesOk() {
    WriteNumber(doc_->record, kKeyMappingGroup, 7, 5);
    FunctionKeyDialog dialog(*doc_, 5);
    dialog.accept();
    QCOMPARE(ReadNumber(doc_->record, kKeyMappingGroup, 5), 7u);
    QVERIFY(MappingRowEnabled(*doc_, 5));
  }

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
