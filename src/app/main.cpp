#include <QApplication>

#include "shell/host_session_setup_qt.h"
#include "shell/main_window.h"
#include "shell/tool_icons_qt.h"
#include "shell/window_extensions_qt.h"

// Start-up: the main window (document with no product, empty summary) with the host session and
// the download plugged in, the About box once over it, then the event loop until the window
// closes.
int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Veltrix");
  QApplication::setWindowIcon(veltrix::ProgramIcon());
  veltrix::MainWindow window;
  veltrix::InstallHostSession(window);
  veltrix::InstallDownload(window);
  window.show();
  window.ShowAbout();
  return app.exec();
}
