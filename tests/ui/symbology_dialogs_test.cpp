// Every symbology dialog shape as a user drives it, against the core driven the same way. (The
// "Barcode" page and the other reader dialogs run in the page scripts.)
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "resources/text_qt.h"
#include "settings/document.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/symbology_dialog.h"
#include "settings/reader/working_block.h"
#include "support/binding_driver.h"
#include "support/page_test.h"

using namespace veltrix;

namespace {

using testing::FindControl;

void Close(QDialog* dialog, bool ok) {
  auto* buttons = dialog->findChild<QDialogButtonBox*>();
  buttons->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
}

bool SameReader(const Document& a, const Document& b) {
  return a.record == b.record && a.reader_block1 == b.reader_block1 &&
         a.reader_block2 == b.reader_block2;
}

// Clicks every check box of a symbology dialog, and the same in the core's copy of the user.
void ToggleChecks(QWidget* dialog, BindingSession& core) {
  for (std::string_view name : testing::Controls(core, false)) {
    FindControl<QCheckBox>(dialog, QtText(name))->click();
    core.Set(name, 1 - core.Value(name));
  }
}

// One row per dialog of `tables`, closed with OK and with Cancel.
template <typename Table>
void AddDialogRows(std::span<const Table> tables) {
  QTest::addColumn<int>("index");
  QTest::addColumn<bool>("ok");
  for (int i = 0; i < static_cast<int>(tables.size()); ++i) {
    for (bool ok : {true, false}) {
      const std::string_view name = tables[i].template_name;
      QTest::newRow(qPrintable(QString::fromLatin1(name.data(), static_cast<int>(name.size())) +
                               (ok ? " OK" : " Cancel")))
          << i << ok;
    }
  }
}

}  // namespace

class SymbologyDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
  }
  void cleanup() {
    dialog_.reset();
    doc_.reset();
  }

  // Every linear dialog: each control changed, OK stores exactly what the core stores for those
  // controls; Cancel leaves the working block as opening left it.
  void linearDialogs_data() { AddDialogRows(LinearOptionDialogs()); }
  void linearDialogs() {
    QFETCH(int, index);
    QFETCH(bool, ok);
    const LinearOptionDialog& table = LinearOptionDialogs()[index];
    auto expected = std::make_unique<Document>(*doc_);
    const OwnedBindings bindings = LinearOptionBindings(table);
    BindingSession core = testing::Session(*expected, bindings.lines);
    LinearOptionsDialog dialog(*doc_, table);
    ToggleChecks(&dialog, core);
    for (const ChoiceControl& group : table.radios) {
      const std::string name = ControlName(group.caption);
      const int next =
          static_cast<int>(core.Value(name) + 1) % static_cast<int>(group.texts.size());
      FindControl<QAbstractButton>(&dialog, QStringLiteral("%1_%2").arg(QtText(name)).arg(next))
          ->click();
      core.Set(name, next);
    }
    if (table.length != nullptr) {
      FindControl<QAbstractButton>(&dialog, "length_qualification_1")->click();
      QCOMPARE(FindControl<QLabel>(&dialog, "length_1_label")->text(), QString("Max Length :"));
      testing::TypeInto(FindControl<QLineEdit>(&dialog, "length_1"), "20");
      testing::TypeInto(FindControl<QLineEdit>(&dialog, "length_2"), "40");
      core.Set("length_qualification", 1);
      core.Type("length_1", "20");
      core.Type("length_2", "40");
    }
    Close(&dialog, ok);
    if (ok) {
      core.Commit();
      ApplyLinearOptions(*expected, table);
    }
    QVERIFY(SameReader(*doc_, *expected));
  }

  // Every two-dimensional dialog, the same way; the length option goes to "Two Lengths" with 6 and
  // 10, which stores the larger first.
  void twoDDialogs_data() { AddDialogRows(TwoDOptionDialogs()); }
  void twoDDialogs() {
    QFETCH(int, index);
    QFETCH(bool, ok);
    const TwoDOptionDialog& table = TwoDOptionDialogs()[index];
    auto expected = std::make_unique<Document>(*doc_);
    OpenTwoDOptions(*expected, table);
    const OwnedBindings bindings = TwoDOptionBindings(table);
    BindingSession core = testing::Session(*expected, bindings.lines);
    ToggleChecks(&TwoDDialog(table), core);
    for (const ChoiceControl& list : table.lists) {
      const std::string name = ControlName(list.caption);
      const int next = static_cast<int>(core.Value(name) + 1) % static_cast<int>(list.texts.size());
      FindControl<QComboBox>(dialog_.get(), QtText(name))->setCurrentIndex(next);
      core.Set(name, next);
    }
    if (table.length_option != nullptr) {
      FindControl<QComboBox>(dialog_.get(), "length_option")->setCurrentIndex(2);
      QCOMPARE(FindControl<QLineEdit>(dialog_.get(), "length_2")->text(), QString("0"));
      testing::TypeInto(FindControl<QLineEdit>(dialog_.get(), "length_1"), "6");
      testing::TypeInto(FindControl<QLineEdit>(dialog_.get(), "length_2"), "10");
      core.Set("length_option", kTwoLengths);
      LengthOptionChosen(core.Pending(), table);
      core.Type("length_1", "6");
      core.Type("length_2", "10");
    }
    Close(dialog_.get(), ok);
    if (ok) {
      core.Commit();
      ApplyTwoDOptions(*expected, table);
    }
    QVERIFY(SameReader(*doc_, *expected));
    if (ok && table.length_option != nullptr) {
      QCOMPARE(ReadWorking(*doc_, *table.length1), 10u);
      QCOMPARE(ReadWorking(*doc_, *table.length2), 6u);
    }
  }

 private:
  TwoDOptionsDialog& TwoDDialog(const TwoDOptionDialog& table) {
    dialog_ = std::make_unique<TwoDOptionsDialog>(*doc_, table);
    return *dialog_;
  }
  std::unique_ptr<Document> doc_;
  std::unique_ptr<TwoDOptionsDialog> dialog_;
};

QTEST_MAIN(SymbologyDialogsTest)
#include "symbology_dialogs_test.moc"
