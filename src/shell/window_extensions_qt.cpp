#include "shell/window_extensions_qt.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QFontMetrics>
#include <QMessageBox>
#include <QStatusBar>

#include "download/download_command_qt.h"
#include "shell/command_table.h"
#include "shell/main_window.h"

namespace veltrix {
namespace {

// Widens a dialog to its caption as it is first shown.
class CaptionFit : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || qobject_cast<QMessageBox*>(dialog) != nullptr ||
        qobject_cast<QFileDialog*>(dialog) != nullptr) {
      return false;
    }
    const int need = CaptionWidth(dialog->windowTitle());
    if (dialog->width() < need && dialog->maximumWidth() >= need) {
      dialog->setMinimumWidth(need);
      dialog->resize(need, dialog->height());
    }
    return false;
  }
};

}  // namespace

int CaptionWidth(const QString& caption) {
  // The title bar's font is about the application's, bold; the icon and the close and help
  // buttons take about ten characters more.
  QFont font = QApplication::font();
  font.setBold(true);
  const QFontMetrics metrics(font);
  return metrics.horizontalAdvance(caption) + 10 * metrics.averageCharWidth() + 40;
}

void FitDialogsToTheirCaptions() { qApp->installEventFilter(new CaptionFit(qApp)); }

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
