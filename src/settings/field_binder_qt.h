#ifndef VELTRIX_SETTINGS_FIELD_BINDER_QT_H_
#define VELTRIX_SETTINGS_FIELD_BINDER_QT_H_

#include <QObject>
#include <functional>
#include <span>
#include <vector>

#include "settings/document.h"
#include "settings/field_binding.h"

class QWidget;

namespace veltrix {

// Wires a page's controls to the record through its binding table: each control is found by its
// object name among the page's children (a QCheckBox, QButtonGroup, QComboBox or QLineEdit, as
// the binding's kind says), loaded from the record, and stores what the user does at once.
// After every store the other bound controls are loaded again, so that rules that change more
// than one field (and the enabling that follows the record) show at once.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  FieldBinder(Document& doc, QWidget* page);

  // Binds every line of the table (which must outlive the binder).
  void Bind(std::span<const FieldBinding> table);
  // Fills every bound control from the record and sets its enabling.
  void Load();
  // Called after every store the user made (for what the table cannot say: labels, lists).
  void OnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  struct Bound {
    const FieldBinding* binding;
    QObject* control;
  };
  void Load(const QObject* except);
  void Stored(const QObject* source, const BindingOutcome& outcome);

  Document& doc_;
  QWidget* page_;
  std::vector<Bound> bound_;
  bool loading_ = false;
  std::function<void()> changed_;
};

// The refusal of a key combo, as every page shows it.
void ShowKeyTaken(QWidget* parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_BINDER_QT_H_
