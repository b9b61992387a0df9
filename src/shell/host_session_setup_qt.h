#ifndef VELTRIX_SHELL_HOST_SESSION_SETUP_QT_H_
#define VELTRIX_SHELL_HOST_SESSION_SETUP_QT_H_

namespace veltrix {

class HostConnectionQt;
class HostScreenWidget;
class TerminalStatusWidget;
class MainWindow;

// The host session's parts inside the main window (owned by the window).
struct HostSessionParts {
  HostScreenWidget* screen = nullptr;
  HostConnectionQt* connection = nullptr;
  TerminalStatusWidget* status = nullptr;  // in the status bar while connected
};

// Puts the host session into the main window: the host screen (hidden until connected), the
// Telnet menu's Connect and Disconnect, the window's Disconnect command when the host ends the
// connection, and the window's message boxes for the session's errors. Capturing is left to the
// capture store.
HostSessionParts InstallHostSession(MainWindow& window);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_HOST_SESSION_SETUP_QT_H_
