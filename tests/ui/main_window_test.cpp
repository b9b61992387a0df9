#include "shell/main_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QtTest>
#include <functional>
#include <memory>

#include "settings/settings_page.h"
#include "shell/command_table.h"
#include "shell/file_chooser_qt.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "shell/summary_view.h"
#include "shell/window_extensions_qt.h"
#include "support/fake_ports.h"

using namespace veltrix;

namespace {

// A System page stand-in: the sheet needs one registered page.
class ProbePage : public SettingsPage {
 public:
  ProbePage(Document& doc, QWidget* parent) : SettingsPage(doc, parent) {}
  void Initialise(Document&) override {}
};

// Closes the sheet with OK or Cancel as soon as it is shown modally.
void OnNextSheet(bool ok) {
  QTimer::singleShot(0, [ok] {
    auto* sheet = qobject_cast<SettingsSheetDialog*>(QApplication::activeModalWidget());
    QVERIFY(sheet);
    if (ok) {
      sheet->accept();
    } else {
      sheet->reject();
    }
  });
}

// Records the keys it receives.
class KeyProbe : public QWidget {
 public:
  KeyProbe() { setFocusPolicy(Qt::StrongFocus); }
  QString keys;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Control) return;
    keys += QKeySequence(event->key() | event->modifiers()).toString() + " ";
  }
};

}  // namespace

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    prompt_ = std::make_unique<FakeUserPrompt>();
    chooser_ = std::make_unique<FakeFileChooser>();
    registry_ = SettingsPageRegistry();
    registry_.Register<ProbePage>(SheetPageId::kSystem);
    window_ =
        std::make_unique<MainWindow>(MainWindow::Ports{prompt_.get(), chooser_.get()}, registry_);
  }
  void cleanup() {
    window_->document().modified = false;
    window_.reset();
  }

  void startUpState() {
    QCOMPARE(window_->windowTitle(), QString("Veltrix - TN5250[*]"));
    QVERIFY(!window_->isWindowModified());
    QCOMPARE(window_->product_box()->currentText(), QString("Select Product"));
    QCOMPARE(window_->product_box()->count(), 3);
    QCOMPARE(window_->summary_view()->topLevelItemCount(), 0);
    QCOMPARE(window_->document().product(), 0);
    QVERIFY(!window_->document().modified);
    QVERIFY(window_->action(kCmdConnect)->isEnabled());
    for (int id : {kCmdDisconnect, kCmdStartCapture, kCmdCapture, kCmdStopCapture}) {
      QVERIFY2(!window_->action(id)->isEnabled(), qPrintable(QString::number(id)));
    }
    QVERIFY(prompt_->shown.empty());  // the About box is main()'s, not the window's
  }

  // The texts come from the command table; here only that they reach the actions.
  void menusCarryTextsDescriptionsAndShortcuts() {
    QCOMPARE(window_->action(kCmdSaveAs)->text(), QString("Save &As..."));
    QCOMPARE(window_->action(kCmdNew)->shortcut(), QKeySequence("Ctrl+N"));
    QCOMPARE(window_->action(kCmdConnect)->toolTip(), QString("Connect"));
    window_->action(kCmdStopCapture)->showStatusText(window_.get());
    QCOMPARE(window_->statusBar()->currentMessage(), QString("Stop capture screen"));
  }

  // Open branches stay open when the tree is rebuilt; Copy gives the branch as indented lines.
  void treeKeepsOpenBranchesAndCopies() {
    window_->product_box()->setCurrentIndex(1);
    emit window_->product_box()->activated(1);
    SummaryView* tree = window_->summary_view();
    QTreeWidgetItem* system = tree->topLevelItem(1);
    int branch = 0;
    while (system->child(branch)->childCount() == 0) ++branch;  // Security
    QVERIFY(system->child(branch)->text(0).startsWith("Security"));
    tree->expandItem(system);
    tree->expandItem(system->child(branch));
    OnNextSheet(true);
    window_->ExecuteCommand(kCmdConfigure);  // OK rebuilds the tree
    QVERIFY(tree->topLevelItem(1)->isExpanded());
    QVERIFY(tree->topLevelItem(1)->child(branch)->isExpanded());
    QVERIFY(!tree->topLevelItem(0)->isExpanded());
    tree->setCurrentItem(tree->topLevelItem(1)->child(branch));
    tree->CopySelectedBranch();
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY2(copied.startsWith(tree->topLevelItem(1)->child(branch)->text(0) + "\n  "),
             qPrintable(copied));
    QCOMPARE(copied.count('\n'), 1 + tree->topLevelItem(1)->child(branch)->childCount());
  }

  void productChoiceFillsTheTree() {
    window_->product_box()->setCurrentIndex(1);
    emit window_->product_box()->activated(1);
    SummaryView* tree = window_->summary_view();
    QCOMPARE(tree->topLevelItemCount(), 6);  // the sections and their order are the core's
    QVERIFY(tree->topLevelItem(0)->child(0)->text(0).endsWith("Dravin S"));
    QCOMPARE(window_->document().product(), 1);
  }

  void toolbarHasTheButtonsInOrder() {
    QStringList layout;
    for (QAction* a : window_->tool_bar()->actions()) {
      if (a->isSeparator()) {
        layout << "|";
      } else if (a->data().isValid()) {
        layout << QString::number(a->data().toInt());
        QVERIFY(!a->icon().isNull());
        QVERIFY(!a->icon().pixmap(QSize(16, 15)).isNull());
        QVERIFY(!a->isCheckable());
      } else {
        layout << "box";
      }
    }
    QCOMPARE(layout.join(' '),
             QString("| 1010 1020 1030 | 1110 1210 | 1340 1350 | 1320 1310 1330 | box"));
    QVERIFY(window_->product_box()->parentWidget() == window_->tool_bar());
  }

  void configureOkSetsModifiedAndCloseAsks() {
    emit window_->product_box()->activated(1);
    OnNextSheet(true);
    window_->ExecuteCommand(kCmdConfigure);
    QVERIFY(window_->document().modified);
    QVERIFY(window_->isWindowModified());  // the title marks unsaved changes
    // Closing asks (the answers' effects are the core's); Cancel keeps the window.
    window_->show();
    prompt_->answers = {PromptAnswer::kCancel};
    QVERIFY(!window_->close());
    QCOMPARE(prompt_->shown.back().text, std::string("Save the program ?"));
  }

  // Changed bytes mark the title even with the flag cleared; a product change replaces the
  // document, says Ctrl+Z brings it back, and Ctrl+Z does, once.
  void productChangeCanBeUndone() {
    window_->show();
    emit window_->product_box()->activated(1);
    Document& doc = window_->document();
    doc.record[kSettingsFileSize % kRecordSize] ^= 0x01;
    doc.modified = false;
    OnNextSheet(false);
    window_->ExecuteCommand(kCmdConfigure);  // Configure-Cancel: the flag stays cleared
    QVERIFY(window_->isWindowModified());
    window_->product_box()->setCurrentIndex(2);
    emit window_->product_box()->activated(2);
    QCOMPARE(doc.product(), 2);
    QVERIFY(!window_->isWindowModified());
    QVERIFY(window_->statusBar()->currentMessage().contains(QStringLiteral("Ctrl+Z")));
    QVERIFY(window_->action(kCmdUndo)->isEnabled());
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    QTest::keyClick(window_->summary_view(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(doc.product(), 1);
    QCOMPARE(window_->product_box()->currentIndex(), 1);
    QVERIFY(window_->isWindowModified());
    QVERIFY(!window_->action(kCmdUndo)->isEnabled());
  }

  void dialogsAreAsWideAsTheirCaptions() {
    FitDialogsToTheirCaptions();
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Advanced Barcode Settings"));
    dialog.show();
    QVERIFY(dialog.width() >= CaptionWidth(dialog.windowTitle()));
  }

  void saveAsThenOpenRoundTrip() {
    QTemporaryDir folder;
    emit window_->product_box()->activated(2);
    window_->document().modified = true;
    const QString path = QDir(folder.path()).filePath("terminal.QVL");
    chooser_->save_result = path.toStdString();
    window_->ExecuteCommand(kCmdSaveAs);
    QVERIFY(QFile::exists(path));
    QCOMPARE(window_->windowTitle(), QString("terminal.QVL[*] - Veltrix - TN5250"));
    QVERIFY(!window_->isWindowModified());
    QVERIFY(!window_->document().modified);
    QCOMPARE(QString::fromStdString(window_->document().file_name), path);

    emit window_->product_box()->activated(1);  // forget it all
    chooser_->open_result = path.toStdString();
    OnNextSheet(false);
    window_->ExecuteCommand(kCmdOpen);
    QCOMPARE(window_->document().product(), 2);
    QCOMPARE(window_->product_box()->currentIndex(), 2);
    QCOMPARE(QString::fromStdString(window_->document().file_name), path);
  }

  // The real file dialogs: each starts in the folder a file was last chosen in, and is large
  // enough to read its columns.
  void fileDialogsStartInTheLastFolder() {
    QTemporaryDir folder;
    QtFileChooser chooser(window_.get());
    QString seen_folder;
    QSize seen_size;
    auto answer = [&](const QString& file) {
      QTimer::singleShot(0, [&, file] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        seen_folder = dialog->directory().absolutePath();
        seen_size = dialog->size();
        dialog->selectFile(file);
        QMetaObject::invokeMethod(dialog, "accept");
      });
    };
    answer(QDir(folder.path()).filePath("a.QVL"));
    QVERIFY(chooser.ChooseFileToSave({"Settings (*.QVL)", "*.QVL"}, "QVL"));
    QVERIFY(seen_size.width() >= 640);
    answer(QDir(folder.path()).filePath("b.QVL"));
    QVERIFY(chooser.ChooseFileToSave({"Settings (*.QVL)", "*.QVL"}, "QVL"));
    QCOMPARE(seen_folder, QDir(folder.path()).absolutePath());
  }

  void aSessionReportingDisconnectWhileTheWindowGoesIsHarmless() {
    struct DyingHost : QWidget {
      std::function<void()> on_death;
      ~DyingHost() override { on_death(); }
    };
    auto* host = new DyingHost;
    MainWindow* window = window_.get();
    host->on_death = [window] { window->ExecuteCommand(kCmdDisconnect); };
    window_->SetHostScreenWidget(host);
    window_->SetSessionHandlers(SessionHandlers{[] {
                                                  return ConnectAttempt{true, true};
                                                },
                                                [] {},
                                                {},
                                                {},
                                                {}});
    window_->ExecuteCommand(kCmdConnect);
    window_.reset();  // must not crash
    window_ =
        std::make_unique<MainWindow>(MainWindow::Ports{prompt_.get(), chooser_.get()}, registry_);
  }

  // Started from a toolbar button, a command shows its description as from the menu; leaving
  // the button (its empty status tip) does not wipe it.
  void toolbarCommandsShowTheirDescription() {
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    QWidget* button = window_->tool_bar()->widgetForAction(window_->action(kCmdConnect));
    QTest::mouseMove(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(prompt_->shown.size(), size_t(1));  // no session in this window
    QTest::mouseMove(window_->summary_view());
    QStatusTipEvent leave{QString()};
    QApplication::sendEvent(button, &leave);
    QCOMPARE(window_->statusBar()->currentMessage(), QString("Connect to host"));
  }

  void clientAreaSitsTwoPixelsBelowTheToolbar() {
    window_->resize(800, 600);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    const QRect tree = window_->summary_view()->geometry().translated(
        window_->summary_view()->mapTo(window_.get(), QPoint(0, 0)) -
        window_->summary_view()->pos());
    const QRect bar = window_->tool_bar()->geometry();
    QCOMPARE(tree.top(), bar.bottom() + 1 + 2);
    QCOMPARE(tree.bottom() + 1, window_->statusBar()->geometry().top());
    window_->resize(640, 480);
    QTRY_COMPARE(window_->summary_view()->mapTo(window_.get(), QPoint(0, 0)).y(),
                 window_->tool_bar()->geometry().bottom() + 3);
  }

  void acceleratorsAct() {
    window_->show();
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    QTest::keyClick(window_->summary_view(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(prompt_->shown.size(), size_t(1));
    QCOMPARE(prompt_->shown[0].text, std::string("Please select product !!"));
    QTRY_VERIFY(window_->product_box()->hasFocus());  // the refusal points at the box
    QTest::keyClick(window_->summary_view(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(chooser_->open_calls, 1);
    QTest::keyClick(window_->summary_view(), Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(window_->download_mode(), int(kCmdDownloadProgram));
    for (Qt::Key key : {Qt::Key_S, Qt::Key_C, Qt::Key_D}) {
      const size_t before = prompt_->shown.size();
      QTest::keyClick(window_->summary_view(), key, Qt::ControlModifier);
      QCOMPARE(prompt_->shown.size(), before + 1);  // each needs a product
    }
  }

  void focusedHostScreenTakesTheAcceleratorKeys() {
    auto* host = new KeyProbe;
    window_->SetHostScreenWidget(host);
    window_->SetSessionHandlers(SessionHandlers{[] {
                                                  return ConnectAttempt{true, true};
                                                },
                                                [] {},
                                                {},
                                                {},
                                                {}});
    window_->show();
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    window_->ExecuteCommand(kCmdConnect);
    QTRY_VERIFY(host->hasFocus());
    QTest::keyClick(host, Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(host, Qt::Key_O, Qt::ControlModifier);
    QVERIFY(prompt_->shown.empty());
    QCOMPARE(chooser_->open_calls, 0);
    QCOMPARE(host->keys, QString("Ctrl+N Ctrl+O "));
  }

 private:
  std::unique_ptr<FakeUserPrompt> prompt_;
  std::unique_ptr<FakeFileChooser> chooser_;
  SettingsPageRegistry registry_;
  std::unique_ptr<MainWindow> window_;
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
