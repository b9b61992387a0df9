#ifndef VELTRIX_TN5250_TLS_QT_H_
#define VELTRIX_TN5250_TLS_QT_H_

#include <QList>
#include <QSslError>
#include <QString>
#include <string>

#include "tn5250/tls_trust.h"

class QSslCertificate;
class QSslSocket;

namespace veltrix {

// Prepares a socket for Telnet over TLS: TLS 1.2 or later, the system's trusted certificates
// and, when `ca_file` names one, the certificates of that PEM file as well, and the peer's name
// checked against `host`. False with `reason` when the CA file gives no certificate.
bool ConfigureTls(QSslSocket& socket, const QString& ca_file, std::string* reason = nullptr);

// The peer certificate's facts and what the TLS library found wrong with it.
CertificateFacts FactsOf(const QSslCertificate& certificate, const QList<QSslError>& errors);

// "TLS 1.3, TLS_AES_256_GCM_SHA384" once the handshake is done.
std::string SecurityText(const QSslSocket& socket);

// Why a TLS connection failed when no certificate was the reason: a host that answered in
// plain Telnet is named as such.
std::string TlsFailureText(const QSslSocket& socket);
// A TLS handshake that got no answer within `seconds` on a connection that stands: a plain
// Telnet host waits for the terminal's answer to its first request and never answers in TLS.
std::string TlsSilentText(int seconds);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TLS_QT_H_
