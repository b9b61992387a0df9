#ifndef VELTRIX_TN5250_HOST_CONNECTION_H_
#define VELTRIX_TN5250_HOST_CONNECTION_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "tn5250/host_ip.h"
#include "tn5250/keys.h"
#include "tn5250/pc_keys.h"
#include "tn5250/session.h"
#include "tn5250/session_listener.h"
#include "tn5250/session_log.h"

namespace veltrix {

inline constexpr std::string_view kInvalidHostIpMessage = "Invalid Host IP given.";
inline constexpr std::string_view kCannotConnectMessage = "Can not establish connection";

// The byte link to the host (a TCP socket in the program, a fake in tests).
class HostLink {
 public:
  virtual ~HostLink() = default;
  // Starts connecting to address:port without waiting; the link reports the result through
  // HostConnection::Opened or HostConnection::OpenFailed (possibly before Open returns).
  virtual void Open(const std::string& address, std::uint16_t port) = 0;
  virtual void Send(std::span<const std::uint8_t> bytes) = 0;
  // Shuts the connection down in both directions and closes it.
  virtual void Close() = 0;
};

// Shows the host session's error messages (caption "Error").
class SessionMessages {
 public:
  virtual ~SessionMessages() = default;
  virtual void ShowError(std::string_view text) = 0;
};

// What the host session reads from the settings record.
struct HostSettings {
  std::string active_entry;  // the active `HostIpOrName` entry
  std::uint16_t port = 23;   // `TelnetPort`
  int emulation_type = 0;    // `EmulationType`
  std::string local_name;    // `LocalName`
};
HostSettings ReadHostSettings(const Document& doc);
// After a successful connection the address goes into host entry 0, whatever entry is active.
void StoreConnectedAddress(Document& doc, std::string_view address);

// The status-bar texts of connecting ("10.0.0.5:23").
std::string HostPortText(std::string_view address, std::uint16_t port);
std::string ConnectingText(std::string_view address, std::uint16_t port);
std::string ConnectedText();
// What the user needs to fix a failed connection: where to and the system's reason.
std::string ConnectFailedText(std::string_view address, std::uint16_t port,
                              std::string_view reason);

// The terminal's status line while connected, as a 5250 display shows it: where to, whether the
// keyboard takes input, the cursor (counted from 1) and the message-waiting indicator. Empty texts
// when not connected.
struct TerminalStatus {
  std::string host;      // "10.0.0.5:23", or "10.0.0.5:992 (TLS 1.3, cipher)"
  std::string keyboard;  // "Input inhibited" or "Ready"
  std::string cursor;    // "Row 6 Col 53"
  std::string message;   // "Message waiting" or empty
  bool operator==(const TerminalStatus&) const = default;
};

// One host session: the connection steps, the logged traffic in both directions, the keyboard and
// the TN5250 engine. Everything runs on the caller's thread; received bytes are handed in by
// whoever reads the link.
class HostConnection : private SessionListener {
 public:
  HostConnection(HostLink& link, SessionLog& log, SessionMessages& messages);
  ~HostConnection() override;

  // Screen changes, the alarm and keyboard lock changes go on to the view.
  void SetView(SessionListener* view) { view_ = view; }

  // Starts connecting after the connect dialog was confirmed: checks the address, resets the
  // engine and opens the link to `TelnetPort`. False (with the message shown) when the address
  // is refused; otherwise the link's answer comes through Opened or OpenFailed.
  // With `tls` the port is 992 while TelnetPort is 23.
  bool Connect(const Document& doc, const HostOctets& octets, bool save_log, bool tls = false);
  // The next connection's log shows non-display fields' data instead of "**".
  void set_log_secrets(bool on) { log_.set_include_secrets(on); }
  // The link is open: the session stands (the caller stores the address in host entry 0).
  // `security` names the TLS version and cipher of a TLS connection: the log notes it and the
  // status shows it beside the host.
  void Opened(std::string_view security = {});
  // The link could not be opened: the failure with its reason goes to the log, the session ends
  // and "Can not establish connection" is shown.
  void OpenFailed(std::string_view reason);
  // Closes everything that is open, or gives up connecting; safe to call when nothing is.
  void Disconnect();

  // A chunk received from the host (logged, then handed to the engine).
  void Received(std::span<const std::uint8_t> bytes);
  // The host closed the connection: logs the empty receive and shows "Can not establish
  // connection". The caller then disconnects.
  void HostClosed();
  // A receive error: logs the empty receive; the caller then disconnects.
  void ReceiveFailed();

  // Capture: `done` gets the session once its screen is one whole picture (now, or after the
  // rest of a record the host is still sending). Only while connected.
  void CaptureScreen(std::function<void(const Session&)> done);

  // The keyboard, only while connected.
  // What a key changed on the screen goes to the view's OnScreenChanged. False when the key went
  // nowhere (not connected, no host key, no code in the host language).
  bool KeyDown(PcKey key);
  // A typed character, also one of an input method's text: a character without a single-byte
  // code in the host language goes as its double-byte character.
  bool Character(char32_t c);
  // A click on a screen cell (see Session::PointAt).
  void PointAt(int row, int column) {
    if (connected()) session_->PointAt(row, column);
  }

  bool connected() const { return state_ == State::kConnected; }
  bool connecting() const { return state_ == State::kConnecting; }
  // Where the session connects or is connected to.
  const std::string& address() const { return address_; }
  std::uint16_t port() const { return port_; }
  const Session& session() const { return *session_; }
  TerminalStatus Status() const;
  int emulation_type() const { return session_->Config().emulation_type; }

 private:
  void OnSend(std::span<const std::uint8_t> bytes) override;
  void OnScreenChanged(const ScreenChange& change) override;
  void OnAlarm() override;
  void OnKeyboardLockChanged(bool locked) override;
  void DeliverCaptures();

  HostLink& link_;
  SessionLog& log_;
  SessionMessages& messages_;
  SessionListener* view_ = nullptr;
  std::unique_ptr<Session> session_;
  enum class State { kIdle, kConnecting, kConnected };

  PcKeyboard keyboard_;
  State state_ = State::kIdle;
  std::string address_;
  std::uint16_t port_ = 0;
  std::string security_;
  std::vector<std::function<void(const Session&)>> captures_;  // waiting for a whole screen
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_CONNECTION_H_
