#include "tn5250/host_connection_qt.h"

#include <QDir>
#include <QHostAddress>
#include <QStandardPaths>
#include <QTimer>
#include <QWidget>
#include <array>

#include "tn5250/host_ip_dialog.h"
#include "tn5250/tls_qt.h"

namespace veltrix {

HostConnectionQt::HostConnectionQt(QWidget* message_parent, QObject* parent)
    : QObject(parent),
      message_parent_(message_parent),
      log_sink_(LogDirectoryFor(std::filesystem::current_path())),
      log_(log_sink_, clock_),
      connection_(*this, log_, *this) {
  run_dialog_ = [this](HostIpForm& form, const std::string& entry) {
    HostIpDialog dialog(form, entry, message_parent_, {}, dialog_port_);
    return dialog.exec() == QDialog::Accepted;
  };
  ask_certificate_ = [this](const std::string& host, const CertificateFacts& facts,
                            CertificateVerdict verdict) {
    CertificateDialog dialog(
        host, facts, verdict, trusted_, [this] { SaveTrusted(); }, message_parent_);
    dialog.exec();
    return dialog.answer();
  };
  // The only state Veltrix keeps between runs: the certificates the user chose to trust.
  trust_path_ = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
                    .filePath(QStringLiteral("veltrix/trusted-certificates"))
                    .toStdString();
  show_error_ = [this](const QString& text) { ShowErrorBox(message_parent_, text); };
  connect_timer_ = new QTimer(this);
  connect_timer_->setSingleShot(true);
  connect(connect_timer_, &QTimer::timeout, this, [this] {
    const int seconds = connect_timer_->interval() / 1000;
    if (tls_ && socket_ != nullptr && socket_->state() == QAbstractSocket::ConnectedState) {
      FailConnecting(QString::fromStdString(TlsSilentText(seconds)));
      return;
    }
    FailConnecting(QStringLiteral("no answer within %1 seconds").arg(seconds));
  });
}

HostConnectionQt::~HostConnectionQt() { connection_.Disconnect(); }

void HostConnectionQt::SetLogDirectory(const std::filesystem::path& directory) {
  log_sink_ = FileLogSink(directory);
}

bool HostConnectionQt::ConnectToHost(Document& doc) {
  const HostSettings settings = ReadHostSettings(doc);
  dialog_port_ = settings.port;
  if (!run_dialog_(form_, settings.active_entry)) return false;
  connect_doc_ = &doc;
  connection_.set_log_secrets(form_.log_secrets());
  return connection_.Connect(doc, form_.octets(), form_.save_log(), form_.use_tls());
}

void HostConnectionQt::DisconnectFromHost() {
  connect_timer_->stop();
  connection_.Disconnect();
}

void HostConnectionQt::Open(const std::string& /*address*/, std::uint16_t /*port*/) {
  Close();
  ending_ = false;
  ++attempt_;
  tls_ = form_.use_tls();
  once_fingerprint_.clear();
  pending_.reset();
  if (tls_) trusted_ = ReadTrustedCertificates(trust_path_);
  OpenSocket();
}

void HostConnectionQt::OpenSocket() {
  socket_ = new QSslSocket(this);
  socket_->setReadBufferSize(kReadBufferBytes);
  connect(socket_, &QSslSocket::errorOccurred, this, &HostConnectionQt::OnSocketError);
  connect_timer_->start(connect_timeout_ms_);
  const QString address = QString::fromStdString(connection_.address());
  if (!tls_) {
    connect(socket_, &QSslSocket::connected, this, &HostConnectionQt::OnSocketConnected);
    socket_->connectToHost(QHostAddress(address), connection_.port());
    return;
  }
  std::string reason;
  if (!ConfigureTls(*socket_, ca_file_, &reason)) {
    // As a socket reports it: after Connect has returned, so the window knows it is connecting.
    QTimer::singleShot(0, this, [this, reason, attempt = attempt_] {
      if (attempt == attempt_) FailConnecting(QString::fromStdString(reason));
    });
    return;
  }
  connect(socket_, &QSslSocket::encrypted, this, &HostConnectionQt::OnSocketConnected);
  connect(socket_, &QSslSocket::sslErrors, this, &HostConnectionQt::OnSslErrors);
  // The certificate is checked against the address the user gave.
  socket_->connectToHostEncrypted(address, connection_.port());
}

bool HostConnectionQt::NeedsAnswer(const CertificateFacts& facts) {
  const CertificateVerdict verdict = JudgeCertificate(trusted_, connection_.address(), facts);
  if (verdict == CertificateVerdict::kVerified || verdict == CertificateVerdict::kTrusted) {
    return false;
  }
  if (facts.fingerprint == once_fingerprint_) return false;
  pending_ = PendingCertificate{facts, verdict};
  return true;
}

void HostConnectionQt::OnSslErrors(const QList<QSslError>& errors) {
  if (!socket_) return;
  // Not ignored, the handshake fails and the error that follows asks the user.
  if (!NeedsAnswer(FactsOf(socket_->peerCertificate(), errors))) socket_->ignoreSslErrors();
}

void HostConnectionQt::AskAboutCertificate() {
  connect_timer_->stop();
  if (socket_ != nullptr) socket_->disconnect(this);
  const PendingCertificate pending = *pending_;
  pending_.reset();
  // Outside the socket's signal: the dialog runs its own event loop.
  QTimer::singleShot(0, this, [this, pending, attempt = attempt_] {
    if (attempt != attempt_ || !connection_.connecting()) return;
    const std::string host = connection_.address();
    switch (ask_certificate_(host, pending.facts, pending.verdict)) {
      case CertificateAnswer::kAlwaysTrust:
        trusted_.Trust(host, pending.facts.fingerprint);
        SaveTrusted();
        [[fallthrough]];
      case CertificateAnswer::kConnectOnce:
        if (attempt != attempt_ || !connection_.connecting()) return;
        once_fingerprint_ = pending.facts.fingerprint;
        Close();
        OpenSocket();
        return;
      case CertificateAnswer::kCancel:
        break;
    }
    FailConnecting(QString::fromStdString(
        pending.verdict == CertificateVerdict::kChanged
            ? "the certificate is not the one trusted for this host (" + pending.facts.fingerprint +
                  ")"
            : "the certificate was not accepted: " + pending.facts.ProblemsText()));
  });
}

void HostConnectionQt::SaveTrusted() {
  std::string reason;
  if (!WriteTrustedCertificates(trust_path_, trusted_, &reason)) {
    show_error_(QString::fromStdString("Could not save the trusted certificates in " + trust_path_ +
                                       ": " + reason));
  }
}

void HostConnectionQt::OnSocketConnected() {
  connect_timer_->stop();
  if (!socket_ || !connection_.connecting()) return;
  std::string security;
  if (tls_) {
    // A certificate that verifies can still differ from the one the user trusts for the host.
    if (NeedsAnswer(FactsOf(socket_->peerCertificate(), {}))) {
      AskAboutCertificate();
      return;
    }
    security = SecurityText(*socket_);
  }
  socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  connect(socket_, &QSslSocket::readyRead, this, &HostConnectionQt::ReadSlice);
  connect(socket_, &QSslSocket::disconnected, this, &HostConnectionQt::OnSocketDisconnected);
  connection_.Opened(security);
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
  QSslSocket* socket = socket_;
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
    if (pending_) {
      AskAboutCertificate();
      return;
    }
    QString reason;
    if (socket_ != nullptr) {
      reason = tls_ ? QString::fromStdString(TlsFailureText(*socket_)) : socket_->errorString();
    }
    FailConnecting(reason);
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
