#include "tn5250/host_connection.h"

#include "settings/emulation/emulation_settings.h"
#include "settings/network/network_settings.h"
#include "tn5250/display_text.h"
#include "tn5250/double_byte.h"
#include "tn5250/tls_trust.h"

namespace veltrix {
namespace {

std::span<const std::uint8_t> RecordOf(const Document& doc) { return doc.record; }

}  // namespace

HostSettings ReadHostSettings(const Document& doc) {
  HostSettings s;
  int index = static_cast<int>(ReadNumber(RecordOf(doc), kActiveHostIpOrName));
  if (index < 0 || index >= kHostIpOrName.count) index = 0;
  s.active_entry = ReadText(RecordOf(doc), kHostIpOrName, index);
  s.port = static_cast<std::uint16_t>(ReadNumber(RecordOf(doc), kTelnetPort));
  s.emulation_type = static_cast<int>(ReadNumber(RecordOf(doc), kEmulationType));
  s.local_name = ReadText(RecordOf(doc), kLocalName);
  return s;
}

void StoreConnectedAddress(Document& doc, std::string_view address) {
  WriteText(doc.record, kHostIpOrName, address, 0);
}

std::string HostPortText(std::string_view address, std::uint16_t port) {
  return std::string(address) + ":" + std::to_string(port);
}

std::string ConnectingText(std::string_view address, std::uint16_t port) {
  return "Connecting to " + HostPortText(address, port) + "...";
}

std::string ConnectedText() {
  // The host and port stand beside it, in the terminal's status.
  return "Connected";
}

std::string ConnectFailedText(std::string_view address, std::uint16_t port,
                              std::string_view reason) {
  std::string text = std::string(kCannotConnectMessage) + " to " + HostPortText(address, port);
  if (!reason.empty()) text += ": " + std::string(reason);
  return text;
}

HostConnection::HostConnection(HostLink& link, SessionLog& log, SessionMessages& messages)
    : link_(link), log_(log), messages_(messages), session_(std::make_unique<Session>()) {
  session_->SetListener(this);
}

HostConnection::~HostConnection() { Disconnect(); }

bool HostConnection::Connect(const Document& doc, const HostOctets& octets, bool save_log,
                             bool tls) {
  Disconnect();
  log_.set_save_log(save_log);
  if (!HostAddressValue(octets)) {
    messages_.ShowError(kInvalidHostIpMessage);
    return false;
  }
  HostSettings settings = ReadHostSettings(doc);
  SessionConfig config{settings.emulation_type, settings.local_name};
  // The engine keeps its field records across connections, so keep it while the language and
  // device name stay the same.
  if (session_->Config().emulation_type != config.emulation_type ||
      session_->Config().local_name != config.local_name) {
    session_ = std::make_unique<Session>(config, static_cast<SessionListener*>(this));
  }
  session_->Connect();
  keyboard_.Reset();
  address_ = FormatHostAddress(octets);
  port_ = ConnectPort(settings.port, tls);
  security_.clear();
  state_ = State::kConnecting;
  link_.Open(address_, port_);
  return true;
}

void HostConnection::Opened(std::string_view security) {
  if (state_ != State::kConnecting) return;
  state_ = State::kConnected;
  security_ = security;
  log_.LogConnect();
  if (!security_.empty() && log_.is_open()) log_.WriteLogLine("Secured: " + security_);
  if (view_) view_->OnScreenChanged(ScreenChange{});
}

void HostConnection::OpenFailed(std::string_view reason) {
  if (state_ != State::kConnecting) return;
  state_ = State::kIdle;
  link_.Close();
  log_.LogConnectFailed(ConnectFailedText(address_, port_, reason));
  messages_.ShowError(kCannotConnectMessage);
}

void HostConnection::Disconnect() {
  const State was = state_;
  state_ = State::kIdle;
  captures_.clear();
  if (was == State::kIdle) return;
  link_.Close();
  if (was == State::kConnected) log_.LogClose();
}

void HostConnection::Received(std::span<const std::uint8_t> bytes) {
  if (!connected()) return;
  log_.LogReceive(bytes);
  session_->Receive(bytes);
  if (!captures_.empty()) DeliverCaptures();
}

void HostConnection::CaptureScreen(std::function<void(const Session&)> done) {
  if (!connected()) return;
  captures_.push_back(std::move(done));
  DeliverCaptures();
}

void HostConnection::DeliverCaptures() {
  if (!session_->BetweenRecords()) return;
  std::vector<std::function<void(const Session&)>> waiting;
  waiting.swap(captures_);
  for (auto& done : waiting) done(*session_);
}

void HostConnection::HostClosed() {
  if (!connected()) return;
  log_.LogReceive({});
  messages_.ShowError(kCannotConnectMessage);
}

void HostConnection::ReceiveFailed() {
  if (!connected()) return;
  log_.LogReceive({});
}

TerminalStatus HostConnection::Status() const {
  TerminalStatus status;
  if (!connected()) return status;
  status.host = HostPortText(address_, port_);
  if (!security_.empty()) status.host.append(" (").append(security_).append(")");
  status.keyboard = session_->KeyboardLocked() ? "Input inhibited" : "Ready";
  status.cursor = "Row " + std::to_string(session_->CursorRow() + 1) + " Col " +
                  std::to_string(session_->CursorColumn() + 1);
  if (session_->MessageWaiting()) status.message = "Message waiting";
  return status;
}

bool HostConnection::KeyDown(PcKey key) {
  if (!connected()) return false;
  std::optional<PcKeyboard::Input> input = keyboard_.KeyDown(key);
  if (!input) return false;
  session_->KeyInput(static_cast<HostKey>(input->key_code));
  return true;
}

bool HostConnection::Character(char32_t c) {
  if (!connected()) return false;
  std::optional<PcKeyboard::Input> input = keyboard_.Character(c);
  if (!input) return false;
  // A character without a single-byte code (an input method's text) goes as a double-byte one.
  const TypedCode code = TypedCodeOf(emulation_type(), input->character);
  if (code.size == 1) session_->TypeCharacter(code.first);
  if (code.size == 2) session_->TypeDoubleByte(code.first, code.second);
  return code.size != 0;
}

void HostConnection::OnSend(std::span<const std::uint8_t> bytes) {
  if (!connected()) return;
  log_.LogSend(bytes, session_->SendSecret());
  link_.Send(bytes);
}

void HostConnection::OnScreenChanged(const ScreenChange& change) {
  if (view_) view_->OnScreenChanged(change);
}

void HostConnection::OnAlarm() {
  if (view_) view_->OnAlarm();
}

void HostConnection::OnKeyboardLockChanged(bool locked) {
  if (view_) view_->OnKeyboardLockChanged(locked);
}

}  // namespace veltrix
