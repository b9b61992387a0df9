#include "tn5250/session_engine.h"

#include "tn5250/telnet_receiver.h"

namespace veltrix {

namespace {

SessionListener& Ignored() {
  static SessionListener ignored;
  return ignored;
}

}  // namespace

SessionEngine::SessionEngine(SessionConfig cfg, SessionListener* l)
    : config(std::move(cfg)),
      listener(l != nullptr ? l : &Ignored()),
      host(*this, *listener),
      inbound(host),
      interpreter(host, inbound),
      telnet(config, *this),
      keyboard(host, inbound) {
  host.emulation_type = config.emulation_type;
  Connect();
}

void SessionEngine::SendRaw(std::span<const std::uint8_t> bytes) { listener->OnSend(bytes); }

// A 0xFF inside a record is doubled, so that the host's Telnet layer does not take it for a
// command; the record's length field still counts it once.
void SessionEngine::SendRecord(std::span<const std::uint8_t> record,
                               std::span<const std::uint8_t> secret) {
  framed_.clear();
  framed_secret_.clear();
  for (std::size_t i = 0; i < record.size(); ++i) {
    const std::uint8_t mark = i < secret.size() ? secret[i] : 0;
    framed_.push_back(record[i]);
    framed_secret_.push_back(mark);
    if (record[i] == kIac) {
      framed_.push_back(kIac);
      framed_secret_.push_back(mark);
    }
  }
  framed_.push_back(kIac);
  framed_.push_back(kEor);
  framed_secret_.resize(framed_.size(), 0);
  if (!secret.empty()) send_secret_ = framed_secret_;
  SendRaw(framed_);
  send_secret_ = {};
}

void SessionEngine::HostData(std::span<const std::uint8_t> bytes) {
  interpreter.ProcessHostBytes(bytes);
}

void SessionEngine::Connect() {
  interpreter.Reset();
  host.ps.Reset();
  host.fields.ClearCurrent();
  host.read_mode = ReadMode::kNone;
  host.SetKeyboardLocked(true);
  host.message_waiting = false;
  host.changed = false;
  telnet.Reset();
}

void SessionEngine::Receive(std::span<const std::uint8_t> bytes) {
  telnet.Receive(bytes);
  if (host.changed) {
    host.changed = false;
    listener->OnScreenChanged({ScreenChange::Kind::kWhole, 0, 0});
  }
}

void SessionEngine::Report(ScreenChange::Kind repaint, CellAddress before) {
  // The host-side flag is for received chunks; a key reports what the keyboard says it changed.
  host.changed = false;
  if (repaint == ScreenChange::Kind::kNothing) return;
  listener->OnScreenChanged({repaint, before.row, before.column});
}

void SessionEngine::KeyInput(HostKey key) {
  const CellAddress before = host.ps.Cursor();
  Report(keyboard.KeyInput(key), before);
}

void SessionEngine::TypeCharacter(std::uint8_t c) {
  const CellAddress before = host.ps.Cursor();
  Report(keyboard.CharacterInput(c), before);
}

void SessionEngine::TypeDoubleByte(std::uint8_t first, std::uint8_t second) {
  const CellAddress before = host.ps.Cursor();
  Report(keyboard.DoubleByteInput(first, second), before);
}

void SessionEngine::PointAt(int row, int column) {
  const CellAddress before = host.ps.Cursor();
  Report(keyboard.PointAt({row, column}), before);
}

}  // namespace veltrix
