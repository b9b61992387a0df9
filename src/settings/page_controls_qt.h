#ifndef VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_
#define VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_

#include <QString>
#include <functional>
#include <span>
#include <string_view>

#include "settings/reader/number_box.h"

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDialog;
class QGridLayout;
class QLineEdit;
class QWidget;

namespace veltrix {

// The controls the pages and their dialogs are built from, each named so that bindings and
// tests find it.

QCheckBox* MakeCheck(const QString& name, const QString& caption);
QComboBox* MakeCombo(const QString& name, std::span<const std::string_view> entries);
// A number edit about `characters` digits wide that takes at most `characters`.
QLineEdit* MakeNumberEdit(const QString& name, int characters);
// A number edit corrected under `rule` on every change the user makes (`active` is false while
// the owner fills its controls), and the value its text stands for.
void BindNumberBox(QLineEdit* edit, const NumberBoxRule& rule, std::function<bool()> active);
int NumberBoxValue(const QLineEdit* edit, const NumberBoxRule& rule);
// Radio buttons with ids 0, 1, ... named "<name>_<id>", added to `layout`.
QButtonGroup* MakeRadios(QWidget* owner, const QString& name,
                         std::span<const std::string_view> captions, QBoxLayout* layout);
// OK and Cancel wired to the dialog's accept() and reject().
QWidget* MakeOkCancel(QDialog* dialog);
// A label and its control on one row of a form grid.
void AddFormRow(QGridLayout* grid, int row, const QString& caption, QWidget* control, int span = 1);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PAGE_CONTROLS_QT_H_
