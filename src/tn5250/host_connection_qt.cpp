#include "tn5250/host_connection_qt.h"

#include <QHostAddress>
#include <QTimer>
#include <QWidget>
#include <array>

#include "tn5250/host_ip_dialog.h"

namespace veltrix {

HostConnectionQt::HostConnectionQt(QWidget* message_parent, QObject* parent)
    : QObject(parent),
      message_parent_(message_parent),
      log_sink_(LogDirectoryFor(std::filesystem::current_path())),
      log_(log_sink_, clock_),
      connection_(*this, log_, *this) {
  run_dialog_ = [this](HostIpForm& form, const std::string& entry) {
    HostIpDialog dialog(form, entry, message_parent_);
    return dialog.exec() == QDialog::Accepted;
  };
  show_error_ = [this](const QString& text) { ShowErrorBox(message_parent_, text); };
  connect_timer_ = new QTimer(this);
  connect_timer_->setSingleShot(true);
  connect(connect_timer_, &QTimer::timeout, this, [this] {
    FailConnecting(QStringLiteral("no answer within %1 seconds").arg(kConnectTimeoutMs / 1000));
  });
}

HostConnectionQt::~HostConnectionQt() { connection_.Disconnect(); }

void HostConnectionQt::SetLogDirectory(const std::filesystem::path& directory) {
  log_sink_ = FileLogSink(directory);
}

bool HostConnectionQt::ConnectToHost(Document& doc) {
  if (!run_dialog_(form_, ReadHostSettings(doc).active_entry)) return false;
  connect_doc_ = &doc;
  connection_.set_log_secrets(form_.log_secrets());
  return connection_.Connect(doc, form_.octets(), form_.save_log());
}

void HostConnectionQt::DisconnectFromHost() {
  connect_timer_->stop();
  connection_.Disconnect();
}

void HostConnectionQt::Open(const std::string& address, std::uint16_t port) {
  Close();
  ending_ = false;
  ++attempt_;
  socket_ = new QTcpSocket(this);
  socket_->setReadBufferSize(kReadBufferBytes);
  connect(socket_, &QTcpSocket::connected, this, &HostConnectionQt::OnSocketConnected);
  connect(socket_, &QTcpSocket::errorOccurred, this, &HostConnectionQt::OnSocketError);
  connect_timer_->start(kConnectTimeoutMs);
  socket_->connectToHost(QHostAddress(QString::fromStdString(address)), port);
}

void HostConnectionQt::OnSocketConnected() {
  connect_timer_->stop();
  if (!socket_ || !connection_.connecting()) return;
  socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  connect(socket_, &QTcpSocket::readyRead, this, &HostConnectionQt::ReadSlice);
  connect(socket_, &QTcpSocket::disconnected, this, &HostConnectionQt::OnSocketDisconnected);
  connection_.Opened();
  if (connect_doc_ != nullptr) StoreConnectedAddress(*connect_doc_, connection_.address());
  emit connectionOpened();
  // Data may already be waiting.
  ScheduleSlice();
}

void HostConnectionQt::FailConnecting(const QString& reason) {
  connect_timer_->stop();
  if (!connection_.connecting()) return;
  if (socket_ != nullptr) socket_->disconnect(this);  // one failure per attempt
  const std::string why = reason.toStdString();
  // The status bar names the host first; the message box then comes outside the socket's signal.
  emit connectionFailed(
      QString::fromStdString(ConnectFailedText(connection_.address(), connection_.port(), why)));
  QTimer::singleShot(0, this, [this, why, attempt = attempt_] {
    if (attempt == attempt_) connection_.OpenFailed(why);
  });
}

void HostConnectionQt::Send(std::span<const std::uint8_t> bytes) {
  if (!socket_ || socket_->state() != QAbstractSocket::ConnectedState) return;
  socket_->write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

void HostConnectionQt::Close() {
  if (!socket_) return;
  QTcpSocket* socket = socket_;
  socket_ = nullptr;
  socket->disconnect(this);
  socket->flush();
  socket->disconnectFromHost();
  socket->abort();
  socket->deleteLater();
}

void HostConnectionQt::ShowError(std::string_view text) {
  show_error_(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void HostConnectionQt::ScheduleSlice() {
  if (slice_scheduled_) return;
  slice_scheduled_ = true;
  QTimer::singleShot(0, this, [this] {
    slice_scheduled_ = false;
    ReadSlice();
  });
}

void HostConnectionQt::ReadSlice() {
  if (reading_ || !socket_) return;
  reading_ = true;
  std::array<std::uint8_t, kReceiveBytes> buffer;
  qint64 taken = 0;
  while (socket_ && taken < kSliceBytes && socket_->bytesAvailable() > 0) {
    qint64 n = socket_->read(reinterpret_cast<char*>(buffer.data()), kReceiveBytes);
    if (n <= 0) break;
    taken += n;
    connection_.Received(std::span<const std::uint8_t>(buffer.data(), static_cast<std::size_t>(n)));
  }
  reading_ = false;
  // Leave the rest for the next turn of the event loop, so painting and timers keep going.
  if (socket_ && socket_->bytesAvailable() > 0) ScheduleSlice();
}

void HostConnectionQt::DrainAll() {
  while (socket_ && socket_->bytesAvailable() > 0) {
    qint64 before = socket_->bytesAvailable();
    ReadSlice();
    if (socket_ && socket_->bytesAvailable() >= before) break;
  }
}

void HostConnectionQt::OnSocketDisconnected() { EndFromHost(true); }

void HostConnectionQt::OnSocketError(QAbstractSocket::SocketError error) {
  if (connection_.connecting()) {
    FailConnecting(socket_ != nullptr ? socket_->errorString() : QString());
    return;
  }
  // A host that closes is reported by the disconnected signal that follows.
  if (error == QAbstractSocket::RemoteHostClosedError) return;
  EndFromHost(false);
}

void HostConnectionQt::EndFromHost(bool host_closed) {
  if (ending_ || !connection_.connected()) return;
  ending_ = true;
  DrainAll();
  // Finish outside the socket's signal, which may not re-enter the event loop.
  QTimer::singleShot(0, this, [this, host_closed] {
    if (!connection_.connected()) return;
    if (host_closed) {
      connection_.HostClosed();
    } else {
      connection_.ReceiveFailed();
    }
    emit disconnectRequested();
    // Whoever handled the request has disconnected; without a handler the session ends here.
    connection_.Disconnect();
  });
}

}  // namespace veltrix
