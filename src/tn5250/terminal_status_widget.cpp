#include "tn5250/terminal_status_widget.h"

#include <QHBoxLayout>
#include <QLabel>

namespace veltrix {
namespace {

QLabel* StatusLabel(QWidget* parent, const char* name, const QString& tip) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setToolTip(tip);
  label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  return label;
}

}  // namespace

TerminalStatusWidget::TerminalStatusWidget(const HostConnection& connection, QWidget* parent)
    : QWidget(parent), connection_(connection) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  host_ = StatusLabel(this, "terminal_host", tr("Host and port"));
  keyboard_ = StatusLabel(this, "terminal_keyboard", tr("Keyboard"));
  cursor_ = StatusLabel(this, "terminal_cursor", tr("Cursor row and column"));
  message_ = StatusLabel(this, "terminal_message", tr("The host has a message waiting"));
  for (QLabel* label : {message_, keyboard_, cursor_, host_}) layout->addWidget(label);
  // The cursor's text changes width as it moves: keep room for "Row 27 Col 132".
  cursor_->setMinimumWidth(
      cursor_->fontMetrics().horizontalAdvance(QStringLiteral("Row 27 Col 132")) + 8);
  hide();
}

void TerminalStatusWidget::Refresh() {
  TerminalStatus now = connection_.Status();
  if (now == shown_ && isHidden() == now.host.empty()) return;
  shown_ = std::move(now);
  host_->setText(QString::fromStdString(shown_.host));
  // The host and port stay whole in a narrow window; the command's text gives way instead.
  host_->setMinimumWidth(host_->fontMetrics().horizontalAdvance(host_->text()) + 8);
  keyboard_->setText(QString::fromStdString(shown_.keyboard));
  cursor_->setText(QString::fromStdString(shown_.cursor));
  message_->setText(QString::fromStdString(shown_.message));
  message_->setVisible(!shown_.message.empty());
  setVisible(!shown_.host.empty());
}

}  // namespace veltrix
