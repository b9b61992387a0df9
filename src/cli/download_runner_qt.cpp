// The links of veltrix-cli download: the same sessions as the window's, on a Qt event loop without
// a window. Several terminals (RF) or ports (serial) run at once, each on its own engine.
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTcpSocket>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <memory>
#include <ostream>
#include <vector>

#include "cli/download_request.h"
#include "download/download_link_qt.h"
#include "resources/json_writer.h"

namespace veltrix::cli {
namespace {

struct Terminal {
  std::unique_ptr<MemoryProgramSource> program;
  DownloadSessionQt* session = nullptr;
  LineSettings line;
  QElapsedTimer clock;
  int retries_left = 0;
  std::string peer;     // where the terminal connected from, or the serial port
  std::string outcome;  // the last message, in the download's own words
  bool succeeded = false;
  int acknowledged = 0;
  double seconds = 0;
};

constexpr const char* kRefusedText = "Refused: no download was waiting for this terminal";

// Ctrl+C stops the downloads as closing the progress window does.
volatile std::sig_atomic_t g_interrupted = 0;
extern "C" void OnInterrupt(int) { g_interrupted = 1; }

// "2.16" (JSON) or "2.16 s" (the report).
std::string Seconds(double seconds, bool unit = true) {
  char text[32];
  std::snprintf(text, sizeof text, unit ? "%.2f s" : "%.2f", seconds);
  return text;
}

class Progress {
 public:
  explicit Progress(std::ostream& err) : err_(err), tty_(::isatty(STDERR_FILENO) == 1) {}
  void Open(int maximum) {
    maximum_ = std::max(1, maximum);
    shown_ = -1;
  }
  void Show(int position) {
    const int percent = position * 100 / maximum_;
    if (tty_) {
      if (percent == shown_) return;
      const int width = 40;
      err_ << "\r[" << std::string(static_cast<std::size_t>(percent * width / 100), '#')
           << std::string(static_cast<std::size_t>(width - percent * width / 100), '.') << "] "
           << percent << "%" << std::flush;
    } else {
      if (percent / 10 == shown_ / 10 && shown_ >= 0) return;
      err_ << "Downloading... " << percent / 10 * 10 << "%\n" << std::flush;
    }
    shown_ = percent;
  }
  void Close() {
    if (tty_ && shown_ >= 0) err_ << '\n' << std::flush;
    shown_ = -1;
  }

 private:
  std::ostream& err_;
  bool tty_;
  int maximum_ = 1;
  int shown_ = -1;
};

int Run(const DownloadRequest& request, CliIo& io) {
  static int argc = 1;
  static char name[] = "veltrix-cli";
  static char* argv[] = {name, nullptr};
  std::unique_ptr<QCoreApplication> owned;
  if (QCoreApplication::instance() == nullptr) {
    owned = std::make_unique<QCoreApplication>(argc, argv);
  }
  QElapsedTimer total;
  total.start();

  const bool rf = request.via == DownloadVia::kRf;
  const int count = rf ? request.terminals : static_cast<int>(request.ports.size());
  const bool fleet = count > 1;
  TerminalListenerQt listener;
  // Terminals beyond the fleet, or arriving while every session is busy, are closed at once and
  // named in the report rather than left connected and unserved.
  std::vector<std::string> refused;
  if (fleet && rf) {
    listener.SetUnservedHandler([&](QTcpSocket* socket) {
      refused.push_back(socket->peerAddress().toString().toStdString() + ":" +
                        std::to_string(socket->peerPort()));
      socket->abort();
      socket->deleteLater();
    });
  }
  if (rf) {
    ListenError error{};
    if (!listener.Listen(QHostAddress(QString::fromStdString(request.listen_address)),
                         static_cast<quint16>(request.listen_port), &error, count)) {
      io.out << "Error: " << ListenErrorText(error) << '\n';
      return kExitFailed;
    }
    io.err << "Listening on port " << listener.port() << " for " << request.terminals
           << (request.terminals == 1 ? " terminal" : " terminals") << '\n'
           << std::flush;
  }
  std::vector<Terminal> terminals(static_cast<std::size_t>(count));
  Progress progress(io.err);
  int running = count;
  const bool report_lines = !request.json;

  for (int i = 0; i < count; ++i) {
    Terminal& t = terminals[static_cast<std::size_t>(i)];
    t.retries_left = request.retries;
    std::unique_ptr<DownloadEngine> engine;
    if (request.kind == DownloadKind::kProgram) {
      t.program = std::make_unique<MemoryProgramSource>(request.program);
      engine = std::make_unique<DownloadEngine>(request.via, *t.program);
    } else {
      engine = std::make_unique<DownloadEngine>(request.via, request.record);
    }
    engine->set_listen_wait(request.listen_wait_ms);
    DownloadLinkOptions options;
    options.via = request.via;
    options.rate = request.rate;
    if (rf) {
      options.shared_listener = &listener;
    } else {
      options.port = QString::fromStdString(request.ports[static_cast<std::size_t>(i)]);
    }
    t.session = new DownloadSessionQt(std::move(engine), options, t.line, &listener);
    auto who = [&t, fleet]() {
      return fleet ? t.session->peer().toStdString() + " " : std::string();
    };
    QObject::connect(t.session, &DownloadSessionQt::message,
                     [&, who, report_lines](const QString& text, const QString& caption) {
                       progress.Close();
                       t.outcome = text.toStdString();
                       if (report_lines) {
                         io.out << who() << caption.toStdString() << ": " << t.outcome << '\n'
                                << std::flush;
                       }
                     });
    QObject::connect(t.session, &DownloadSessionQt::status, [&](const QString& text) {
      if (text.startsWith("Download stopped")) t.outcome = text.toStdString();
    });
    QObject::connect(t.session, &DownloadSessionQt::retryAsked,
                     [&, who, report_lines](const QString& text, const QString& caption) {
                       const bool yes = t.retries_left > 0;
                       if (yes) --t.retries_left;
                       if (report_lines) {
                         io.out << who() << caption.toStdString() << ": " << text.toStdString()
                                << (yes ? " Yes" : " No") << '\n'
                                << std::flush;
                       }
                       t.session->AnswerRetry(yes);
                     });
    if (!fleet) {
      QObject::connect(t.session, &DownloadSessionQt::progressOpened,
                       [&](int maximum) { progress.Open(maximum); });
      QObject::connect(t.session, &DownloadSessionQt::progressChanged,
                       [&](int position) { progress.Show(position); });
      QObject::connect(t.session, &DownloadSessionQt::progressClosed, [&] { progress.Close(); });
    }
    QObject::connect(t.session, &DownloadSessionQt::progressChanged,
                     [&](int) { t.acknowledged = t.session->engine().acknowledged(); });
    QObject::connect(t.session, &DownloadSessionQt::finished, [&](bool succeeded) {
      t.succeeded = succeeded;
      t.seconds = static_cast<double>(t.clock.elapsed()) / 1000.0;
      t.peer = t.session->peer().toStdString();
      t.acknowledged = t.session->engine().acknowledged();
      if (t.outcome.empty() || (!succeeded && t.outcome == download_text::kCompleted)) {
        t.outcome = succeeded        ? std::string(download_text::kCompleted)
                    : t.peer.empty() ? "No terminal connected"
                                     : "Failed to download";
      }
      if (--running == 0) QCoreApplication::exit(0);
    });
  }

  g_interrupted = 0;
  auto* previous = std::signal(SIGINT, OnInterrupt);
  QTimer interrupt_watch;
  QObject::connect(&interrupt_watch, &QTimer::timeout, [&] {
    if (!g_interrupted) return;
    interrupt_watch.stop();
    progress.Close();
    for (Terminal& t : terminals) t.session->Stop();
  });
  interrupt_watch.start(100);
  for (Terminal& t : terminals) {
    t.clock.start();
    t.session->Start();
  }
  if (running > 0) QCoreApplication::exec();
  std::signal(SIGINT, previous);

  int succeeded = 0;
  for (const Terminal& t : terminals) succeeded += t.succeeded ? 1 : 0;
  if (request.json) {
    auto object = [&](const std::string& address, const std::string& result, double seconds,
                      int acknowledged) {
      io.out << JsonWriter()
                    .Object()
                    .Field("address", address)
                    .Field("result", result)
                    .Key("seconds")
                    .Literal(Seconds(seconds, false))
                    .Field(request.kind == DownloadKind::kSettings ? "blocks" : "frames",
                           acknowledged)
                    .End()
                    .text()
             << '\n';
    };
    for (const Terminal& t : terminals) object(t.peer, t.outcome, t.seconds, t.acknowledged);
    for (const std::string& address : refused) object(address, kRefusedText, 0, 0);
  } else if (fleet || !refused.empty()) {
    for (const Terminal& t : terminals) {
      io.out << (t.peer.empty() ? "-" : t.peer) << "  " << t.outcome << "  " << Seconds(t.seconds)
             << '\n';
    }
    for (const std::string& address : refused) io.out << address << "  " << kRefusedText << '\n';
    io.out << succeeded << " of " << count << " terminals downloaded completely in "
           << Seconds(static_cast<double>(total.elapsed()) / 1000.0) << '\n';
  } else if (!terminals.front().succeeded &&
             terminals.front().outcome.starts_with("Download stopped")) {
    io.out << terminals.front().outcome << '\n';
  }
  io.out.flush();
  return succeeded == count ? kExitOk : kExitFailed;
}

}  // namespace

void InstallDownloadRunner() { SetDownloadRunner(&Run); }

}  // namespace veltrix::cli
