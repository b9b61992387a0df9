// Downloads over real links: veltrix-cli against veltrix-terminal-sim over a pseudo-terminal pair
// (over loopback TCP, with the simulator's faults, they are among the command-line transcripts);
// and the window's command against a terminal in-process, checking that the window keeps working
// while the progress dialog advances.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "download/download_command_qt.h"
#include "download/download_dialog.h"
#include "settings/system/system_settings.h"
#include "terminal_sim/simulated_terminal.h"

namespace veltrix {
namespace {

const QString kCli = QStringLiteral(VELTRIX_CLI_PATH);
const QString kSim = QStringLiteral(VELTRIX_BINARY_DIR "/veltrix-terminal-sim");

// The socket answers what it receives through the simulator's rules, each reply `delay_ms` later.
void AnswerAs(sim::SimulatedTerminal& terminal, QTcpSocket& socket, int delay_ms) {
  QObject::connect(&socket, &QTcpSocket::readyRead, [&terminal, &socket, delay_ms] {
    const QByteArray bytes = socket.readAll();
    for (const auto& out : terminal.Received({reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                              static_cast<std::size_t>(bytes.size())})) {
      const QByteArray reply(reinterpret_cast<const char*>(out.bytes.data()),
                             static_cast<qsizetype>(out.bytes.size()));
      QTimer::singleShot(delay_ms, &socket, [&socket, reply] { socket.write(reply); });
    }
  });
}

}  // namespace

class DownloadTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    QVERIFY(dir_.isValid());
    settings_ = dir_.filePath("a.QVL");
    QCOMPARE(QProcess::execute(kCli, {"new", "--product", "2", "--out", settings_}), 0);
  }
  void settingsOverAPseudoTerminal() {
    const QString socat = QStandardPaths::findExecutable("socat");
    if (socat.isEmpty()) QSKIP("socat is not installed");
    const QString pc = dir_.filePath("pc");
    const QString term = dir_.filePath("term");
    QProcess pair;
    pair.start(socat, {"pty,raw,echo=0,link=" + pc, "pty,raw,echo=0,link=" + term});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pc) && QFile::exists(term), 5000);
    QProcess sim;
    sim.start(kSim, {"--serial", term, "--settings-out", dir_.filePath("serial.bin")});
    QProcess cli;
    cli.start(kCli, {"download", "settings", settings_, "--via", "rs-232", "--port", pc});
    QVERIFY(cli.waitForFinished(60000));
    QCOMPARE(QString(cli.readAllStandardOutput()).trimmed(), "Download: Downloaded completely!");
    QCOMPARE(cli.exitCode(), 0);
    QVERIFY(sim.waitForFinished(10000));
    pair.terminate();
    pair.waitForFinished();
    QFile got(dir_.filePath("serial.bin"));
    QVERIFY(got.open(QIODevice::ReadOnly));
    QCOMPARE(got.size(), static_cast<qint64>(kRecordSize));
  }
  void windowStaysResponsiveAndProgressAdvances() {
    QWidget window;
    window.show();
    DownloadCommandQt command(&window);
    command.SetListenAddress(QHostAddress::LocalHost, 0);
    QStringList messages;
    command.SetPropertiesAsker([](int, int) {
      return DownloadCommandQt::Choice{static_cast<int>(DownloadVia::kRf), QString(), 0};
    });
    command.SetMessageShower(
        [&](const QString& caption, const QString& text) { messages << caption + ": " + text; });
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    command.Run(DownloadKind::kSettings, *doc);
    QVERIFY(command.running());

    // The terminal, in-process, answering through the simulator's rules.
    const quint16 port = command.session()->listening_port();
    QVERIFY(port != 0);
    sim::SimulatedTerminal terminal;
    QTcpSocket socket;
    AnswerAs(terminal, socket, 0);
    socket.connectToHost(QHostAddress::LocalHost, port);

    int ticks = 0;  // the event loop's heartbeat during the download
    QTimer heartbeat;
    connect(&heartbeat, &QTimer::timeout, [&] { ++ticks; });
    heartbeat.start(20);
    QTRY_VERIFY_WITH_TIMEOUT(command.progress() != nullptr, 5000);
    // Every position the bar takes, however quickly the transfer runs on this machine.
    QList<int> positions{command.progress()->bar()->value()};
    connect(command.progress()->bar(), &QProgressBar::valueChanged,
            [&](int value) { positions << value; });
    QTRY_VERIFY_WITH_TIMEOUT(!command.running(), 20000);
    QVERIFY(ticks > 50);  // more than a second of the pause and the transfer, beat by beat
    QVERIFY(std::adjacent_find(positions.begin(), positions.end(), std::greater<int>()) ==
            positions.end());
    QVERIFY(positions.size() > 3 && positions.back() > positions.front());
    QCOMPARE(messages, QStringList{"Download: Downloaded completely!"});
    QVERIFY(terminal.settings_complete());
  }
  void propertiesDialogStartsAtTheFirstPort() {
    DownloadPropertiesDialog dialog(3, 2, {"ttyS0", "ttyUSB0"});
    QCOMPARE(dialog.via_box()->currentText(), "RF");
    QCOMPARE(dialog.port_box()->currentText(), "ttyS0");
    QCOMPARE(dialog.rate_box()->currentText(), "38400 bps");
    QVERIFY(!dialog.port_box()->isEnabled());  // RF needs no port
    dialog.via_box()->setCurrentIndex(1);
    QVERIFY(dialog.port_box()->isEnabled());
    dialog.port_box()->setEditText("/dev/pts/7");  // a port the system does not list
    QCOMPARE(dialog.port(), "/dev/pts/7");
  }
  void closingTheWindowMidTransferClosesTheLink() {
    auto* window = new QWidget;
    auto* command = new DownloadCommandQt(window);
    command->SetListenAddress(QHostAddress::LocalHost, 0);
    command->SetPropertiesAsker([](int, int) {
      return DownloadCommandQt::Choice{static_cast<int>(DownloadVia::kRf), QString(), 0};
    });
    command->SetMessageShower([](const QString&, const QString&) { QFAIL("no message expected"); });
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    command->Run(DownloadKind::kSettings, *doc);
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, command->session()->listening_port());
    QVERIFY(socket.waitForConnected(5000));
    socket.write("ACK\r");  // the handshake's answer
    QTRY_VERIFY_WITH_TIMEOUT(command->progress() != nullptr, 5000);
    delete window;
    QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QAbstractSocket::UnconnectedState, 5000);
  }
  void closingTheProgressWindowAsksAndReports() {
    QWidget window;
    DownloadCommandQt command(&window);
    command.SetListenAddress(QHostAddress::LocalHost, 0);
    command.SetPropertiesAsker([](int, int) {
      return DownloadCommandQt::Choice{static_cast<int>(DownloadVia::kRf), QString(), 0};
    });
    QStringList asked;
    bool answer = false;
    command.SetStopAsker([&](const QString& caption, const QString& text) {
      asked << caption + ": " + text;
      return answer;
    });
    QString status;
    connect(&command, &DownloadCommandQt::statusChanged, [&](const QString& s) { status = s; });
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    command.Run(DownloadKind::kSettings, *doc);
    // A terminal that acknowledges slowly, so that the transfer is under way when the window goes.
    sim::SimulatedTerminal terminal;
    QTcpSocket socket;
    AnswerAs(terminal, socket, 20);
    socket.connectToHost(QHostAddress::LocalHost, command.session()->listening_port());
    QTRY_VERIFY_WITH_TIMEOUT(command.progress() != nullptr, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(command.progress()->bar()->value() >= 3, 10000);
    command.progress()->close();  // No: the download goes on
    QCOMPARE(asked, QStringList{
                        "Download: Stop the download? The terminal keeps an incomplete settings."});
    QVERIFY(command.running());
    answer = true;
    command.progress()->close();
    QTRY_VERIFY(!command.running());
    QVERIFY2(status.contains(QRegularExpression("^Download stopped after block \\d+ of 598$")),
             qPrintable(status));
    QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QAbstractSocket::UnconnectedState, 5000);
  }
  void theRfWaitCancelsAndASecondCommandRaisesIt() {
    QWidget window;
    DownloadCommandQt command(&window);
    command.SetListenAddress(QHostAddress::LocalHost, 0);
    int asked_properties = 0;
    command.SetPropertiesAsker([&](int, int) {
      ++asked_properties;
      return DownloadCommandQt::Choice{static_cast<int>(DownloadVia::kRf), QString(), 0};
    });
    command.SetStopAsker([](const QString&, const QString&) {
      qFatal("nothing reached the terminal: no question");
      return true;
    });
    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    command.Run(DownloadKind::kSettings, *doc);
    QVERIFY(command.waiting() != nullptr);
    QVERIFY(command.waiting()->isVisible());
    command.waiting()->hide();
    command.Run(DownloadKind::kSettings, *doc);  // the second command shows the wait again
    QCOMPARE(asked_properties, 1);
    QVERIFY(command.waiting()->isVisible());
    auto* cancel =
        command.waiting()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
    QTest::mouseClick(cancel, Qt::LeftButton);
    QTRY_VERIFY(!command.running());
    QCOMPARE(command.session(), nullptr);
  }

 private:
  QTemporaryDir dir_;
  QString settings_;
};

}  // namespace veltrix

QTEST_MAIN(veltrix::DownloadTest)
#include "download_test.moc"
