#ifndef VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_
#define VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_

#include <QDialog>
#include <string_view>

#include "settings/document.h"
#include "settings/field_binding.h"
#include "settings/reader/symbology_options.h"
#include "settings/reader/two_d_options.h"

class QLabel;

namespace veltrix {

class FieldBinder;

// The two "more..." dialog shapes of the "Barcode" page, each built from its table in the core.
// Controls are named after their captions ("transmit_checksum", "start_stop_selection_1",
// "length_1"). OK stores into the reader working block; Cancel changes nothing.

// A linear symbology: check boxes, radio groups and the "Length Qualification" group.
class LinearOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  LinearOptionsDialog(Document& doc, const LinearOptionDialog& table, QWidget* parent = nullptr);
  void accept() override;

 private:
  void ShowLengthLabels();

  Document& doc_;
  const LinearOptionDialog& table_;
  OwnedBindings bindings_;
  FieldBinder* binder_;
  QLabel* labels_[2] = {};
};

// A two-dimensional symbology: lists, check boxes and the length option family.
class TwoDOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  TwoDOptionsDialog(Document& doc, const TwoDOptionDialog& table, QWidget* parent = nullptr);
  void accept() override;

 private:
  // Labels and enabling of the two boxes for the chosen option; a new choice empties the boxes it
  // enables.
  void ShowOption();

  Document& doc_;
  const TwoDOptionDialog& table_;
  OwnedBindings bindings_;
  FieldBinder* binder_;
  QLabel* labels_[2] = {};
  int option_ = -1;
};

// Opens the dialog of `template_name` (a linear or two-dimensional one) modally; true after OK.
bool RunSymbologyDialog(Document& doc, std::string_view template_name, QWidget* parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_
