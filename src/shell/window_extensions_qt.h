#ifndef VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
#define VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_

namespace veltrix {

class MainWindow;

// Where the download plugs into the program's main window at start-up (main() calls it; tests
// build the window without it): the one place to call SetDownloadHandler.
void InstallDownload(MainWindow& window);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
