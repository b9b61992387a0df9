#ifndef VELTRIX_TN5250_HOST_SCREEN_WIDGET_H_
#define VELTRIX_TN5250_HOST_SCREEN_WIDGET_H_

#include <QFont>
#include <QFrame>
#include <optional>

#include "tn5250/host_connection.h"
#include "tn5250/host_screen.h"
#include "tn5250/session_listener.h"

namespace veltrix {

// Shows the host screen black on white inside a sunken edge with the caret at the cursor, and
// passes the keyboard to the host session. While it has the focus it takes every key, the menu's
// shortcut keys included.
class HostScreenWidget : public QFrame, public SessionListener {
  Q_OBJECT

 public:
  explicit HostScreenWidget(QWidget* parent = nullptr);
  ~HostScreenWidget() override;

  // The session whose screen is shown and which gets the keys (not owned; may be null).
  void SetConnection(HostConnection* connection);

  const CellMetrics& metrics() const { return metrics_; }
  // The rectangle of a screen cell in widget pixels.
  QRect CellRectangle(int row, int column) const;
  // The text of a screen row as shown (for tests and accessibility).
  QString RowText(int row) const;

  // SessionListener: the engine's screen changes and alarm.
  void OnScreenChanged(const ScreenChange& change) override;
  void OnAlarm() override;
  void OnKeyboardLockChanged(bool locked) override;

  // The cell under a point of the widget, if any.
  std::optional<CellAddress> CellAt(const QPoint& point) const;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 signals:
  // Emitted at most once per paint cycle (tests and the status bar count them).
  void painted();
  // The cursor, the keyboard state or the message-waiting indicator may have changed.
  void terminalChanged();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // Room for every row and column at the smallest cell: the window never hides row 24.
  QSize minimumSizeHint() const override;
  void keyPressEvent(QKeyEvent* event) override;
  // An input method's committed text is typed like keyboard text.
  void inputMethodEvent(QInputMethodEvent* event) override;
  // A click on an input cell moves the cursor there.
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void UpdateFont();
  int Rows() const;
  int Columns() const;

  HostConnection* connection_ = nullptr;
  CellMetrics metrics_;
  QFont font_;
  int ascent_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_SCREEN_WIDGET_H_
