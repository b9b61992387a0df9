#ifndef VELTRIX_SHELL_COMMAND_ENABLING_H_
#define VELTRIX_SHELL_COMMAND_ENABLING_H_

namespace veltrix {

// Enabling of the connection and capture commands, the same in menu and toolbar. Every other
// command is always enabled. Starts disconnected: only Connect is on.
struct CommandEnabling {
  bool connect = true;
  bool disconnect = false;
  bool start_capture = false;
  bool capture = false;
  bool stop_capture = false;

  // Yes, while Connect is on: Connect off and the other four on. No: only Connect on.
  void EnableConnectionCommands(bool connected);
  // While a connection is being made: only Disconnect (which gives up) is on.
  void EnableConnecting() { *this = CommandEnabling{false, true, false, false, false}; }
  // Yes, while Start Capture is on: Start Capture off, Capture and Stop Capture on.
  // No: Start Capture on, Capture and Stop Capture off.
  void EnableCaptureCommands(bool capturing);

  // Whether the command with `id` is enabled (true for every command outside the five).
  bool IsEnabled(int id) const;

  bool operator==(const CommandEnabling&) const = default;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_COMMAND_ENABLING_H_
