// The download exchange with an arbitrary terminal: the input is a script of events (replies of
// any bytes, time passing, the RF connection, a closed link, retry answers, a stop) played
// against a settings or a program download over each link. The engine must never crash, keep
// its replies bounded, report progress within its range, end with one kFinished at most, and
// claim success only with every block or frame acknowledged.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "download/download_engine.h"

namespace {

using veltrix::DownloadEvent;
using veltrix::DownloadEvents;

struct Checks {
  int finished = 0;
  int progress_max = -1;

  void Take(const DownloadEvents& events) {
    for (const DownloadEvent& e : events) {
      if (e.kind == DownloadEvent::Kind::kFinished) ++finished;
      if (e.kind == DownloadEvent::Kind::kProgressOpen) progress_max = e.value;
      if (e.kind == DownloadEvent::Kind::kProgress &&
          (e.value < 0 || (progress_max >= 0 && e.value > progress_max))) {
        __builtin_trap();
      }
    }
    if (finished > 1) __builtin_trap();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const auto via = static_cast<veltrix::DownloadVia>(data[0] & 0x03);
  const bool program = (data[0] & 0x04) != 0;
  std::span<const std::uint8_t> script(data + 1, size - 1);

  std::vector<std::uint8_t> record(veltrix::kRecordSize, 0x5A);
  // A small program of two S3 records and an end record, as the checked reader gives it.
  veltrix::MemoryProgramSource source(std::vector<std::uint8_t>(
      {'S', '3', '0',  '9',  '0', '0', '0', '0', '0', '0', '0', '0', '1', '1', '2',  '2',
       'B', 'A', '\r', '\n', 'S', '9', '0', '3', '0', '0', '0', '0', 'F', 'C', '\r', '\n'}));
  veltrix::DownloadEngine engine =
      program ? veltrix::DownloadEngine(via, source) : veltrix::DownloadEngine(via, record);
  Checks checks;
  std::int64_t now = 0;
  checks.Take(engine.Start(now));
  // Each step: an opcode byte and, for a reply, a length byte and the reply's bytes.
  for (std::size_t i = 0; i < script.size() && !engine.finished();) {
    const std::uint8_t op = script[i++];
    switch (op % 8) {
      case 0:
      case 1: {  // a reply of up to 255 bytes
        std::size_t n = 0;
        if (i < script.size()) {
          n = script[i];
          ++i;
          n = std::min(n, script.size() - i);
        }
        checks.Take(engine.Received(script.subspan(i, n), now));
        i += n;
        break;
      }
      case 2:  // time passes up to the engine's deadline, or a little
        now = engine.deadline() ? std::max(now + 1, *engine.deadline()) : now + 1 + op;
        checks.Take(engine.Tick(now));
        break;
      case 3:
        now += op;
        checks.Take(engine.Tick(now));
        break;
      case 4:
        checks.Take(engine.TerminalConnected(now));
        break;
      case 5:
        checks.Take(engine.LinkClosed(now));
        break;
      case 6:
        checks.Take(engine.AnswerRetry((op & 0x80) != 0, now));
        break;
      case 7:
        if (op > 0xF0)
          checks.Take(engine.Stop(now));
        else
          checks.Take(engine.ListenFailed(veltrix::ListenError::kBind, now));
        break;
    }
    if (engine.last_reply().size() > veltrix::kReplyCapacity) __builtin_trap();
  }
  if (engine.succeeded()) {
    const int all = program ? -1 : veltrix::kSettingsBlockCount;
    if (all > 0 && engine.acknowledged() != all) __builtin_trap();
    if (!engine.finished()) __builtin_trap();
  }
  static_cast<void>(engine.StopText());
  return 0;
}
