#ifndef VELTRIX_TN5250_HOST_CONNECTION_QT_H_
#define VELTRIX_TN5250_HOST_CONNECTION_QT_H_

#include <QObject>
#include <QPointer>
#include <QSslError>
#include <QSslSocket>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "settings/document.h"
#include "tn5250/certificate_dialog.h"
#include "tn5250/host_connection.h"
#include "tn5250/host_ip.h"
#include "tn5250/session_log.h"
#include "tn5250/tls_trust.h"

class QTimer;
class QWidget;

namespace veltrix {

// The host session of the program: the connect dialog, a TCP socket (TLS when the dialog asks
// for it) on the user interface thread feeding the session as data arrives, and the session log
// in "Logs" under the working directory. Received data is processed in bounded slices so that the
// window stays responsive while a host floods it.
class HostConnectionQt : public QObject, private HostLink, private SessionMessages {
  Q_OBJECT

 public:
  // `message_parent` owns the host session's message boxes (the host screen window).
  explicit HostConnectionQt(QWidget* message_parent = nullptr, QObject* parent = nullptr);
  ~HostConnectionQt() override;

  // Telnet "Connect...": shows the connect dialog and starts connecting without waiting. True
  // when connecting started; connectionOpened or connectionFailed follows. `doc` gets the
  // address in host entry 0 once the connection stands, so it must outlive the attempt.
  bool ConnectToHost(Document& doc);
  // Telnet "Disconnect": closes everything that is open or gives up connecting; safe when
  // nothing is.
  void DisconnectFromHost();

  HostConnection& connection() { return connection_; }
  const HostConnection& connection() const { return connection_; }
  bool connected() const { return connection_.connected(); }
  bool connecting() const { return connection_.connecting(); }
  const std::filesystem::path& log_directory() const { return log_sink_.directory(); }

  // Runs the connect dialog on the form; true when it was confirmed. Tests replace it.
  using DialogRunner = std::function<bool(HostIpForm& form, const std::string& active_entry)>;
  void SetDialogRunner(DialogRunner runner) { run_dialog_ = std::move(runner); }
  // Shows an error message; tests replace the message box.
  using ErrorSink = std::function<void(const QString& text)>;
  void SetErrorSink(ErrorSink sink) { show_error_ = std::move(sink); }
  void SetLogDirectory(const std::filesystem::path& directory);
  // Asks the user about a certificate that did not verify or that changed; tests replace the
  // certificate dialog.
  using CertificateAnswer = CertificateDialog::Answer;
  using CertificateAsker = std::function<CertificateAnswer(
      const std::string& host, const CertificateFacts& facts, CertificateVerdict verdict)>;
  void SetCertificateAsker(CertificateAsker asker) { ask_certificate_ = std::move(asker); }
  // The file of the certificates the user trusts (in the user's configuration folder unless a
  // test sets another), and extra CA certificates to verify hosts with (a PEM file).
  void SetTrustFile(const std::string& path) { trust_path_ = path; }
  const std::string& trust_file() const { return trust_path_; }
  void SetCaFile(const QString& path) { ca_file_ = path; }
  void SetConnectTimeout(int milliseconds) { connect_timeout_ms_ = milliseconds; }
  void SetMessageParent(QWidget* parent) { message_parent_ = parent; }

  // Bytes taken from the socket per slice before the event loop gets its turn again.
  static constexpr qint64 kSliceBytes = 32 * 1024;
  // The most the socket buffers ahead of the session; beyond it the host is held back.
  static constexpr qint64 kReadBufferBytes = 64 * 1024;
  // One receive takes at most this much, as the terminal's receive buffer does.
  static constexpr qint64 kReceiveBytes = 1024;
  // A host that does not answer within this time counts as unreachable.
  static constexpr int kConnectTimeoutMs = 15000;

 signals:
  // The connection ended from the host side (closed or failed): the main window runs its
  // Disconnect command.
  void disconnectRequested();
  // The connection stands (the address is in host entry 0).
  void connectionOpened();
  // The connection could not be made: `text` names the host, the port and the system's reason.
  // "Can not establish connection" is shown after it.
  void connectionFailed(const QString& text);

 private:
  // HostLink
  void Open(const std::string& address, std::uint16_t port) override;
  void Send(std::span<const std::uint8_t> bytes) override;
  void Close() override;
  // SessionMessages
  void ShowError(std::string_view text) override;

  void OpenSocket();
  void OnSocketConnected();
  void OnSslErrors(const QList<QSslError>& errors);
  // A certificate the user must judge: the connection waits for the answer.
  bool NeedsAnswer(const CertificateFacts& facts);
  void AskAboutCertificate();
  void SaveTrusted();
  void FailConnecting(const QString& reason);
  void ReadSlice();
  void ScheduleSlice();
  void DrainAll();
  void OnSocketDisconnected();
  void OnSocketError(QAbstractSocket::SocketError error);
  void EndFromHost(bool host_closed);

  QPointer<QWidget> message_parent_;
  FileLogSink log_sink_;
  SystemLocalClock clock_;
  SessionLog log_;
  HostConnection connection_;
  HostIpForm form_;
  QSslSocket* socket_ = nullptr;
  bool tls_ = false;
  QString ca_file_;
  std::uint16_t dialog_port_ = 23;
  int connect_timeout_ms_ = kConnectTimeoutMs;  // the record's TelnetPort, for the dialog
  std::string trust_path_;
  TrustedCertificates trusted_;
  std::string once_fingerprint_;  // "Connect this time" for this attempt
  struct PendingCertificate {
    CertificateFacts facts;
    CertificateVerdict verdict;
  };
  std::optional<PendingCertificate> pending_;
  CertificateAsker ask_certificate_;
  QTimer* connect_timer_ = nullptr;
  Document* connect_doc_ = nullptr;
  int attempt_ = 0;  // a failure reported late must not end a newer attempt
  DialogRunner run_dialog_;
  ErrorSink show_error_;
  bool slice_scheduled_ = false;
  bool reading_ = false;
  bool ending_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_CONNECTION_QT_H_
