#include "download/download_command_qt.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QWidget>

#include "resources/strings.h"
#include "resources/text_qt.h"
#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

// Later, not now: the dialog may be the one whose Cancel is being handled.
void Dismiss(QPointer<DownloadProgressDialog>& dialog) {
  if (dialog) {
    dialog->hide();
    dialog->deleteLater();
  }
  dialog = nullptr;
}

}  // namespace

DownloadCommandQt::DownloadCommandQt(QWidget* window) : QObject(window), window_(window) {
  ask_program_ = [this](const QString& last) -> std::optional<QString> {
    QFileDialog dialog(window_);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(tr("Absolute object programs {*.SHX} (*.SHX *.shx)"));
    dialog.setDefaultSuffix("SHX");
    dialog.setOption(QFileDialog::ReadOnly);
    if (!last.isEmpty()) dialog.selectFile(last);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().front();
  };
  ask_properties_ = [this](int via, int baud_index) -> std::optional<Choice> {
    DownloadPropertiesDialog dialog(via, baud_index, DownloadPropertiesDialog::SystemPorts(),
                                    window_);
    if (dialog.exec() != QDialog::Accepted) return {};
    return Choice{dialog.via(), dialog.port(), dialog.baud_index()};
  };
  show_message_ = [this](const QString& caption, const QString& text) {
    QMessageBox::warning(window_, caption, text);
  };
  ask_retry_ = [this](const QString& caption, const QString& text) {
    return QMessageBox::question(window_, caption, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
  };
  ask_stop_ = ask_retry_;
}

DownloadCommandQt::~DownloadCommandQt() {
  // The window may be half gone: nothing is told any more, the link is just closed.
  QObject::disconnect(this, nullptr, nullptr, nullptr);
  if (session_) session_->Cancel();
}

void DownloadCommandQt::SetListenAddress(const QHostAddress& address, quint16 port) {
  listen_address_ = address;
  listen_port_ = port;
}

void DownloadCommandQt::ShowMessage(const QString& text, const QString& caption) {
  show_message_(caption, text);
}

void DownloadCommandQt::Run(DownloadKind kind, const Document& doc) {
  if (session_) {  // one download at a time: show the one under way
    for (QWidget* shown : {static_cast<QWidget*>(progress_), static_cast<QWidget*>(waiting_)}) {
      if (!shown) continue;
      shown->show();
      shown->raise();
      shown->activateWindow();
    }
    return;
  }
  if (kind == DownloadKind::kProgram) {
    std::optional<QString> file = ask_program_(last_program_);
    if (!file) return;
    last_program_ = *file;
    // The whole file is checked before the terminal hears anything: a broken program must not
    // cost it the one it has.
    ProgramFile loaded = LoadProgramFile(file->toStdString());
    if (loaded.status == ProgramFile::Status::kCannotOpen) {
      ShowMessage(QtText(download_text::kCannotOpenFile), QtText(download_text::kDownload));
      return;
    }
    if (loaded.status == ProgramFile::Status::kRefused) {
      ShowMessage(QtText(loaded.reason), QtText(kErrorCaption));
      return;
    }
    program_ = std::make_unique<MemoryProgramSource>(std::move(loaded.program.text));
  }
  std::optional<Choice> choice =
      ask_properties_(static_cast<int>(ReadNumber(doc.record, kDownloadVia)),
                      static_cast<int>(ReadNumber(doc.record, kBaudRate)));
  if (!choice) return;

  DownloadLinkOptions options;
  options.via = static_cast<DownloadVia>(std::clamp(choice->via, 0, 3));
  options.port = choice->port;
  options.rate = kDownloadRates[static_cast<std::size_t>(std::clamp(choice->baud_index, 0, 3))];
  options.listen_address = listen_address_;
  options.listen_port = listen_port_;
  auto engine = kind == DownloadKind::kSettings
                    ? std::make_unique<DownloadEngine>(options.via, doc.record)
                    : std::make_unique<DownloadEngine>(options.via, *program_);
  stopped_ = false;
  session_ = new DownloadSessionQt(std::move(engine), options, line_, this);
  connect(session_, &DownloadSessionQt::status, this, &DownloadCommandQt::OnStatus);
  connect(session_, &DownloadSessionQt::progressOpened, this, [this](int maximum) {
    Dismiss(progress_);
    progress_ = ShowWindow(new DownloadProgressDialog(maximum, window_));
  });
  connect(session_, &DownloadSessionQt::progressChanged, this, [this](int position) {
    if (progress_) progress_->SetPosition(position);
  });
  connect(session_, &DownloadSessionQt::progressClosed, this, [this] { Dismiss(progress_); });
  connect(session_, &DownloadSessionQt::message, this, &DownloadCommandQt::ShowMessage);
  connect(session_, &DownloadSessionQt::retryAsked, this,
          [this](const QString& text, const QString& caption) {
            QPointer<DownloadSessionQt> session = session_;
            const bool retry = ask_retry_(caption, text);
            if (session) session->AnswerRetry(retry);
          });
  connect(session_, &DownloadSessionQt::finished, this, &DownloadCommandQt::OnFinished);
  session_->Start();
}

DownloadProgressDialog* DownloadCommandQt::ShowWindow(DownloadProgressDialog* dialog) {
  connect(dialog, &DownloadProgressDialog::stopRequested, this, &DownloadCommandQt::RequestStop);
  dialog->show();
  return dialog;
}

void DownloadCommandQt::OnStatus(const QString& text) {
  status_ = text;
  emit statusChanged(text);
  const bool waiting = text == QtText(download_text::kWaitingForTerminal);
  if (waiting && !waiting_) {
    waiting_ =
        ShowWindow(new DownloadProgressDialog(QtText(download_text::kDownload), text, 0, window_));
  } else if (!waiting) {
    Dismiss(waiting_);
  }
}

void DownloadCommandQt::RequestStop() {
  QPointer<DownloadSessionQt> session = session_;
  if (!session) return;
  if (session->engine().reached_terminal()) {
    const std::string_view question = session->engine().kind() == DownloadKind::kSettings
                                          ? download_text::kStopSettings
                                          : download_text::kStopProgram;
    if (!ask_stop_(QtText(download_text::kDownload), QtText(question))) return;
    if (!session) return;  // it ended while the question was open
  }
  stopped_ = true;
  session->Stop();
}

void DownloadCommandQt::OnFinished(bool succeeded) {
  Dismiss(progress_);
  Dismiss(waiting_);
  if (session_) session_->deleteLater();
  session_ = nullptr;
  // A stop leaves its words in the status bar: the terminal holds part of the download.
  emit statusChanged(stopped_ ? status_ : QString());
  emit finished(succeeded);
}

}  // namespace veltrix
