#include "settings/field_binder_qt.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>
#include <QWidget>

#include "resources/text_qt.h"
#include "settings/emulation/key_mapping.h"
#include "settings/grid/grid_dialog.h"
#include "settings/page_controls_qt.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {

FieldBinder::FieldBinder(Document& doc, QWidget* page)
    : QObject(page), session_(doc), page_(page) {}

void FieldBinder::Bind(std::span<const FieldBinding> table) {
  Q_ASSERT(bound_.empty());
  session_.Use(table);
  for (const FieldBinding& b : table) {
    const QString name = QtText(b.control);
    QObject* control = page_->findChild<QObject*>(name);
    Q_ASSERT_X(control != nullptr, "FieldBinder", qPrintable(name));
    if (control == nullptr) continue;
    bound_.push_back({&b, control});
    const Bound bound = bound_.back();
    const auto store_value = [this, bound](std::int64_t value) {
      if (loading_) return;
      Stored(bound.control, session_.Set(*bound.binding, value));
    };
    switch (b.kind) {
      case ControlKind::kCheckBox:
        connections_.push_back(
            connect(qobject_cast<QAbstractButton*>(control), &QAbstractButton::clicked, this,
                    [store_value](bool checked) { store_value(checked ? 1 : 0); }));
        break;
      case ControlKind::kRadioGroup:
        connections_.push_back(connect(qobject_cast<QButtonGroup*>(control),
                                       &QButtonGroup::idClicked, this, store_value));
        break;
      case ControlKind::kList:
      case ControlKind::kKeyCombo:
        connections_.push_back(connect(qobject_cast<QComboBox*>(control),
                                       &QComboBox::currentIndexChanged, this, store_value));
        break;
      case ControlKind::kSpinBox:
        connections_.push_back(
            connect(qobject_cast<QSpinBox*>(control), &QSpinBox::valueChanged, this, store_value));
        break;
      case ControlKind::kNumberEdit:
      case ControlKind::kTextEdit: {
        auto* edit = qobject_cast<QLineEdit*>(control);
        const auto store_text = [this, bound](const std::string& text) {
          const BindingOutcome outcome = session_.Type(*bound.binding, text);
          Stored(bound.control, outcome);
          return outcome.rewrite;
        };
        if (b.kind == ControlKind::kNumberEdit) {
          connections_.push_back(BindRewritingEdit(edit, store_text, [this] { return !loading_; }));
          connections_.push_back(KeepTypingLimit(edit));
        } else {
          connections_.push_back(
              connect(edit, &QLineEdit::textChanged, this, [this, store_text](const QString& text) {
                if (!loading_) store_text(ToRecordText(text));
              }));
        }
        break;
      }
      case ControlKind::kGridEdit:
        // The grid editor stays attached for the dialog's life: grid edits are never unbound.
        AttachGridEditor(qobject_cast<QLineEdit*>(control),
                         {b.grid, [limit = b.grid_limit] { return limit; },
                          [this, bound] { return session_.Bytes(*bound.binding); },
                          [this, bound](std::span<const std::uint8_t> bytes) {
                            session_.Pick(*bound.binding, bytes);
                            Stored(nullptr, {});
                          }});
        break;
    }
  }
}

void FieldBinder::Unbind() {
  for (const QMetaObject::Connection& c : connections_) disconnect(c);
  connections_.clear();
  bound_.clear();
}

void FieldBinder::Commit() {
  for (const Bound& b : bound_) {
    if (auto* spin = qobject_cast<QSpinBox*>(b.control)) spin->interpretText();
  }
  session_.Commit();
}

void FieldBinder::Revert() {
  session_.Revert();
  Load();
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
    const bool enabled = session_.Enabled(*b.binding);
    const std::int64_t value = session_.Value(*b.binding);
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
      case ControlKind::kSpinBox:
        qobject_cast<QSpinBox*>(b.control)->setValue(static_cast<int>(value));
        break;
      case ControlKind::kNumberEdit:
      case ControlKind::kTextEdit: {
        auto* edit = qobject_cast<QLineEdit*>(b.control);
        const QString text = FromRecordText(session_.Text(*b.binding));
        // An unchanged text is left alone, with its caret and selection; a stored number shows in
        // full even when it is longer than the box takes as typed.
        if (edit->text() == text) break;
        if (b.binding->kind == ControlKind::kNumberEdit) {
          ShowNumber(edit, text);
        } else {
          edit->setText(text);
        }
        break;
      }
      case ControlKind::kGridEdit:
        qobject_cast<QLineEdit*>(b.control)->setText(
            QtText(GridDisplayText(b.binding->grid, session_.Bytes(*b.binding))));
        break;
    }
  }
  loading_ = false;
}

void ShowKeyTaken(QWidget* parent) {
  QMessageBox::warning(parent, QtText(kKeyMappingCaption), QtText(kKeyTakenMessage));
}

}  // namespace veltrix
