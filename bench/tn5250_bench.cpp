// The recorded host sessions replayed over and over through a TN5250 session, Telnet layer
// included: the throughput of the whole receive path.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <vector>

#include "tn5250/session.h"

// Counts heap allocations, to show that the receive path makes none per byte.
namespace {
std::atomic<std::size_t> allocations{0};
}  // namespace

// Replacing the global operators is what the standard allows; GCC 12 still pairs the free()
// inside them with the new-expression that called them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

namespace veltrix {
namespace {

std::vector<std::vector<std::uint8_t>> RecordedSessions() {
  namespace fs = std::filesystem;
  const fs::path dir = fs::path(VELTRIX_SHARED_DIR) / "peer-data" / "tn5250-traces";
  std::vector<std::vector<std::uint8_t>> sessions;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(dir, ec)) {
    if (entry.path().extension() != ".bin") continue;
    std::ifstream in(entry.path(), std::ios::binary);
    sessions.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return sessions;
}

// Counts what the session reports, as a window would, without keeping it.
struct CountingListener : SessionListener {
  void OnSend(std::span<const std::uint8_t> bytes) override { sent += bytes.size(); }
  void OnScreenChanged(const ScreenChange&) override { ++repaints; }
  std::size_t sent = 0;
  std::size_t repaints = 0;
};

void BM_ReplayRecordedSessions(benchmark::State& state) {
  const auto sessions = RecordedSessions();
  if (sessions.empty()) {
    state.SkipWithError("no recorded sessions");
    return;
  }
  std::size_t bytes = 0;
  for (const auto& s : sessions) bytes += s.size();
  CountingListener listener;
  Session session({}, &listener);
  const std::size_t chunk = static_cast<std::size_t>(state.range(0));
  const std::size_t allocations_before = allocations.load();
  for (auto _ : state) {
    for (const auto& s : sessions) {
      session.Connect();
      const std::span<const std::uint8_t> all(s);
      for (std::size_t at = 0; at < all.size(); at += chunk) {
        session.Receive(all.subspan(at, std::min(chunk, all.size() - at)));
      }
    }
    benchmark::DoNotOptimize(session.Screen().CharacterPlane().data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
  // Telnet answers build a small message each; nothing grows with the number of bytes.
  state.counters["allocations_per_replay"] =
      static_cast<double>(allocations.load() - allocations_before) /
      static_cast<double>(state.iterations());
}

// 1,024 bytes is what the reader receives at a time; 1 is the worst case.
BENCHMARK(BM_ReplayRecordedSessions)->Arg(1024)->Arg(1);

}  // namespace
}  // namespace veltrix
