#include "shell/session_commands.h"

#include "resources/strings.h"
#include "shell/command_table.h"

namespace veltrix {

std::string CapturedScreensText(int count) {
  return "Captured : " + std::to_string(count) + " screens";
}

std::optional<std::string> SessionCommands::Run(int command_id) {
  switch (command_id) {
    case kCmdConnect:
      return Connect();
    case kCmdDisconnect:
      return Disconnect();
    case kCmdStartCapture:
      return StartCapture();
    case kCmdCapture:
      return Capture();
    case kCmdStopCapture:
      return StopCapture();
    default:
      return std::nullopt;
  }
}

void SessionCommands::SayNotAvailable(std::string_view what) {
  prompt_.ShowMessage(StringResource(kWindowTitleId),
                      std::string(what) + " is not available in this build.",
                      PromptIcon::kInformation);
}

std::optional<std::string> SessionCommands::Connect() {
  if (!handlers_.connect) {
    SayNotAvailable("The host session");
    return std::nullopt;
  }
  ConnectAttempt attempt = handlers_.connect();
  if (!attempt.started) return std::nullopt;
  if (attempt.connected) {
    ConnectionOpened();
    return std::nullopt;
  }
  connecting_ = true;
  enabling_.EnableConnecting();
  return attempt.status;
}

void SessionCommands::ConnectionOpened() {
  connecting_ = false;
  host_screen_shown_ = true;
  enabling_ = CommandEnabling{};
  enabling_.EnableConnectionCommands(true);
  enabling_.EnableCaptureCommands(false);
}

void SessionCommands::ConnectionFailed() {
  connecting_ = false;
  enabling_.EnableConnectionCommands(false);
}

std::optional<std::string> SessionCommands::Disconnect() {
  if (handlers_.disconnect) handlers_.disconnect();
  connecting_ = false;
  host_screen_shown_ = false;
  enabling_.EnableConnectionCommands(false);
  return std::nullopt;
}

std::optional<std::string> SessionCommands::StartCapture() {
  if (!handlers_.start_capture) {
    SayNotAvailable("Screen capture");
    return std::nullopt;
  }
  if (!handlers_.start_capture()) return std::nullopt;
  capture_count_ = 0;
  enabling_.EnableCaptureCommands(true);
  return std::string(kReadyToCapture);
}

std::optional<std::string> SessionCommands::Capture() {
  if (!handlers_.capture) {
    SayNotAvailable("Screen capture");
    return std::nullopt;
  }
  ++capture_count_;
  handlers_.capture();
  return CapturedScreensText(capture_count_);
}

std::optional<std::string> SessionCommands::StopCapture() {
  capture_count_ = 0;
  if (handlers_.stop_capture) handlers_.stop_capture();
  enabling_.EnableCaptureCommands(false);
  return std::string();
}

}  // namespace veltrix
