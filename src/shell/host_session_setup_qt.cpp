#include "shell/host_session_setup_qt.h"

#include <QTimer>
#include <filesystem>
#include <memory>

#include "capture/screen_capture.h"
#include "capture/screen_file.h"
#include "shell/command_table.h"
#include "shell/main_window.h"
#include "tn5250/host_connection_qt.h"
#include "tn5250/host_ip_dialog.h"
#include "tn5250/host_screen_widget.h"
#include "tn5250/terminal_status_widget.h"

namespace veltrix {

HostSessionParts InstallHostSession(MainWindow& window) {
  HostSessionParts parts;
  parts.screen = new HostScreenWidget(&window);
  // The session lives as long as its screen.
  parts.connection = new HostConnectionQt(parts.screen, parts.screen);
  parts.screen->SetConnection(&parts.connection->connection());
  window.SetHostScreenWidget(parts.screen);
  parts.status = new TerminalStatusWidget(parts.connection->connection());
  window.AddStatusWidget(parts.status);
  TerminalStatusWidget* status = parts.status;
  QObject::connect(parts.screen, &HostScreenWidget::terminalChanged, status,
                   &TerminalStatusWidget::Refresh);

  MainWindow* w = &window;
  auto show_error = [w](const QString& text) {
    w->prompt().ShowMessage("Error", text.toStdString(), PromptIcon::kExclamation);
  };
  parts.connection->SetErrorSink(show_error);
  parts.connection->SetDialogRunner([w, show_error](HostIpForm& form, const std::string& entry) {
    HostIpDialog dialog(form, entry, w,
                        [show_error](QWidget*, const QString& text) { show_error(text); });
    return dialog.exec() == QDialog::Accepted;
  });

  HostConnectionQt* connection = parts.connection;
  // The screen file being captured to, shared by the Telnet commands.
  auto capture = std::make_shared<ScreenCapture>();
  SessionHandlers handlers;
  handlers.connect = [w, connection, capture] {
    capture->Stop();  // a new connection starts without capturing
    ConnectAttempt attempt;
    attempt.started = connection->ConnectToHost(w->document());
    const HostConnection& c = connection->connection();
    attempt.connected = c.connected();
    attempt.status = ConnectingText(c.address(), c.port());
    return attempt;
  };
  handlers.disconnect = [connection, status, capture] {
    connection->DisconnectFromHost();
    capture->Stop();
    status->Refresh();
  };
  handlers.start_capture = [w, capture] {
    const std::optional<std::string> name =
        w->chooser().ChooseFileToSave({std::string(kScreenFileFilter), "*.SCR"}, "SCR");
    if (!name) return false;
    if (!capture->Start(std::filesystem::path(*name))) {
      w->prompt().ShowMessage("Error", kCreateFileFailedMessage, PromptIcon::kExclamation);
      return false;
    }
    return true;
  };
  handlers.capture = [w, connection, capture] {
    capture->Capture(connection->connection(), [w](const std::string& message) {
      w->prompt().ShowMessage("Error", message, PromptIcon::kExclamation);
      QTimer::singleShot(0, w, [w] { w->ExecuteCommand(kCmdStopCapture); });
    });
  };
  handlers.stop_capture = [capture] { capture->Stop(); };
  window.SetSessionHandlers(std::move(handlers));
  QObject::connect(connection, &HostConnectionQt::disconnectRequested, w,
                   [w] { w->ExecuteCommand(kCmdDisconnect); });
  QObject::connect(connection, &HostConnectionQt::connectionOpened, w, [w, status] {
    w->ConnectionOpened(QString::fromStdString(ConnectedText()));
    status->Refresh();
  });
  QObject::connect(connection, &HostConnectionQt::connectionFailed, w,
                   [w](const QString& text) { w->ConnectionFailed(text); });
  return parts;
}

}  // namespace veltrix
