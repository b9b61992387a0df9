#ifndef VELTRIX_TN5250_TERMINAL_STATUS_WIDGET_H_
#define VELTRIX_TN5250_TERMINAL_STATUS_WIDGET_H_

#include <QWidget>

#include "tn5250/host_connection.h"

class QLabel;

namespace veltrix {

// The terminal's status in the status bar while connected: host and port, keyboard state, cursor
// position and the message-waiting indicator. Hidden while not connected.
class TerminalStatusWidget : public QWidget {
  Q_OBJECT

 public:
  explicit TerminalStatusWidget(const HostConnection& connection, QWidget* parent = nullptr);

  // Reads the session again; cheap when nothing changed.
  void Refresh();
  const TerminalStatus& shown() const { return shown_; }

 private:
  const HostConnection& connection_;
  TerminalStatus shown_;
  QLabel* host_;
  QLabel* keyboard_;
  QLabel* cursor_;
  QLabel* message_;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TERMINAL_STATUS_WIDGET_H_
