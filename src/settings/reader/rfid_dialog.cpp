#include "settings/reader/rfid_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "resources/text_qt.h"
#include "settings/emulation/key_names.h"
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/rfid_options.h"

namespace veltrix {

RfidDialog::RfidDialog(Document& doc, QWidget* parent)
    : QDialog(parent), binder_(new FieldBinder(doc, this)) {
  setObjectName("RFID_PARAM_DLG");
  setWindowTitle(tr("RFID"));

  auto* data = new QGroupBox(tr("Data"));
  auto* grid = new QGridLayout(data);
  QLineEdit* start = MakeNumberEdit("start", 5);
  use_delimiter_ = MakeCheck("use_delimiter", tr("Use Delimiter"));
  delimiter_ = new QLineEdit;
  delimiter_->setObjectName("delimiter");
  delimiter_->setMaximumWidth(start->maximumWidth() * 2);
  grid->addWidget(MakeCheck("read_uid", tr("Read UID")), 0, 0, 1, 2);
  grid->addWidget(MakeCheck("read_data", tr("Read Data")), 1, 0, 1, 2);
  AddFormRow(grid, 2, tr("Start"), start);
  AddFormRow(grid, 3, tr("Max Len"), MakeNumberEdit("max_len", 5));
  grid->addWidget(use_delimiter_, 4, 0);
  grid->addWidget(delimiter_, 4, 1);
  AddFormRow(grid, 5, tr("Delay before Reread(0.1s)"), MakeNumberEdit("delay_before_reread", 5));
  grid->setRowStretch(6, 1);

  auto* modes = new QVBoxLayout;
  for (const ChoiceControl& pair : RfidRadioPairs()) {
    auto* box = new QGroupBox(QtText(pair.caption));
    MakeRadios(this, QtText(ControlName(pair.caption)), pair.texts, new QVBoxLayout(box));
    modes->addWidget(box);
  }

  auto* key_row = new QHBoxLayout;
  QComboBox* key = MakeCombo("switch_key", KeyFieldChoices());
  auto* key_label = new QLabel(tr("SwitchKey"));
  key_label->setBuddy(key);
  key_row->addWidget(key_label);
  key_row->addWidget(key);
  key_row->addStretch();

  auto* columns = new QHBoxLayout;
  columns->addWidget(data, 1);
  columns->addLayout(modes);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addLayout(key_row);
  layout->addWidget(MakeOkCancel(this));

  binder_->Bind(RfidBindings());
  binder_->OnChanged([this] { ShowDelimiter(); });
  binder_->Load();
  ShowDelimiter();
}

void RfidDialog::ShowDelimiter() {
  if (!use_delimiter_->isChecked()) delimiter_->clear();
  delimiter_->setText(delimiter_->text().trimmed());
}

void RfidDialog::accept() {
  binder_->Commit();
  QDialog::accept();
}

}  // namespace veltrix
