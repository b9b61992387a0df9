#include "shell/window_extensions_qt.h"

#include <QStatusBar>

#include "download/download_command_qt.h"
#include "shell/command_table.h"
#include "shell/main_window.h"

namespace veltrix {

DownloadCommandQt* InstallDownload(MainWindow& window) {
  auto* command = new DownloadCommandQt(&window);
  UserPrompt* prompt = &window.prompt();
  command->SetMessageShower([prompt](const QString& caption, const QString& text) {
    prompt->ShowMessage(caption.toStdString(), text.toStdString(), PromptIcon::kExclamation);
  });
  auto ask = [prompt](const QString& caption, const QString& text) {
    return prompt->AskYesNo(caption.toStdString(), text.toStdString());
  };
  command->SetRetryAsker(ask);
  command->SetStopAsker(ask);
  QObject::connect(command, &DownloadCommandQt::statusChanged, &window,
                   [&window](const QString& text) { window.statusBar()->showMessage(text); });
  window.SetDownloadHandler([command, &window](int mode) {
    command->Run(mode == kCmdDownloadProgram ? DownloadKind::kProgram : DownloadKind::kSettings,
                 window.document());
  });
  return command;
}

}  // namespace veltrix
