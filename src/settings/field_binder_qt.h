#ifndef VELTRIX_SETTINGS_FIELD_BINDER_QT_H_
#define VELTRIX_SETTINGS_FIELD_BINDER_QT_H_

#include <QObject>
#include <functional>
#include <span>
#include <vector>

#include "settings/binding_session.h"
#include "settings/document.h"
#include "settings/field_binding.h"

class QWidget;

namespace veltrix {

// Wires a page's or dialog's controls to the record through its binding table: each control is
// found by its object name among the page's children (a QCheckBox, QButtonGroup, QComboBox,
// QSpinBox or QLineEdit, as the binding's kind says), loaded from the record, and stores what the
// user does at once. Lines stored on OK keep the user's values in the binder's copy of the
// document until Commit(). After every store the other bound controls are loaded again, so that
// rules that change more than one field (and the enabling that follows the record) show at once.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  FieldBinder(Document& doc, QWidget* page);

  // Binds every line of the table (which must outlive the binder); one table at a time.
  void Bind(std::span<const FieldBinding> table);
  // Fills every bound control from the record and sets its enabling.
  void Load();
  // Called after every store the user made (for what the table cannot say: labels, lists).
  void OnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

  // The document the on-OK lines edit until OK (the record itself when there are none).
  Document& Pending() { return session_.Pending(); }
  // OK: takes what is typed in the spin boxes and stores every on-OK line into the record.
  void Commit();
  // Drops what the on-OK lines hold and shows the record again.
  void Revert();
  // Forgets every bound control (the controls stay as they are).
  void Unbind();

 private:
  struct Bound {
    const FieldBinding* binding;
    QObject* control;
  };
  void Load(const QObject* except);
  void Stored(const QObject* source, const BindingOutcome& outcome);

  BindingSession session_;
  QWidget* page_;
  std::vector<Bound> bound_;
  std::vector<QMetaObject::Connection> connections_;
  bool loading_ = false;
  std::function<void()> changed_;
};

// The refusal of a key combo, as every page shows it.
void ShowKeyTaken(QWidget* parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_BINDER_QT_H_
