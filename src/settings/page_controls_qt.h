#ifndef VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_
#define VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_

#include <QMetaObject>
#include <QString>
#include <functional>
#include <span>
#include <string_view>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDialog;
class QGridLayout;
class QLineEdit;
class QSpinBox;
class QWidget;

namespace veltrix {

// The controls the pages and their dialogs are built from, each named so that bindings and
// tests find it.

QCheckBox* MakeCheck(const QString& name, const QString& caption);
QComboBox* MakeCombo(const QString& name, std::span<const std::string_view> entries);
// The one edit factory of the pages and dialogs. How an edit is sized and what it takes:
struct EditShape {
  enum class Width { kAtLeast, kAtMost, kFixed } width = Width::kAtLeast;
  int characters = 10;        // the width in characters ('x', or '0' for numbers)
  bool number = false;        // sized by digits, two spare
  bool limit_typing = false;  // takes at most `characters` as typed
  bool digits_only = false;   // other keys are refused
  bool right_aligned = false;
};
QLineEdit* MakeEdit(const QString& name, const EditShape& shape);
// A number edit about `characters` digits wide that takes at most `characters` as typed.
QLineEdit* MakeNumberEdit(const QString& name, int characters);
// A new typing limit for a number edit (the Barcode page's box 201 takes 3 or 1 digits).
void SetTypingLimit(QLineEdit* edit, int characters);
// Shows a stored number in full, also one longer than the box takes when typed (a file's 120 in
// a two-digit box); the typing limit comes back once the user has edited it down (KeepTypingLimit).
void ShowNumber(QLineEdit* edit, const QString& text);
QMetaObject::Connection KeepTypingLimit(QLineEdit* edit);
// A spin box of `min`..`max` that takes any digits as typed: a number above `max` counts as
// `max`, below `min` as `min`, an empty box as `if_empty`; the box shows that value once the
// typing ends (its value() after interpretText()).
QSpinBox* MakeRuleSpin(const QString& name, int value, int min, int max, int if_empty);
// Radio buttons with ids 0, 1, ... named "<name>_<id>", added to `layout`.
QButtonGroup* MakeRadios(QWidget* owner, const QString& name,
                         std::span<const std::string_view> captions, QBoxLayout* layout);
// OK and Cancel wired to the dialog's accept() and reject().
QWidget* MakeOkCancel(QDialog* dialog);
// A label and its control on one row of a form grid.
void AddFormRow(QGridLayout* grid, int row, const QString& caption, QWidget* control, int span = 1);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_
