// The links of veltrix-cli download: the same sessions as the window's, on a Qt event loop without
// a window. Several terminals (RF) or ports (serial) run at once, each on its own engine.
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <memory>
#include <ostream>
#include <vector>

#include "cli/download_request.h"
#include "download/download_link_qt.h"
#include "download/program_file.h"

namespace veltrix::cli {
namespace {

struct Terminal {
  std::unique_ptr<FileProgramSource> program;
  DownloadSessionQt* session = nullptr;
  LineSettings line;
  QElapsedTimer clock;
  int retries_left = 0;
  std::string outcome;  // the last message, in the download's own words
  bool succeeded = false;
  double seconds = 0;
};

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

  TerminalListenerQt listener;
  const bool rf = request.via == DownloadVia::kRf;
  if (rf) {
    ListenError error{};
    if (!listener.Listen(QHostAddress(QString::fromStdString(request.listen_address)),
                         static_cast<quint16>(request.listen_port), &error)) {
      io.out << "Error: " << ListenErrorText(error) << '\n';
      return kExitDiffers;
    }
    io.err << "Listening on port " << listener.port() << " for " << request.terminals
           << (request.terminals == 1 ? " terminal" : " terminals") << '\n'
           << std::flush;
  }
  const int count = rf ? request.terminals : static_cast<int>(request.ports.size());
  const bool fleet = count > 1;
  std::vector<Terminal> terminals(static_cast<std::size_t>(count));
  Progress progress(io.err);
  int running = count;

  for (int i = 0; i < count; ++i) {
    Terminal& t = terminals[static_cast<std::size_t>(i)];
    t.retries_left = request.retries;
    std::unique_ptr<DownloadEngine> engine;
    if (request.kind == DownloadKind::kProgram) {
      t.program = std::make_unique<FileProgramSource>();
      if (!t.program->Open(request.file)) {
        io.out << "Download: " << download_text::kCannotOpenFile << '\n';
        return kExitUsage;
      }
      engine = std::make_unique<DownloadEngine>(request.via, *t.program);
    } else {
      engine = std::make_unique<DownloadEngine>(request.via, request.record);
    }
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
                     [&, who](const QString& text, const QString& caption) {
                       progress.Close();
                       t.outcome = text.toStdString();
                       io.out << who() << caption.toStdString() << ": " << t.outcome << '\n'
                              << std::flush;
                     });
    QObject::connect(t.session, &DownloadSessionQt::retryAsked,
                     [&, who](const QString& text, const QString& caption) {
                       const bool yes = t.retries_left > 0;
                       if (yes) --t.retries_left;
                       io.out << who() << caption.toStdString() << ": " << text.toStdString()
                              << (yes ? " Yes" : " No") << '\n'
                              << std::flush;
                       t.session->AnswerRetry(yes);
                     });
    if (!fleet) {
      QObject::connect(t.session, &DownloadSessionQt::progressOpened,
                       [&](int maximum) { progress.Open(maximum); });
      QObject::connect(t.session, &DownloadSessionQt::progressChanged,
                       [&](int position) { progress.Show(position); });
      QObject::connect(t.session, &DownloadSessionQt::progressClosed, [&] { progress.Close(); });
    }
    QObject::connect(t.session, &DownloadSessionQt::finished, [&](bool succeeded) {
      t.succeeded = succeeded;
      t.seconds = static_cast<double>(t.clock.elapsed()) / 1000.0;
      if (t.outcome.empty() || (!succeeded && t.outcome == download_text::kCompleted)) {
        t.outcome = succeeded ? std::string(download_text::kCompleted) : "Failed to download";
      }
      if (--running == 0) QCoreApplication::exit(0);
    });
  }
  for (Terminal& t : terminals) {
    t.clock.start();
    t.session->Start();
  }
  if (running > 0) QCoreApplication::exec();

  int succeeded = 0;
  for (const Terminal& t : terminals) succeeded += t.succeeded ? 1 : 0;
  if (fleet) {
    for (const Terminal& t : terminals) {
      char seconds[32];
      std::snprintf(seconds, sizeof seconds, "%.2f s", t.seconds);
      io.out << t.session->peer().toStdString() << "  " << t.outcome << "  " << seconds << '\n';
    }
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.2f s", static_cast<double>(total.elapsed()) / 1000.0);
    io.out << succeeded << " of " << count << " terminals downloaded completely in " << seconds
           << '\n';
  }
  io.out.flush();
  return succeeded == count ? kExitOk : kExitDiffers;
}

}  // namespace

void InstallDownloadRunner() { SetDownloadRunner(&Run); }

}  // namespace veltrix::cli
