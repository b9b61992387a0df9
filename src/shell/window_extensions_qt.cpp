#include "shell/window_extensions_qt.h"

#include "shell/main_window.h"

namespace veltrix {

void InstallDownload(MainWindow& window) { (void)window; }

}  // namespace veltrix
