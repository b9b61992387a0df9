// The demo host end to end over loopback: a QTcpSocket plays the display station the way
// Veltrix answers (negotiation, AID records, Read Immediate and query answers).
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QtTest>

#include "demo_host/demo_application.h"
#include "demo_host/demo_host_server.h"
#include "demo_host/demo_screens.h"
#include "demo_host/ebcdic_text.h"
#include "demo_host/host_codes.h"
#include "demo_host/host_session.h"
#include "demo_host/inbound_record.h"
#include "demo_host/outbound_record.h"
#include "demo_host/telnet_stream.h"
#include "tn5250/double_byte.h"
#include "tn5250/session.h"

using namespace veltrix::demo_host;
using veltrix::kWill;  // Telnet codes live in the core

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

struct FieldData {
  int row, column;
  QByteArray ascii;
};

// An AID record as the station builds it in Read MDT Fields mode.
QByteArray AidRecord(int cursor_row, int cursor_column, int aid,
                     const QList<FieldData>& fields = {}) {
  QByteArray r = Bytes({0, 0, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, cursor_row, cursor_column, aid});
  for (const FieldData& f : fields) {
    r += Bytes({0x11, f.row, f.column});
    r += Host(f.ascii.constData());
  }
  r[0] = static_cast<char>(r.size() >> 8);
  r[1] = static_cast<char>(r.size() & 0xFF);
  return r;
}

// The 71-byte reply to the 5250 query that the station sends.
QByteArray QueryReply() {
  QByteArray r = Bytes({0x00, 0x47, 0x12, 0xA0, 0,    0,    4,    0,    0,    3,    0,   0,
                        0x88, 0x00, 0x3A, 0xD9, 0x70, 0x80, 0x06, 0x00, 0x01, 0x00, 0x00});
  r += QByteArray(16, '\0');
  r += Bytes({0x01, 0xF3, 0xF4, 0xF7, 0xF7, 0xF0, 0xC6, 0xC3, 0x02, 0,    0,
              1,    1,    1,    1,    1,    0,    0,    0,    0,    0x63, 0x31});
  r += QByteArray(10, '\0');
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
    if (!WaitFor([&] { return buffer.size() >= expected.size(); })) {
      qWarning() << "waiting for" << expected.toHex(' ') << "have" << buffer.toHex(' ');
      return false;
    }
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
    if (!Expect(Bytes({0xFF, 0xFD, 25, 0xFF, 0xFB, 25, 0xFF, 0xFD, 0, 0xFF, 0xFB, 0}))) {
      return false;
    }
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

// Signs on as BOB and returns at the main menu.
bool SignOn(DemoHostServer& server, Station& station) {
  if (!station.Connect(server.port()) || !station.Negotiate("QPADEV0001")) return false;
  if (station.NextRecord().isEmpty() || station.NextRecord().isEmpty()) return false;  // query
  station.SendRecord(AidRecord(6, 53, kAidEnter, {{6, 53, "BOB"}}));
  return station.NextRecord().contains(Host("Veltrix Demo Main Menu"));
}

// A demo host on an ephemeral port and the station that talks to it.
struct Link {
  DemoHostServer server;
  Station station;

  bool Open(const QByteArray& device_name) {
    return server.Listen(0) && station.Connect(server.port()) && station.Negotiate(device_name);
  }
  bool SignedOn() { return server.Listen(0) && SignOn(server, station); }
};

// Veltrix's own session engine wired to a host session without sockets: what one sends the
// other receives, until both are quiet.
class EnginePipe : public veltrix::SessionListener {
 public:
  explicit EnginePipe(int emulation_type = 0)
      : host(std::make_unique<DemoApplication>()), station({emulation_type, "VELTRIX01"}, this) {
    station.Connect();
    Deliver(host.Start());
  }

  void OnSend(std::span<const std::uint8_t> bytes) override {
    to_host.insert(to_host.end(), bytes.begin(), bytes.end());
  }

  void Deliver(std::vector<std::uint8_t> bytes) {
    while (!bytes.empty()) {
      station.Receive(bytes);
      std::vector<std::uint8_t> sent;
      sent.swap(to_host);
      bytes = host.Receive(sent);
    }
  }
  void Key(veltrix::HostKey key) {
    station.KeyInput(key);
    Flush();
  }
  void Type(const char* text) {
    for (; *text != '\0'; ++text) station.TypeCharacter(static_cast<std::uint8_t>(*text));
  }
  void Flush() {
    std::vector<std::uint8_t> sent;
    sent.swap(to_host);
    Deliver(host.Receive(sent));
  }
  QString Row(int row) const {
    QString text;
    for (int column = 0; column < 80; ++column) {
      const auto c = station.Screen().Character(row, column);
      text += c >= 0x20 && c < 0x7F ? QChar(c) : QChar(' ');
    }
    return text.trimmed();
  }
  const DemoApplication& app() { return static_cast<const DemoApplication&>(host.application()); }

  HostSession host;
  veltrix::Session station;
  std::vector<std::uint8_t> to_host;
};

}  // namespace

class DemoHostTest : public QObject {
  Q_OBJECT

 private slots:
  void writerFramesAndDoublesIac();
  void writerBuildsOrders_data();
  void writerBuildsOrders();
  void telnetStreamCutsRecordsAndOptions();
  void aidRecordParsing_data();
  void aidRecordParsing();
  void negotiationSignOnAndMenu();
  void signOnWithoutUserGivesErrorCode();
  void listOptionsAndPagingStopAtTheEnds();
  void quantityChecksInputWithErrorCode_data();
  void quantityChecksInputWithErrorCode();
  void readImmediateFetchesFields();
  void f3OnSignOnEndsTheSession();
  void scriptSendsExpectsAndLogs();
  void scriptWithoutNegotiation();
  void executablePrintsItsEphemeralPort();
  void veltrixEngineWorksThroughTheDemo();
  void doubleByteWelcomeReachesTheScreen_data();
  void doubleByteWelcomeReachesTheScreen();
  void sessionGivesTheSameBytesForAnyChunking();
  void sessionSurvivesGarbage();
};

void DemoHostTest::writerFramesAndDoublesIac() {
  const std::vector<std::uint8_t> record = {0x00, 0x0C, 0xFF, 0x01};
  QCOMPARE(Bytes(FrameRecord(record)), Bytes({0x00, 0x0C, 0xFF, 0xFF, 0x01, 0xFF, 0xEF}));
  const auto finished = OutboundRecord().ClearUnit().Finish();
  QCOMPARE(Bytes(finished), Bytes({0x00, 0x0C, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 0x04, 0x40}));
}

void DemoHostTest::writerBuildsOrders_data() {
  QTest::addColumn<QByteArray>("body");
  QTest::addColumn<QByteArray>("expected");
  QTest::newRow("write to display") << Bytes(OutboundRecord().WriteToDisplay(0x00, 0x08).Finish())
                                    << Bytes({0x04, 0x11, 0x00, 0x08});
  QTest::newRow("start field with length")
      << Bytes(OutboundRecord().StartField(0x40, 0x20, 0x24, 300).Finish())
      << Bytes({0x1D, 0x40, 0x20, 0x24, 0x01, 0x2C});
  QTest::newRow("input field closes its attribute")
      << Bytes(OutboundRecord().InputField(6, 53, 10, 0x40, 0x00, 0x27).Finish())
      << Bytes({0x11, 6, 52, 0x1D, 0x40, 0x00, 0x27, 0x00, 0x0A, 0x11, 6, 63, 0x20});
  QTest::newRow("repeat to address")
      << Bytes(OutboundRecord().RepeatToAddress(2, 80, '-').Finish()) << Bytes({0x02, 2, 80, 0x60});
  QTest::newRow("error code with cursor")
      << Bytes(OutboundRecord().WriteErrorCode("AB", 5, 34).Finish())
      << Bytes({0x04, 0x21, 0x13, 5, 34, 0x22, 0xC1, 0xC2, 0x20});
  QTest::newRow("query") << Bytes(OutboundRecord().Query().Finish())
                         << Bytes({0x04, 0xF3, 0x00, 0x05, 0xD9, 0x70, 0x00});
  QTest::newRow("read immediate") << Bytes(OutboundRecord().ReadImmediate().Finish())
                                  << Bytes({0x04, 0x72});
  QTest::newRow("addresses are clamped to the screen")
      << Bytes(OutboundRecord().SetBufferAddress(99, -3).Finish()) << Bytes({0x11, 24, 0});
}

void DemoHostTest::writerBuildsOrders() {
  QFETCH(QByteArray, body);
  QFETCH(QByteArray, expected);
  QCOMPARE(static_cast<int>((std::uint8_t(body[0]) << 8) | std::uint8_t(body[1])), body.size());
  QCOMPARE(body.mid(kRecordHeaderSize), expected);
}

void DemoHostTest::telnetStreamCutsRecordsAndOptions() {
  TelnetStream stream;
  // An option answer, a subnegotiation with a doubled IAC, and a record holding an undoubled
  // 0xFF, delivered one byte at a time.
  const QByteArray input = Bytes({0xFF, 0xFB, 24,   0xFF, 0xFA, 24,   0x00, 'A',  0xFF, 0xFF, 'B',
                                  0xFF, 0xF0, 0x00, 0x0D, 0xFF, 0xC1, 0xFF, 0xFF, 0xFF, 0xEF});
  std::vector<TelnetEvent> events;
  for (const char c : input) {
    const std::uint8_t b = static_cast<std::uint8_t>(c);
    for (auto& e : stream.Feed({&b, 1})) events.push_back(std::move(e));
  }
  QCOMPARE(events.size(), std::size_t{3});
  QCOMPARE(events[0].kind, TelnetEvent::Kind::kOption);
  QCOMPARE(events[0].verb, kWill);
  QCOMPARE(events[0].option, std::uint8_t{24});
  QCOMPARE(events[1].kind, TelnetEvent::Kind::kSubnegotiation);
  QCOMPARE(Bytes(events[1].bytes), Bytes({0x00, 'A', 0xFF, 'B'}));
  QCOMPARE(events[2].kind, TelnetEvent::Kind::kRecord);
  QCOMPARE(Bytes(events[2].bytes), Bytes({0x00, 0x0D, 0xFF, 0xC1, 0xFF}));

  std::map<std::string, std::string> environment;
  const QByteArray env = Bytes({0x03}) + "IBMRSEED" + Bytes({0x00, 0x03}) + "DEVNAME" +
                         Bytes({0x01}) + "QPAD" + Bytes({0x00}) + "USER" + Bytes({0x01, 0x02}) +
                         Bytes({0x01}) + "X";
  ParseEnvironment({reinterpret_cast<const std::uint8_t*>(env.constData()),
                    static_cast<std::size_t>(env.size())},
                   environment);
  QCOMPARE(environment.size(), std::size_t{3});
  QCOMPARE(environment["DEVNAME"], std::string("QPAD"));
  QCOMPARE(environment["IBMRSEED"], std::string());
  QCOMPARE(environment["USER"], std::string("\x01X"));
}

void DemoHostTest::aidRecordParsing_data() {
  QTest::addColumn<QByteArray>("record");
  QTest::addColumn<QString>("error");
  QTest::addColumn<int>("fields");
  QTest::addColumn<QString>("first_text");
  QTest::newRow("read mdt fields")
      << AidRecord(6, 53, 0xF1, {{6, 53, "BOB"}, {7, 53, "SECRET"}}) << QString() << 2 << "BOB";
  QTest::newRow("header only") << Bytes({0x00, 0x0A, 0x12, 0xA0, 0, 0, 4, 0, 0, 3}) << QString()
                               << 0 << QString();
  QTest::newRow("read input fields, NULs as blanks")
      << Bytes(
             {0x00, 0x12, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 6, 21, 0xF1, 0xC1, 0x00, 0xC3, 0x40, 0x40})
      << QString() << 1 << "A C";
  QTest::newRow("length mismatch")
      << Bytes({0x00, 0x20, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 1, 1, 0xF1})
      << "length field 32 does not match the 13 bytes received" << 0 << QString();
  QTest::newRow("wrong record type")
      << Bytes({0x00, 0x0D, 0x12, 0xA1, 0, 0, 4, 0, 0, 3, 1, 1, 0xF1})
      << "record type 12 A1 at offset 2 is not 12 A0" << 0 << QString();
  QTest::newRow("too short") << Bytes({0x00, 0x03, 0x12})
                             << "record of 3 bytes is shorter than its header" << 0 << QString();
}

void DemoHostTest::aidRecordParsing() {
  QFETCH(QByteArray, record);
  QFETCH(QString, error);
  QFETCH(int, fields);
  QFETCH(QString, first_text);
  const InboundRecord in =
      ParseAidRecord({reinterpret_cast<const std::uint8_t*>(record.constData()),
                      static_cast<std::size_t>(record.size())});
  QCOMPARE(in.ok, error.isEmpty());
  QCOMPARE(QString::fromStdString(in.error), error);
  QCOMPARE(static_cast<int>(in.fields.size()), fields);
  if (fields > 0) QCOMPARE(QString::fromStdString(in.fields[0].text), first_text);
}

void DemoHostTest::negotiationSignOnAndMenu() {
  Link link;
  QVERIFY(link.Open("QPADEV0001"));
  auto& [server, station] = link;

  QCOMPARE(station.NextRecord(), Bytes({0x00, 0x11, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 0x04, 0xF3, 0x00,
                                        0x05, 0xD9, 0x70, 0x00}));
  const QByteArray sign_on = station.NextRecord();
  QVERIFY(sign_on.startsWith(
      Bytes({0x04, 0x40, 0x04, 0x11, 0x00, 0x08}).prepend(sign_on.left(kRecordHeaderSize))));
  QVERIFY(sign_on.contains(Host("Sign On")));
  QVERIFY(sign_on.contains(Host("QPADEV0001")));
  // The password field does not display; the cursor starts in the user field; Read MDT Fields.
  QVERIFY(sign_on.contains(Bytes({0x11, 7, 52, 0x1D, 0x40, 0x00, 0x27, 0x00, 0x0A})));
  QVERIFY(sign_on.endsWith(Bytes({0x13, 6, 53, 0x04, 0x52, 0x00, 0x00})));

  station.SendRecord(QueryReply());
  QTRY_VERIFY(server.log().contains("query reply: device 3477 model 0FC"));

  station.SendRecord(AidRecord(7, 55, kAidEnter, {{6, 53, "BOB"}, {7, 53, "SECRET"}}));
  const QByteArray menu = station.NextRecord();
  QVERIFY(menu.contains(Host("Veltrix Demo Main Menu")));
  QVERIFY(menu.contains(Host("Signed on as BOB")));
  QVERIFY(server.log().contains("terminal type IBM-3179-2"));
  QVERIFY(server.log().contains("signed on: BOB"));
  QCOMPARE(server.receivedRecords().size(), 2);
  QVERIFY(server.receivedBytes().contains(Host("SECRET")));

  station.SendRecord(AidRecord(21, 7, kAidF3));
  QVERIFY(station.NextRecord().contains(Host("Sign On")));
}

void DemoHostTest::signOnWithoutUserGivesErrorCode() {
  Link link;
  QVERIFY(link.Open(""));
  Station& station = link.station;
  station.NextRecord();
  QVERIFY(station.NextRecord().contains(Host("DEMO0001")));  // no device name: a default
  station.SendRecord(AidRecord(6, 53, kAidEnter));
  const QByteArray error = station.NextRecord();
  QCOMPARE(error.mid(kRecordHeaderSize, 5), Bytes({0x04, 0x21, 0x13, 6, 53}));
  QVERIFY(error.contains(Host("Type a user name, then press Enter.")));
  QVERIFY(error.endsWith(Bytes({0x04, 0x52, 0x00, 0x40})));
}

void DemoHostTest::listOptionsAndPagingStopAtTheEnds() {
  Link link;
  QVERIFY(link.SignedOn());
  Station& station = link.station;
  station.SendRecord(AidRecord(21, 8, kAidEnter, {{21, 7, "1"}}));
  QByteArray page = station.NextRecord();
  QVERIFY(page.contains(Host("ITEM0001")));
  QVERIFY(page.contains(Host("More...")));
  station.SendRecord(AidRecord(9, 3, kAidEnter, {{9, 3, "5"}}));
  QVERIFY(station.NextRecord().contains(Host("ITEM0003: Flat washer M4, quantity 86.")));
  station.SendRecord(AidRecord(8, 3, kAidEnter, {{8, 3, "4"}}));
  const QByteArray error = station.NextRecord();
  QCOMPARE(error.mid(kRecordHeaderSize, 5), Bytes({0x04, 0x21, 0x13, 8, 3}));
  QVERIFY(error.contains(Host("Option 4 is not valid.")));
  station.SendRecord(AidRecord(7, 3, kAidPageUp));
  QVERIFY(station.NextRecord().contains(Host("You are at the top of the list.")));
  for (const char* first : {"ITEM0011", "ITEM0021", "ITEM0031"}) {
    station.SendRecord(AidRecord(7, 3, kAidPageDown));
    page = station.NextRecord();
    QVERIFY2(page.contains(Host(first)), first);
  }
  QVERIFY(page.contains(Host("ITEM0035")));
  QVERIFY(!page.contains(Host("ITEM0036")));
  QVERIFY(page.contains(Host("Bottom")));
  station.SendRecord(AidRecord(7, 3, kAidPageDown));
  const QByteArray bottom = station.NextRecord();
  QCOMPARE(bottom.mid(kRecordHeaderSize, 2), Bytes({0x04, 0x21}));
  QVERIFY(bottom.contains(Host("You are at the bottom of the list.")));
  station.SendRecord(AidRecord(7, 3, kAidPageUp));
  QVERIFY(station.NextRecord().contains(Host("ITEM0021")));
  station.SendRecord(AidRecord(7, 3, kAidF12));
  QVERIFY(station.NextRecord().contains(Host("Veltrix Demo Main Menu")));
}

void DemoHostTest::quantityChecksInputWithErrorCode_data() {
  QTest::addColumn<QByteArray>("item");
  QTest::addColumn<QByteArray>("quantity");
  QTest::addColumn<int>("error_row");  // 0: accepted
  QTest::addColumn<QByteArray>("message");
  QTest::newRow("accepted") << QByteArray("ITEM0007") << QByteArray("12") << 0
                            << QByteArray("Quantity 12 recorded for ITEM0007.");
  QTest::newRow("unknown item") << QByteArray("NOSUCH") << QByteArray("12") << 5
                                << QByteArray("Item 'NOSUCH' not found.");
  QTest::newRow("letters") << QByteArray("ITEM0007") << QByteArray("12A") << 6
                           << QByteArray("Quantity must be a number from 1 to 9999.");
  QTest::newRow("zero") << QByteArray("ITEM0007") << QByteArray("0") << 6
                        << QByteArray("Quantity must be a number from 1 to 9999.");
  QTest::newRow("too large") << QByteArray("ITEM0007") << QByteArray("10000") << 6
                             << QByteArray("Quantity must be a number from 1 to 9999.");
  QTest::newRow("empty") << QByteArray("ITEM0007") << QByteArray() << 6
                         << QByteArray("Quantity must be a number from 1 to 9999.");
}

void DemoHostTest::quantityChecksInputWithErrorCode() {
  QFETCH(QByteArray, item);
  QFETCH(QByteArray, quantity);
  QFETCH(int, error_row);
  QFETCH(QByteArray, message);
  Link link;
  QVERIFY(link.SignedOn());
  Station& station = link.station;
  station.SendRecord(AidRecord(21, 8, kAidEnter, {{21, 7, "2"}}));
  QVERIFY(station.NextRecord().contains(Host("Enter a Quantity")));
  QList<FieldData> fields = {{5, 34, item}};
  if (!quantity.isEmpty()) fields.append({6, 34, quantity});
  station.SendRecord(AidRecord(6, 40, kAidEnter, fields));
  const QByteArray answer = station.NextRecord();
  QVERIFY2(answer.contains(Host(message.constData())), answer.toHex(' ').constData());
  if (error_row == 0) {
    QCOMPARE(answer.mid(kRecordHeaderSize, 2), Bytes({0x04, 0x40}));
  } else {
    QCOMPARE(answer.mid(kRecordHeaderSize, 5), Bytes({0x04, 0x21, 0x13, error_row, 34}));
  }
}

void DemoHostTest::readImmediateFetchesFields() {
  Link link;
  QVERIFY(link.SignedOn());
  Station& station = link.station;
  station.SendRecord(AidRecord(21, 8, kAidEnter, {{21, 7, "2"}}));
  station.NextRecord();
  station.SendRecord(AidRecord(5, 34, kAidF5));
  QCOMPARE(station.NextRecord(), Bytes({0x00, 0x0C, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 0x04, 0x72}));
  // All fields, NULs as blanks, no addresses, no AID: item (8) then quantity (5).
  QByteArray answer = Bytes({0, 0, 0x12, 0xA0, 0, 0, 4, 0, 0, 3}) + Host("ITEM0002") + Host("42") +
                      Bytes({0x00, 0x40, 0x00});
  answer[1] = static_cast<char>(answer.size());
  station.SendRecord(answer);
  const QByteArray screen = station.NextRecord();
  QVERIFY(screen.contains(Host("Read Immediate: item 'ITEM0002', quantity '42'.")));
  // The fields come back filled with what was read.
  QVERIFY(screen.contains(Bytes({0x1D, 0x40, 0x20, 0x24, 0x00, 0x08}) + Host("ITEM0002")));
}

void DemoHostTest::f3OnSignOnEndsTheSession() {
  Link link;
  QSignalSpy gone(&link.server, &DemoHostServer::stationDisconnected);
  QVERIFY(link.Open("X"));
  Station& station = link.station;
  station.NextRecord();
  station.NextRecord();
  station.SendRecord(AidRecord(6, 53, kAidF3));
  QVERIFY(station.WaitDisconnected());
  QTRY_COMPARE(gone.count(), 1);
}

void DemoHostTest::scriptSendsExpectsAndLogs() {
  Link link;
  auto& [server, station] = link;
  const auto first = OutboundRecord().ClearUnit().WriteToDisplay(0, 8).TextAt(2, 2, "HI").Finish();
  const auto second = OutboundRecord().ReadImmediate().Finish();
  const std::vector<std::uint8_t> wanted = {0x00, 0x0D, 0x12, 0xA0, 0, 0, 4, 0, 0, 3, 1, 1, 0xF1};
  server.SetScript({ScriptStep::Send(first), ScriptStep::Expect(wanted), ScriptStep::Send(second),
                    ScriptStep::ExpectAny(), ScriptStep::Close()});
  QVERIFY(link.Open("S"));
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
  QVERIFY(server.receivedBytes().startsWith(Bytes({0xFF, 0xFB, 39})));
}

void DemoHostTest::scriptWithoutNegotiation() {
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

void DemoHostTest::executablePrintsItsEphemeralPort() {
  const QString program = QStringLiteral(VELTRIX_BINARY_DIR "/veltrix-demo-host");
  if (!QFileInfo::exists(program)) QSKIP("veltrix-demo-host is not built");
  QProcess host;
  host.start(program, {"--port", "0"});
  QVERIFY(host.waitForStarted());
  QTRY_VERIFY(host.canReadLine());
  const QString line = QString::fromLatin1(host.readLine()).trimmed();
  QVERIFY2(line.startsWith("listening on 127.0.0.1:"), qPrintable(line));
  const quint16 port = line.section(':', 1).toUShort();
  QVERIFY(port != 0);
  Station station;
  QVERIFY(station.Connect(port));
  QVERIFY(station.Expect(Bytes({0xFF, 0xFD, 39})));
  host.kill();
  host.waitForFinished();
}

void DemoHostTest::veltrixEngineWorksThroughTheDemo() {
  EnginePipe pipe;
  QVERIFY(pipe.host.running());
  QCOMPARE(pipe.host.station().terminal_type, std::string("IBM-3179-2"));
  QCOMPARE(pipe.host.station().environment.at("DEVNAME"), std::string("VELTRIX01"));
  QVERIFY(pipe.Row(0).contains("Sign On"));
  QVERIFY(pipe.Row(3).contains("VELTRIX01"));
  QCOMPARE(pipe.station.CursorRow(), kUserField.row - 1);
  QCOMPARE(pipe.station.CursorColumn(), kUserField.column - 1);
  QVERIFY(pipe.host.TakeLog() == std::vector<std::string>({"terminal type IBM-3179-2",
                                                           "query reply: device 3477 model 0FC"}));

  pipe.Type("bob");
  pipe.Key(veltrix::HostKey::kEnter);
  QCOMPARE(pipe.app().screen(), DemoApplication::Screen::kMenu);
  QCOMPARE(pipe.app().user(), std::string("BOB"));  // a monocase field
  QVERIFY(pipe.Row(1).contains("Signed on as BOB"));

  pipe.Type("1");
  pipe.Key(veltrix::HostKey::kEnter);
  QVERIFY(pipe.Row(kListFirstRow - 1).contains("ITEM0001"));
  pipe.Key(veltrix::HostKey::kPageDown);
  QCOMPARE(pipe.app().list_page(), 1);
  QVERIFY(pipe.Row(kListFirstRow - 1).contains("ITEM0011"));

  pipe.Key(veltrix::HostKey::kF3);
  pipe.Type("2");
  pipe.Key(veltrix::HostKey::kEnter);
  QCOMPARE(pipe.app().screen(), DemoApplication::Screen::kQuantity);
  pipe.Type("ITEM0004");  // a full field moves the cursor on to the quantity
  pipe.Type("x1");
  pipe.Key(veltrix::HostKey::kEnter);
  QVERIFY(pipe.Row(23).contains("Quantity must be a number from 1 to 9999."));
  QVERIFY(pipe.station.KeyboardLocked());
  QCOMPARE(pipe.station.CursorRow(), kQuantityField.row - 1);

  pipe.Key(veltrix::HostKey::kReset);
  pipe.Key(veltrix::HostKey::kHome);
  pipe.Key(veltrix::HostKey::kDown);  // onto the quantity field again
  pipe.Type("25 ");
  pipe.Key(veltrix::HostKey::kEnter);
  QVERIFY2(pipe.Row(23).contains("Quantity 25 recorded for ITEM0004."), qPrintable(pipe.Row(23)));
}

void DemoHostTest::doubleByteWelcomeReachesTheScreen_data() {
  QTest::addColumn<int>("emulation_type");
  QTest::addColumn<QString>("welcome");
  QTest::newRow("Traditional Chinese") << 1 << QString::fromUtf8("\u6B61\u8FCE");
  QTest::newRow("Simplified Chinese") << 2 << QString::fromUtf8("\u6B22\u8FCE");
  QTest::newRow("Korean") << 3 << QString::fromUtf8("\uD658\uC601\uD569\uB2C8\uB2E4");
  QTest::newRow("Japanese") << 4 << QString::fromUtf8("\u3088\u3046\u3053\u305D");
}

void DemoHostTest::doubleByteWelcomeReachesTheScreen() {
  QFETCH(int, emulation_type);
  QFETCH(QString, welcome);
  EnginePipe pipe(emulation_type);
  QCOMPARE(pipe.host.station().terminal_type, std::string("IBM-5555-B01"));
  // Row 12: attribute cell, shift-out blank, the converted pairs, shift-in blank.
  const auto& screen = pipe.station.Screen();
  QCOMPARE(screen.Character(11, 16), std::uint8_t{0x20});
  QString text;
  int column = 17;
  for (; column + 1 < 80 && screen.Character(11, column) >= 0x80; column += 2) {
    const char32_t c = veltrix::DoubleByteToUnicode(emulation_type, screen.Character(11, column),
                                                    screen.Character(11, column + 1));
    text += QString::fromUcs4(&c, 1);
  }
  QCOMPARE(text, welcome);
  QCOMPARE(screen.Character(11, column), std::uint8_t{0x20});
}

// Everything a station sends in one session, cut at every chunk size, gives the same answers.
void DemoHostTest::sessionGivesTheSameBytesForAnyChunking() {
  QByteArray input =
      Bytes({0xFF, 0xFB, 39, 0xFF, 0xFA, 39, 0x00, 0x03}) + "DEVNAME" + Bytes({0x01}) + "CHUNK" +
      Bytes({0xFF, 0xF0, 0xFF, 0xFB, 24, 0xFF, 0xFA, 24, 0x00}) + "IBM-3179-2" +
      Bytes({0xFF, 0xF0, 0xFF, 0xFB, 25, 0xFF, 0xFD, 25, 0xFF, 0xFB, 0, 0xFF, 0xFD, 0});
  for (const QByteArray& record :
       {QueryReply(), AidRecord(6, 53, kAidEnter, {{6, 53, "CHUNK"}}),
        AidRecord(21, 8, kAidEnter, {{21, 7, "1"}}), AidRecord(7, 3, kAidPageDown),
        AidRecord(7, 3, kAidF3), AidRecord(21, 8, kAidEnter, {{21, 7, "2"}}),
        AidRecord(5, 34, kAidF5)}) {
    input += record + Bytes({0xFF, 0xEF});
  }
  const auto* data = reinterpret_cast<const std::uint8_t*>(input.constData());
  auto run = [&](int chunk) {
    HostSession session(std::make_unique<DemoApplication>());
    QByteArray out = Bytes(session.Start());
    for (int i = 0; i < input.size(); i += chunk) {
      const int n = std::min<int>(chunk, input.size() - i);
      out += Bytes(session.Receive({data + i, static_cast<std::size_t>(n)}));
    }
    return out;
  };
  const QByteArray whole = run(input.size());
  QVERIFY(whole.contains(Host("ITEM0011")));
  QVERIFY(whole.endsWith(Bytes({0x04, 0x72, 0xFF, 0xEF})));
  for (int chunk = 1; chunk < 64; ++chunk) QCOMPARE(run(chunk), whole);
}

void DemoHostTest::sessionSurvivesGarbage() {
  std::uint32_t seed = 12345;
  auto next = [&seed] {
    seed = seed * 1103515245u + 12345u;
    return static_cast<std::uint8_t>(seed >> 16);
  };
  for (const bool negotiate : {true, false}) {
    HostSession session(std::make_unique<DemoApplication>(), negotiate);
    session.Start();
    for (int round = 0; round < 2000 && !session.wants_close(); ++round) {
      std::vector<std::uint8_t> chunk(1 + next() % 40);
      for (auto& b : chunk) b = next();
      // Mostly Telnet and record framing bytes, so that every state is reached.
      if (next() % 2 == 0)
        chunk.insert(chunk.end(), {0xFF, static_cast<std::uint8_t>(0xEF + next() % 17)});
      session.Receive(chunk);
    }
  }
  QVERIFY(true);  // reaching here without a crash is the point
}

QTEST_MAIN(DemoHostTest)
#include "demo_host_test.moc"
