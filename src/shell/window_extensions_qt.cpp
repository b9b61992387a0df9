#include "shell/window_extensions_qt.h"

#include <QStatusBar>

#include "download/download_command_qt.h"
#include "shell/main_window.h"

namespace veltrix {

DownloadCommandQt* InstallDownload(MainWindow& window) {
  auto* command = new DownloadCommandQt(&window);
  UserPrompt* prompt = &window.prompt();
  command->SetMessageShower([prompt](const QString& caption, const QString& text) {
    prompt->ShowMessage(caption.toStdString(), text.toStdString(), PromptIcon::kExclamation);
  });
  command->SetRetryAsker([prompt](const QString& caption, const QString& text) {
    return prompt->AskYesNo(caption.toStdString(), text.toStdString());
  });
  QObject::connect(command, &DownloadCommandQt::statusChanged, &window,
                   [&window](const QString& text) { window.statusBar()->showMessage(text); });
  window.SetDownloadHandler([command, &window](int mode) {
    command->Run(static_cast<DownloadKind>(mode), window.document());
  });
  return command;
}

}  // namespace veltrix
