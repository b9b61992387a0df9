#include "tn5250/certificate_dialog.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "resources/fixed_font_qt.h"

namespace veltrix {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QLabel* Value(const std::string& text, const char* name) {
  auto* label = new QLabel(Text(text));
  label->setObjectName(name);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setWordWrap(true);
  return label;
}

}  // namespace

CertificateDialog::CertificateDialog(const std::string& host, const CertificateFacts& facts,
                                     CertificateVerdict verdict, TrustedCertificates& trusted,
                                     std::function<void()> changed, QWidget* parent)
    : QDialog(parent), trusted_(trusted), changed_(std::move(changed)) {
  setObjectName(QStringLiteral("CertificateDlg"));
  setWindowTitle(QStringLiteral("Certificate"));
  const QString name = Text(host);

  auto* heading = new QLabel;
  heading->setObjectName(QStringLiteral("reason"));
  heading->setWordWrap(true);
  if (verdict == CertificateVerdict::kChanged) {
    heading->setText(
        tr("<b><font color=\"#c00000\">WARNING: the certificate of %1 is not the one you chose "
           "to trust.</font></b><br>Someone may be between Veltrix and the host; connect only "
           "if the host's administrator says the certificate was replaced.")
            .arg(name.toHtmlEscaped()));
  } else {
    heading->setText(tr("The certificate of %1 could not be verified: %2.")
                         .arg(name.toHtmlEscaped(), Text(facts.ProblemsText()).toHtmlEscaped()));
  }

  auto* details = new QFormLayout;
  details->addRow(tr("Subject :"), Value(facts.subject, "subject"));
  details->addRow(tr("Issuer :"), Value(facts.issuer, "issuer"));
  details->addRow(tr("Valid :"), Value(facts.valid_from + " to " + facts.valid_until, "validity"));
  if (verdict == CertificateVerdict::kChanged && !facts.problems.empty()) {
    details->addRow(tr("Problems :"), Value(facts.ProblemsText(), "problems"));
  }
  auto* fingerprint = Value(facts.fingerprint, "fingerprint");
  fingerprint->setFont(FixedPitchFont());
  details->addRow(tr("SHA-256 fingerprint :"), fingerprint);
  if (const std::string* pinned = trusted.Find(host);
      pinned != nullptr && *pinned != facts.fingerprint) {
    auto* before = Value(*pinned, "trusted_fingerprint");
    before->setFont(FixedPitchFont());
    details->addRow(tr("Trusted fingerprint :"), before);
  }

  auto* trusted_box = new QGroupBox(tr("Trusted certificates"));
  list_ = new QListWidget;
  list_->setObjectName(QStringLiteral("trusted"));
  list_->setFont(FixedPitchFont());
  auto* remove = new QPushButton(tr("Remove"));
  remove->setObjectName(QStringLiteral("remove"));
  remove->setAutoDefault(false);
  connect(remove, &QPushButton::clicked, this, [this] {
    const QListWidgetItem* item = list_->currentItem();
    if (item == nullptr) return;
    trusted_.Remove(item->data(Qt::UserRole).toString().toStdString());
    FillTrusted();
    if (changed_) changed_();
  });
  auto* trusted_layout = new QVBoxLayout(trusted_box);
  trusted_layout->addWidget(list_, 1);
  trusted_layout->addWidget(remove, 0, Qt::AlignRight);
  list_->setMaximumHeight(list_->fontMetrics().lineSpacing() * 5);
  FillTrusted();

  auto* buttons = new QDialogButtonBox;
  once_ = buttons->addButton(tr("Connect this time"), QDialogButtonBox::AcceptRole);
  always_ = buttons->addButton(tr("Always trust this certificate for %1").arg(name),
                               QDialogButtonBox::AcceptRole);
  cancel_ = buttons->addButton(QDialogButtonBox::Cancel);
  cancel_->setDefault(true);
  const std::pair<QPushButton*, Answer> answers[] = {
      {once_, Answer::kConnectOnce}, {always_, Answer::kAlwaysTrust}, {cancel_, Answer::kCancel}};
  for (const auto& entry : answers) {
    const Answer answer = entry.second;
    connect(entry.first, &QPushButton::clicked, this, [this, answer] {
      answer_ = answer;
      if (answer == Answer::kCancel) {
        reject();
      } else {
        accept();
      }
    });
  }

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading);
  layout->addLayout(details);
  layout->addWidget(trusted_box);
  layout->addWidget(buttons);
  // Wide enough for a host and its fingerprint on one line of the list.
  setMinimumWidth(QFontMetrics(FixedPitchFont()).horizontalAdvance(QString(96, QLatin1Char('0'))));
  cancel_->setFocus();
}

QPushButton* CertificateDialog::button(Answer answer) const {
  switch (answer) {
    case Answer::kConnectOnce:
      return once_;
    case Answer::kAlwaysTrust:
      return always_;
    case Answer::kCancel:
      break;
  }
  return cancel_;
}

void CertificateDialog::FillTrusted() {
  list_->clear();
  for (const TrustedCertificates::Entry& e : trusted_.entries()) {
    auto* item = new QListWidgetItem(Text(e.host + "  " + e.fingerprint), list_);
    item->setData(Qt::UserRole, Text(e.host));
  }
}

}  // namespace veltrix
