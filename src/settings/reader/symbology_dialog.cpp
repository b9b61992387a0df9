#include "settings/reader/symbology_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cctype>
#include <functional>

#include "resources/text_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/length_option.h"
#include "settings/reader/length_pair.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_names.h"

namespace veltrix {
namespace {

QCheckBox* AddCheck(QVBoxLayout* layout, const CheckBoxControl& control, bool checked) {
  QCheckBox* box = MakeCheck(ControlName(control.text), QtText(control.text));
  box->setChecked(checked);
  layout->addWidget(box);
  return box;
}

// The two length boxes ("length_1", "length_2") with their labels, on two rows of `grid` from
// `row`, showing `values` and corrected under `rule` while `active` says the user types.
void AddLengthBoxes(QGridLayout* grid, int row, int characters, const NumberBoxRule& rule,
                    const int (&values)[2], const std::function<bool()>& active,
                    QLabel* (&labels)[2], QLineEdit* (&edits)[2]) {
  for (int k = 0; k < 2; ++k) {
    edits[k] = MakeNumberEdit(QStringLiteral("length_%1").arg(k + 1), characters);
    BindNumberBox(edits[k], rule, active);
    ShowNumber(edits[k], values[k]);
    labels[k] = new QLabel;
    labels[k]->setObjectName(QStringLiteral("length_%1_label").arg(k + 1));
    labels[k]->setBuddy(edits[k]);
    grid->addWidget(labels[k], row + k, 0);
    grid->addWidget(edits[k], row + k, 1, Qt::AlignLeft);
  }
}

}  // namespace

QString ControlName(std::string_view caption) {
  QString name;
  for (char c : caption) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      name += QChar(std::tolower(static_cast<unsigned char>(c)));
    } else if (!name.isEmpty() && !name.endsWith('_')) {
      name += '_';
    }
  }
  while (name.endsWith('_')) name.chop(1);
  return name;
}

// ---- linear ------------------------------------------------------------------------------------

LinearOptionsDialog::LinearOptionsDialog(Document& doc, const LinearOptionDialog& table,
                                         QWidget* parent)
    : QDialog(parent), doc_(doc), table_(table) {
  setObjectName(QtText(table.template_name));
  setWindowTitle(QtText(table.caption));
  const LinearOptionState state = OpenLinearOptions(doc, table);
  auto* layout = new QVBoxLayout(this);

  auto* groups = new QHBoxLayout;
  for (std::size_t i = 0; i < table.radios.size(); ++i) {
    const ChoiceControl& control = table.radios[i];
    auto* box = new QGroupBox(QtText(control.caption));
    auto* column = new QVBoxLayout(box);
    QButtonGroup* group = MakeRadios(this, ControlName(control.caption), control.texts, column);
    group->button(state.chosen[i])->setChecked(true);
    radios_.push_back(group);
    groups->addWidget(box, 0, Qt::AlignTop);
  }
  if (radios_.empty()) {
    delete groups;  // a dialog without radio groups
  } else {
    layout->addLayout(groups);
  }

  auto* checks = new QVBoxLayout;
  for (std::size_t i = 0; i < table.checks.size(); ++i) {
    checks_.push_back(AddCheck(checks, table.checks[i], state.checked[i]));
  }
  layout->addLayout(checks);

  if (table.length != nullptr) {
    auto* box = new QGroupBox(tr("Length Qualification"));
    auto* grid = new QGridLayout(box);
    auto* radios = new QHBoxLayout;
    qualification_ = MakeRadios(this, "length_qualification", kLengthQualificationNames, radios);
    qualification_->button(state.length.max_min ? 1 : 0)->setChecked(true);
    grid->addLayout(radios, 0, 0, 1, 2);
    const int values[2] = {state.length.first, state.length.second};
    AddLengthBoxes(
        grid, 1, 3, kLinearLengthBox, values, [this] { return !loading_; }, labels_, lengths_);
    grid->setColumnStretch(2, 1);
    connect(qualification_, &QButtonGroup::idClicked, this, [this] { ShowLengthLabels(); });
    ShowLengthLabels();
    layout->addWidget(box);
  }
  layout->addStretch();
  layout->addWidget(MakeOkCancel(this));
  loading_ = false;
}

void LinearOptionsDialog::ShowLengthLabels() {
  const LengthLabels labels = LengthPairLabels(qualification_->checkedId() == 1);
  labels_[0]->setText(QtText(labels.first));
  labels_[1]->setText(QtText(labels.second));
}

void LinearOptionsDialog::accept() {
  LinearOptionState state;
  for (QCheckBox* box : checks_) state.checked.push_back(box->isChecked());
  for (QButtonGroup* group : radios_) state.chosen.push_back(group->checkedId());
  if (qualification_ != nullptr) {
    state.length = {qualification_->checkedId() == 1, NumberBoxValue(lengths_[0], kLinearLengthBox),
                    NumberBoxValue(lengths_[1], kLinearLengthBox)};
  }
  ApplyLinearOptions(doc_, table_, state);
  QDialog::accept();
}

// ---- two-dimensional ---------------------------------------------------------------------------

TwoDOptionsDialog::TwoDOptionsDialog(Document& doc, const TwoDOptionDialog& table, QWidget* parent)
    : QDialog(parent), doc_(doc), table_(table) {
  setObjectName(QtText(table.template_name));
  setWindowTitle(QtText(table.caption));
  const TwoDOptionState state = OpenTwoDOptions(doc, table);
  auto* layout = new QVBoxLayout(this);

  auto* checks = new QVBoxLayout;
  for (std::size_t i = 0; i < table.checks.size(); ++i) {
    checks_.push_back(AddCheck(checks, table.checks[i], state.checked[i]));
  }
  layout->addLayout(checks);

  auto* form = new QGridLayout;
  int row = 0;
  for (std::size_t i = 0; i < table.lists.size(); ++i) {
    const ChoiceControl& control = table.lists[i];
    QComboBox* list = MakeCombo(ControlName(control.caption), control.texts);
    list->setCurrentIndex(state.chosen[i]);
    AddFormRow(form, row++, QtText(control.caption), list);
    lists_.push_back(list);
  }
  if (table.length_option != nullptr) {
    option_ = MakeCombo("length_option", kLengthOptionNames);
    option_->setCurrentIndex(state.option);
    AddFormRow(form, row++, tr("Length Option :"), option_);
    const int values[2] = {state.lengths.first, state.lengths.second};
    AddLengthBoxes(
        form, row, 2, kTwoDLengthBox, values, [this] { return !loading_; }, labels_, lengths_);
    connect(option_, &QComboBox::currentIndexChanged, this, [this] { ShowOption(true); });
    ShowOption(false);
  }
  form->setColumnStretch(1, 1);
  layout->addLayout(form);
  layout->addStretch();
  layout->addWidget(MakeOkCancel(this));
  loading_ = false;
}

void TwoDOptionsDialog::ShowOption(bool chosen) {
  const int option = option_->currentIndex();
  const LengthLabels labels = LengthOptionLabels(option);
  labels_[0]->setText(QtText(labels.first));
  labels_[1]->setText(QtText(labels.second));
  const LengthBoxEnabling enabling = LengthOptionEnabling(option);
  const bool enabled[2] = {enabling.first, enabling.second};
  for (int k = 0; k < 2; ++k) {
    labels_[k]->setEnabled(enabled[k]);
    lengths_[k]->setEnabled(enabled[k]);
  }
  if (!chosen) return;
  const LengthBoxes boxes = BoxesAfterChoosingOption(
      option,
      {NumberBoxValue(lengths_[0], kTwoDLengthBox), NumberBoxValue(lengths_[1], kTwoDLengthBox)});
  ShowNumber(lengths_[0], boxes.first);
  ShowNumber(lengths_[1], boxes.second);
}

void TwoDOptionsDialog::accept() {
  TwoDOptionState state;
  for (QCheckBox* box : checks_) state.checked.push_back(box->isChecked());
  for (QComboBox* list : lists_) state.chosen.push_back(list->currentIndex());
  if (option_ != nullptr) {
    state.option = option_->currentIndex();
    state.lengths = {NumberBoxValue(lengths_[0], kTwoDLengthBox),
                     NumberBoxValue(lengths_[1], kTwoDLengthBox)};
  }
  ApplyTwoDOptions(doc_, table_, state);
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
