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
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVariant>
#include <algorithm>

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

namespace {

// A number edit's typing limit (a stored value may show longer).
constexpr char kTypingLimit[] = "veltrix_typing_limit";

// Digits only, as typed; the value follows the box's range.
class RuleSpinBox : public QSpinBox {
 public:
  explicit RuleSpinBox(int if_empty) : if_empty_(if_empty) {}

 protected:
  QValidator::State validate(QString& text, int& /*pos*/) const override {
    if (text.isEmpty()) return QValidator::Intermediate;
    if (text.size() > 9) return QValidator::Invalid;
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); })
               ? QValidator::Acceptable
               : QValidator::Invalid;
  }
  int valueFromText(const QString& text) const override {
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? std::clamp(value, minimum(), maximum()) : if_empty_;
  }
  void fixup(QString& text) const override { text = QString::number(valueFromText(text)); }

 private:
  int if_empty_;
};

}  // namespace

QLineEdit* MakeEdit(const QString& name, const EditShape& shape) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  const int width =
      shape.number ? edit->fontMetrics().horizontalAdvance(QString(shape.characters + 2, '0')) + 12
                   : edit->fontMetrics().horizontalAdvance(QString(shape.characters, 'x')) + 12;
  switch (shape.width) {
    case EditShape::Width::kAtLeast:
      edit->setMinimumWidth(width);
      break;
    case EditShape::Width::kAtMost:
      edit->setMaximumWidth(width);
      break;
    case EditShape::Width::kFixed:
      edit->setFixedWidth(width);
      break;
  }
  if (shape.limit_typing) SetTypingLimit(edit, shape.characters);
  if (shape.digits_only) {
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), edit));
  }
  if (shape.right_aligned) edit->setAlignment(Qt::AlignRight);
  return edit;
}

QLineEdit* MakeNumberEdit(const QString& name, int characters) {
  return MakeEdit(name, {.width = EditShape::Width::kAtMost,
                         .characters = characters,
                         .number = true,
                         .limit_typing = true});
}

void SetTypingLimit(QLineEdit* edit, int characters) {
  edit->setProperty(kTypingLimit, characters);
  edit->setMaxLength(characters);
}

void ShowNumber(QLineEdit* edit, const QString& text) {
  const int limit = edit->property(kTypingLimit).isValid() ? edit->property(kTypingLimit).toInt()
                                                           : edit->maxLength();
  edit->setMaxLength(std::max(limit, static_cast<int>(text.size())));
  edit->setText(text);
}

QMetaObject::Connection KeepTypingLimit(QLineEdit* edit) {
  return QObject::connect(edit, &QLineEdit::textEdited, edit, [edit] {
    const QVariant limit = edit->property(kTypingLimit);
    if (limit.isValid() && edit->text().size() <= limit.toInt()) edit->setMaxLength(limit.toInt());
  });
}

QSpinBox* MakeRuleSpin(const QString& name, int value, int min, int max, int if_empty) {
  auto* spin = new RuleSpinBox(if_empty);
  spin->setObjectName(name);
  spin->setRange(min, max);
  spin->setValue(value);
  return spin;
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
