#ifndef VELTRIX_SHELL_SESSION_COMMANDS_H_
#define VELTRIX_SHELL_SESSION_COMMANDS_H_

#include <functional>
#include <optional>
#include <string>

#include "shell/command_enabling.h"
#include "shell/ports.h"

namespace veltrix {

// The status-bar texts of capturing.
inline constexpr std::string_view kReadyToCapture = "Ready to capture";
std::string CapturedScreensText(int count);  // "Captured : %d screens"

// What a connect handler did with the Connect command.
struct ConnectAttempt {
  bool started = false;    // false: the dialog was cancelled or the address refused
  bool connected = false;  // the session already stands; otherwise its result comes later
  std::string status;      // the status-bar text while connecting
};

// What the host session and the capture store do for the Telnet commands. The session code
// registers them; a command whose handler is missing says it is not available in this build.
struct SessionHandlers {
  std::function<ConnectAttempt()> connect;
  std::function<void()> disconnect;     // also gives up connecting and closes a capture file
  std::function<bool()> start_capture;  // true when a screen file was created
  std::function<void()> capture;        // appends the current screen
  std::function<void()> stop_capture;
};

// The Telnet menu's commands: the enabling of the five commands, which of tree and host screen
// is shown, and the capture count.
class SessionCommands {
 public:
  explicit SessionCommands(UserPrompt& prompt) : prompt_(prompt) {}

  void set_handlers(SessionHandlers handlers) { handlers_ = std::move(handlers); }
  const SessionHandlers& handlers() const { return handlers_; }

  // Runs Connect, Disconnect, Start Capture, Capture or Stop Capture. Returns the status-bar
  // text when the command sets one (after its description was shown).
  std::optional<std::string> Run(int command_id);

  const CommandEnabling& enabling() const { return enabling_; }
  // The result of a connection that was still being made when Connect returned: the host screen
  // comes with the commands of a connected session, or Connect is offered again.
  void ConnectionOpened();
  void ConnectionFailed();
  // While connecting only Disconnect (which gives up) is on.
  bool connecting() const { return connecting_; }

  // For a session that changes state by itself.
  void EnableConnectionCommands(bool connected) { enabling_.EnableConnectionCommands(connected); }
  void EnableCaptureCommands(bool capturing) { enabling_.EnableCaptureCommands(capturing); }
  // True while the host screen replaces the settings tree.
  bool host_screen_shown() const { return host_screen_shown_; }
  int capture_count() const { return capture_count_; }

 private:
  std::optional<std::string> Connect();
  std::optional<std::string> Disconnect();
  std::optional<std::string> StartCapture();
  std::optional<std::string> Capture();
  std::optional<std::string> StopCapture();
  void SayNotAvailable(std::string_view what);

  UserPrompt& prompt_;
  SessionHandlers handlers_;
  CommandEnabling enabling_;
  bool host_screen_shown_ = false;
  bool connecting_ = false;
  int capture_count_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SESSION_COMMANDS_H_
