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
#include <array>
#include <string_view>

#include "resources/text_qt.h"
#include "settings/grid/char_grid.h"
#include "settings/grid/grid_dialog.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/beeper_sequence.h"
#include "settings/reader/number_box.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 2> kScanControls{"Always enable after login",
                                                        "Controled by 5250 command"};

QLineEdit* GridEdit(const char* name) { return MakeEdit(name, {.characters = 30}); }

// The prefix or suffix key codes, through the grid editor's key names (at most nine).
void AttachKeyCodes(QLineEdit* edit, std::vector<std::uint8_t>& codes) {
  edit->setText(QtText(GridDisplayText(GridMode::kKeyNames, codes)));
  AttachGridEditor(edit, {GridMode::kKeyNames, [] { return static_cast<int>(kMaxKeyCodes); },
                          [&codes] { return codes; },
                          [&codes](std::span<const std::uint8_t> bytes) {
                            codes.assign(bytes.begin(), bytes.end());
                          }});
}

// A beeper sequence, shown as hexadecimal pairs of its used length (ten bytes at most).
void AttachBeeper(QLineEdit* edit, std::array<std::uint8_t, kBeeperSequenceWidth>& sequence) {
  edit->setText(QtText(BeeperSequenceText(sequence)));
  AttachGridEditor(edit, {GridMode::kHex, [] { return static_cast<int>(kBeeperSequenceWidth); },
                          [&sequence] {
                            return std::vector<std::uint8_t>(
                                sequence.begin(),
                                sequence.begin() + BeeperSequenceLength(sequence));
                          },
                          [&sequence](std::span<const std::uint8_t> bytes) {
                            sequence.fill(0);
                            std::copy_n(bytes.begin(), std::min(bytes.size(), sequence.size()),
                                        sequence.begin());
                          }});
}

}  // namespace

AdvancedBarcodeDialog::AdvancedBarcodeDialog(Document& doc, QWidget* parent)
    : QDialog(parent), doc_(doc), state_(OpenAdvancedSettings(doc)) {
  setObjectName("ADVANCEDDLG");
  setWindowTitle(tr("Advanced Barcode Settings"));
  const auto active = [this] { return !loading_; };

  auto* input = new QGroupBox(tr("Input"));
  auto* input_grid = new QGridLayout(input);
  check_leading_ = MakeCheck("check_leading_code", tr("Check Leading Code"));
  leading_ = new QLineEdit(FromRecordText(state_.leading_code));
  leading_->setObjectName("leading_code");
  leading_->setMaxLength(static_cast<int>(kMaxLeadingCode));
  leading_->setMinimumWidth(leading_->fontMetrics().horizontalAdvance(QString(12, 'W')));
  read_partial_ = MakeCheck("read_partial_code", tr("Read Partial Code"));
  // Box 204: not a number gives 1; box 205: above 50 counts as 50, not a number gives 50.
  start_ = MakeRuleSpin("start_position", state_.start_position, 1, 50, 1);
  maximum_ = MakeRuleSpin("maximum_length", state_.maximum_length, 1, 50, 50);
  input_grid->addWidget(check_leading_, 0, 0);
  input_grid->addWidget(leading_, 0, 1);
  input_grid->addWidget(read_partial_, 1, 0, 1, 2);
  AddFormRow(input_grid, 2, tr("Start Position :"), start_);
  AddFormRow(input_grid, 3, tr("Maximum Length :"), maximum_);

  auto* data = new QGroupBox(tr("Data"));
  auto* data_grid = new QGridLayout(data);
  add_prefix_ = MakeCheck("add_prefix_code", tr("Add Prefix Code"));
  prefix_ = GridEdit("prefix_code");
  add_suffix_ = MakeCheck("add_suffix_code", tr("Add Suffix Code"));
  suffix_ = GridEdit("suffix_code");
  data_beeper_ = GridEdit("data_beeper_sequence");
  box214_ = MakeNumberEdit("data_box214", 3);
  data_grid->addWidget(add_prefix_, 0, 0);
  data_grid->addWidget(prefix_, 0, 1, 1, 2);
  data_grid->addWidget(add_suffix_, 1, 0);
  data_grid->addWidget(suffix_, 1, 1, 1, 2);
  AddFormRow(data_grid, 2, tr("Beeper Sequence"), data_beeper_);
  data_grid->addWidget(box214_, 2, 2);  // the terminal's dialog gives this box no label

  auto* scanner = new QGroupBox(tr("Scanner"));
  auto* scanner_layout = new QVBoxLayout(scanner);
  scan_control_ = MakeRadios(this, "scan_control", kScanControls, scanner_layout);

  auto* alarm = new QGroupBox(tr("Alarm"));
  auto* alarm_grid = new QGridLayout(alarm);
  alarm_beeper_ = GridEdit("alarm_beeper_sequence");
  vibrator_ = MakeNumberEdit("vibrator_time", 3);
  AddFormRow(alarm_grid, 0, tr("Beeper Sequence"), alarm_beeper_);
  AddFormRow(alarm_grid, 1, tr("Vibrator time(0.1s)"), vibrator_);
  alarm_grid->setColumnStretch(2, 1);
  // The two beeper edits line up: both groups give their first column one width.
  const int label_column =
      std::max({add_prefix_->sizeHint().width(), add_suffix_->sizeHint().width(),
                fontMetrics().horizontalAdvance(tr("Vibrator time(0.1s)")) + 8});
  data_grid->setColumnMinimumWidth(0, label_column);
  alarm_grid->setColumnMinimumWidth(0, label_column);

  check_leading_->setChecked(state_.check_leading_code);
  read_partial_->setChecked(state_.read_partial_code);
  add_prefix_->setChecked(state_.add_prefix_code);
  add_suffix_->setChecked(state_.add_suffix_code);
  scan_control_->button(state_.scan_control)->setChecked(true);
  AttachKeyCodes(prefix_, state_.prefix_code);
  AttachKeyCodes(suffix_, state_.suffix_code);
  AttachBeeper(data_beeper_, state_.data_beeper_sequence);
  AttachBeeper(alarm_beeper_, state_.alarm_beeper_sequence);
  ShowNumber(box214_, state_.data_box214);
  ShowNumber(vibrator_, state_.vibrator_time);
  BindNumberBox(box214_, kVibratorBox, active);
  BindNumberBox(vibrator_, kVibratorBox, active);

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

  for (QCheckBox* box : {check_leading_, read_partial_, add_prefix_, add_suffix_}) {
    connect(box, &QCheckBox::toggled, this, [this] { ShowEnabling(); });
  }
  ShowEnabling();
  loading_ = false;
}

void AdvancedBarcodeDialog::Collect() {
  state_.check_leading_code = check_leading_->isChecked();
  state_.leading_code = ToRecordText(leading_->text());
  state_.read_partial_code = read_partial_->isChecked();
  start_->interpretText();  // what is typed counts, as the box shows it
  maximum_->interpretText();
  state_.start_position = start_->value();
  state_.maximum_length = maximum_->value();
  state_.add_prefix_code = add_prefix_->isChecked();
  state_.add_suffix_code = add_suffix_->isChecked();
  state_.scan_control = scan_control_->checkedId();
  state_.data_box214 = NumberBoxValue(box214_, kVibratorBox);
  state_.vibrator_time = NumberBoxValue(vibrator_, kVibratorBox);
}

void AdvancedBarcodeDialog::ShowEnabling() {
  Collect();
  const AdvancedEnabling enabling = AdvancedControlsEnabled(state_, doc_.product());
  leading_->setEnabled(enabling.leading_code);
  start_->setEnabled(enabling.lengths);
  maximum_->setEnabled(enabling.lengths);
  prefix_->setEnabled(enabling.prefix_code);
  suffix_->setEnabled(enabling.suffix_code);
  box214_->setEnabled(enabling.box214_and_vibrator);
  vibrator_->setEnabled(enabling.box214_and_vibrator);
}

void AdvancedBarcodeDialog::accept() {
  Collect();
  ApplyAdvancedSettings(doc_, state_);
  QDialog::accept();
}

}  // namespace veltrix
