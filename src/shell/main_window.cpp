#include "shell/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QToolBar>
#include <QVBoxLayout>

#include "resources/strings.h"
#include "resources/text_qt.h"
#include "shell/about_dialog.h"
#include "shell/command_table.h"
#include "shell/file_chooser_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "shell/startup.h"
#include "shell/summary.h"
#include "shell/summary_view.h"
#include "shell/tool_icons_qt.h"
#include "shell/user_prompt_qt.h"

namespace veltrix {
namespace {

// The gap between the toolbar and the tree or host screen.
constexpr int kClientGap = 2;

}  // namespace

MainWindow::MainWindow(Ports ports, const SettingsPageRegistry& pages, QWidget* parent)
    : QMainWindow(parent), doc_(std::make_unique<Document>()), pages_(pages) {
  if (ports.prompt == nullptr) own_prompt_ = std::make_unique<QtUserPrompt>(this);
  if (ports.chooser == nullptr) own_chooser_ = std::make_unique<QtFileChooser>(this);
  prompt_ = ports.prompt != nullptr ? ports.prompt : own_prompt_.get();
  chooser_ = ports.chooser != nullptr ? ports.chooser : own_chooser_.get();

  doc_->file_name.clear();
  doc_->modified = false;
  SetDefaults(*doc_, 0);
  commands_ = std::make_unique<DocumentCommands>(*doc_, *prompt_, *chooser_,
                                                 [this] { OpenSettingsSheet(); });
  session_ = std::make_unique<SessionCommands>(*prompt_);

  UpdateTitle();
  setWindowIcon(ProgramIcon());
  setObjectName(QtText(StringResource(kApplicationNameId)));
  CreateActions();
  CreateMenus();
  CreateToolBar();
  CreateClientArea();
  statusBar()->setObjectName("status_bar");
  statusBar()->setSizeGripEnabled(true);
  cancel_connect_ = new QPushButton(tr("Cancel"), this);
  cancel_connect_->setObjectName("cancel_connect");
  cancel_connect_->setToolTip(tr("Stop connecting"));
  cancel_connect_->setFocusPolicy(Qt::NoFocus);
  cancel_connect_->hide();
  statusBar()->addPermanentWidget(cancel_connect_);
  connect(cancel_connect_, &QPushButton::clicked, this, [this] { ExecuteCommand(kCmdDisconnect); });
  ApplyEnabling();
  RebuildSummary();
  SelectProductInBox();
  PlaceOnScreen();
}

MainWindow::~MainWindow() {
  // The host session may still report a disconnect while its widgets go: ignore it, and take
  // the client area down while the commands it could reach still exist.
  destroying_ = true;
  if (host_screen_ != nullptr) host_screen_->removeEventFilter(this);
  delete centralWidget();
}

void MainWindow::CreateActions() {
  for (const CommandDef& command : kCommands) {
    auto* action = new QAction(QtText(MenuLabel(command.menu_text)), this);
    const QString description = QtText(CommandDescription(command.id));
    action->setStatusTip(description);
    const std::string_view tooltip = CommandTooltip(command.id);
    action->setToolTip(tooltip.empty() ? QtText(MenuLabel(command.menu_text)).remove('&')
                                       : QtText(tooltip));
    const std::string_view shortcut = MenuShortcut(command.menu_text);
    if (!shortcut.empty()) {
      action->setShortcut(QKeySequence(QtText(shortcut)));
      action->setShortcutContext(Qt::WindowShortcut);
    }
    action->setData(command.id);
    const int id = command.id;
    connect(action, &QAction::triggered, this, [this, id] { ExecuteCommand(id); });
    addAction(action);  // shortcuts act even while the menu bar is hidden
    actions_[command.id] = action;
  }
}

void MainWindow::CreateMenus() {
  for (const MenuDef& menu_def : kMenus) {
    QMenu* menu = menuBar()->addMenu(QtText(menu_def.title));
    for (int id : menu_def.items) {
      if (id == kSeparator) {
        menu->addSeparator();
      } else {
        menu->addAction(actions_.at(id));
      }
    }
  }
}

void MainWindow::CreateToolBar() {
  tool_bar_ = addToolBar("QUARVEL");
  tool_bar_->setObjectName("tool_bar");
  tool_bar_->setMovable(false);
  tool_bar_->setFloatable(false);
  tool_bar_->setIconSize(QSize(kToolImageWidth, kToolImageHeight));
  tool_bar_->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const ToolButtonDef& button : kToolbar) {
    if (button.command == kSeparator) {
      tool_bar_->addSeparator();
      continue;
    }
    QAction* action = actions_.at(button.command);
    action->setIcon(ToolIcon(button.image, style()));
    tool_bar_->addAction(action);
  }
  tool_bar_->addSeparator();

  product_box_ = new QComboBox(tool_bar_);
  product_box_->setObjectName("product_box");
  product_box_->setFixedWidth(kProductBoxWidth);
  product_box_->setMaxVisibleItems(kProductBoxDropHeight / 20);
  product_box_->addItem(QtText(kSelectProduct));
  for (const std::string& name : ProductNameTable()) {
    product_box_->addItem(QString::fromStdString(name));
  }
  product_box_->setToolTip(QtText(kSelectProduct));
  tool_bar_->addWidget(product_box_);
  connect(product_box_, &QComboBox::activated, this, &MainWindow::OnProductChosen);
}

void MainWindow::CreateClientArea() {
  auto* area = new QWidget(this);
  auto* layout = new QVBoxLayout(area);
  layout->setContentsMargins(0, kClientGap, 0, 0);
  layout->setSpacing(0);
  client_ = new QStackedWidget(area);
  layout->addWidget(client_);

  summary_ = new SummaryView(client_);
  client_->addWidget(summary_);

  host_placeholder_ = new QLabel(tr("No host screen in this build."), client_);
  host_placeholder_->setObjectName("host_screen_placeholder");
  static_cast<QLabel*>(host_placeholder_)->setAlignment(Qt::AlignCenter);
  client_->addWidget(host_placeholder_);
  client_->setCurrentWidget(summary_);
  setCentralWidget(area);
}

void MainWindow::PlaceOnScreen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect size = screen->geometry();
  const WindowPlacement place = MainWindowPlacement(size.width(), size.height());
  move(place.x, place.y);
  resize(place.width, place.height);
}

QAction* MainWindow::action(int command_id) const {
  auto it = actions_.find(command_id);
  return it == actions_.end() ? nullptr : it->second;
}

void MainWindow::SetSessionHandlers(SessionHandlers handlers) {
  session_->set_handlers(std::move(handlers));
}

void MainWindow::SetDownloadHandler(std::function<void(int)> handler) {
  download_handler_ = std::move(handler);
}

void MainWindow::SetHostScreenWidget(QWidget* host_screen) {
  if (host_screen_ != nullptr) {
    host_screen_->removeEventFilter(this);
    client_->removeWidget(host_screen_);
  }
  host_screen_ = host_screen;
  QWidget* shown = host_screen_ != nullptr ? host_screen_.data() : host_placeholder_;
  if (host_screen_ != nullptr) {
    client_->addWidget(host_screen_);
    host_screen_->installEventFilter(this);
  }
  ShowHostScreen(session_->host_screen_shown() && shown != nullptr);
}

void MainWindow::ShowHostScreen(bool show) {
  QWidget* host = host_screen_ != nullptr ? host_screen_.data() : host_placeholder_;
  client_->setCurrentWidget(show ? host : static_cast<QWidget*>(summary_));
  if (show) host->setFocus();
}

void MainWindow::EnableConnectionCommands(bool connected) {
  session_->EnableConnectionCommands(connected);
  ApplyEnabling();
}

void MainWindow::EnableCaptureCommands(bool capturing) {
  session_->EnableCaptureCommands(capturing);
  ApplyEnabling();
}

void MainWindow::ApplyEnabling() {
  const CommandEnabling& enabling = session_->enabling();
  for (int id : {kCmdConnect, kCmdDisconnect, kCmdStartCapture, kCmdCapture, kCmdStopCapture}) {
    actions_.at(id)->setEnabled(enabling.IsEnabled(id));
  }
}

void MainWindow::RebuildSummary() { summary_->ShowSummary(BuildSummary(*doc_)); }

void MainWindow::OpenSettingsSheet() {
  {
    SettingsSheetDialog sheet(*doc_, pages_, this);
    sheet.exec();
  }
  RebuildSummary();
}

void MainWindow::ShowAbout() {
  AboutDialog about(this);
  about.exec();
}

void MainWindow::OpenFile(const QString& path) {
  const std::string file = path.toStdString();
  if (commands_->Open(&file)) SelectProductInBox();
  RebuildSummary();
  UpdateTitle();
}

void MainWindow::SelectProductInBox() { product_box_->setCurrentIndex(doc_->product()); }

void MainWindow::OnProductChosen(int index) {
  if (commands_->ChangeProduct(index)) {
    RebuildSummary();
    ShowCommandStatus(QtText(kProductChangedStatus));
  }
  SelectProductInBox();
  UpdateTitle();
}

void MainWindow::ExecuteCommand(int command_id) {
  if (destroying_) return;
  const CommandDef* command = FindCommand(command_id);
  if (command == nullptr || !action(command_id)->isEnabled()) return;
  ShowCommandStatus(QtText(CommandDescription(command_id)).left(255));
  if (!commands_->CheckProduct(command_id)) {
    product_box_->setFocus();
    return;
  }
  switch (command_id) {
    case kCmdNew:
      commands_->New();
      break;
    case kCmdOpen:
      if (commands_->Open()) SelectProductInBox();
      break;
    case kCmdSave:
      commands_->Save();
      break;
    case kCmdSaveAs:
      commands_->SaveAs();
      break;
    case kCmdExit:
      close();
      break;
    case kCmdUndo:
      if (commands_->Undo()) {
        SelectProductInBox();
        RebuildSummary();
        ShowCommandStatus(QtText(kUndoneStatus));
      }
      break;
    case kCmdConfigure:
      commands_->Configure();
      break;
    case kCmdDownloadSettings:
    case kCmdDownloadProgram:
      RunDownload(command_id);
      break;
    case kCmdAbout:
      ShowAbout();
      break;
    default:
      RunSessionCommand(command_id);
      break;
  }
  if (!destroying_) UpdateTitle();
}

void MainWindow::UpdateTitle() {
  const QString program = QtText(StringResource(kWindowTitleId));
  const QString file = QFileInfo(QString::fromStdString(doc_->file_name)).fileName();
  setWindowTitle(file.isEmpty() ? program + "[*]" : file + "[*] - " + program);
  setWindowModified(commands_ != nullptr ? commands_->HasUnsavedChanges() : doc_->modified);
  // Undo lasts until the next change, which every command ends with a title update.
  if (const auto undo = actions_.find(kCmdUndo); undo != actions_.end()) {
    undo->second->setEnabled(commands_ != nullptr && commands_->CanUndo());
  }
}

void MainWindow::ShowCommandStatus(const QString& text) {
  command_status_ = text;
  statusBar()->showMessage(text);
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty()) {
    statusBar()->showMessage(command_status_);
    return true;
  }
  return QMainWindow::event(event);
}

void MainWindow::RunSessionCommand(int command_id) {
  const bool was_shown = session_->host_screen_shown();
  std::optional<std::string> status = session_->Run(command_id);
  if (status) ShowCommandStatus(QString::fromStdString(*status));
  ShowSessionState();
  if (session_->host_screen_shown() != was_shown) ShowHostScreen(session_->host_screen_shown());
}

void MainWindow::ShowSessionState() {
  ApplyEnabling();
  cancel_connect_->setVisible(session_->connecting());
}

void MainWindow::ConnectionOpened(const QString& status) {
  if (!session_->connecting()) return;
  session_->ConnectionOpened();
  ShowCommandStatus(status);
  ShowSessionState();
  ShowHostScreen(true);
}

void MainWindow::ConnectionFailed(const QString& status) {
  if (!session_->connecting()) return;
  session_->ConnectionFailed();
  ShowCommandStatus(status);
  ShowSessionState();
}

void MainWindow::AddStatusWidget(QWidget* widget) { statusBar()->addPermanentWidget(widget); }

void MainWindow::RunDownload(int mode) {
  download_mode_ = mode;
  if (!download_handler_) {
    prompt_->ShowMessage(StringResource(kWindowTitleId),
                         "Downloading to a terminal is not available in this build.",
                         PromptIcon::kInformation);
    return;
  }
  download_handler_(mode);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (commands_->QueryClose()) {
    event->accept();
  } else {
    event->ignore();
  }
}

void MainWindow::changeEvent(QEvent* event) {
  // The host screen keeps the keyboard whenever the window comes back to the front.
  if (event->type() == QEvent::ActivationChange && isActiveWindow() &&
      session_->host_screen_shown() && client_->currentWidget() != nullptr) {
    client_->currentWidget()->setFocus();
  }
  QMainWindow::changeEvent(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  // A focused host screen takes every key, even those the window uses as shortcuts.
  if (watched == host_screen_ && event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace veltrix
