// Reads any bytes as an SHX program, in chunks of any size, and sends it to a terminal that
// accepts every frame: no frame may pass the terminal's 260-byte buffer, every frame's checksum
// must hold, and the download must end. The strict reader either refuses the bytes with a line
// and a reason, or passes a program whose re-written records it passes again unchanged and
// whose frames carry exactly its data bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "download/download_engine.h"
#include "download/srecord_framer.h"
#include "download/srecord_reader.h"

namespace {

void CheckFrame(const std::vector<std::uint8_t>& frame) {
  if (frame.size() > veltrix::kFrameBufferBytes || frame.size() < 9) std::abort();
  unsigned sum = 0;
  for (std::size_t i = 2; i + 1 < frame.size(); ++i) sum += frame[i];
  if ((sum & 0xFF) != 0xFF || frame[2] != frame.size() - 4 || frame.back() != 0x0D) std::abort();
}

void CheckReader(std::span<const std::uint8_t> file) {
  const veltrix::ProgramCheck check = veltrix::CheckProgram(file);
  if (!check.ok) {
    if (check.error.empty()) std::abort();
    return;
  }
  const veltrix::ProgramCheck again = veltrix::CheckProgram(check.program.text);
  if (!again.ok || again.program.text != check.program.text ||
      again.program.data_bytes != check.program.data_bytes) {
    std::abort();
  }
  veltrix::SRecordFramer framer;
  framer.Feed(check.program.text);
  if (!framer.ended()) std::abort();
  std::uint64_t carried = 0;
  for (const auto& frame : framer.frames()) {
    CheckFrame(frame);
    carried += frame.size() - 9;
  }
  if (carried != check.program.data_bytes) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckReader(std::span(data, size));
  // The framer on its own, fed in chunks whose size the first byte picks.
  veltrix::SRecordFramer framer;
  const std::size_t chunk = size > 0 ? data[0] % 17 + 1 : 1;
  for (std::size_t at = 0; at < size; at += chunk) {
    framer.Feed(std::span(data + at, std::min(chunk, size - at)));
    for (const auto& frame : framer.frames()) CheckFrame(frame);
    framer.frames().clear();
  }
  // The whole download, with a terminal that answers FA at once.
  veltrix::MemoryProgramSource program({data, data + size});
  veltrix::DownloadEngine engine(veltrix::DownloadVia::kRs232, program);
  std::int64_t now = 0;
  const std::uint8_t fa[] = {'F', 'A', '\r'};
  auto events = engine.Start(now);
  for (int guard = 0; guard < 1000000 && !engine.finished(); ++guard) {
    for (const auto& e : events) {
      if (e.kind == veltrix::DownloadEvent::Kind::kSend && e.bytes[0] == 'S' && e.bytes[1] == '3') {
        CheckFrame(e.bytes);
      }
      if (e.kind == veltrix::DownloadEvent::Kind::kAskRetry)
        events = engine.AnswerRetry(false, now);
    }
    if (engine.finished()) break;
    if (engine.collecting()) {
      events = engine.Received(fa, ++now);
    } else if (engine.deadline()) {
      now = *engine.deadline();
      events = engine.Tick(now);
    } else {
      break;
    }
  }
  if (!engine.finished()) std::abort();
  return 0;
}
