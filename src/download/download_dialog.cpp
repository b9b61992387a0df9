#include "download/download_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QSerialPortInfo>
#include <QVBoxLayout>

#include "download/download_engine.h"
#include "resources/text_qt.h"
#include "settings/system/system_settings.h"

namespace veltrix {
DownloadPropertiesDialog::DownloadPropertiesDialog(int via, int baud_index,
                                                   const QStringList& ports, QWidget* parent)
    : QDialog(parent), via_(new QComboBox), port_(new QComboBox), rate_(new QComboBox) {
  setWindowTitle(tr("Download Properties"));
  for (std::string_view name : kDownloadViaNames) via_->addItem(QtText(name));
  for (std::string_view name : kBaudRateNames) rate_->addItem(QtText(name));
  port_->setEditable(true);
  port_->setInsertPolicy(QComboBox::NoInsert);
  port_->addItems(ports);
  port_->setCurrentIndex(ports.isEmpty() ? -1 : 0);
  port_->setMinimumContentsLength(14);
  via_->setCurrentIndex(std::clamp(via, 0, 3));
  rate_->setCurrentIndex(std::clamp(baud_index, 0, 3));

  auto* group = new QGroupBox;
  auto* form = new QFormLayout(group);
  form->addRow(tr("&Download via :"), via_);
  form->addRow(tr("&COM port :"), port_);
  form->addRow(tr("&Baur rate :"), rate_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
  connect(via_, &QComboBox::currentIndexChanged, this, &DownloadPropertiesDialog::ShowEnabling);
  ShowEnabling();
}

// Over RF the port and the rate play no part.
void DownloadPropertiesDialog::ShowEnabling() {
  const bool serial = via() != static_cast<int>(DownloadVia::kRf);
  port_->setEnabled(serial);
  rate_->setEnabled(serial);
}

int DownloadPropertiesDialog::via() const { return via_->currentIndex(); }
QString DownloadPropertiesDialog::port() const { return port_->currentText().trimmed(); }
int DownloadPropertiesDialog::baud_index() const { return rate_->currentIndex(); }

QStringList DownloadPropertiesDialog::SystemPorts() {
  QStringList names;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    names << info.portName();
  }
  names.sort();
  return names;
}

DownloadProgressDialog::DownloadProgressDialog(int maximum, QWidget* parent)
    : DownloadProgressDialog(QtText(download_text::kProgressCaption),
                             QtText(download_text::kDownloading), maximum, parent) {}

DownloadProgressDialog::DownloadProgressDialog(const QString& caption, const QString& text,
                                               int maximum, QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar) {
  setWindowTitle(caption);
  bar_->setRange(0, maximum);
  bar_->setValue(0);
  bar_->setFormat(QStringLiteral("%p%"));
  bar_->setMinimumWidth(260);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(text));
  layout->addWidget(bar_);
  layout->addWidget(buttons);
  setModal(false);
}

void DownloadProgressDialog::SetPosition(int position) { bar_->setValue(position); }

void DownloadProgressDialog::reject() { emit stopRequested(); }

}  // namespace veltrix
