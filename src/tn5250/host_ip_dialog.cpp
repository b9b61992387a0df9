#include "tn5250/host_ip_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>

#include "tn5250/tls_trust.h"

namespace veltrix {

void ShowErrorBox(QWidget* parent, const QString& text) {
  QMessageBox::warning(parent, QStringLiteral("Error"), text);
}

HostIpDialog::HostIpDialog(HostIpForm& form, const std::string& active_entry, QWidget* parent,
                           ErrorReporter report_error, std::uint16_t telnet_port)
    : QDialog(parent), form_(form), report_error_(std::move(report_error)) {
  if (!report_error_) report_error_ = ShowErrorBox;
  setObjectName(QStringLiteral("HostIPDlg"));
  setWindowTitle(QStringLiteral("Host IP"));
  form_.Open(active_entry);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(QStringLiteral("Please input Host IP address :"), this));
  auto* row = new QHBoxLayout;
  for (int i = 0; i < 4; ++i) {
    if (i > 0) row->addWidget(new QLabel(QStringLiteral("."), this));
    auto* edit = new QLineEdit(QString::number(form_.octets()[i]), this);
    edit->setObjectName(QStringLiteral("octet%1").arg(201 + i));
    edit->setMaxLength(3);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 12);
    edit->setAlignment(Qt::AlignRight);
    connect(edit, &QLineEdit::textChanged, this,
            [this, i](const QString& text) { form_.EditChanged(i, text.toStdString()); });
    edit->installEventFilter(this);
    row->addWidget(edit);
    edits_[i] = edit;
  }
  row->addStretch();
  layout->addLayout(row);
  // Telnet over TLS, with the port it goes to.
  use_tls_ = new QCheckBox(QStringLiteral("Use TLS"), this);
  use_tls_->setObjectName(QStringLiteral("useTls"));
  use_tls_->setChecked(form_.use_tls());
  auto* port = new QLabel(this);
  port->setObjectName(QStringLiteral("port"));
  auto show_port = [this, port, telnet_port] {
    port->setText(QStringLiteral("Port : %1").arg(ConnectPort(telnet_port, use_tls_->isChecked())));
  };
  show_port();
  connect(use_tls_, &QCheckBox::toggled, this, show_port);
  auto* tls_row = new QHBoxLayout;
  tls_row->addWidget(use_tls_);
  tls_row->addStretch();
  tls_row->addWidget(port);
  layout->addLayout(tls_row);
  save_log_ = new QCheckBox(QStringLiteral("Save Log"), this);
  save_log_->setObjectName(QStringLiteral("saveLog301"));
  save_log_->setChecked(form_.save_log());
  layout->addWidget(save_log_);
  // Passwords are masked in the log unless the user asks for them, for this connection.
  log_secrets_ = new QCheckBox(QStringLiteral("Include passwords in the log"), this);
  log_secrets_->setEnabled(save_log_->isChecked());
  connect(save_log_, &QCheckBox::toggled, log_secrets_, &QCheckBox::setEnabled);
  layout->addWidget(log_secrets_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &HostIpDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &HostIpDialog::reject);
  layout->addWidget(buttons);
  edits_[0]->setFocus();
  edits_[0]->selectAll();
}

void HostIpDialog::accept() {
  std::array<std::string, 4> texts;
  for (int i = 0; i < 4; ++i) texts[i] = edits_[i]->text().toStdString();
  if (!form_.Confirm(texts, save_log_->isChecked(), log_secrets_->isChecked())) {
    report_error_(this, QString::fromUtf8(kInvalidIpAddressMessage.data(),
                                          static_cast<int>(kInvalidIpAddressMessage.size())));
    // The box that is wrong takes the focus, its text selected for typing over.
    int wrong = 0;
    while (wrong < 3 && ParseOctet(texts[wrong])) ++wrong;
    edits_[wrong]->setFocus();
    edits_[wrong]->selectAll();
    return;
  }
  form_.set_use_tls(use_tls_->isChecked());
  QDialog::accept();
}

bool HostIpDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->text() == ".") {
    for (int i = 0; i < 3; ++i) {
      if (watched != edits_[i]) continue;
      // "127.0.0.1" typed into the first box fills all four.
      edits_[i + 1]->setFocus();
      edits_[i + 1]->selectAll();
      return true;
    }
    return true;  // the last box: a dot has no place in an octet
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace veltrix
