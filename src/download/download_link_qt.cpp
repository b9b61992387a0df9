#include "download/download_link_qt.h"

#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <span>

#include "resources/text_qt.h"

namespace veltrix {
namespace {

std::span<const std::uint8_t> Span(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

}  // namespace

// ---- The listener -------------------------------------------------------------------------------

TerminalListenerQt::TerminalListenerQt(QObject* parent)
    : QObject(parent), server_(new QTcpServer(this)) {
  connect(server_, &QTcpServer::newConnection, this, &TerminalListenerQt::HandOut);
}

TerminalListenerQt::~TerminalListenerQt() {
  for (DownloadSessionQt* session : findChildren<DownloadSessionQt*>(Qt::FindDirectChildrenOnly)) {
    delete session;
  }
}

bool TerminalListenerQt::Listen(const QHostAddress& address, quint16 port, ListenError* error,
                                int backlog) {
  if (server_->isListening()) return true;
  server_->setListenBacklogSize(backlog);
  server_->setMaxPendingConnections(std::max(backlog, 30));
  if (server_->listen(address, port)) return true;
  switch (server_->serverError()) {
    case QAbstractSocket::SocketResourceError:
      *error = ListenError::kCreate;
      break;
    case QAbstractSocket::AddressInUseError:
    case QAbstractSocket::SocketAccessError:
    case QAbstractSocket::SocketAddressNotAvailableError:
      *error = ListenError::kBind;
      break;
    default:
      *error = ListenError::kListen;
      break;
  }
  return false;
}

void TerminalListenerQt::Close() { server_->close(); }
bool TerminalListenerQt::listening() const { return server_->isListening(); }
quint16 TerminalListenerQt::port() const { return server_->serverPort(); }

void TerminalListenerQt::Wait(DownloadSessionQt* session) {
  waiting_.push_back(session);
  HandOut();
}

void TerminalListenerQt::StopWaiting(DownloadSessionQt* session) {
  std::erase(waiting_, QPointer<DownloadSessionQt>(session));
}

void TerminalListenerQt::HandOut() {
  std::erase(waiting_, QPointer<DownloadSessionQt>());
  while (!waiting_.empty() && server_->hasPendingConnections()) {
    QPointer<DownloadSessionQt> session = waiting_.front();
    waiting_.pop_front();
    session->Accept(server_->nextPendingConnection());
  }
  while (unserved_ && server_->hasPendingConnections()) unserved_(server_->nextPendingConnection());
}

// ---- One download -------------------------------------------------------------------------------

DownloadSessionQt::DownloadSessionQt(std::unique_ptr<DownloadEngine> engine,
                                     DownloadLinkOptions options, LineSettings& line,
                                     QObject* parent)
    : QObject(parent),
      engine_(std::move(engine)),
      options_(std::move(options)),
      line_(line),
      timer_(new QTimer(this)) {
  timer_->setSingleShot(true);
  timer_->setTimerType(Qt::PreciseTimer);
  connect(timer_, &QTimer::timeout, this, &DownloadSessionQt::OnTimer);
  clock_.start();
}

DownloadSessionQt::~DownloadSessionQt() {
  done_ = true;
  if (options_.shared_listener) options_.shared_listener->StopWaiting(this);
  CloseNetwork();
  CloseSerial();
}

void DownloadSessionQt::Start() {
  if (started_) return;
  started_ = true;
  if (options_.via == DownloadVia::kRf) {
    StartEngine();
    return;
  }
  peer_ = options_.port;
  if (!OpenSerial()) return;
  if (options_.via == DownloadVia::kCradleIr) {
    ir_.emplace(options_.rate, line_);
    RunIr(ir_->Start(Now()));
    return;
  }
  if (!ApplyLine(true)) return;
  StartEngine();
}

bool DownloadSessionQt::OpenSerial() {
  serial_ = new QSerialPort(this);
  serial_->setPortName(options_.port);
  // Qt opens the port for this process alone.
  if (!serial_->open(QIODevice::ReadWrite)) {
    Fail(download_text::kCannotOpenPort, download_text::kDownload);
    return false;
  }
  serial_->setReadBufferSize(static_cast<qint64>(kSerialInputQueue));
  line_.rate = options_.rate;
  connect(serial_, &QSerialPort::readyRead, this, &DownloadSessionQt::OnSerialData);
  return true;
}

bool DownloadSessionQt::ApplyLine(bool report) {
  const bool ok = serial_->setBaudRate(line_.rate) && serial_->setDataBits(QSerialPort::Data8) &&
                  serial_->setParity(QSerialPort::NoParity) &&
                  serial_->setStopBits(QSerialPort::OneStop) &&
                  serial_->setFlowControl(QSerialPort::NoFlowControl);
  // Pseudo-terminals and some adapters have no modem lines: DTR and RTS are set where they exist.
  serial_->setDataTerminalReady(line_.dtr);
  serial_->setRequestToSend(line_.rts);
  serial_->clearError();
  if (!ok && report) Fail(download_text::kLineSettingsFailed, download_text::kDownload);
  return ok;
}

void DownloadSessionQt::RunIr(std::vector<IrAction> actions) {
  for (const IrAction& a : actions) {
    if (done_) return;
    switch (a.kind) {
      case IrAction::Kind::kApply:
        line_ = a.line;
        ApplyLine(false);
        break;
      case IrAction::Kind::kWrite:
        serial_->write(reinterpret_cast<const char*>(a.bytes.data()),
                       static_cast<qint64>(a.bytes.size()));
        break;
      case IrAction::Kind::kFinished:
        line_ = a.line;
        ir_.reset();
        if (!a.ok) return Fail(download_text::kIrDeviceFailed, download_text::kDownload);
        if (ApplyLine(true)) StartEngine();
        return;
    }
  }
  Rearm();
}

void DownloadSessionQt::StartEngine() { Carry(engine_->Start(Now())); }

void DownloadSessionQt::Fail(std::string_view text, std::string_view caption) {
  CloseSerial();
  emit message(QtText(text), QtText(caption));
  End(false);
}

void DownloadSessionQt::End(bool succeeded) {
  if (done_) return;
  done_ = true;
  timer_->stop();
  CloseNetwork();
  CloseSerial();
  emit finished(succeeded);
}

void DownloadSessionQt::Cancel() {
  if (!done_) queue_.clear();
  End(false);
}

void DownloadSessionQt::Stop() {
  if (done_) return;
  queue_.clear();
  ir_.reset();
  // Carried here, not queued: a stop may come while a message box holds the queue.
  for (const DownloadEvent& e : engine_->Stop(Now())) {
    if (e.kind == DownloadEvent::Kind::kProgressClose) emit progressClosed();
    if (e.kind == DownloadEvent::Kind::kStatus) emit status(QString::fromStdString(e.text));
  }
  End(false);  // closes the link
}

void DownloadSessionQt::AnswerRetry(bool retry) {
  if (!done_) Carry(engine_->AnswerRetry(retry, Now()));
}

void DownloadSessionQt::Carry(DownloadEvents events) {
  for (auto& e : events) queue_.push_back(std::move(e));
  // A message box opened below runs its own event loop; what arrives meanwhile waits its turn.
  if (carrying_) return;
  carrying_ = true;
  QPointer<DownloadSessionQt> self(this);
  while (self && !done_ && !queue_.empty()) {
    DownloadEvent e = std::move(queue_.front());
    queue_.pop_front();
    using Kind = DownloadEvent::Kind;
    switch (e.kind) {
      case Kind::kSend:
        Send(e.bytes);
        break;
      case Kind::kListen:
        Listen();
        break;
      case Kind::kCloseLink:
        CloseNetwork();
        break;
      case Kind::kProgressOpen:
        emit progressOpened(e.value);
        break;
      case Kind::kProgress:
        emit progressChanged(e.value);
        break;
      case Kind::kProgressClose:
        emit progressClosed();
        break;
      case Kind::kStatus:
        emit status(QString::fromStdString(e.text));
        break;
      case Kind::kMessage:
        emit message(QString::fromStdString(e.text), QString::fromStdString(e.caption));
        break;
      case Kind::kAskRetry:
        emit retryAsked(QString::fromStdString(e.text), QString::fromStdString(e.caption));
        break;
      case Kind::kFinished:
        End(e.value == 1);
        break;
    }
  }
  if (!self) return;
  carrying_ = false;
  Rearm();
}

void DownloadSessionQt::Rearm() {
  if (done_) return;
  std::optional<std::int64_t> deadline = ir_ ? ir_->deadline() : engine_->deadline();
  if (!deadline) {
    timer_->stop();
    return;
  }
  timer_->start(static_cast<int>(std::max<std::int64_t>(0, *deadline - Now())));
}

void DownloadSessionQt::OnTimer() {
  if (done_) return;
  if (ir_) return RunIr(ir_->Tick(Now()));
  Carry(engine_->Tick(Now()));
}

void DownloadSessionQt::OnSerialData() {
  if (!serial_ || done_) return;
  const QByteArray bytes = serial_->readAll();
  if (ir_) return RunIr(ir_->Received(Span(bytes), Now()));
  Carry(engine_->Received(Span(bytes), Now()));
}

void DownloadSessionQt::OnSocketData() {
  if (!socket_ || done_) return;
  // A receive takes at most 256 bytes; the engine cuts what it is handed into such receives.
  Carry(engine_->Received(Span(socket_->readAll()), Now()));
}

void DownloadSessionQt::OnSocketClosed() {
  if (done_) return;
  CloseNetwork();
  Carry(engine_->LinkClosed(Now()));
}

void DownloadSessionQt::Send(const std::vector<std::uint8_t>& bytes) {
  const auto* data = reinterpret_cast<const char*>(bytes.data());
  const auto size = static_cast<qint64>(bytes.size());
  if (options_.via == DownloadVia::kRf) {
    if (socket_) socket_->write(data, size);  // a closed link just loses what is sent
  } else if (serial_) {
    serial_->write(data, size);
  }
}

void DownloadSessionQt::Listen() {
  TerminalListenerQt* listener = options_.shared_listener;
  if (!listener) {
    if (!own_listener_) own_listener_ = new TerminalListenerQt(this);
    ListenError error{};
    if (!own_listener_->Listen(options_.listen_address, options_.listen_port, &error)) {
      Carry(engine_->ListenFailed(error, Now()));
      return;
    }
    listener = own_listener_;
  }
  listener->Wait(this);
}

quint16 DownloadSessionQt::listening_port() const {
  return own_listener_ && own_listener_->listening() ? own_listener_->port() : 0;
}

void DownloadSessionQt::Accept(QTcpSocket* socket) {
  if (done_ || socket_) {
    socket->deleteLater();
    return;
  }
  socket_ = socket;
  socket->setParent(this);
  socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  peer_ = socket->peerAddress().toString() + ":" + QString::number(socket->peerPort());
  connect(socket, &QTcpSocket::readyRead, this, &DownloadSessionQt::OnSocketData);
  connect(socket, &QTcpSocket::disconnected, this, &DownloadSessionQt::OnSocketClosed);
  Carry(engine_->TerminalConnected(Now()));
  if (socket_ && socket_->bytesAvailable() > 0) OnSocketData();
}

void DownloadSessionQt::CloseNetwork() {
  if (options_.shared_listener) options_.shared_listener->StopWaiting(this);
  if (own_listener_) own_listener_->Close();
  if (socket_) {
    QTcpSocket* socket = socket_;
    socket_ = nullptr;
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
  }
}

void DownloadSessionQt::CloseSerial() {
  if (!serial_) return;
  serial_->disconnect(this);
  if (serial_->isOpen()) {
    serial_->flush();
    serial_->clear(QSerialPort::Input);  // what came and was not read is discarded
    serial_->close();
  }
  serial_->deleteLater();
  serial_ = nullptr;
}

}  // namespace veltrix
