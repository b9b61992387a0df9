#ifndef VELTRIX_SHELL_MAIN_WINDOW_H_
#define VELTRIX_SHELL_MAIN_WINDOW_H_

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>

#include "settings/document.h"
#include "shell/commands.h"
#include "shell/ports.h"
#include "shell/session_commands.h"
#include "shell/settings_page_registry_qt.h"

class QAction;
class QComboBox;
class QPushButton;
class QStackedWidget;
class QToolBar;

namespace veltrix {

class SummaryView;

// The program's only top-level window: menu, toolbar with the product box, status bar, and the
// settings tree or the host screen between toolbar and status bar. Every command goes through
// ExecuteCommand(id).
//
// For the host session:
//   SetHostScreenWidget(w)   puts the host screen in the window (hidden until connected);
//   SetSessionHandlers(h)    what Connect, Disconnect and the capture commands call; missing
//                            handlers make the command say it is not available in this build;
//   ExecuteCommand(kCmdDisconnect) when the host ends the connection;
//   EnableConnectionCommands / EnableCaptureCommands if the session changes state by itself.
// While the host screen has the focus it receives every key, the window's shortcuts included.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // Ports default to real message boxes and file dialogs; tests pass fakes.
  struct Ports {
    UserPrompt* prompt = nullptr;
    FileChooser* chooser = nullptr;
  };

  MainWindow() : MainWindow(Ports(), SettingsPageRegistry::Installed()) {}
  MainWindow(Ports ports, const SettingsPageRegistry& pages, QWidget* parent = nullptr);
  ~MainWindow() override;

  Document& document() { return *doc_; }
  UserPrompt& prompt() { return *prompt_; }
  FileChooser& chooser() { return *chooser_; }

  void SetSessionHandlers(SessionHandlers handlers);
  // Download settings (1210) and Download Program (1220) call this with the download mode.
  void SetDownloadHandler(std::function<void(int mode)> handler);
  int download_mode() const { return download_mode_; }

  void SetHostScreenWidget(QWidget* host_screen);
  QWidget* host_screen() const { return host_screen_; }
  // Shows the host screen instead of the settings tree (or the reverse).
  void ShowHostScreen(bool show);

  void EnableConnectionCommands(bool connected);
  void EnableCaptureCommands(bool capturing);
  // The result of a connection still being made when Connect returned, with its status text.
  void ConnectionOpened(const QString& status);
  void ConnectionFailed(const QString& status);
  // Adds a widget to the right of the status bar (the terminal's status while connected).
  void AddStatusWidget(QWidget* widget);

  // Shows the settings sheet modally, then rebuilds the summary.
  void OpenSettingsSheet();
  void RebuildSummary();
  void ShowAbout();
  // Opens `path` as Open does, without the file dialog (a file named on the command line).
  void OpenFile(const QString& path);

  QAction* action(int command_id) const;
  QComboBox* product_box() const { return product_box_; }
  SummaryView* summary_view() const { return summary_; }
  QToolBar* tool_bar() const { return tool_bar_; }

 public slots:
  void ExecuteCommand(int command_id);

 protected:
  // An empty status tip (the pointer left a menu item or a toolbar button) shows the last
  // command's text again instead of clearing the status bar.
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The title names the open file and marks unsaved changes ("terminal.QVL* - Veltrix - TN5250").
  void UpdateTitle();
  // Shows a command's text in the status bar and keeps it for when a status tip ends.
  void ShowCommandStatus(const QString& text);
  void CreateActions();
  void CreateMenus();
  void CreateToolBar();
  void CreateClientArea();
  void PlaceOnScreen();
  void RunSessionCommand(int command_id);
  void ShowSessionState();
  void RunDownload(int mode);
  void ApplyEnabling();
  void SelectProductInBox();
  void OnProductChosen(int index);

  std::unique_ptr<Document> doc_;
  std::unique_ptr<UserPrompt> own_prompt_;
  std::unique_ptr<FileChooser> own_chooser_;
  UserPrompt* prompt_;
  FileChooser* chooser_;
  const SettingsPageRegistry& pages_;
  std::unique_ptr<DocumentCommands> commands_;
  std::unique_ptr<SessionCommands> session_;
  std::function<void(int)> download_handler_;
  int download_mode_ = 0;
  bool destroying_ = false;

  std::map<int, QAction*> actions_;
  QToolBar* tool_bar_ = nullptr;
  QComboBox* product_box_ = nullptr;
  QStackedWidget* client_ = nullptr;
  SummaryView* summary_ = nullptr;
  QWidget* host_placeholder_ = nullptr;
  QPointer<QWidget> host_screen_;
  QString command_status_;
  QPushButton* cancel_connect_ = nullptr;  // in the status bar while connecting
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_MAIN_WINDOW_H_
