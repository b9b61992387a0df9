#include "tn5250/session.h"

#include <algorithm>

#include "tn5250/session_engine.h"

namespace veltrix {

Session::Session(SessionConfig config, SessionListener* listener)
    : engine_(std::make_unique<SessionEngine>(std::move(config), listener)) {}

Session::~Session() = default;

void Session::SetListener(SessionListener* listener) { engine_->listener = listener; }
const SessionConfig& Session::Config() const { return engine_->config; }
void Session::Connect() { engine_->Connect(); }
void Session::Receive(std::span<const std::uint8_t> bytes) { engine_->Receive(bytes); }
void Session::KeyInput(HostKey key) { engine_->KeyInput(key); }
void Session::TypeCharacter(std::uint8_t c) { engine_->TypeCharacter(c); }
void Session::TypeDoubleByte(std::uint8_t first, std::uint8_t second) {
  engine_->TypeDoubleByte(first, second);
}
void Session::PointAt(int row, int column) { engine_->PointAt(row, column); }
const PresentationSpace& Session::Screen() const { return engine_->host.ps; }
const FieldTable& Session::Fields() const { return engine_->host.fields; }
bool Session::KeyboardLocked() const { return engine_->host.keyboard_locked; }
bool Session::BetweenRecords() const { return engine_->interpreter.BetweenRecords(); }

std::span<const std::uint8_t> Session::SendSecret() const { return engine_->send_secret(); }

bool Session::MessageWaiting() const { return engine_->host.message_waiting; }
ReadMode Session::CurrentReadMode() const { return engine_->host.read_mode; }
bool Session::EchoFlag() const { return engine_->telnet.echo(); }
bool Session::SuppressGoAheadFlag() const { return engine_->telnet.suppress_go_ahead(); }

}  // namespace veltrix
