#include "settings/field_binder_qt.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QWidget>

#include "resources/text_qt.h"
#include "settings/emulation/key_mapping.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {

FieldBinder::FieldBinder(Document& doc, QWidget* page) : QObject(page), doc_(doc), page_(page) {}

void FieldBinder::Bind(std::span<const FieldBinding> table) {
  for (const FieldBinding& b : table) {
    const QString name = QtText(b.control);
    QObject* control = page_->findChild<QObject*>(name);
    Q_ASSERT_X(control != nullptr, "FieldBinder", qPrintable(name));
    if (control == nullptr) continue;
    bound_.push_back({&b, control});
    const Bound bound = bound_.back();
    switch (b.kind) {
      case ControlKind::kCheckBox:
        connect(qobject_cast<QAbstractButton*>(control), &QAbstractButton::clicked, this,
                [this, bound](bool checked) {
                  Stored(bound.control, StoreBoundValue(doc_, *bound.binding, checked ? 1 : 0));
                });
        break;
      case ControlKind::kRadioGroup:
        connect(qobject_cast<QButtonGroup*>(control), &QButtonGroup::idClicked, this,
                [this, bound](int id) {
                  Stored(bound.control, StoreBoundValue(doc_, *bound.binding, id));
                });
        break;
      case ControlKind::kList:
      case ControlKind::kKeyCombo:
        connect(qobject_cast<QComboBox*>(control), &QComboBox::currentIndexChanged, this,
                [this, bound](int index) {
                  if (loading_) return;
                  Stored(bound.control, StoreBoundValue(doc_, *bound.binding, index));
                });
        break;
      case ControlKind::kNumberEdit:
        BindRewritingEdit(
            qobject_cast<QLineEdit*>(control),
            [this, bound](const std::string& text) {
              const BindingOutcome outcome = StoreBoundText(doc_, *bound.binding, text);
              Stored(bound.control, outcome);
              return outcome.rewrite;
            },
            [this] { return !loading_; });
        break;
      case ControlKind::kTextEdit: {
        auto* edit = qobject_cast<QLineEdit*>(control);
        connect(edit, &QLineEdit::textChanged, this, [this, bound](const QString& text) {
          if (loading_) return;
          Stored(bound.control, StoreBoundText(doc_, *bound.binding, ToRecordText(text)));
        });
        break;
      }
    }
  }
}

void FieldBinder::Stored(const QObject* source, const BindingOutcome& outcome) {
  if (outcome.refused) {
    // The combo goes back to the key it held before the message says why.
    Load();
    ShowKeyTaken(page_);
    return;
  }
  Load(source);
  if (changed_) changed_();
}

void FieldBinder::Load() { Load(nullptr); }

void FieldBinder::Load(const QObject* except) {
  loading_ = true;
  for (const Bound& b : bound_) {
    const bool enabled = BoundEnabled(doc_, *b.binding);
    const std::int64_t value = BoundValue(doc_, *b.binding);
    if (auto* group = qobject_cast<QButtonGroup*>(b.control)) {
      for (QAbstractButton* button : group->buttons()) button->setEnabled(enabled);
    } else if (auto* widget = qobject_cast<QWidget*>(b.control)) {
      widget->setEnabled(enabled);
    }
    if (b.control == except) continue;
    switch (b.binding->kind) {
      case ControlKind::kCheckBox:
        qobject_cast<QAbstractButton*>(b.control)->setChecked(value != 0);
        break;
      case ControlKind::kRadioGroup:
        if (QAbstractButton* button =
                qobject_cast<QButtonGroup*>(b.control)->button(static_cast<int>(value))) {
          button->setChecked(true);
        }
        break;
      case ControlKind::kList:
      case ControlKind::kKeyCombo:
        qobject_cast<QComboBox*>(b.control)->setCurrentIndex(static_cast<int>(value));
        break;
      case ControlKind::kNumberEdit:
      case ControlKind::kTextEdit: {
        auto* edit = qobject_cast<QLineEdit*>(b.control);
        const QString text = FromRecordText(BoundText(doc_, *b.binding));
        // An unchanged text is left alone, with its caret and selection.
        if (edit->text() != text) edit->setText(text);
        break;
      }
    }
  }
  loading_ = false;
}

void ShowKeyTaken(QWidget* parent) {
  QMessageBox::warning(parent, QtText(kKeyMappingCaption), QtText(kKeyTakenMessage));
}

}  // namespace veltrix
