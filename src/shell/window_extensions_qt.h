#ifndef VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
#define VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_

namespace veltrix {

class MainWindow;

// Where the host session and the download plug into the program's main window at start-up
// (main() calls both; tests build the window without them). Each body is the one place its
// subsystem wires itself in: the host screen widget and SetSessionHandlers for the first,
// SetDownloadHandler for the second.
void InstallHostSession(MainWindow& window);
void InstallDownload(MainWindow& window);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
