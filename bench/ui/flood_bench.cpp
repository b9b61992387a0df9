// A host that writes screen after screen as fast as loopback takes them, against the real host
// window: how long the flood takes, the longest the event loop went without running a 5 ms timer
// (the window's responsiveness; it should stay far below a second), the paints, and how much the
// resident memory grew. Runs offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <string>

#include "demo_host/outbound_record.h"
#include "settings/document.h"
#include "settings/network/network_settings.h"
#include "tn5250/host_connection_qt.h"
#include "tn5250/host_ip_dialog.h"
#include "tn5250/host_screen_widget.h"

namespace veltrix {
namespace {

long ResidentKb() {
  QFile statm(QStringLiteral("/proc/self/statm"));
  if (!statm.open(QIODevice::ReadOnly)) return 0;
  const QList<QByteArray> parts = statm.readAll().split(' ');
  return parts.size() > 1 ? parts[1].toLong() * 4 : 0;
}

QByteArray TwentyScreens() {
  QByteArray bytes;
  for (int i = 0; i < 20; ++i) {
    demo_host::OutboundRecord r;
    r.ClearUnit().WriteToDisplay(0x00, 0x08);
    for (int row = 1; row <= 24; ++row) {
      r.TextAt(row, 1, "Flooding the host screen, line " + std::to_string(row) + " of 24.",
               row % 3 == 0 ? 0x24 : 0x20);
    }
    const std::vector<std::uint8_t> framed = demo_host::FrameRecord(r.Finish());
    bytes.append(reinterpret_cast<const char*>(framed.data()), qsizetype(framed.size()));
  }
  return bytes;
}

void BM_FloodTheHostWindow(benchmark::State& state) {
  const qint64 total = state.range(0) << 20;
  const QByteArray screens = TwentyScreens();
  for (auto _ : state) {
    QTcpServer host;
    host.listen(QHostAddress::LocalHost, 0);
    qint64 written = 0;
    QTcpSocket* peer = nullptr;
    auto feed = [&] {
      while (peer && written < total && peer->bytesToWrite() < (1 << 20)) {
        peer->write(screens);
        written += screens.size();
      }
    };
    QObject::connect(&host, &QTcpServer::newConnection, [&] {
      peer = host.nextPendingConnection();
      QObject::connect(peer, &QTcpSocket::bytesWritten, feed);
      feed();
    });

    auto doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    WriteNumber(doc->record, kTelnetPort, host.serverPort());
    HostScreenWidget screen;
    screen.resize(800, 600);
    screen.show();
    HostConnectionQt connection(&screen);
    screen.SetConnection(&connection.connection());
    connection.SetDialogRunner([](HostIpForm& form, const std::string& entry) {
      form.Open(entry);
      return form.Confirm({"127", "0", "0", "1"}, false);
    });
    connection.ConnectToHost(*doc);
    while (connection.connecting()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    const long memory_before = ResidentKb();
    int paints = 0;
    QObject::connect(&screen, &HostScreenWidget::painted, [&] { ++paints; });
    QElapsedTimer clock;
    clock.start();
    qint64 last_tick = 0;
    qint64 max_gap = 0;
    QTimer ticker;
    ticker.setInterval(5);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
      max_gap = std::max(max_gap, clock.elapsed() - last_tick);
      last_tick = clock.elapsed();
    });
    ticker.start();
    while (!(written >= total && peer && peer->bytesToWrite() == 0 &&
             screen.RowText(23).contains(QStringLiteral("line 24 of 24"))) &&
           clock.elapsed() < 120000) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    state.counters["longest_gap_ms"] = static_cast<double>(max_gap);
    state.counters["paints"] = paints;
    state.counters["memory_growth_kb"] = static_cast<double>(ResidentKb() - memory_before);
    state.counters["connected"] = connection.connected() ? 1 : 0;
    connection.DisconnectFromHost();
    screen.SetConnection(nullptr);
    delete peer;
  }
  state.SetBytesProcessed(state.iterations() * total);
}
BENCHMARK(BM_FloodTheHostWindow)->Arg(8)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace veltrix

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
