#include "settings/reader/advanced_barcode_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "resources/text_qt.h"
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/advanced_options.h"

namespace veltrix {
namespace {

QLineEdit* GridEdit(const char* name) { return MakeEdit(name, {.characters = 30}); }

}  // namespace

AdvancedBarcodeDialog::AdvancedBarcodeDialog(Document& doc, QWidget* parent)
    : QDialog(parent), doc_(doc), binder_(new FieldBinder(doc, this)) {
  setObjectName("ADVANCEDDLG");
  setWindowTitle(tr("Advanced Barcode Settings"));

  auto* input = new QGroupBox(tr("Input"));
  auto* input_grid = new QGridLayout(input);
  auto* leading = new QLineEdit;
  leading->setObjectName("leading_code");
  leading->setMaxLength(static_cast<int>(kMaxLeadingCode));
  leading->setMinimumWidth(leading->fontMetrics().horizontalAdvance(QString(12, 'W')));
  input_grid->addWidget(MakeCheck("check_leading_code", tr("Check Leading Code")), 0, 0);
  input_grid->addWidget(leading, 0, 1);
  input_grid->addWidget(MakeCheck("read_partial_code", tr("Read Partial Code")), 1, 0, 1, 2);
  // Box 204: not a number gives 1; box 205: above 50 counts as 50, not a number gives 50.
  AddFormRow(input_grid, 2, tr("Start Position :"), MakeRuleSpin("start_position", 1, 1, 50, 1));
  AddFormRow(input_grid, 3, tr("Maximum Length :"), MakeRuleSpin("maximum_length", 50, 1, 50, 50));

  auto* data = new QGroupBox(tr("Data"));
  auto* data_grid = new QGridLayout(data);
  QCheckBox* add_prefix = MakeCheck("add_prefix_code", tr("Add Prefix Code"));
  QCheckBox* add_suffix = MakeCheck("add_suffix_code", tr("Add Suffix Code"));
  data_grid->addWidget(add_prefix, 0, 0);
  data_grid->addWidget(GridEdit("prefix_code"), 0, 1, 1, 2);
  data_grid->addWidget(add_suffix, 1, 0);
  data_grid->addWidget(GridEdit("suffix_code"), 1, 1, 1, 2);
  AddFormRow(data_grid, 2, tr("Beeper Sequence"), GridEdit("data_beeper_sequence"));
  // The terminal's dialog gives this box no label.
  data_grid->addWidget(MakeNumberEdit("data_box214", 3), 2, 2);

  auto* scanner = new QGroupBox(tr("Scanner"));
  MakeRadios(this, "scan_control", kScanControls, new QVBoxLayout(scanner));

  auto* alarm = new QGroupBox(tr("Alarm"));
  auto* alarm_grid = new QGridLayout(alarm);
  AddFormRow(alarm_grid, 0, tr("Beeper Sequence"), GridEdit("alarm_beeper_sequence"));
  AddFormRow(alarm_grid, 1, tr("Vibrator time(0.1s)"), MakeNumberEdit("vibrator_time", 3));
  alarm_grid->setColumnStretch(2, 1);
  // The two beeper edits line up: both groups give their first column one width.
  const int label_column =
      std::max({add_prefix->sizeHint().width(), add_suffix->sizeHint().width(),
                fontMetrics().horizontalAdvance(tr("Vibrator time(0.1s)")) + 8});
  data_grid->setColumnMinimumWidth(0, label_column);
  alarm_grid->setColumnMinimumWidth(0, label_column);

  auto* left = new QVBoxLayout;
  left->addWidget(input);
  left->addWidget(scanner);
  left->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(data);
  right->addWidget(alarm);
  right->addStretch();
  auto* columns = new QHBoxLayout;
  columns->addLayout(left);
  columns->addLayout(right, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addWidget(MakeOkCancel(this));

  binder_->Bind(AdvancedBindings());
  binder_->Load();
}

void AdvancedBarcodeDialog::accept() {
  binder_->Commit();
  ApplyAdvancedSettings(doc_);
  QDialog::accept();
}

}  // namespace veltrix
