#include "settings/reader/symbology_dialog.h"

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
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/length_option.h"
#include "settings/reader/length_pair.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

void AddChecks(QVBoxLayout* layout, std::span<const CheckBoxControl> checks) {
  for (const CheckBoxControl& check : checks) {
    layout->addWidget(MakeCheck(QtText(ControlName(check.text)), QtText(check.text)));
  }
}

// The two length boxes ("length_1", "length_2") with their labels, on two rows of `grid` from
// `row`.
void AddLengthBoxes(QGridLayout* grid, int row, int characters, QLabel* (&labels)[2]) {
  for (int k = 0; k < 2; ++k) {
    QLineEdit* edit = MakeNumberEdit(QStringLiteral("length_%1").arg(k + 1), characters);
    labels[k] = new QLabel;
    labels[k]->setObjectName(QStringLiteral("length_%1_label").arg(k + 1));
    labels[k]->setBuddy(edit);
    grid->addWidget(labels[k], row + k, 0);
    grid->addWidget(edit, row + k, 1, Qt::AlignLeft);
  }
}

}  // namespace

// ---- linear ------------------------------------------------------------------------------------

LinearOptionsDialog::LinearOptionsDialog(Document& doc, const LinearOptionDialog& table,
                                         QWidget* parent)
    : QDialog(parent),
      doc_(doc),
      table_(table),
      bindings_(LinearOptionBindings(table)),
      binder_(new FieldBinder(doc, this)) {
  setObjectName(QtText(table.template_name));
  setWindowTitle(QtText(table.caption));
  auto* layout = new QVBoxLayout(this);

  if (!table.radios.empty()) {
    auto* groups = new QHBoxLayout;
    for (const ChoiceControl& control : table.radios) {
      auto* box = new QGroupBox(QtText(control.caption));
      MakeRadios(this, QtText(ControlName(control.caption)), control.texts, new QVBoxLayout(box));
      groups->addWidget(box, 0, Qt::AlignTop);
    }
    layout->addLayout(groups);
  }
  auto* checks = new QVBoxLayout;
  AddChecks(checks, table.checks);
  layout->addLayout(checks);

  if (table.length != nullptr) {
    auto* box = new QGroupBox(tr("Length Qualification"));
    auto* grid = new QGridLayout(box);
    auto* radios = new QHBoxLayout;
    MakeRadios(this, "length_qualification", kLengthQualificationNames, radios);
    grid->addLayout(radios, 0, 0, 1, 2);
    AddLengthBoxes(grid, 1, 3, labels_);
    grid->setColumnStretch(2, 1);
    layout->addWidget(box);
  }
  layout->addStretch();
  layout->addWidget(MakeOkCancel(this));

  binder_->Bind(bindings_.lines);
  binder_->OnChanged([this] { ShowLengthLabels(); });
  binder_->Load();
  ShowLengthLabels();
}

void LinearOptionsDialog::ShowLengthLabels() {
  if (table_.length == nullptr) return;
  const LengthLabels labels =
      LengthPairLabels(UnpackLengthPair(WorkingBytes(binder_->Pending(), *table_.length)).max_min);
  labels_[0]->setText(QtText(labels.first));
  labels_[1]->setText(QtText(labels.second));
}

void LinearOptionsDialog::accept() {
  binder_->Commit();
  ApplyLinearOptions(doc_, table_);
  QDialog::accept();
}

// ---- two-dimensional ---------------------------------------------------------------------------

TwoDOptionsDialog::TwoDOptionsDialog(Document& doc, const TwoDOptionDialog& table, QWidget* parent)
    : QDialog(parent),
      doc_(doc),
      table_(table),
      bindings_(TwoDOptionBindings(table)),
      binder_(new FieldBinder(doc, this)) {
  setObjectName(QtText(table.template_name));
  setWindowTitle(QtText(table.caption));
  OpenTwoDOptions(doc, table);
  auto* layout = new QVBoxLayout(this);

  auto* checks = new QVBoxLayout;
  AddChecks(checks, table.checks);
  layout->addLayout(checks);

  auto* form = new QGridLayout;
  int row = 0;
  for (const ChoiceControl& control : table.lists) {
    AddFormRow(form, row++, QtText(control.caption),
               MakeCombo(QtText(ControlName(control.caption)), control.texts));
  }
  if (table.length_option != nullptr) {
    AddFormRow(form, row++, tr("Length Option :"), MakeCombo("length_option", kLengthOptionNames));
    AddLengthBoxes(form, row, 2, labels_);
  }
  form->setColumnStretch(1, 1);
  layout->addLayout(form);
  layout->addStretch();
  layout->addWidget(MakeOkCancel(this));

  binder_->Bind(bindings_.lines);
  binder_->OnChanged([this] { ShowOption(); });
  binder_->Load();
  ShowOption();
}

void TwoDOptionsDialog::ShowOption() {
  if (table_.length_option == nullptr) return;
  Document& pending = binder_->Pending();
  const int option = static_cast<int>(ReadWorking(pending, *table_.length_option));
  if (option_ >= 0 && option != option_) {
    LengthOptionChosen(pending, table_);
    option_ = option;
    binder_->Load();
  }
  option_ = option;
  const LengthLabels labels = LengthOptionLabels(option);
  labels_[0]->setText(QtText(labels.first));
  labels_[1]->setText(QtText(labels.second));
  const LengthBoxEnabling enabling = LengthOptionEnabling(option);
  const bool enabled[2] = {enabling.first, enabling.second};
  for (int k = 0; k < 2; ++k) {
    labels_[k]->setEnabled(enabled[k]);
    labels_[k]->buddy()->setEnabled(enabled[k]);
  }
}

void TwoDOptionsDialog::accept() {
  binder_->Commit();
  ApplyTwoDOptions(doc_, table_);
  QDialog::accept();
}

bool RunSymbologyDialog(Document& doc, std::string_view template_name, QWidget* parent) {
  if (const LinearOptionDialog* linear = FindLinearOptionDialog(template_name)) {
    LinearOptionsDialog dialog(doc, *linear, parent);
    return dialog.exec() == QDialog::Accepted;
  }
  if (const TwoDOptionDialog* two_d = FindTwoDOptionDialog(template_name)) {
    TwoDOptionsDialog dialog(doc, *two_d, parent);
    return dialog.exec() == QDialog::Accepted;
  }
  return false;
}

}  // namespace veltrix
