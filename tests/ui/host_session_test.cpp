#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "demo_host/demo_host_server.h"
#include "demo_host/outbound_record.h"
#include "settings/document.h"
#include "settings/field_registry.h"
#include "tn5250/host_connection_qt.h"
#include "tn5250/host_screen_widget.h"

namespace veltrix {

namespace {

// The host as the log saw it: the data lines after each "Send:" joined.
QByteArray SentBytesInLog(const QStringList& lines) {
  QByteArray bytes;
  for (int i = 0; i + 1 < lines.size(); ++i) {
    if (!lines[i].startsWith(QStringLiteral("Send:"))) continue;
    bytes += QByteArray::fromHex(lines[i + 1].toLatin1());
  }
  return bytes;
}

}  // namespace

class HostSessionTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    server_ = std::make_unique<demo_host::DemoHostServer>();
    QVERIFY2(server_->Listen(0), qPrintable(server_->error()));
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
    dir_ = std::make_unique<QTemporaryDir>();
    screen_ = std::make_unique<HostScreenWidget>();
    screen_->resize(800, 600);
    host_ = std::make_unique<HostConnectionQt>(screen_.get());
    host_->SetLogDirectory(std::filesystem::path(dir_->path().toStdString()) / "Logs");
    host_->SetErrorSink([this](const QString& text) { errors_ << text; });
    screen_->SetConnection(&host_->connection());
    errors_.clear();
    disconnect_requests_ = 0;
    // What the main window does on its Disconnect command.
    connect(host_.get(), &HostConnectionQt::disconnectRequested, this, [this] {
      ++disconnect_requests_;
      host_->DisconnectFromHost();
    });
  }
  void cleanup() {
    host_->DisconnectFromHost();
    screen_->SetConnection(nullptr);
    host_.reset();
    screen_.reset();
    server_.reset();
  }
  void userDisconnectClosesTheHostSide() {
    QSignalSpy gone(server_.get(), &demo_host::DemoHostServer::stationDisconnected);
    QVERIFY(Connect(false));
    QTRY_VERIFY(ScreenShows(QStringLiteral("Sign On")));
    host_->DisconnectFromHost();
    QVERIFY(!host_->connected());
    QVERIFY(gone.wait(5000) || gone.count() == 1);
    QCOMPARE(disconnect_requests_, 0);
    QVERIFY(errors_.isEmpty());
    // Disconnecting again is harmless, and a new connection works.
    host_->DisconnectFromHost();
    QVERIFY(Connect(false));
    QTRY_VERIFY(ScreenShows(QStringLiteral("Sign On")));
    QCOMPARE(server_->connectionCount(), 2);
  }
  void sessionLogRecordsTheTrafficLineByLine() {
    QVERIFY(Connect(true));
    QTRY_VERIFY(ScreenShows(QStringLiteral("Sign On")));
    QTRY_VERIFY(!host_->connection().session().KeyboardLocked());
    Type(QStringLiteral("carol"));
    Press(Qt::Key_Return);
    QTRY_VERIFY(ScreenShows(QStringLiteral("Main Menu")));
    Press(Qt::Key_F3);
    QTRY_VERIFY(ScreenShows(QStringLiteral("Sign On")));
    QTRY_VERIFY(!host_->connection().session().KeyboardLocked());
    Press(Qt::Key_F3);
    QTRY_COMPARE(disconnect_requests_, 1);

    // The line format is the core's; here the real file holds the whole session, from the
    // connect line to the host's close.
    const QStringList lines = LogLines();
    QVERIFY2(lines.size() > 6, qPrintable(lines.join('|')));
    QVERIFY(lines.first().startsWith(QStringLiteral("Connect:")));
    QCOMPARE(lines[2].left(9), QStringLiteral("FF FD 27 "));
    QVERIFY(lines.last().startsWith(QStringLiteral("Close:")));
    // Everything the host received is in the log's send lines.
    QCOMPARE(SentBytesInLog(lines), server_->receivedBytes());
  }
  // A host writing screens as fast as loopback takes them: the session keeps up and stays
  // connected. How responsive the window stays is measured by bench/ui/flood_bench.cpp.
  void floodKeepsTheWindowResponsive() {
    QTcpServer flood_host;
    QVERIFY(flood_host.listen(QHostAddress::LocalHost, 0));
    demo_host::OutboundRecord r;
    r.ClearUnit().WriteToDisplay(0x00, 0x08);
    for (int row = 1; row <= 24; ++row) r.TextAt(row, 1, "line " + std::to_string(row), 0x20);
    const std::vector<std::uint8_t> framed = demo_host::FrameRecord(r.Finish());
    const QByteArray screen_bytes(reinterpret_cast<const char*>(framed.data()),
                                  qsizetype(framed.size()));
    constexpr qint64 kTotal = qint64(2) << 20;
    qint64 written = 0;
    QTcpSocket* peer = nullptr;
    auto feed = [&] {
      while (peer && written < kTotal && peer->bytesToWrite() < (1 << 20)) {
        peer->write(screen_bytes);
        written += screen_bytes.size();
      }
    };
    connect(&flood_host, &QTcpServer::newConnection, this, [&] {
      peer = flood_host.nextPendingConnection();
      connect(peer, &QTcpSocket::bytesWritten, this, feed);
      feed();
    });
    screen_->show();
    QVERIFY(Connect(false, flood_host.serverPort()));
    QTRY_VERIFY_WITH_TIMEOUT(written >= kTotal && peer && peer->bytesToWrite() == 0, 60000);
    QTRY_VERIFY(ScreenShows(QStringLiteral("line 24")));
    QVERIFY(host_->connected());
    delete peer;
  }

 private:
  bool Connect(bool save_log, quint16 port = 0) {
    const FieldDef* telnet_port = FindField("TelnetPort");
    if (!telnet_port) return false;
    WriteNumber(doc_->record, *telnet_port, port ? port : server_->port());
    host_->SetDialogRunner([save_log](HostIpForm& form, const std::string& entry) {
      form.Open(entry);
      return form.Confirm({"127", "0", "0", "1"}, save_log);
    });
    if (!host_->ConnectToHost(*doc_)) return false;
    static_cast<void>(QTest::qWaitFor([this] { return !host_->connecting(); }));
    return host_->connected();
  }
  QString Row(int row) const { return screen_->RowText(row); }
  bool ScreenShows(const QString& text) const {
    for (int r = 0; r < 24; ++r) {
      if (Row(r).contains(text)) return true;
    }
    return false;
  }
  void Type(const QString& text) { QTest::keyClicks(screen_.get(), text); }
  void Press(Qt::Key key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
    QTest::keyClick(screen_.get(), key, mods);
  }
  QStringList LogLines() const {
    QFile file(dir_->filePath(QStringLiteral("Logs/Quarvel-TN.log")));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString text = QString::fromLatin1(file.readAll());
    if (!text.endsWith(QStringLiteral("\r\n"))) return {QStringLiteral("<no final CR LF>")};
    text.chop(2);
    return text.split(QStringLiteral("\r\n"));
  }

  std::unique_ptr<demo_host::DemoHostServer> server_;
  std::unique_ptr<Document> doc_;
  std::unique_ptr<HostScreenWidget> screen_;
  std::unique_ptr<HostConnectionQt> host_;
  std::unique_ptr<QTemporaryDir> dir_;
  QStringList errors_;
  int disconnect_requests_ = 0;
};

}  // namespace veltrix

QTEST_MAIN(veltrix::HostSessionTest)
#include "host_session_test.moc"
