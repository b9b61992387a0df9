#include "settings/page_controls_qt.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "resources/text_qt.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {

QCheckBox* MakeCheck(const QString& name, const QString& caption) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  return box;
}

QComboBox* MakeCombo(const QString& name, std::span<const std::string_view> entries) {
  auto* combo = new QComboBox;
  combo->setObjectName(name);
  for (std::string_view entry : entries) combo->addItem(QtText(entry));
  return combo;
}

QLineEdit* MakeNumberEdit(const QString& name, int characters) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  edit->setMaxLength(characters);
  edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance(QString(characters + 2, '0')) + 12);
  return edit;
}

void BindNumberBox(QLineEdit* edit, const NumberBoxRule& rule, std::function<bool()> active) {
  BindRewritingEdit(
      edit, [rule](const std::string& text) { return CorrectNumberText(text, rule).rewrite; },
      std::move(active));
}

int NumberBoxValue(const QLineEdit* edit, const NumberBoxRule& rule) {
  return static_cast<int>(CorrectNumberText(ToRecordText(edit->text()), rule).value);
}

QButtonGroup* MakeRadios(QWidget* owner, const QString& name,
                         std::span<const std::string_view> captions, QBoxLayout* layout) {
  auto* group = new QButtonGroup(owner);
  group->setObjectName(name);
  for (std::size_t i = 0; i < captions.size(); ++i) {
    auto* button = new QRadioButton(QtText(captions[i]));
    button->setObjectName(QStringLiteral("%1_%2").arg(name).arg(i));
    group->addButton(button, static_cast<int>(i));
    layout->addWidget(button);
  }
  return group;
}

QWidget* MakeOkCancel(QDialog* dialog) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return buttons;
}

void AddFormRow(QGridLayout* grid, int row, const QString& caption, QWidget* control, int span) {
  auto* label = new QLabel(caption);
  label->setBuddy(control);
  grid->addWidget(label, row, 0);
  grid->addWidget(control, row, 1, 1, span);
}

}  // namespace veltrix
