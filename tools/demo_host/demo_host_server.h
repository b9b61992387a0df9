#ifndef VELTRIX_TOOLS_DEMO_HOST_DEMO_HOST_SERVER_H_
#define VELTRIX_TOOLS_DEMO_HOST_DEMO_HOST_SERVER_H_

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "demo_host/host_application.h"
#include "demo_host/host_script.h"
#include "demo_host/host_session.h"

class QTcpServer;
class QTcpSocket;

namespace veltrix::demo_host {

// The demo host on a loopback port: every connection gets its own HostSession running the demo
// application, or a script (for tests). Everything received is kept for assertions.
class DemoHostServer : public QObject {
  Q_OBJECT

 public:
  using ApplicationFactory = std::function<std::unique_ptr<HostApplication>()>;

  explicit DemoHostServer(QObject* parent = nullptr);
  ~DemoHostServer() override;

  // Every later connection plays these steps (negotiating first unless `negotiate` is false).
  void SetScript(std::vector<ScriptStep> steps, bool negotiate = true);
  void SetApplicationFactory(ApplicationFactory factory, bool negotiate = true);

  // Serves Telnet over TLS with this certificate and private key (PEM files), from the next
  // Listen on. False (with error()) when the files give no certificate or key.
  bool UseTls(const QString& certificate_file, const QString& key_file);
  // Listens on 127.0.0.1; port 0 picks a free one. False (with error()) when it cannot.
  bool Listen(quint16 port = 0);
  quint16 port() const;
  QString error() const;
  void Close();

  // A station that sends nothing for this long is disconnected (0: never).
  void SetIdleLimit(int milliseconds) { idle_limit_ms_ = milliseconds; }
  int connectionCount() const { return connection_count_; }
  int openConnections() const { return int(sessions_.size()); }
  // What the server keeps of a flood: the first kMaxKeptBytes received, the last kMaxLogLines.
  static constexpr qsizetype kMaxKeptBytes = 4 << 20;
  static constexpr qsizetype kMaxLogLines = 10000;
  // Output a station leaves unread beyond this drops it.
  static constexpr qint64 kMaxUnsentBytes = 1 << 20;
  // Every byte received from any station, in arrival order (up to kMaxKeptBytes).
  QByteArray receivedBytes() const { return received_bytes_; }
  // The 5250 records of the latest connection.
  QList<QByteArray> receivedRecords() const;
  QStringList log() const { return log_; }
  // The latest connection's session (null before the first); its application for scripts.
  HostSession* latestSession() const { return latest_.get(); }
  // Script mode: the latest connection's mismatches, and whether it played every step.
  QStringList scriptMismatches() const;
  bool scriptFinished() const;

 signals:
  void stationConnected();
  void stationDisconnected();
  void bytesReceived(const QByteArray& bytes);
  void logLine(const QString& line);

 private:
  void OnNewConnection();
  void OnReadyRead(QTcpSocket* socket);
  void Write(QTcpSocket* socket, HostSession& session, const std::vector<std::uint8_t>& bytes);
  void Log(const QString& line);
  void Drop(QTcpSocket* socket);

  void MakeServer(QTcpServer* server);

  QTcpServer* server_ = nullptr;
  QString tls_error_;
  ApplicationFactory factory_;
  bool negotiate_ = true;
  int idle_limit_ms_ = 15 * 60 * 1000;
  QHash<QTcpSocket*, std::shared_ptr<HostSession>> sessions_;
  std::shared_ptr<HostSession> latest_;
  int connection_count_ = 0;
  QByteArray received_bytes_;
  QStringList log_;
};

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_DEMO_HOST_SERVER_H_
