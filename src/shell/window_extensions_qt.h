#ifndef VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
#define VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_

class QString;

namespace veltrix {

class DownloadCommandQt;
class MainWindow;

// Where the download plugs into the program's main window at start-up (main() calls it; tests
// build the window without it, or call it to test the download): Download settings and Download
// Program run through the returned command, its messages through the window's prompt.
DownloadCommandQt* InstallDownload(MainWindow& window);

// Every dialog the program shows (message boxes and file dialogs aside) opens at least as wide as
// its caption needs, so no title is cut at 100% scale.
void FitDialogsToTheirCaptions();

// The width a dialog needs for `caption` in its title bar: the text, the icon and the buttons.
int CaptionWidth(const QString& caption);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_WINDOW_EXTENSIONS_QT_H_
