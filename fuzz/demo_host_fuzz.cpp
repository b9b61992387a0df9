// The demo host's inbound side: any bytes from a station, cut into chunks, through the Telnet
// layer, the negotiation and the demo application; the same bytes as one record through each
// record parser. The first byte picks the chunk size and whether the host negotiates.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "demo_host/demo_application.h"
#include "demo_host/host_session.h"
#include "demo_host/inbound_record.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const bool negotiate = (data[0] & 0x80) != 0;
  const std::size_t chunk = 1 + (data[0] & 0x7F);
  const std::span<const std::uint8_t> rest(data + 1, size - 1);

  using namespace veltrix::demo_host;
  HostSession session(std::make_unique<DemoApplication>(), negotiate);
  session.Start();
  for (std::size_t i = 0; i < rest.size() && !session.wants_close(); i += chunk) {
    session.Receive(rest.subspan(i, std::min(chunk, rest.size() - i)));
    session.TakeLog();
  }

  const InboundRecord aid = ParseAidRecord(rest);
  const InboundRecord immediate = ParseImmediateRecord(rest);
  if (aid.ok && aid.has_aid && aid.fields.size() > rest.size()) __builtin_trap();
  if (immediate.ok && immediate.fields.size() > rest.size()) __builtin_trap();
  ParseQueryReply(rest);
  return 0;
}
