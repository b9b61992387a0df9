#include <QApplication>
#include <QStringList>
#include <cstdio>
#include <cstring>

#include "shell/host_session_setup_qt.h"
#include "shell/main_window.h"
#include "shell/tool_icons_qt.h"
#include "shell/window_extensions_qt.h"

namespace {

constexpr const char* kUsage =
    "usage: veltrix [FILE.QVL]\n"
    "Prepares Dravin S and Dravin R handheld terminals: edits their settings files (.QVL),\n"
    "works as a TN5250 display client of the host, captures host screens (.SCR) and reformats\n"
    "them for the terminal's display, and downloads the settings or a terminal program (.SHX)\n"
    "over a serial port or TCP.\n"
    "\n"
    "  FILE.QVL   open this settings file at start, as File > Open does\n"
    "  --help     print this and exit\n"
    "  --version  print the version and exit\n";

}  // namespace

// Start-up: the main window (document with no product, empty summary) with the host session and
// the download plugged in, the About box once over it, then the event loop until the window
// closes. --help and --version answer before any window system is needed.
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::fputs(kUsage, stdout);
      return 0;
    }
    if (std::strcmp(argv[i], "--version") == 0) {
      std::printf("veltrix %s\n", VELTRIX_VERSION);
      return 0;
    }
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName("Veltrix");
  QApplication::setApplicationVersion(VELTRIX_VERSION);
  QApplication::setWindowIcon(veltrix::ProgramIcon());
  const QStringList files = app.arguments().mid(1);  // Qt's own options are taken out
  if (files.size() > 1 || (!files.isEmpty() && files.front().startsWith('-'))) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  veltrix::FitDialogsToTheirCaptions();
  veltrix::MainWindow window;
  veltrix::InstallHostSession(window);
  veltrix::InstallDownload(window);
  window.show();
  window.ShowAbout();
  if (!files.isEmpty()) window.OpenFile(files.front());
  return app.exec();
}
