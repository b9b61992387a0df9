#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "demo_host/demo_host_server.h"
#include "settings/field_registry.h"
#include "shell/command_table.h"
#include "shell/host_session_setup_qt.h"
#include "shell/main_window.h"
#include "support/fake_ports.h"
#include "tn5250/host_connection_qt.h"
#include "tn5250/host_screen_widget.h"
#include "tn5250/terminal_status_widget.h"

namespace veltrix {

// The host session inside the main window: the Telnet commands, the host screen taking the tree's
// place, and the host ending the connection.
class HostMainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    prompt_.shown.clear();
    server_ = std::make_unique<demo_host::DemoHostServer>();
    QVERIFY(server_->Listen(0));
    window_ = std::make_unique<MainWindow>(MainWindow::Ports{&prompt_, &chooser_},
                                           SettingsPageRegistry::Installed());
    parts_ = InstallHostSession(*window_);
    WriteNumber(window_->document().record, *FindField("TelnetPort"), server_->port());
    window_->show();
  }
  void cleanup() {
    window_.reset();
    server_.reset();
  }
  void connectShowsTheHostScreenAndDisconnectTheTree() {
    QVERIFY(Enabled(kCmdConnect));
    QVERIFY(!Enabled(kCmdDisconnect));
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    // Connecting does not hold the window; only Disconnect (giving up) is on meanwhile.
    QCOMPARE(Status(), QStringLiteral("Connecting to 127.0.0.1:%1...").arg(server_->port()));
    QVERIFY(!Enabled(kCmdConnect) && Enabled(kCmdDisconnect) && !Enabled(kCmdStartCapture));
    QTRY_VERIFY(parts_.connection->connected());
    QCOMPARE(Status(), QStringLiteral("Connected"));
    QCOMPARE(parts_.status->findChild<QLabel*>("terminal_host")->text(),
             QStringLiteral("127.0.0.1:%1").arg(server_->port()));
    QVERIFY(parts_.screen->isVisible());
    QVERIFY(Enabled(kCmdStartCapture) && !Enabled(kCmdCapture));
    QTRY_VERIFY(parts_.screen->RowText(0).contains(QStringLiteral("Sign On")));
    // In a small window every row still shows, the error line and the key legend included.
    window_->resize(800, 500);
    QTRY_VERIFY(parts_.screen->contentsRect().contains(parts_.screen->CellRectangle(23, 79)));
    QVERIFY(window_->height() <= 500);
    // For a look at it (kept in the build folder).
    QVERIFY(window_->grab().save(QDir(VELTRIX_BINARY_DIR).filePath("host_window_800x500.png")));

    window_->ExecuteCommand(kCmdDisconnect);
    QVERIFY(!parts_.connection->connected());
    QVERIFY(!parts_.screen->isVisible());
    QVERIFY(Enabled(kCmdConnect) && !Enabled(kCmdDisconnect) && !Enabled(kCmdStartCapture));
  }
  void refusedConnectionSaysWhereAndWhy() {
    // A port that nobody listens on: take one and close it again.
    QTcpServer probe;
    QVERIFY(probe.listen(QHostAddress::LocalHost, 0));
    const quint16 port = probe.serverPort();
    probe.close();
    WriteNumber(window_->document().record, *FindField("TelnetPort"), port);
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    QTRY_VERIFY(!prompt_.shown.empty());
    QCOMPARE(QString::fromStdString(prompt_.shown.front().text),
             QStringLiteral("Can not establish connection"));
    QCOMPARE(Status(),
             QStringLiteral("Can not establish connection to 127.0.0.1:%1: Connection refused")
                 .arg(port));
    QVERIFY(Enabled(kCmdConnect));
    QVERIFY(!Enabled(kCmdDisconnect));
    QVERIFY(!parts_.screen->isVisible());
  }
  void connectingCanBeCancelled() {
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    auto* cancel = window_->findChild<QPushButton*>(QStringLiteral("cancel_connect"));
    QVERIFY(cancel != nullptr && cancel->isVisible());
    QTest::mouseClick(cancel, Qt::LeftButton);
    QVERIFY(!cancel->isVisible());
    QVERIFY(Enabled(kCmdConnect));
    QTest::qWait(100);  // the answer of the given-up attempt changes nothing
    QVERIFY(!parts_.connection->connected());
    QVERIFY(!parts_.screen->isVisible());
    QVERIFY(prompt_.shown.empty());
  }
  void statusBarAndPointerFollowTheTerminal() {
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    QTRY_COMPARE(Label("terminal_keyboard"), QStringLiteral("Ready"));
    QCOMPARE(Label("terminal_host"), QStringLiteral("127.0.0.1:%1").arg(server_->port()));
    QCOMPARE(Label("terminal_cursor"), QStringLiteral("Row 6 Col 53"));
    const Session& session = parts_.connection->connection().session();
    QVERIFY(session.Fields().Count() >= 2);
    const FieldRecord password = session.Fields().Records()[1];

    // A click on an input cell puts the cursor there; a click on text outside the fields does not.
    QTest::mouseClick(parts_.screen, Qt::LeftButton, {},
                      parts_.screen->CellRectangle(password.row, password.column + 2).center());
    QCOMPARE(session.CursorRow(), password.row);
    QCOMPARE(session.CursorColumn(), password.column + 2);
    QCOMPARE(Label("terminal_cursor"),
             QStringLiteral("Row %1 Col %2").arg(password.row + 1).arg(password.column + 3));
    QTest::mouseClick(parts_.screen, Qt::LeftButton, {},
                      parts_.screen->CellRectangle(0, 0).center());
    QCOMPARE(session.CursorColumn(), password.column + 2);

    // An input method's committed text is typed as keys are.
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("ab"));
    QCoreApplication::sendEvent(parts_.screen, &commit);
    QCOMPARE(session.Screen().Character(password.row, password.column + 2), std::uint8_t{'a'});
    QCOMPARE(session.Screen().Character(password.row, password.column + 3), std::uint8_t{'b'});

    // For a look at the window as placed on the screen, status bar included.
    QVERIFY(window_->grab().save(QDir(VELTRIX_BINARY_DIR).filePath("host_window.png")));
    QTest::keyClick(parts_.screen, Qt::Key_Return);
    QTRY_COMPARE(Label("terminal_keyboard"), QStringLiteral("Input inhibited"));
    window_->ExecuteCommand(kCmdDisconnect);
    QCOMPARE(Label("terminal_host"), QString());
  }
  void capturesThreeScreensIntoAFile() {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("three.SCR"));
    chooser_.save_result = path.toStdString();
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    QTRY_VERIFY(parts_.screen->RowText(0).contains(QStringLiteral("Sign On")));
    QTRY_VERIFY(!parts_.connection->connection().session().KeyboardLocked());
    window_->ExecuteCommand(kCmdStartCapture);
    QCOMPARE(Status(), QStringLiteral("Ready to capture"));
    QCOMPARE(chooser_.last_filter.description, std::string("Host Session Screens (*.SCR)"));
    QCOMPARE(chooser_.last_extension, std::string("SCR"));
    QVERIFY(Enabled(kCmdCapture) && Enabled(kCmdStopCapture) && !Enabled(kCmdStartCapture));
    window_->ExecuteCommand(kCmdCapture);
    QCOMPARE(Status(), QStringLiteral("Captured : 1 screens"));
    QTest::keyClicks(parts_.screen, QStringLiteral("bob"));
    QTest::keyClick(parts_.screen, Qt::Key_Return);
    QTRY_VERIFY(parts_.screen->RowText(0).contains(QStringLiteral("Main Menu")));
    QTRY_VERIFY(!parts_.connection->connection().session().KeyboardLocked());
    window_->ExecuteCommand(kCmdCapture);
    QTest::keyClicks(parts_.screen, QStringLiteral("1"));
    QTest::keyClick(parts_.screen, Qt::Key_Return);
    QTRY_VERIFY(parts_.screen->RowText(6).contains(QStringLiteral("ITEM0001")));
    window_->ExecuteCommand(kCmdCapture);
    QCOMPARE(Status(), QStringLiteral("Captured : 3 screens"));
    window_->ExecuteCommand(kCmdStopCapture);
    QVERIFY(Enabled(kCmdStartCapture) && !Enabled(kCmdCapture));
    QCOMPARE(QFileInfo(path).size(), qint64(20 + 3 * 10424));

    // Disconnecting while capturing closes the file; the next connection starts without capture.
    window_->ExecuteCommand(kCmdStartCapture);
    window_->ExecuteCommand(kCmdDisconnect);
    window_->ExecuteCommand(kCmdConnect);
    QTRY_VERIFY(parts_.connection->connected());
    QVERIFY(Enabled(kCmdStartCapture) && !Enabled(kCmdCapture) && !Enabled(kCmdStopCapture));
  }
  void hostClosingRunsTheDisconnectCommand() {
    PrepareDialog(true);
    window_->ExecuteCommand(kCmdConnect);
    QTRY_VERIFY(parts_.screen->RowText(0).contains(QStringLiteral("Sign On")));
    QTRY_VERIFY(!parts_.connection->connection().session().KeyboardLocked());
    QTest::keyClick(parts_.screen, Qt::Key_F3);
    QTRY_VERIFY(Enabled(kCmdConnect));
    QVERIFY(!parts_.screen->isVisible());
    QVERIFY(!prompt_.shown.empty());
    QCOMPARE(QString::fromStdString(prompt_.shown.front().caption), QStringLiteral("Error"));
    QCOMPARE(QString::fromStdString(prompt_.shown.front().text),
             QStringLiteral("Can not establish connection"));
    QVERIFY(!parts_.connection->connected());
    // Keys after the end go nowhere.
    const std::size_t shown = prompt_.shown.size();
    QTest::keyClick(parts_.screen, Qt::Key_Return);
    QCOMPARE(prompt_.shown.size(), shown);
    QVERIFY(Enabled(kCmdConnect));
  }
  void cancelledDialogChangesNothing() {
    PrepareDialog(false);
    window_->ExecuteCommand(kCmdConnect);
    QVERIFY(!parts_.connection->connected());
    QVERIFY(Enabled(kCmdConnect));
    QVERIFY(!parts_.screen->isVisible());
    QCOMPARE(server_->connectionCount(), 0);
    QVERIFY(prompt_.shown.empty());
  }

 private:
  bool Enabled(int command) const { return window_->action(command)->isEnabled(); }
  QString Status() const { return window_->statusBar()->currentMessage(); }
  QString Label(const char* name) const {
    auto* label = window_->findChild<QLabel*>(QString::fromLatin1(name));
    return label != nullptr && label->isVisibleTo(window_.get()) ? label->text() : QString();
  }
  void PrepareDialog(bool confirm) {
    parts_.connection->SetDialogRunner([confirm](HostIpForm& form, const std::string& entry) {
      form.Open(entry);
      return confirm && form.Confirm({"127", "0", "0", "1"}, false);
    });
  }

  FakeUserPrompt prompt_;
  FakeFileChooser chooser_;
  std::unique_ptr<demo_host::DemoHostServer> server_;
  std::unique_ptr<MainWindow> window_;
  HostSessionParts parts_;
};

}  // namespace veltrix

QTEST_MAIN(veltrix::HostMainWindowTest)
#include "host_main_window_test.moc"
