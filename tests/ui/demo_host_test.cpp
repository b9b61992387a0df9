// The demo host: its screens driven key by key by Veltrix's own engine (scenarios in
// data/demo_host_scenarios.txt), and end to end over loopback where a QTcpSocket plays the
// display station (negotiation, scripts, the executable). veltrix-cli's sessions with it are
// among the command-line transcripts.
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QtTest>

#include "demo_host/demo_application.h"
#include "demo_host/demo_host_server.h"
#include "demo_host/ebcdic_text.h"
#include "demo_host/host_codes.h"
#include "demo_host/host_session.h"
#include "demo_host/outbound_record.h"
#include "tn5250/display_text.h"
#include "tn5250/replay.h"
#include "tn5250/session.h"

using namespace veltrix::demo_host;
using veltrix::kAidEnter;
using veltrix::kAidF3;

namespace {

QByteArray Bytes(std::initializer_list<int> values) {
  QByteArray out;
  for (const int v : values) out.append(static_cast<char>(v));
  return out;
}

QByteArray Bytes(const std::vector<std::uint8_t>& values) {
  return QByteArray(reinterpret_cast<const char*>(values.data()), qsizetype(values.size()));
}

QByteArray Host(const char* ascii) { return Bytes(AsciiToHost(ascii)); }

// An AID record as the station builds it in Read MDT Fields mode; fields are (row, column, text).
QByteArray AidRecord(int cursor_row, int cursor_column, int aid,
                     const QList<std::tuple<int, int, const char*>>& fields = {}) {
  QByteArray r = Bytes({0, 0, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, cursor_row, cursor_column, aid});
  for (const auto& [row, column, text] : fields) r += Bytes({0x11, row, column}) + Host(text);
  r[0] = static_cast<char>(r.size() >> 8);
  r[1] = static_cast<char>(r.size() & 0xFF);
  return r;
}

// The display station side of one connection.
class Station {
 public:
  Station() {
    QObject::connect(&socket, &QTcpSocket::readyRead, [this] { buffer += socket.readAll(); });
  }

  bool Connect(quint16 port) {
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    return WaitFor([this] { return socket.state() == QAbstractSocket::ConnectedState; });
  }

  // Waits for exactly `expected` as the next bytes and takes them.
  bool Expect(const QByteArray& expected) {
    if (!WaitFor([&] { return buffer.size() >= expected.size(); })) return false;
    const bool same = buffer.startsWith(expected);
    if (!same) qWarning() << "expected" << expected.toHex(' ') << "got" << buffer.toHex(' ');
    buffer.remove(0, expected.size());
    return same;
  }

  // Answers the host's negotiation as the terminal does, checking each request.
  bool Negotiate(const QByteArray& device_name) {
    if (!Expect(Bytes({0xFF, 0xFD, 39}))) return false;
    Send(Bytes({0xFF, 0xFB, 39}));
    if (!Expect(Bytes({0xFF, 0xFA, 39, 0x01, 0x00, 0x03, 0xFF, 0xF0}))) return false;
    Send(Bytes({0xFF, 0xFA, 39, 0x00, 0x03}) + "IBMRSEED" + Bytes({0x00, 0x03}) + "DEVNAME" +
         Bytes({0x01}) + device_name + Bytes({0xFF, 0xF0}));
    if (!Expect(Bytes({0xFF, 0xFD, 24}))) return false;
    Send(Bytes({0xFF, 0xFB, 24}));
    if (!Expect(Bytes({0xFF, 0xFA, 24, 0x01, 0xFF, 0xF0}))) return false;
    Send(Bytes({0xFF, 0xFA, 24, 0x00}) + "IBM-3179-2" + Bytes({0xFF, 0xF0}));
    const QByteArray binary_eor =
        Bytes({0xFF, 0xFD, 25, 0xFF, 0xFB, 25, 0xFF, 0xFD, 0, 0xFF, 0xFB, 0});
    if (!Expect(binary_eor)) return false;
    Send(Bytes({0xFF, 0xFB, 25, 0xFF, 0xFD, 25, 0xFF, 0xFB, 0, 0xFF, 0xFD, 0}));
    return true;
  }

  // The next record up to IAC EOR, undoubled; empty on time-out.
  QByteArray NextRecord() {
    if (!WaitFor([this] { return buffer.contains(Bytes({0xFF, 0xEF})); })) return {};
    QByteArray record;
    int i = 0;
    for (; i + 1 < buffer.size(); ++i) {
      const auto b = static_cast<std::uint8_t>(buffer[i]);
      const auto next = static_cast<std::uint8_t>(buffer[i + 1]);
      if (b == 0xFF && next == 0xEF) break;
      record.append(buffer[i]);
      if (b == 0xFF && next == 0xFF) ++i;
    }
    buffer.remove(0, i + 2);
    return record;
  }

  void Send(const QByteArray& bytes) { socket.write(bytes); }
  void SendRecord(const QByteArray& record) { Send(record + Bytes({0xFF, 0xEF})); }

  bool WaitDisconnected() {
    return WaitFor([this] { return socket.state() == QAbstractSocket::UnconnectedState; });
  }

  template <typename Condition>
  static bool WaitFor(Condition done) {
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
      if (timer.elapsed() > 5000) return false;
      QTest::qWait(5);
    }
    return true;
  }

  QTcpSocket socket;
  QByteArray buffer;
};

// Veltrix's own session engine wired to a host session without sockets: what one sends the
// other receives, until both are quiet. Everything the station sent is kept in `sent_all`.
class EnginePipe : public veltrix::SessionListener {
 public:
  explicit EnginePipe(int emulation_type = 0)
      : host(std::make_unique<DemoApplication>()), station({emulation_type, "VELTRIX01"}, this) {
    station.Connect();
    Deliver(host.Start());
  }

  void OnSend(std::span<const std::uint8_t> bytes) override {
    to_host.insert(to_host.end(), bytes.begin(), bytes.end());
    sent_all.insert(sent_all.end(), bytes.begin(), bytes.end());
  }

  void Deliver(std::vector<std::uint8_t> bytes) {
    while (!bytes.empty()) {
      station.Receive(bytes);
      std::vector<std::uint8_t> sent;
      sent.swap(to_host);
      bytes = host.Receive(sent);
    }
  }
  void Press(const veltrix::KeyStroke& stroke) {
    veltrix::Press(station, stroke);
    std::vector<std::uint8_t> sent;
    sent.swap(to_host);
    Deliver(host.Receive(sent));
  }
  QString Row(int row) const {  // 1-based
    return QString::fromStdString(
        veltrix::ScreenRowText(station.Screen(), station.Config().emulation_type, row - 1));
  }

  HostSession host;
  veltrix::Session station;
  std::vector<std::uint8_t> to_host;
  std::vector<std::uint8_t> sent_all;
};

struct ScenarioLine {
  int number;
  QString verb;
  QString rest;
};

struct Scenario {
  QString name;
  int emulation_type = 0;
  QList<ScenarioLine> lines;
};

QList<Scenario> ReadScenarios() {
  QFile file(QStringLiteral(VELTRIX_SOURCE_DIR "/tests/ui/data/demo_host_scenarios.txt"));
  QList<Scenario> scenarios;
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return scenarios;
  int number = 0;
  while (!file.atEnd()) {
    const QString line = QString::fromUtf8(file.readLine()).chopped(1);
    ++number;
    if (line.isEmpty() || line.startsWith('#')) continue;
    const QString verb = line.section(' ', 0, 0);
    const QString rest = line.section(' ', 1);
    if (verb == "scenario") {
      Scenario s;
      bool numeric = false;
      s.emulation_type = rest.section(' ', -1).toInt(&numeric);
      s.name = numeric ? rest.section(' ', 0, -2) : rest;
      if (!numeric) s.emulation_type = 0;
      scenarios.append(s);
    } else if (!scenarios.isEmpty()) {
      scenarios.last().lines.append({number, verb, rest});
    }
  }
  return scenarios;
}

// Runs one scenario; empty when every check holds, else what failed and on which line.
QString RunScenario(const Scenario& scenario, EnginePipe& pipe) {
  std::vector<std::string> log = pipe.host.TakeLog();
  for (const ScenarioLine& l : scenario.lines) {
    const QString where = QString("line %1: %2 %3: ").arg(l.number).arg(l.verb, l.rest);
    auto screen = [&pipe] {
      QString all;
      for (int row = 1; row <= 24; ++row) all += pipe.Row(row).trimmed() + '\n';
      return all;
    };
    if (l.verb == "keys") {
      std::vector<veltrix::KeyStroke> keys;
      std::string error;
      if (!veltrix::ParseReplayKeys(l.rest.toStdString(), scenario.emulation_type, keys, error)) {
        return where + QString::fromStdString(error);
      }
      for (const auto& k : keys) pipe.Press(k);
      for (auto& entry : pipe.host.TakeLog()) log.push_back(std::move(entry));
    } else if (l.verb == "row") {
      const int row = l.rest.section(' ', 0, 0).toInt();
      if (!pipe.Row(row).contains(l.rest.section(' ', 1))) return where + "\n" + screen();
    } else if (l.verb == "shows") {
      if (!screen().contains(l.rest)) return where + "\n" + screen();
    } else if (l.verb == "cursor") {
      const QString at =
          QString("%1 %2").arg(pipe.station.CursorRow() + 1).arg(pipe.station.CursorColumn() + 1);
      if (at != l.rest) return where + "cursor at " + at;
    } else if (l.verb == "locked") {
      if (pipe.station.KeyboardLocked() != (l.rest == "yes")) return where + "not so";
    } else if (l.verb == "log") {
      if (std::find(log.begin(), log.end(), l.rest.toStdString()) == log.end()) {
        return where + "not logged";
      }
    } else if (l.verb == "closed") {
      if (!pipe.host.wants_close()) return where + "the host goes on";
    } else {
      return where + "unknown check";
    }
  }
  return {};
}

}  // namespace

// Kernel's count of this process's resident memory, in KB. Under AddressSanitizer freed memory
// stays in quarantine, so the bound below is not checked there.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif
#else
constexpr bool kSanitized = false;
#endif

long ResidentKb() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLong();
  }
  return 0;
}

class DemoHostTest : public QObject {
  Q_OBJECT

 private slots:
  void scenarios_data() {
    QTest::addColumn<int>("index");
    const QList<Scenario> all = ReadScenarios();
    QVERIFY(all.size() >= 10);
    for (int i = 0; i < all.size(); ++i) QTest::newRow(qPrintable(all[i].name)) << i;
  }
  void scenarios() {
    QFETCH(int, index);
    const Scenario scenario = ReadScenarios()[index];
    EnginePipe pipe(scenario.emulation_type);
    QVERIFY(pipe.host.running());
    const QString failure = RunScenario(scenario, pipe);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
  }
  // Everything Veltrix's engine sends in one session, cut at every chunk size, gives the host's
  // same answers.
  void sessionGivesTheSameBytesForAnyChunking() {
    EnginePipe pipe;
    std::vector<veltrix::KeyStroke> keys;
    std::string error;
    QVERIFY(veltrix::ParseReplayKeys("chunk<Enter>1<Enter><PageDown><F3>2<Enter>ITEM0001<F5>", 0,
                                     keys, error));
    for (const auto& k : keys) pipe.Press(k);
    const std::vector<std::uint8_t>& input = pipe.sent_all;
    auto run = [&](std::size_t chunk) {
      HostSession session(std::make_unique<DemoApplication>());
      QByteArray out = Bytes(session.Start());
      for (std::size_t i = 0; i < input.size(); i += chunk) {
        out +=
            Bytes(session.Receive(std::span(input).subspan(i, std::min(chunk, input.size() - i))));
      }
      return out;
    };
    const QByteArray whole = run(input.size());
    QVERIFY(whole.contains(Host("ITEM0011")));
    QVERIFY(whole.contains(Host("Read Immediate: item")));
    for (std::size_t chunk = 1; chunk < 64; ++chunk) QCOMPARE(run(chunk), whole);
  }
  void negotiationAndSignOnOverLoopback() {
    DemoHostServer server;
    Station station;
    QVERIFY(server.Listen(0) && station.Connect(server.port()));
    QVERIFY(station.Negotiate("QPADEV0001"));
    QCOMPARE(station.NextRecord(), Bytes({0x00, 0x11, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 0x04, 0xF3,
                                          0x00, 0x05, 0xD9, 0x70, 0x00}));
    const QByteArray sign_on = station.NextRecord();
    QVERIFY(sign_on.contains(Host("QPADEV0001")));
    // The password field does not display; the cursor starts in the user field; Read MDT Fields.
    QVERIFY(sign_on.contains(Bytes({0x11, 7, 52, 0x1D, 0x40, 0x00, 0x27, 0x00, 0x0A})));
    QVERIFY(sign_on.endsWith(Bytes({0x13, 6, 53, 0x04, 0x52, 0x00, 0x00})));

    station.SendRecord(AidRecord(7, 55, kAidEnter, {{6, 53, "BOB"}, {7, 53, "SECRET"}}));
    QVERIFY(station.NextRecord().contains(Host("Signed on as BOB")));
    QVERIFY(server.log().contains("signed on: BOB"));
    QCOMPARE(server.receivedRecords().size(), 1);
    QVERIFY(server.receivedBytes().contains(Host("SECRET")));

    QSignalSpy gone(&server, &DemoHostServer::stationDisconnected);
    station.SendRecord(AidRecord(21, 7, kAidF3));
    QVERIFY(station.NextRecord().contains(Host("Sign On")));
    station.SendRecord(AidRecord(6, 53, kAidF3));
    QVERIFY(station.WaitDisconnected());
    QTRY_COMPARE(gone.count(), 1);
  }
  void hostileStations_data() {
    QTest::addColumn<QByteArray>("sends");
    QTest::addColumn<int>("repeat");
    QTest::addColumn<bool>("dropped");
    QTest::addColumn<QString>("log");
    // Field data ending in a Set Buffer Address: answered like any record, the host goes on.
    QTest::newRow("record ending in an SBA")
        << Bytes({0x00, 0x0E, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 1, 1, 0xF1, 0x11, 0xFF, 0xEF}) << 1
        << false << "Enter at 1,1";
    QTest::newRow("50 MB without a record end")
        << QByteArray(1 << 20, 'A') << 50 << true << "longer than any record";
    QByteArray records;
    while (records.size() < (1 << 20)) records += AidRecord(1, 1, kAidEnter) + Bytes({0xFF, 0xEF});
    QTest::newRow("50 MB of records, none of the answers read")
        << records << 50 << true << "does not read";
    QTest::newRow("malformed records")
        << Bytes({0x00, 0x02, 0x01, 0xFF, 0xEF}) << 16 << true << "sends garbage";
    QTest::newRow("silence") << QByteArray() << 0 << true << "idle for 0.3 s";
  }
  // One hostile station at a time: the host stays bounded in memory, drops the station where it
  // should, and keeps serving a well-behaved one.
  void hostileStations() {
    QFETCH(QByteArray, sends);
    QFETCH(int, repeat);
    QFETCH(bool, dropped);
    QFETCH(QString, log);
    DemoHostServer server;
    server.SetIdleLimit(sends.isEmpty() ? 300 : 30000);
    Station good;
    Station hostile;
    QVERIFY(server.Listen(0) && hostile.Connect(server.port()));
    QVERIFY(hostile.Negotiate("HOSTILE"));
    // From here on the hostile station reads nothing: the kernel's buffers fill up.
    QObject::disconnect(&hostile.socket, &QTcpSocket::readyRead, nullptr, nullptr);
    hostile.socket.setReadBufferSize(4096);
    const long before = ResidentKb();
    for (int i = 0; i < repeat && hostile.socket.state() == QAbstractSocket::ConnectedState; ++i) {
      hostile.Send(sends);
      // Bounded by the socket, as a real flood is.
      while (hostile.socket.bytesToWrite() > (4 << 20)) QTest::qWait(1);
    }
    QVERIFY(good.Connect(server.port()) && good.Negotiate("GOOD"));
    good.NextRecord();  // the query
    QVERIFY(good.NextRecord().contains(Host("GOOD")));
    QTRY_VERIFY_WITH_TIMEOUT(server.log().join('\n').contains(log), 5000);
    if (dropped) QVERIFY(hostile.WaitDisconnected());
    // (When silence is the fault, the good station soon goes quiet and is dropped as well.)
    if (!sends.isEmpty()) QCOMPARE(server.openConnections(), dropped ? 1 : 2);
    QVERIFY(server.receivedBytes().size() <= DemoHostServer::kMaxKeptBytes);
    QVERIFY2(kSanitized || ResidentKb() - before < 64 * 1024,
             qPrintable(QString::number(ResidentKb() - before)));
    good.SendRecord(AidRecord(6, 53, kAidF3));
    QVERIFY(good.WaitDisconnected());
  }
  void scriptSendsExpectsAndLogs() {
    DemoHostServer server;
    Station station;
    const auto first =
        OutboundRecord().ClearUnit().WriteToDisplay(0, 8).TextAt(2, 2, "HI").Finish();
    const auto second = OutboundRecord().ReadImmediate().Finish();
    const std::vector<std::uint8_t> wanted = {0x00, 0x0D, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 1, 1, 0xF1};
    server.SetScript({ScriptStep::Send(first), ScriptStep::Expect(wanted), ScriptStep::Send(second),
                      ScriptStep::ExpectAny(), ScriptStep::Close()});
    QVERIFY(server.Listen(0) && station.Connect(server.port()) && station.Negotiate("S"));
    QCOMPARE(station.NextRecord(), Bytes(first));
    QVERIFY(!server.scriptFinished());
    // A different AID than the script expects: noted, and the script goes on.
    const QByteArray sent = AidRecord(1, 1, kAidF3);
    station.SendRecord(sent);
    QCOMPARE(station.NextRecord(), Bytes(second));
    station.SendRecord(Bytes({0x00, 0x0A, 0x12, 0xA0, 0, 0, 4, 0, 0, 3}));
    QVERIFY(station.WaitDisconnected());
    QVERIFY(server.scriptFinished());
    QCOMPARE(server.scriptMismatches(),
             QStringList{"record 1: expected 00 0D 12 A0 00 00 04 00 00 03 01 01 F1, received "
                         "00 0D 12 A0 00 00 04 00 00 03 01 01 33"});
    QCOMPARE(server.receivedRecords().size(), 2);
    QCOMPARE(server.receivedRecords()[0], sent);
    QVERIFY(server.receivedBytes().contains(sent + Bytes({0xFF, 0xEF})));
  }
  void scriptWithoutNegotiation() {
    DemoHostServer server;
    const auto record = OutboundRecord().ClearUnit().Finish();
    server.SetScript({ScriptStep::Send(record), ScriptStep::ExpectAny(),
                      ScriptStep::ExpectAid(kAidEnter), ScriptStep::ExpectAid(kAidF3)},
                     false);
    QVERIFY(server.Listen(0));
    Station station;
    QVERIFY(station.Connect(server.port()));
    QVERIFY(station.Expect(Bytes(FrameRecord(record))));
    station.SendRecord(AidRecord(1, 1, kAidEnter));
    station.SendRecord(AidRecord(4, 9, kAidEnter, {{4, 9, "X"}}));
    station.SendRecord(AidRecord(1, 1, kAidEnter));
    QTRY_VERIFY(server.scriptFinished());
    QCOMPARE(
        server.scriptMismatches(),
        QStringList{"record 3: expected AID 33, received 00 0D 12 A0 00 00 04 00 00 03 01 01 F1"});
  }
  void executablePrintsItsEphemeralPort() {
    const QString program = QStringLiteral(VELTRIX_BINARY_DIR "/veltrix-demo-host");
    if (!QFileInfo::exists(program)) QSKIP("veltrix-demo-host is not built");
    QProcess host;
    host.start(program, {"--port", "0"});
    QVERIFY(host.waitForStarted());
    QTRY_VERIFY(host.canReadLine());
    const QString line = QString::fromLatin1(host.readLine()).trimmed();
    QVERIFY2(line.startsWith("listening on 127.0.0.1:"), qPrintable(line));
    Station station;
    QVERIFY(station.Connect(line.section(':', 1).toUShort()));
    QVERIFY(station.Expect(Bytes({0xFF, 0xFD, 39})));
    host.kill();
    host.waitForFinished();
  }
};

QTEST_MAIN(DemoHostTest)
#include "demo_host_test.moc"
