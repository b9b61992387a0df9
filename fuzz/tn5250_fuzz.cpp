// Feeds arbitrary host bytes and key presses to a TN5250 session. The first byte picks the host
// language and a split point; the rest is cut into host chunks and key presses by marker bytes,
// so the fuzzer explores both the Telnet/5250 parser and the keyboard on whatever screen the host
// built. The same input is played a second time with the host data split once more at the
// chosen point: the engine must end with the same screen, fields, cursor and sent bytes, as a
// host's records arrive cut anywhere by TCP.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tn5250/display_text.h"
#include "tn5250/session.h"

namespace {

// Every key of the keyboard.
constexpr veltrix::HostKey kKeys[] = {
    veltrix::HostKey::kBackspace, veltrix::HostKey::kEnter,     veltrix::HostKey::kReset,
    veltrix::HostKey::kF1,        veltrix::HostKey::kF2,        veltrix::HostKey::kF3,
    veltrix::HostKey::kF4,        veltrix::HostKey::kF5,        veltrix::HostKey::kF6,
    veltrix::HostKey::kF7,        veltrix::HostKey::kF8,        veltrix::HostKey::kF9,
    veltrix::HostKey::kF10,       veltrix::HostKey::kF11,       veltrix::HostKey::kF12,
    veltrix::HostKey::kUp,        veltrix::HostKey::kDown,      veltrix::HostKey::kLeft,
    veltrix::HostKey::kRight,     veltrix::HostKey::kPageUp,    veltrix::HostKey::kPageDown,
    veltrix::HostKey::kTab,       veltrix::HostKey::kHome,      veltrix::HostKey::kEnd,
    veltrix::HostKey::kDelete,    veltrix::HostKey::kFieldPlus, veltrix::HostKey::kFieldMinus};
constexpr std::size_t kKeyCount = sizeof kKeys / sizeof kKeys[0];

// Marker bytes after FE FE that are not a key or a character.
constexpr std::uint8_t kConnect = 0xF0;
constexpr std::uint8_t kPoint = 0xF1;       // two more bytes: row, column
constexpr std::uint8_t kDoubleByte = 0xF2;  // two more bytes: the PC code

// Keeps what the session sends.
class Sent : public veltrix::SessionListener {
 public:
  void OnSend(std::span<const std::uint8_t> bytes) override {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  }
  std::vector<std::uint8_t> bytes_;
};

// Plays the input; host data at offset `split` of `rest` starts a new receive.
void Play(veltrix::Session& session, std::span<const std::uint8_t> rest, std::size_t split) {
  auto receive = [&](std::size_t from, std::size_t to) {
    if (split > from && split < to) {
      session.Receive(rest.subspan(from, split - from));
      from = split;
    }
    session.Receive(rest.subspan(from, to - from));
  };
  // 0xFE 0xFE K: press key K (a key of the list, Connect, a click or a double-byte character
  // with their two bytes, or a printable character); anything else is host data up to the
  // next marker.
  std::size_t start = 0;
  for (std::size_t i = 0; i + 2 < rest.size(); ++i) {
    if (rest[i] != 0xFE || rest[i + 1] != 0xFE) continue;
    receive(start, i);
    const std::uint8_t k = rest[i + 2];
    const bool has_two = i + 4 < rest.size();
    if (k < kKeyCount) {
      session.KeyInput(kKeys[k]);
    } else if (k == kConnect) {
      session.Connect();
    } else if (k == kPoint && has_two) {
      session.PointAt(rest[i + 3] - 8, rest[i + 4] - 8);  // a few off the screen too
      i += 2;
    } else if (k == kDoubleByte && has_two) {
      session.TypeDoubleByte(rest[i + 3], rest[i + 4]);
      i += 2;
    } else {
      session.TypeCharacter(k);
    }
    i += 2;
    start = i + 1;
  }
  if (start < rest.size()) receive(start, rest.size());
}

bool SameState(const veltrix::Session& a, const veltrix::Session& b) {
  const auto& pa = a.Screen();
  const auto& pb = b.Screen();
  if (pa.CursorRow() != pb.CursorRow() || pa.CursorColumn() != pb.CursorColumn() ||
      a.KeyboardLocked() != b.KeyboardLocked()) {
    return false;
  }
  for (int r = 0; r < pa.Rows(); ++r) {
    for (int c = 0; c < pa.Columns(); ++c) {
      if (pa.Character(r, c) != pb.Character(r, c) || pa.Attribute(r, c) != pb.Attribute(r, c))
        return false;
    }
  }
  const auto& fa = a.Fields().Records();
  const auto& fb = b.Fields().Records();
  return std::ranges::equal(
      fa, fb, [](const auto& x, const auto& y) { return x.Serialize() == y.Serialize(); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  veltrix::SessionConfig config;
  config.emulation_type = data[0] % 7;
  config.local_name = "FUZZ";
  const std::span<const std::uint8_t> rest(data + 1, size - 1);
  Sent sent;
  veltrix::Session session(config, &sent);
  Play(session, rest, 0);
  // The second play splits the host data at a point the first byte picks.
  Sent split_sent;
  veltrix::Session split_session(config, &split_sent);
  Play(split_session, rest, rest.size() * (data[0] / 7u) / 37u);
  if (!SameState(session, split_session) || sent.bytes_ != split_sent.bytes_) __builtin_trap();

  // Reading the whole screen touches every cell the engine may have written.
  unsigned sum = 0;
  const auto& ps = session.Screen();
  for (int r = 0; r < ps.Rows(); ++r) {
    for (int c = 0; c < ps.Columns(); ++c) sum += ps.Character(r, c) + ps.Attribute(r, c);
  }
  for (const auto& f : session.Fields().Records()) sum += f.Serialize()[0];
  // Between records the cursor is always a cell of the screen.
  if (session.BetweenRecords() && !ps.OnScreen(ps.CursorRow(), ps.CursorColumn())) {
    __builtin_trap();
  }
  // The screen as text, double-byte characters decoded, as the replay prints it.
  for (int r = 0; r < ps.Rows(); ++r) {
    sum += static_cast<unsigned>(veltrix::ScreenRowText(ps, config.emulation_type, r).size());
  }
  asm volatile("" : : "r"(sum));  // keep the reads
  return 0;
}
