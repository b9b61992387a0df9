// A settings download over loopback TCP to a terminal that answers at once, against the bare
// round trips of the same exchanges between two plain sockets. The 2-second pause before the
// transfer is skipped on the engine's clock, so the two compare like for like.
#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <thread>
#include <vector>

#include "download/download_engine.h"

namespace veltrix {
namespace {

constexpr int kExchanges = 1 + kSettingsBlockCount;  // the handshake and 598 blocks

// A connected pair of loopback TCP sockets.
struct Pair {
  int pc = -1;
  int terminal = -1;
  Pair() {
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::listen(listener, 1);
    ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
    pc = ::socket(AF_INET, SOCK_STREAM, 0);
    ::connect(pc, reinterpret_cast<sockaddr*>(&address), sizeof address);
    terminal = ::accept(listener, nullptr, nullptr);
    ::close(listener);
    const int one = 1;
    ::setsockopt(pc, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
    ::setsockopt(terminal, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
  }
  ~Pair() {
    ::close(pc);
    ::close(terminal);
  }
};

// The terminal: reads what one exchange sends (7 bytes, then blocks of 103) and answers "ACK".
void Answer(int fd) {
  std::vector<char> buffer(103);
  for (int i = 0; i < kExchanges; ++i) {
    const std::size_t want = i == 0 ? 7 : 103;
    std::size_t got = 0;
    while (got < want) {
      const ssize_t n = ::recv(fd, buffer.data() + got, want - got, 0);
      if (n <= 0) return;
      got += static_cast<std::size_t>(n);
    }
    ::send(fd, "ACK\r", 4, 0);
  }
}

void BM_BareRoundTrips(benchmark::State& state) {
  std::vector<char> block(103, 0x55);
  char reply[16];
  for (auto _ : state) {
    Pair pair;
    std::thread terminal(Answer, pair.terminal);
    for (int i = 0; i < kExchanges; ++i) {
      ::send(pair.pc, block.data(), i == 0 ? 7 : 103, 0);
      std::size_t got = 0;
      while (got < 4) got += static_cast<std::size_t>(::recv(pair.pc, reply + got, 4 - got, 0));
    }
    terminal.join();
  }
}
BENCHMARK(BM_BareRoundTrips)->Unit(benchmark::kMillisecond);

void BM_SettingsDownloadOverTcp(benchmark::State& state) {
  SettingsRecord record{};
  using Clock = std::chrono::steady_clock;
  for (auto _ : state) {
    Pair pair;
    std::thread terminal(Answer, pair.terminal);
    DownloadEngine engine(DownloadVia::kRf, record);
    const auto start = Clock::now();
    std::int64_t skipped = 0;  // the pause, taken off the engine's clock
    auto now = [&] {
      return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count() +
             skipped;
    };
    DownloadEvents events = engine.Start(now());
    events = engine.TerminalConnected(now());
    std::vector<std::uint8_t> buffer(256);
    while (!engine.finished()) {
      for (const DownloadEvent& e : events) {
        if (e.kind == DownloadEvent::Kind::kSend)
          ::send(pair.pc, e.bytes.data(), e.bytes.size(), 0);
      }
      events.clear();
      if (engine.finished()) break;
      if (engine.collecting()) {
        const ssize_t n = ::recv(pair.pc, buffer.data(), buffer.size(), 0);
        if (n <= 0) break;
        events = engine.Received(std::span(buffer).first(static_cast<std::size_t>(n)), now());
      } else if (engine.deadline()) {
        skipped += *engine.deadline() - now();
        events = engine.Tick(now());
      }
    }
    if (!engine.succeeded()) state.SkipWithError("the download failed");
    terminal.join();
  }
}
BENCHMARK(BM_SettingsDownloadOverTcp)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veltrix
