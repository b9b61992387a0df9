#ifndef VELTRIX_DOWNLOAD_DOWNLOAD_LINK_QT_H_
#define VELTRIX_DOWNLOAD_DOWNLOAD_LINK_QT_H_

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QPointer>
#include <QString>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "download/cradle_ir_setup.h"
#include "download/download_engine.h"

class QSerialPort;
class QTcpServer;
class QTcpSocket;
class QTimer;

namespace veltrix {

class DownloadSessionQt;

// The PC's listening socket for terminals over RF (TCP port 3000 on any address). One session
// listens on its own for each attempt; a fleet download shares one listener among its sessions,
// each connection going to the session that has waited longest.
class TerminalListenerQt : public QObject {
  Q_OBJECT

 public:
  explicit TerminalListenerQt(QObject* parent = nullptr);
  // Downloads parented to the listener go first, while they can still tell it they stop waiting.
  ~TerminalListenerQt() override;
  // False with the error the download reports. `backlog` is how many connections the system
  // holds for us (1 for one terminal; a fleet's size).
  bool Listen(const QHostAddress& address, quint16 port, ListenError* error, int backlog = 1);
  // A fleet's listener hands a connection no session waits for to `handler` at once (which closes
  // it and reports it) instead of leaving the terminal connected and unserved.
  void SetUnservedHandler(std::function<void(QTcpSocket*)> handler) {
    unserved_ = std::move(handler);
  }
  void Close();
  bool listening() const;
  quint16 port() const;
  void Wait(DownloadSessionQt* session);
  void StopWaiting(DownloadSessionQt* session);

 private:
  void HandOut();
  QTcpServer* server_;
  std::deque<QPointer<DownloadSessionQt>> waiting_;
  std::function<void(QTcpSocket*)> unserved_;
};

// Where and how a download runs.
struct DownloadLinkOptions {
  DownloadVia via = DownloadVia::kCradleIr;
  QString port;  // serial: a port name ("ttyUSB0") or a path ("/dev/pts/3")
  int rate = 115200;
  QHostAddress listen_address = QHostAddress::Any;
  quint16 listen_port = 3000;
  TerminalListenerQt* shared_listener = nullptr;  // a fleet's listener, or null
};

// Runs one download engine over a real link on the caller's event loop: opens the serial port
// (setting the infrared cradle up when asked) or listens for the terminal, hands the engine what
// arrives and the time, and carries out what it asks. Nothing waits: the window or the command
// line tool stays free while it runs.
class DownloadSessionQt : public QObject {
  Q_OBJECT

 public:
  // `line` is the serial line as the run has left it; it outlives the session.
  DownloadSessionQt(std::unique_ptr<DownloadEngine> engine, DownloadLinkOptions options,
                    LineSettings& line, QObject* parent = nullptr);
  ~DownloadSessionQt() override;

  void Start();
  // The answer to retryAsked.
  void AnswerRetry(bool retry);
  // Stops at once: closes the link, no message; finished(false) follows.
  void Cancel();
  // The user stops the download: the engine says how far it got (status), then finished(false).
  void Stop();
  const DownloadEngine& engine() const { return *engine_; }
  // The terminal's address over RF ("127.0.0.1:40112"), the port name over serial.
  QString peer() const { return peer_; }
  // The port the session's own listener listens on (0 when it is not listening).
  quint16 listening_port() const;

  // A connection handed over by the listener.
  void Accept(QTcpSocket* socket);

 signals:
  void status(const QString& text);
  void progressOpened(int maximum);
  void progressChanged(int position);
  void progressClosed();
  void message(const QString& text, const QString& caption);
  void retryAsked(const QString& text, const QString& caption);
  void finished(bool succeeded);

 private:
  qint64 Now() const { return clock_.elapsed(); }
  void Carry(DownloadEvents events);
  void Rearm();
  void OnTimer();
  void OnSerialData();
  void OnSocketData();
  void OnSocketClosed();
  void Send(const std::vector<std::uint8_t>& bytes);
  bool OpenSerial();
  bool ApplyLine(bool report);
  void RunIr(std::vector<IrAction> actions);
  void StartEngine();
  void Listen();
  void CloseNetwork();
  void CloseSerial();
  void End(bool succeeded);
  void Fail(std::string_view text, std::string_view caption);

  std::unique_ptr<DownloadEngine> engine_;
  DownloadLinkOptions options_;
  LineSettings& line_;
  QElapsedTimer clock_;
  QTimer* timer_;
  QSerialPort* serial_ = nullptr;
  TerminalListenerQt* own_listener_ = nullptr;
  QPointer<QTcpSocket> socket_;
  std::optional<CradleIrSetup> ir_;
  std::deque<DownloadEvent> queue_;
  QString peer_;
  bool carrying_ = false;
  bool started_ = false;
  bool done_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_DOWNLOAD_LINK_QT_H_
