#include <QApplication>

#include "shell/main_window.h"
#include "tn5250/host_connection_setup_qt.h"

// Start-up: the main window (document with no product, empty summary), the About box once over
// it, then the event loop until the window closes.
int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Veltrix");
  veltrix::MainWindow window;
  veltrix::InstallHostSession(window);
  window.show();
  window.ShowAbout();
  return app.exec();
}
