#include <QApplication>
#include <QMainWindow>

// Placeholder until the main window lands.
int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow window;
  window.setWindowTitle("Veltrix - TN5250");
  window.show();
  return app.exec();
}
