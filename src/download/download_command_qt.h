#ifndef VELTRIX_DOWNLOAD_DOWNLOAD_COMMAND_QT_H_
#define VELTRIX_DOWNLOAD_DOWNLOAD_COMMAND_QT_H_

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>

#include "download/cradle_ir_setup.h"
#include "download/download_dialog.h"
#include "download/download_link_qt.h"
#include "download/program_file.h"
#include "settings/document.h"

class QWidget;

namespace veltrix {

// Download settings and Download Program from the Utilities menu: the program file dialog, the
// "Download Properties" dialog, then the download on the event loop with the progress dialog,
// the messages and the retry question. The window stays usable; closing the progress window, or
// Cancel there or on the wait for a terminal, stops the download (asking first once the terminal
// holds part of it), and the status bar says how far it got.
class DownloadCommandQt : public QObject {
  Q_OBJECT

 public:
  explicit DownloadCommandQt(QWidget* window);
  ~DownloadCommandQt() override;

  // Returns once the download is under way (or refused); finished() follows.
  void Run(DownloadKind kind, const Document& doc);
  bool running() const { return session_ != nullptr; }
  DownloadSessionQt* session() const { return session_; }
  DownloadProgressDialog* progress() const { return progress_; }
  // The RF wait for the terminal, with its Cancel button (null when not waiting).
  DownloadProgressDialog* waiting() const { return waiting_; }
  // As closing the progress window does: asks first when the terminal already holds part of it.
  void RequestStop();

  // What the user is asked; each defaults to the real dialog and tests replace it.
  struct Choice {
    int via = 0;
    QString port;
    int baud_index = 0;
  };
  using ProgramAsker = std::function<std::optional<QString>(const QString& last)>;
  using PropertiesAsker = std::function<std::optional<Choice>(int via, int baud_index)>;
  using MessageShower = std::function<void(const QString& caption, const QString& text)>;
  using RetryAsker = std::function<bool(const QString& caption, const QString& text)>;
  void SetProgramAsker(ProgramAsker asker) { ask_program_ = std::move(asker); }
  void SetPropertiesAsker(PropertiesAsker asker) { ask_properties_ = std::move(asker); }
  void SetMessageShower(MessageShower shower) { show_message_ = std::move(shower); }
  void SetRetryAsker(RetryAsker asker) { ask_retry_ = std::move(asker); }
  void SetStopAsker(RetryAsker asker) { ask_stop_ = std::move(asker); }
  // Where RF listens (port 3000 on any address unless a test says otherwise).
  void SetListenAddress(const QHostAddress& address, quint16 port);

 signals:
  void statusChanged(const QString& text);
  void finished(bool succeeded);

 private:
  void ShowMessage(const QString& text, const QString& caption);
  void OnFinished(bool succeeded);
  void OnStatus(const QString& text);
  DownloadProgressDialog* ShowWindow(DownloadProgressDialog* dialog);

  QWidget* window_;
  QString last_program_;  // pre-fills the file dialog for the rest of the run
  LineSettings line_;     // the serial line as the last download left it
  std::unique_ptr<MemoryProgramSource> program_;  // the checked program
  QPointer<DownloadSessionQt> session_;
  QPointer<DownloadProgressDialog> progress_;
  QPointer<DownloadProgressDialog> waiting_;
  QString status_;
  bool stopped_ = false;
  QHostAddress listen_address_ = QHostAddress::Any;
  quint16 listen_port_ = 3000;
  ProgramAsker ask_program_;
  PropertiesAsker ask_properties_;
  MessageShower show_message_;
  RetryAsker ask_retry_;
  RetryAsker ask_stop_;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_DOWNLOAD_COMMAND_QT_H_
