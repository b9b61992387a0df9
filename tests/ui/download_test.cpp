// Downloads over real links: veltrix-cli against veltrix-terminal-sim over loopback TCP and over a
// pseudo-terminal pair, with the simulator's faults; and the window's command against a terminal
// in-process, checking that the window keeps working while the progress dialog advances.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
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

// A program of `bytes` random-looking data bytes in S3 records of 32, loaded at 0x8000.
QByteArray Program(int bytes, QByteArray* data) {
  QByteArray text;
  for (int i = 0; i < bytes; ++i) data->append(static_cast<char>((i * 37 + 11) & 0xFF));
  for (int at = 0; at < bytes; at += 32) {
    QByteArray body;
    const QByteArray chunk = data->mid(at, 32);
    body.append(static_cast<char>(chunk.size() + 5));
    const quint32 address = 0x8000 + static_cast<quint32>(at);
    for (int s = 24; s >= 0; s -= 8) body.append(static_cast<char>(address >> s));
    body += chunk;
    unsigned sum = 0;
    for (char c : body) sum += static_cast<unsigned char>(c);
    body.append(static_cast<char>(0xFF - (sum & 0xFF)));
    text += "S3" + body.toHex().toUpper() + "\r\n";
  }
  return text + "S70500000000FA\r\n";
}

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
  void initTestCase();
  void settingsAndProgramOverTcp_data();
  void settingsAndProgramOverTcp();
  void fleetOfTwoHundredOverTcp();
  void srecCatProgramOverTcp();
  void settingsOverAPseudoTerminal();
  void windowStaysResponsiveAndProgressAdvances();
  void propertiesDialogStartsAtTheFirstPort();
  void closingTheWindowMidTransferClosesTheLink();
  void closingTheProgressWindowAsksAndReports();
  void theRfWaitCancelsAndASecondCommandRaisesIt();

 private:
  // Starts veltrix-cli download with `args`, then the simulator with `sim_args` on its port.
  struct Run {
    int cli_exit = -1;
    int sim_exit = -1;
    QString out;
    QString sim_out;
  };
  Run Download(const QStringList& args, const QStringList& sim_args, int terminals = -1);
  QTemporaryDir dir_;
  QString settings_;
  QString program_;
  QByteArray program_data_;
};

void DownloadTest::initTestCase() {
  QVERIFY(dir_.isValid());
  settings_ = dir_.filePath("a.QVL");
  QCOMPARE(QProcess::execute(kCli, {"new", "--product", "2", "--out", settings_}), 0);
  program_ = dir_.filePath("p.SHX");
  QFile file(program_);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(Program(2000, &program_data_));
}

DownloadTest::Run DownloadTest::Download(const QStringList& args, const QStringList& sim_args,
                                         int terminals) {
  Run run;
  QProcess cli;
  cli.setReadChannel(QProcess::StandardError);
  cli.start(kCli,
            QStringList{"download"} + args +
                QStringList{"--via", "rf", "--listen-address", "127.0.0.1", "--listen-port", "0"});
  // The tool names the port it listens on before anything else.
  QRegularExpression listening("Listening on port (\\d+)");
  QString err;
  QRegularExpressionMatch match;
  while (!(match = listening.match(err)).hasMatch() && cli.waitForReadyRead(10000)) {
    err += cli.readAllStandardError();
  }
  if (!match.hasMatch()) return run;
  const QString port = match.captured(1);
  if (terminals < 0) terminals = 1;
  std::vector<std::unique_ptr<QProcess>> sims;
  for (int i = 0; i < terminals; ++i) {
    auto sim = std::make_unique<QProcess>();
    QStringList with_output = sim_args;
    with_output.replaceInStrings("%i", QString::number(i));
    sim->start(kSim, QStringList{"--connect", "127.0.0.1:" + port} + with_output);
    sims.push_back(std::move(sim));
  }
  cli.waitForFinished(60000);
  for (auto& sim : sims) {
    sim->waitForFinished(20000);
    run.sim_exit = std::max(run.sim_exit, sim->exitCode());
    run.sim_out += sim->readAllStandardOutput();
  }
  run.cli_exit = cli.exitCode();
  run.out = cli.readAllStandardOutput();
  return run;
}

void DownloadTest::settingsAndProgramOverTcp_data() {
  QTest::addColumn<QString>("what");
  QTest::addColumn<QStringList>("faults");
  QTest::addColumn<int>("exit");
  QTest::addColumn<QString>("expected");
  QTest::newRow("settings") << "settings" << QStringList() << 0
                            << "Download: Downloaded completely!";
  QTest::newRow("settings, a block refused once")
      << "settings" << QStringList{"--nak-block", "300"} << 0 << "Download: Downloaded completely!";
  QTest::newRow("settings, the terminal closes mid-transfer")
      << "settings" << QStringList{"--close-at", "5"} << 3
      << "Error: Error on downloading!\nError: Failed to download, would you like to retry? No";
  QTest::newRow("program, FN during the erase and to a frame")
      << "program" << QStringList{"--erase-fn", "--fn-frame", "3"} << 0
      << "Download: Downloaded completely!";
  QTest::newRow("program, FF to a frame")
      << "program" << QStringList{"--ff-frame", "2"} << 3
      << "Download: Error on downloading!\nError: Failed to download, would you like to retry? No";
}

void DownloadTest::settingsAndProgramOverTcp() {
  QFETCH(QString, what);
  QFETCH(QStringList, faults);
  QFETCH(int, exit);
  QFETCH(QString, expected);
  const QString received = dir_.filePath("received.bin");
  QFile::remove(received);
  const bool settings = what == "settings";
  Run run = Download({what, settings ? settings_ : program_},
                     faults + QStringList{settings ? "--settings-out" : "--program-out", received});
  QCOMPARE(run.out.trimmed(), expected);
  QCOMPARE(run.cli_exit, exit);
  QVERIFY2(!run.sim_out.contains("problem"), qPrintable(run.sim_out));
  if (exit != 0) return;
  QFile got(received);
  QVERIFY(got.open(QIODevice::ReadOnly));
  QFile sent(settings_);
  QVERIFY(sent.open(QIODevice::ReadOnly));
  QCOMPARE(got.readAll(), settings ? sent.read(kRecordSize) : program_data_);
}

void DownloadTest::fleetOfTwoHundredOverTcp() {
  // One terminal more than the fleet: it is closed at once and named, the others all complete.
  Run run = Download({"settings", settings_, "--terminals", "200", "--json"},
                     {"--settings-out", dir_.filePath("fleet%i.bin")}, 201);
  QCOMPARE(run.cli_exit, 0);
  const QStringList lines = run.out.trimmed().split('\n');
  QCOMPARE(lines.size(), 201);
  QSet<QString> addresses;
  int completed = 0;
  for (const QString& line : lines) {
    const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
    addresses.insert(o["address"].toString());
    if (o["result"] == "Downloaded completely!" && o["blocks"] == 598) ++completed;
  }
  QCOMPARE(completed, 200);
  QCOMPARE(addresses.size(), 201);
  QVERIFY(run.out.contains("\"result\":\"Refused: no download was waiting for this terminal\""));
  QFile sent(settings_);
  QVERIFY(sent.open(QIODevice::ReadOnly));
  const QByteArray record = sent.read(kRecordSize);
  int received = 0;
  for (int i = 0; i < 201; ++i) {
    QFile got(dir_.filePath(QString("fleet%1.bin").arg(i)));
    if (!got.open(QIODevice::ReadOnly)) continue;
    QCOMPARE(got.readAll(), record);
    ++received;
  }
  QCOMPARE(received, 200);
}

void DownloadTest::srecCatProgramOverTcp() {
  const QString srec_cat = QStandardPaths::findExecutable("srec_cat");
  if (srec_cat.isEmpty()) QSKIP("srec_cat is not installed");
  // Another tool's S-records: LF line ends, an S0 header, S2 records, an S5 count, an S8 end.
  QByteArray binary;
  for (int i = 0; i < 5000; ++i) binary.append(static_cast<char>((i * 131 + i / 7) & 0xFF));
  const QString bin = dir_.filePath("other.bin");
  const QString srec = dir_.filePath("other.srec");
  QFile out(bin);
  QVERIFY(out.open(QIODevice::WriteOnly));
  out.write(binary);
  out.close();
  QCOMPARE(QProcess::execute(
               srec_cat, {bin, "-binary", "-offset", "0x12000", "-execution-start-address=0x12000",
                          "-o", srec, "-address-length=3"}),
           0);
  const QString received = dir_.filePath("other-received.bin");
  Run run = Download({"program", srec}, {"--program-out", received});
  QCOMPARE(run.out.trimmed(), "Download: Downloaded completely!");
  QVERIFY(run.sim_out.contains("program at 0x00012000"));
  QFile got(received);
  QVERIFY(got.open(QIODevice::ReadOnly));
  QCOMPARE(got.readAll(), binary);
}

void DownloadTest::settingsOverAPseudoTerminal() {
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

void DownloadTest::windowStaysResponsiveAndProgressAdvances() {
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

void DownloadTest::propertiesDialogStartsAtTheFirstPort() {
  DownloadPropertiesDialog dialog(3, 2, {"ttyS0", "ttyUSB0"});
  QCOMPARE(dialog.via_box()->currentText(), "RF");
  QCOMPARE(dialog.port_box()->currentText(), "ttyS0");
  QCOMPARE(dialog.rate_box()->currentText(), "38400 bps");
  QVERIFY(!dialog.port_box()->isEnabled());  // RF needs no port
  dialog.via_box()->setCurrentIndex(1);
  QVERIFY(dialog.port_box()->isEnabled());
  dialog.port_box()->setEditText("/dev/pts/7");  // a port the system does not list
  QCOMPARE(dialog.port(), "/dev/pts/7");
  dialog.show();
  QVERIFY(dialog.grab().save(QDir(VELTRIX_BINARY_DIR).filePath("download_properties.png")));
  DownloadProgressDialog progress(598);
  progress.SetPosition(250);
  progress.show();
  QVERIFY(progress.grab().save(QDir(VELTRIX_BINARY_DIR).filePath("download_progress.png")));
}

void DownloadTest::closingTheWindowMidTransferClosesTheLink() {
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

void DownloadTest::closingTheProgressWindowAsksAndReports() {
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
  QCOMPARE(asked,
           QStringList{"Download: Stop the download? The terminal keeps an incomplete settings."});
  QVERIFY(command.running());
  answer = true;
  command.progress()->close();
  QTRY_VERIFY(!command.running());
  QVERIFY2(status.contains(QRegularExpression("^Download stopped after block \\d+ of 598$")),
           qPrintable(status));
  QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QAbstractSocket::UnconnectedState, 5000);
}

void DownloadTest::theRfWaitCancelsAndASecondCommandRaisesIt() {
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

}  // namespace veltrix

QTEST_MAIN(veltrix::DownloadTest)
#include "download_test.moc"
