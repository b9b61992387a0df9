// The pages of the settings sheet driven as a user does, step by step, from the scripts in
// tests/ui/data/page_scripts.txt (the file's header explains the steps).
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>
#include <memory>

#include "capture/screen_page.h"
#include "cli/settings_input.h"
#include "resources/text_qt.h"
#include "settings/document.h"
#include "settings/emulation/function_key_dialog.h"
#include "settings/field_values.h"
#include "settings/reader/advanced_barcode_dialog.h"
#include "settings/reader/rfid_dialog.h"
#include "settings/reader/symbology_dialog.h"
#include "settings/reader/working_block.h"
#include "settings/settings_page.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "shell/summary.h"
#include "support/modal.h"
#include "support/page_test.h"

using namespace veltrix;

namespace {

struct Script {
  QString name;
  QList<QPair<int, QString>> steps;  // line number, step
};

QList<Script> ReadScripts() {
  QFile file(QStringLiteral(VELTRIX_SOURCE_DIR "/tests/ui/data/page_scripts.txt"));
  QList<Script> scripts;
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) qFatal("no page_scripts.txt");
  int number = 0;
  for (const QByteArray& raw : file.readAll().split('\n')) {
    const QString line = QString::fromUtf8(raw).trimmed();
    ++number;
    if (line.isEmpty() || line.startsWith('#')) continue;
    if (line.startsWith("case ")) {
      scripts.append({line.mid(5), {}});
    } else if (!scripts.isEmpty()) {
      scripts.last().steps.append({number, line});
    }
  }
  return scripts;
}

// What a control shows: an edit's or label's text, a list's entry, a button's check mark.
QString Shown(QWidget* w) {
  if (auto* edit = qobject_cast<QLineEdit*>(w)) return edit->text();
  if (auto* spin = qobject_cast<QAbstractSpinBox*>(w)) return spin->text();
  if (auto* combo = qobject_cast<QComboBox*>(w)) return combo->currentText();
  if (auto* label = qobject_cast<QLabel*>(w)) return label->text();
  if (auto* text = qobject_cast<QPlainTextEdit*>(w)) return text->toPlainText();
  if (auto* button = qobject_cast<QAbstractButton*>(w)) {
    return button->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
  }
  return {};
}

// The one element a name stands for ("HostRow[0][1]"), and its value as veltrix-cli get prints it.
FieldElement Element(const QString& name) {
  const ElementLookup lookup = LookUpElement(name.toStdString());
  if (!lookup.single()) qFatal("no field element %s", qPrintable(name));
  return ElementsOf(lookup)[0];
}
QString Formatted(const SettingsRecord& record, const QString& name) {
  return QString::fromLatin1(FormatElementValue(record, Element(name))).trimmed();
}

}  // namespace

class PageScriptsTest : public QObject {
  Q_OBJECT

 private slots:
  void scripts_data() {
    QTest::addColumn<int>("index");
    const QList<Script> all = ReadScripts();
    for (int i = 0; i < all.size(); ++i) QTest::newRow(qPrintable(all[i].name)) << i;
  }

  void scripts() {
    QFETCH(int, index);
    const Script script = ReadScripts()[index];
    auto doc = std::make_unique<Document>();
    std::unique_ptr<QWidget> parent;
    SettingsPage* page = nullptr;
    std::unique_ptr<QDialog> dialog;
    std::unique_ptr<SettingsSheetDialog> sheet;
    QStringList messages;  // what the Screen page told the user
    static const QStringList kPages = {"system", "barcode", "wlan", "emulation", "screen"};
    for (const auto& [number, step] : script.steps) {
      const QString where = QStringLiteral("line %1: %2").arg(number).arg(step);
      const QString verb = step.section(' ', 0, 0);
      const QString name = step.section(' ', 1, 1);
      const QString rest = step.section(' ', 2);
      if (verb == "new") {
        SetDefaults(*doc, name.toInt());
        continue;
      }
      if (verb == "set") {
        QVERIFY2(cli::ApplySetAssignment(*doc, step.mid(4).toStdString()).empty(),
                 qPrintable(where));
        CopyRecordToReaderBlocks(*doc);  // as a file with these bytes opens
        continue;
      }
      if (verb == "raw") {  // a number no control would store: from a file
        const FieldElement e = Element(name.section('=', 0, 0));
        WriteNumber(doc->record, *e.field, name.section('=', 1).toUInt(), e.i, e.j);
        CopyRecordToReaderBlocks(*doc);
        continue;
      }
      if (verb == "working") {  // a reader field's working copy, as OK would store it
        Document copy = *doc;
        CopyReaderBlocksToRecord(copy);
        QCOMPARE(Formatted(copy.record, name.section('=', 0, 0)), name.section('=', 1));
        continue;
      }
      if (verb == "summary") {
        const std::string summary = RenderSummaryText(BuildSummary(*doc));
        QVERIFY2(summary.find(step.mid(8).toStdString()) != std::string::npos, qPrintable(where));
        continue;
      }
      if (verb == "modified") {
        QVERIFY2(doc->modified == (name == "yes"), qPrintable(where));
        continue;
      }
      if (verb == "sheet") {
        sheet = std::make_unique<SettingsSheetDialog>(*doc, SettingsPageRegistry::Installed());
        sheet->show();
        page = sheet->page(0);
        continue;
      }
      if (verb == "tab") {
        sheet->tabs()->setCurrentIndex(kPages.indexOf(name));
        page = sheet->page(kPages.indexOf(name));
      }
      if (verb == "stored") {
        const QString value = Formatted(doc->record, name.section('=', 0, 0));
        QVERIFY2(value == (name.section('=', 1) + ' ' + rest).trimmed(),
                 qPrintable(where + " holds " + value));
        continue;
      }
      if (verb == "page") {
        parent = std::make_unique<QWidget>();
        page = SettingsPageRegistry::Installed().Create(
            static_cast<SheetPageId>(kPages.indexOf(name)), *doc, parent.get());
        page->Initialise(*doc);
        page->SetActive(*doc);
      }
      if (auto* screen = qobject_cast<ScreenPage*>(page); screen != nullptr && verb != "screens") {
        screen->SetMessageShower([&messages](const QString&, const QString& t) { messages << t; });
        screen->SetQuestion([](const QString&, const QString&) { return true; });
      }
      if (verb == "page" || verb == "tab") continue;
      if (verb == "screens") {  // the file the Screen page's "Load" is given, from tests/ui/data
        const std::string file = VELTRIX_SOURCE_DIR "/tests/ui/data/" + name.toStdString();
        qobject_cast<ScreenPage*>(page)->SetFileAsker([file] { return std::optional(file); });
        continue;
      }
      if (verb == "told") {
        QVERIFY2(messages.value(messages.size() - 1) == step.mid(5), qPrintable(where));
        continue;
      }
      if (verb == "active") {
        page->SetActive(*doc);
        continue;
      }
      if (verb == "dialog") {
        if (name == "rfid") {
          dialog = std::make_unique<RfidDialog>(*doc);
        } else if (name == "advanced") {
          dialog = std::make_unique<AdvancedBarcodeDialog>(*doc);
        } else if (name == "function-key") {
          dialog = std::make_unique<FunctionKeyDialog>(*doc, rest.toInt());
        } else if (const auto* linear = FindLinearOptionDialog(name.toStdString())) {
          dialog = std::make_unique<LinearOptionsDialog>(*doc, *linear);
        } else if (const auto* two_d = FindTwoDOptionDialog(name.toStdString())) {
          dialog = std::make_unique<TwoDOptionsDialog>(*doc, *two_d);
        }
        QVERIFY2(dialog != nullptr, qPrintable(where));
        dialog->show();
        continue;
      }
      if (verb == "ok" || verb == "cancel") {  // the dialog open, else the sheet
        QDialog* closing = dialog != nullptr ? dialog.get() : sheet.get();
        QVERIFY2(closing != nullptr, qPrintable(where));
        verb == "ok" ? closing->accept() : closing->reject();
        if (dialog != nullptr) {
          dialog.reset();
        } else {
          sheet.reset();
          page = nullptr;
        }
        continue;
      }
      if (verb == "apply") {
        page->Apply(*doc);
        continue;
      }
      QWidget* within = dialog != nullptr ? static_cast<QWidget*>(dialog.get()) : page;
      QVERIFY2(within != nullptr, qPrintable(where));
      QWidget* control = testing::FindControl<QWidget>(within, name);
      QString message;
      const bool refused = step.endsWith(" refused");
      if (refused) testing::AnswerMessageBox(&message);
      if (verb == "click") {
        qobject_cast<QAbstractButton*>(control)->click();
      } else if (verb == "choose" || verb == "pick") {  // pick: as the user's choice is signalled
        auto* list = qobject_cast<QComboBox*>(control);
        list->setCurrentIndex(rest.section(' ', 0, 0).toInt());
        if (verb == "pick") emit list->activated(list->currentIndex());
      } else if (verb ==
                 "grid") {  // a click opens "The Grid Control"; keys in it, then OK or Cancel
        const QStringList keys = rest.split(' ');
        QString refusal;
        testing::WhenModal([&keys, &refusal](QWidget* grid) {
          QWidget* chart = grid->findChild<QWidget*>("grid_chart");
          for (const QString& key : keys) {
            if (key == "clear") {
              grid->findChild<QAbstractButton*>("grid_clear")->click();
            } else if (key == "ok" || key == "cancel") {
              key == "ok" ? qobject_cast<QDialog*>(grid)->accept()
                          : qobject_cast<QDialog*>(grid)->reject();
            } else if (key == "refused") {  // the next Enter: "Too many characters !!!"
              testing::AnswerMessageBox(&refusal, grid);
            } else {
              QTest::keyClick(chart, static_cast<Qt::Key>(QKeySequence(key)[0].key()));
            }
          }
        });
        QTest::mouseClick(control, Qt::LeftButton);
        if (keys.contains("refused")) {
          QCOMPARE(refusal, QString("The Grid Control: Too many characters !!!"));
        }
      } else if (verb == "key") {
        control->setFocus();
        QTest::keyClick(control, static_cast<Qt::Key>(QKeySequence(rest)[0].key()));
      } else if (verb == "holds") {
        QVERIFY2(Shown(control).contains(rest), qPrintable(where + " shows " + Shown(control)));
      } else if (verb == "append") {  // typed behind what the edit holds, key by key
        for (const QChar c : rest) {
          QTest::sendKeyEvent(QTest::Click, control,
                              c.unicode() < 128 ? Qt::Key(c.toUpper().unicode()) : Qt::Key_unknown,
                              c, Qt::NoModifier);
        }
      } else if (verb == "type") {  // into an edit, or a spin box's edit
        auto* edit = qobject_cast<QLineEdit*>(control);
        testing::TypeInto(edit != nullptr ? edit : control->findChild<QLineEdit*>(), rest);
      } else if (verb == "shows") {
        auto* button = qobject_cast<QAbstractButton*>(control);
        const QString shown = button != nullptr && rest != "checked" && rest != "unchecked"
                                  ? button->text()
                                  : Shown(control).trimmed();
        QVERIFY2(shown == rest, qPrintable(where + " shows " + shown));
      } else if (verb == "enabled" || verb == "disabled") {
        QVERIFY2(control->isEnabled() == (verb == "enabled"), qPrintable(where));
      } else if (verb == "hidden" || verb == "visible") {
        QVERIFY2(control->isVisibleTo(within) == (verb == "visible"), qPrintable(where));
      } else {
        QFAIL(qPrintable(where + ": unknown step"));
      }
      if (refused) {
        QTRY_COMPARE(message,
                     QString("Function Key Mapping: The function key is defined already !!"));
      }
    }
  }
};

QTEST_MAIN(PageScriptsTest)
#include "page_scripts_test.moc"
