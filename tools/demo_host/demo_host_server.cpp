#include "demo_host/demo_host_server.h"

#include <QFile>
#include <QHostAddress>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "demo_host/demo_application.h"

namespace veltrix::demo_host {

DemoHostServer::DemoHostServer(QObject* parent)
    : QObject(parent), factory_([] { return std::make_unique<DemoApplication>(); }) {
  MakeServer(new QTcpServer(this));
}

void DemoHostServer::MakeServer(QTcpServer* server) {
  delete server_;
  server_ = server;
  // A TLS server queues a connection once its handshake is done.
  connect(server_, &QTcpServer::pendingConnectionAvailable, this, &DemoHostServer::OnNewConnection);
}

bool DemoHostServer::UseTls(const QString& certificate_file, const QString& key_file) {
  const QList<QSslCertificate> chain = QSslCertificate::fromPath(certificate_file, QSsl::Pem);
  QFile key_in(key_file);
  QSslKey key;
  if (key_in.open(QIODevice::ReadOnly)) {
    const QByteArray pem = key_in.readAll();
    key = QSslKey(pem, QSsl::Rsa, QSsl::Pem);
    if (key.isNull()) key = QSslKey(pem, QSsl::Ec, QSsl::Pem);
  }
  if (chain.isEmpty() || key.isNull()) {
    tls_error_ = chain.isEmpty() ? QStringLiteral("no PEM certificate in %1").arg(certificate_file)
                                 : QStringLiteral("no PEM private key in %1").arg(key_file);
    return false;
  }
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setProtocol(QSsl::TlsV1_2OrLater);
  configuration.setLocalCertificateChain(chain);
  configuration.setPrivateKey(key);
  configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
  auto* server = new QSslServer(this);
  server->setSslConfiguration(configuration);
  connect(server, &QSslServer::errorOccurred, this,
          [this](QSslSocket*, QAbstractSocket::SocketError) {
            Log(QStringLiteral("a station's TLS handshake failed"));
          });
  MakeServer(server);
  return true;
}

DemoHostServer::~DemoHostServer() { Close(); }

void DemoHostServer::SetScript(std::vector<ScriptStep> steps, bool negotiate) {
  SetApplicationFactory(
      [steps = std::move(steps)] { return std::make_unique<ScriptedApplication>(steps); },
      negotiate);
}

void DemoHostServer::SetApplicationFactory(ApplicationFactory factory, bool negotiate) {
  factory_ = std::move(factory);
  negotiate_ = negotiate;
}

bool DemoHostServer::Listen(quint16 port) {
  return server_->listen(QHostAddress(QHostAddress::LocalHost), port);
}

quint16 DemoHostServer::port() const { return server_->serverPort(); }

QString DemoHostServer::error() const {
  return tls_error_.isEmpty() ? server_->errorString() : tls_error_;
}

void DemoHostServer::Close() {
  server_->close();
  const auto sockets = sessions_.keys();
  sessions_.clear();
  for (QTcpSocket* socket : sockets) {
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
  }
}

QList<QByteArray> DemoHostServer::receivedRecords() const {
  QList<QByteArray> records;
  if (latest_ == nullptr) return records;
  for (const auto& r : latest_->records()) {
    records.append(QByteArray(reinterpret_cast<const char*>(r.data()), qsizetype(r.size())));
  }
  return records;
}

QStringList DemoHostServer::scriptMismatches() const {
  QStringList list;
  if (latest_ == nullptr) return list;
  if (auto* script = dynamic_cast<ScriptedApplication*>(&latest_->application())) {
    for (const auto& m : script->mismatches()) list.append(QString::fromStdString(m));
  }
  return list;
}

bool DemoHostServer::scriptFinished() const {
  if (latest_ == nullptr) return false;
  auto* script = dynamic_cast<ScriptedApplication*>(&latest_->application());
  return script != nullptr && script->finished();
}

void DemoHostServer::OnNewConnection() {
  while (QTcpSocket* socket = server_->nextPendingConnection()) {
    auto session = std::make_shared<HostSession>(factory_(), negotiate_);
    sessions_.insert(socket, session);
    latest_ = session;
    ++connection_count_;
    Log(QStringLiteral("station connected from %1:%2")
            .arg(socket->peerAddress().toString())
            .arg(socket->peerPort()));
    // A flooding station is read a piece at a time; the rest waits in the kernel, not here.
    socket->setReadBufferSize(64 * 1024);
    if (idle_limit_ms_ > 0) {
      auto* idle = new QTimer(socket);
      idle->setObjectName(QStringLiteral("idle"));
      idle->setSingleShot(true);
      connect(idle, &QTimer::timeout, this, [this, socket] {
        Log(QStringLiteral("station idle for %1 s; connection closed")
                .arg(idle_limit_ms_ / 1000.0));
        Drop(socket);
      });
      idle->start(idle_limit_ms_);
    }
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { OnReadyRead(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
      if (sessions_.remove(socket) == 0) return;
      socket->deleteLater();
      Log(QStringLiteral("station disconnected"));
      emit stationDisconnected();
    });
    emit stationConnected();
    Write(socket, *session, session->Start());
  }
}

void DemoHostServer::OnReadyRead(QTcpSocket* socket) {
  const auto it = sessions_.find(socket);
  if (it == sessions_.end()) return;
  const std::shared_ptr<HostSession> session = it.value();
  if (auto* idle = socket->findChild<QTimer*>(QStringLiteral("idle"))) idle->start();
  const QByteArray bytes = socket->readAll();
  received_bytes_.append(
      bytes.first(std::min(bytes.size(), kMaxKeptBytes - received_bytes_.size())));
  emit bytesReceived(bytes);
  const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.constData());
  Write(socket, *session, session->Receive({data, static_cast<std::size_t>(bytes.size())}));
}

void DemoHostServer::Write(QTcpSocket* socket, HostSession& session,
                           const std::vector<std::uint8_t>& bytes) {
  for (const auto& line : session.TakeLog()) Log(QString::fromStdString(line));
  if (!bytes.empty()) {
    socket->write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
  }
  // The station sees everything sent before the connection ends.
  if (session.wants_close()) socket->disconnectFromHost();
  if (socket->bytesToWrite() > kMaxUnsentBytes) {
    Log(QStringLiteral("the station does not read what it is sent; connection closed"));
    Drop(socket);
  }
}

void DemoHostServer::Log(const QString& line) {
  if (log_.size() >= kMaxLogLines) log_.remove(0, kMaxLogLines / 2);
  log_.append(line);
  emit logLine(line);
}

// Forgets the station at once; its socket goes when the event loop next runs.
void DemoHostServer::Drop(QTcpSocket* socket) {
  if (sessions_.remove(socket) == 0) return;
  socket->disconnect(this);
  socket->abort();
  socket->deleteLater();
  Log(QStringLiteral("station disconnected"));
  emit stationDisconnected();
}

}  // namespace veltrix::demo_host
