// veltrix-terminal-sim: a terminal for trying and testing downloads without one. It connects to
// the PC's listening port over TCP (or opens a serial device, such as one end of a pseudo-terminal
// pair), answers the settings and program exchanges, and writes what it received.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <string>

#include "terminal_sim/simulated_terminal.h"

namespace {

using veltrix::sim::SimulatedTerminal;
using veltrix::sim::TerminalFaults;
using veltrix::sim::TerminalOutput;

constexpr const char* kUsage =
    "usage: veltrix-terminal-sim (--connect HOST:PORT | --serial DEVICE) [options]\n"
    "  --settings-out FILE   write the settings record received\n"
    "  --program-out FILE    write the program received (lowest to highest address)\n"
    "  --wait SECONDS        how long to keep trying to connect, and to wait when idle (10)\n"
    "  --silent | --wrong | --garbage   answer nothing, \"XX\", or noise\n"
    "  --nak-block N | --fn-frame N | --ff-frame N | --close-at N\n"
    "  --erase-fn            answer the erase with FN once\n"
    "  --slow MS             wait MS before every answer\n"
    "  --help                print this and exit\n"
    "  --version             print the version and exit\n"
    "Exits 0 once a download completed, 1 when the link ended without one, 2 on bad usage.\n";

struct Options {
  QString host;
  quint16 port = 0;
  QString serial;
  QString settings_out;
  QString program_out;
  int wait_s = 10;
  int slow_ms = 0;
  TerminalFaults faults;
};

bool Parse(const QStringList& args, Options& o) {
  for (int i = 1; i < args.size(); ++i) {
    const QString& a = args[i];
    auto value = [&]() -> QString { return i + 1 < args.size() ? args[++i] : QString(); };
    bool ok = true;
    if (a == "--connect") {
      const QString v = value();
      const auto colon = v.lastIndexOf(':');
      o.host = v.left(colon);
      o.port = v.mid(colon + 1).toUShort(&ok);
    } else if (a == "--serial") {
      o.serial = value();
    } else if (a == "--settings-out") {
      o.settings_out = value();
    } else if (a == "--program-out") {
      o.program_out = value();
    } else if (a == "--wait") {
      o.wait_s = value().toInt(&ok);
    } else if (a == "--slow") {
      o.slow_ms = value().toInt(&ok);
    } else if (a == "--silent") {
      o.faults.silent = true;
    } else if (a == "--wrong") {
      o.faults.wrong = true;
    } else if (a == "--garbage") {
      o.faults.garbage = true;
    } else if (a == "--erase-fn") {
      o.faults.erase_fn = true;
    } else if (a == "--nak-block") {
      o.faults.nak_block = value().toInt(&ok);
    } else if (a == "--fn-frame") {
      o.faults.fn_frame = value().toInt(&ok);
    } else if (a == "--ff-frame") {
      o.faults.ff_frame = value().toInt(&ok);
    } else if (a == "--close-at") {
      o.faults.close_at = value().toInt(&ok);
    } else {
      ok = false;
    }
    if (!ok) {
      std::fprintf(stderr, "veltrix-terminal-sim: bad argument '%s'\n%s", qPrintable(a), kUsage);
      return false;
    }
  }
  if (o.host.isEmpty() == o.serial.isEmpty() || (!o.host.isEmpty() && o.port == 0)) {
    std::fputs(kUsage, stderr);
    return false;
  }
  return true;
}

bool WriteFile(const QString& path, const std::vector<std::uint8_t>& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
         file.write(reinterpret_cast<const char*>(bytes.data()),
                    static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  Options options;
  const QStringList args = app.arguments();
  if (args.contains("--help") || args.contains("-h")) {
    std::fputs(kUsage, stdout);
    return 0;
  }
  if (args.contains("--version")) {
    std::printf("veltrix-terminal-sim %s\n", VELTRIX_VERSION);
    return 0;
  }
  if (!Parse(args, options)) return 2;
  SimulatedTerminal terminal(options.faults);
  std::unique_ptr<QIODevice> link;
  bool completed = false;
  int status = 1;

  auto finish = [&](const char* why) {
    std::printf("%s; %d blocks, %d frames\n", why, terminal.blocks(), terminal.frames());
    for (const std::string& p : terminal.problems()) std::printf("problem: %s\n", p.c_str());
    std::fflush(stdout);
    app.exit(completed ? 0 : status);
  };
  QTimer idle;  // gives up when the PC stays silent this long
  idle.setSingleShot(true);
  idle.setInterval(options.wait_s * 1000);
  QObject::connect(&idle, &QTimer::timeout, [&] { finish("idle"); });

  auto on_data = [&] {
    idle.start();
    const QByteArray bytes = link->readAll();
    const auto outputs =
        terminal.Received({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size())});
    for (const TerminalOutput& out : outputs) {
      if (out.close) {
        link->close();
        finish("closed the link as told");
        return;
      }
      QByteArray reply(reinterpret_cast<const char*>(out.bytes.data()),
                       static_cast<qsizetype>(out.bytes.size()));
      QPointer<QIODevice> device = link.get();
      QTimer::singleShot(out.delay_ms + options.slow_ms, &app, [device, reply] {
        if (device && device->isOpen()) device->write(reply);
      });
    }
    if (terminal.settings_complete() && !completed) {
      completed = true;
      if (!options.settings_out.isEmpty() && !WriteFile(options.settings_out, terminal.settings()))
        status = 2;
      // Stay for the PC to read the last answer and close.
    }
    if (terminal.program_complete() && !completed) {
      completed = true;
      std::uint32_t base = 0;
      if (!options.program_out.isEmpty() &&
          !WriteFile(options.program_out, terminal.ProgramImage(&base)))
        status = 2;
      std::printf("program at 0x%08X\n", base);
    }
    // A serial line has no end of its own: leave once the last answer has gone.
    if (completed && !options.serial.isEmpty()) {
      QTimer::singleShot(500 + options.slow_ms, &app, [&] { finish("done"); });
    }
  };

  if (!options.serial.isEmpty()) {
    auto* port = new QSerialPort(options.serial);
    link.reset(port);
    if (!port->open(QIODevice::ReadWrite)) {
      std::fprintf(stderr, "veltrix-terminal-sim: cannot open %s: %s\n", qPrintable(options.serial),
                   qPrintable(port->errorString()));
      return 2;
    }
    port->setBaudRate(115200);
    QObject::connect(port, &QSerialPort::readyRead, on_data);
    idle.start();
  }
  // Kept for the whole run: the handlers below use them long after the set-up.
  QElapsedTimer trying;
  QTimer retry;  // the PC may not be listening yet
  QTcpSocket* socket = nullptr;
  if (options.serial.isEmpty()) {
    socket = new QTcpSocket;
    link.reset(socket);
    trying.start();
    retry.setSingleShot(true);
    QObject::connect(&retry, &QTimer::timeout, [&] {
      socket->abort();
      socket->connectToHost(options.host, options.port);
    });
    QObject::connect(socket, &QTcpSocket::errorOccurred, [&](QAbstractSocket::SocketError) {
      if (socket->state() == QAbstractSocket::ConnectedState || completed) return;
      if (trying.elapsed() > options.wait_s * 1000) {
        finish("no PC to connect to");
      } else if (!retry.isActive()) {
        retry.start(100);
      }
    });
    QObject::connect(socket, &QTcpSocket::connected, [&] {
      socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
      idle.start();
    });
    QObject::connect(socket, &QTcpSocket::readyRead, on_data);
    QObject::connect(socket, &QTcpSocket::disconnected,
                     [&] { finish(completed ? "done" : "the PC closed the link"); });
    socket->connectToHost(options.host, options.port);
  }
  return app.exec();
}
