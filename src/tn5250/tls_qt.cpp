#include "tn5250/tls_qt.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QSslCertificate>
#include <QSslCipher>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QStringList>
#include <algorithm>

namespace veltrix {
namespace {

std::string DateText(const QDateTime& time) {
  return time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm 'UTC'")).toStdString();
}

std::string NameText(const QSslCertificate& certificate, bool issuer) {
  const QString name = issuer ? certificate.issuerDisplayName() : certificate.subjectDisplayName();
  return name.toStdString();
}

CertificateProblem ProblemOf(QSslError::SslError error) {
  switch (error) {
    case QSslError::CertificateExpired:
      return CertificateProblem::kExpired;
    case QSslError::CertificateNotYetValid:
      return CertificateProblem::kNotYetValid;
    case QSslError::HostNameMismatch:
      return CertificateProblem::kWrongHost;
    case QSslError::SelfSignedCertificate:
    case QSslError::SelfSignedCertificateInChain:
      return CertificateProblem::kSelfSigned;
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToGetLocalIssuerCertificate:
    case QSslError::UnableToVerifyFirstCertificate:
    case QSslError::CertificateUntrusted:
      return CertificateProblem::kUnknownIssuer;
    default:
      return CertificateProblem::kOther;
  }
}

}  // namespace

bool ConfigureTls(QSslSocket& socket, const QString& ca_file, std::string* reason) {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setProtocol(QSsl::TlsV1_2OrLater);
  configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
  if (!ca_file.isEmpty()) {
    const QList<QSslCertificate> extra = QSslCertificate::fromPath(ca_file, QSsl::Pem);
    if (extra.isEmpty()) {
      if (reason != nullptr) {
        *reason =
            std::string("'").append(ca_file.toStdString()).append("' holds no PEM certificate");
      }
      return false;
    }
    configuration.addCaCertificates(extra);
  }
  socket.setSslConfiguration(configuration);
  return true;
}

CertificateFacts FactsOf(const QSslCertificate& certificate, const QList<QSslError>& errors) {
  CertificateFacts facts;
  facts.subject = NameText(certificate, false);
  facts.issuer = NameText(certificate, true);
  facts.valid_from = DateText(certificate.effectiveDate());
  facts.valid_until = DateText(certificate.expiryDate());
  facts.fingerprint = std::string("SHA256:").append(
      certificate.digest(QCryptographicHash::Sha256).toHex().toUpper().toStdString());
  for (const QSslError& error : errors) {
    const CertificateProblem problem = ProblemOf(error.error());
    if (problem == CertificateProblem::kOther && facts.other.empty()) {
      facts.other = error.errorString().toStdString();
    }
    if (std::ranges::find(facts.problems, problem) == facts.problems.end()) {
      facts.problems.push_back(problem);
    }
  }
  return facts;
}

std::string SecurityText(const QSslSocket& socket) {
  const QSslCipher cipher = socket.sessionCipher();
  QString protocol = cipher.protocolString();
  switch (socket.sessionProtocol()) {
    case QSsl::TlsV1_2:
      protocol = QStringLiteral("TLS 1.2");
      break;
    case QSsl::TlsV1_3:
      protocol = QStringLiteral("TLS 1.3");
      break;
    default:
      break;
  }
  return (protocol + QStringLiteral(", ") + cipher.name()).toStdString();
}

std::string TlsFailureText(const QSslSocket& socket) {
  if (socket.error() == QAbstractSocket::SslHandshakeFailedError) {
    return std::string("the host did not answer in TLS (a plain Telnet port?): ")
        .append(socket.errorString().toStdString());
  }
  return socket.errorString().toStdString();
}

std::string TlsSilentText(int seconds) {
  return std::string("the host did not answer in TLS within ")
      .append(std::to_string(seconds))
      .append(" seconds (a plain Telnet port?)");
}

}  // namespace veltrix
