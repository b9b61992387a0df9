// veltrix-cli session --tls: the host stream over QSslSocket, used with its blocking calls (no
// event loop runs in the command), verifying the host's certificate as the window does.
#include <QCoreApplication>
#include <QSslSocket>
#include <memory>

#include "cli/host_stream.h"
#include "tn5250/tls_qt.h"
#include "tn5250/tls_trust.h"

namespace veltrix::cli {
namespace {

class TlsStream : public HostStream {
 public:
  explicit TlsStream(const TlsOptions& options) : options_(options) {
    if (QCoreApplication::instance() == nullptr) {
      static int argc = 1;
      static char name[] = "veltrix-cli";
      static char* argv[] = {name, nullptr};
      app_ = std::make_unique<QCoreApplication>(argc, argv);
    }
  }

  bool Connect(const std::string& host, int port, std::chrono::milliseconds timeout,
               std::string& reason) override {
    socket_ = std::make_unique<QSslSocket>();
    if (!ConfigureTls(*socket_, QString::fromStdString(options_.ca_file), &reason)) return false;
    TrustedCertificates trusted;
    if (!options_.fingerprint.empty()) trusted.Trust(host, options_.fingerprint);
    std::optional<CertificateFacts> refused;
    QObject::connect(socket_.get(), &QSslSocket::sslErrors, [&](const QList<QSslError>& errors) {
      const CertificateFacts facts = FactsOf(socket_->peerCertificate(), errors);
      if (JudgeCertificate(trusted, host, facts) == CertificateVerdict::kTrusted) {
        socket_->ignoreSslErrors();
      } else {
        refused = facts;
      }
    });
    socket_->connectToHostEncrypted(QString::fromStdString(host), static_cast<quint16>(port));
    if (socket_->waitForEncrypted(static_cast<int>(timeout.count()))) {
      // A --trust for a certificate that verifies must still match it.
      const CertificateFacts facts = FactsOf(socket_->peerCertificate(), {});
      if (JudgeCertificate(trusted, host, facts) != CertificateVerdict::kChanged) return true;
      refused = facts;
    }
    if (refused) {
      reason = refused->problems.empty()
                   ? "the certificate is not the one --trust names; its fingerprint is " +
                         refused->fingerprint
                   : refused->ProblemsText() + " (subject " + refused->subject + ", issuer " +
                         refused->issuer + "); to accept it: --trust " + refused->fingerprint;
      certificate_refused_ = true;
    } else if (socket_->state() == QAbstractSocket::ConnectedState) {
      reason = TlsSilentText(static_cast<int>(timeout.count() / 1000));
    } else if (socket_->error() == QAbstractSocket::SslHandshakeFailedError) {
      reason = TlsFailureText(*socket_);
    } else {
      reason = socket_->errorString().toStdString();
    }
    socket_->abort();
    return false;
  }

  bool Send(std::span<const std::uint8_t> bytes) override {
    if (socket_->write(reinterpret_cast<const char*>(bytes.data()),
                       static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size())) {
      return false;
    }
    while (socket_->bytesToWrite() > 0) {
      if (!socket_->waitForBytesWritten(10000)) return false;
    }
    return true;
  }

  std::optional<std::vector<std::uint8_t>> Receive(std::chrono::milliseconds wait,
                                                   std::string& reason) override {
    if (socket_->bytesAvailable() == 0 &&
        !socket_->waitForReadyRead(static_cast<int>(std::max<long long>(wait.count(), 0)))) {
      if (socket_->error() == QAbstractSocket::SocketTimeoutError &&
          socket_->state() == QAbstractSocket::ConnectedState) {
        return std::vector<std::uint8_t>{};
      }
      reason = socket_->error() == QAbstractSocket::RemoteHostClosedError ||
                       socket_->state() != QAbstractSocket::ConnectedState
                   ? "the host closed the connection"
                   : socket_->errorString().toStdString();
      return std::nullopt;
    }
    const QByteArray bytes = socket_->read(4096);
    return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
  }

  std::string Security() const override { return SecurityText(*socket_); }
  bool certificate_refused() const override { return certificate_refused_; }

 private:
  TlsOptions options_;
  std::unique_ptr<QCoreApplication> app_;
  std::unique_ptr<QSslSocket> socket_;
  bool certificate_refused_ = false;
};

std::unique_ptr<HostStream> MakeTlsStream(const TlsOptions& options) {
  return std::make_unique<TlsStream>(options);
}

}  // namespace

void InstallTlsStream() { SetTlsStreamMaker(&MakeTlsStream); }

}  // namespace veltrix::cli
