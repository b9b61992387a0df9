// veltrix-demo-host: a small TN5250 host on 127.0.0.1 for trying Veltrix.
//   veltrix-demo-host [--port N] [--idle-seconds S] [--tls-cert FILE --tls-key FILE]
//   (port 2323 by default, 0 picks a free one; idle stations are dropped after 900 s, 0 = never)
#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

#include "demo_host/demo_host_server.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList args = app.arguments();
  quint16 port = 2323;
  int idle_seconds = 900;
  QString tls_cert;
  QString tls_key;
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == QLatin1String("--port") && i + 1 < args.size()) {
      bool ok = false;
      const uint value = args[++i].toUInt(&ok);
      if (!ok || value > 65535) {
        std::fprintf(stderr, "veltrix-demo-host: invalid port '%s'\n", qPrintable(args[i]));
        return 2;
      }
      port = static_cast<quint16>(value);
    } else if (args[i] == QLatin1String("--idle-seconds") && i + 1 < args.size()) {
      bool ok = false;
      const uint value = args[++i].toUInt(&ok);
      if (!ok || value > 24 * 3600) {
        std::fprintf(stderr, "veltrix-demo-host: invalid idle time '%s'\n", qPrintable(args[i]));
        return 2;
      }
      idle_seconds = int(value);
    } else if (args[i] == QLatin1String("--tls-cert") && i + 1 < args.size()) {
      tls_cert = args[++i];
    } else if (args[i] == QLatin1String("--tls-key") && i + 1 < args.size()) {
      tls_key = args[++i];
    } else if (args[i] == QLatin1String("--version")) {
      std::printf("veltrix-demo-host %s\n", VELTRIX_VERSION);
      return 0;
    } else {
      const bool help = args[i] == QLatin1String("--help");
      std::fputs(
          "usage: veltrix-demo-host [--port N] [--idle-seconds S] [--tls-cert FILE --tls-key "
          "FILE]\n"
          "Serves a TN5250 demo host on 127.0.0.1 (default port 2323, 0 = any free);\n"
          "stations idle for S seconds are dropped (900 by default, 0 = never).\n"
          "  --tls-cert FILE  serve Telnet over TLS with this PEM certificate (chain)\n"
          "  --tls-key FILE   and this PEM private key\n"
          "  --help     print this and exit\n"
          "  --version  print the version and exit\n",
          help ? stdout : stderr);
      return help ? 0 : 2;
    }
  }
  veltrix::demo_host::DemoHostServer server;
  server.SetIdleLimit(idle_seconds * 1000);
  QObject::connect(&server, &veltrix::demo_host::DemoHostServer::logLine,
                   [](const QString& line) { std::fprintf(stderr, "%s\n", qPrintable(line)); });
  if (tls_cert.isEmpty() != tls_key.isEmpty()) {
    std::fputs("veltrix-demo-host: --tls-cert and --tls-key go together\n", stderr);
    return 2;
  }
  if (!tls_cert.isEmpty() && !server.UseTls(tls_cert, tls_key)) {
    std::fprintf(stderr, "veltrix-demo-host: %s\n", qPrintable(server.error()));
    return 2;
  }
  if (!server.Listen(port)) {
    std::fprintf(stderr, "veltrix-demo-host: cannot listen on 127.0.0.1:%u: %s\n", port,
                 qPrintable(server.error()));
    return 1;
  }
  std::printf("listening on 127.0.0.1:%u%s\n", server.port(), tls_cert.isEmpty() ? "" : " (TLS)");
  std::fflush(stdout);
  return app.exec();
}
