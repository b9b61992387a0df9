#ifndef VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
#define VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_

namespace veltrix {

class DownloadCommandQt;
class MainWindow;

// Where the download plugs into the program's main window at start-up (main() calls it; tests
// build the window without it, or call it to test the download): Download settings and Download
// Program run through the returned command, its messages through the window's prompt.
DownloadCommandQt* InstallDownload(MainWindow& window);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
