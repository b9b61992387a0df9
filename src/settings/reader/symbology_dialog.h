#ifndef VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_
#define VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_

#include <QDialog>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/reader/symbology_options.h"
#include "settings/reader/two_d_options.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace veltrix {

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
  std::vector<QCheckBox*> checks_;
  std::vector<QButtonGroup*> radios_;
  QButtonGroup* qualification_ = nullptr;
  QLabel* labels_[2] = {};
  QLineEdit* lengths_[2] = {};
  bool loading_ = true;
};

// A two-dimensional symbology: lists, check boxes and the length option family.
class TwoDOptionsDialog : public QDialog {
  Q_OBJECT

 public:
  TwoDOptionsDialog(Document& doc, const TwoDOptionDialog& table, QWidget* parent = nullptr);
  void accept() override;

 private:
  void ShowOption(bool chosen);

  Document& doc_;
  const TwoDOptionDialog& table_;
  std::vector<QCheckBox*> checks_;
  std::vector<QComboBox*> lists_;
  QComboBox* option_ = nullptr;
  QLabel* labels_[2] = {};
  QLineEdit* lengths_[2] = {};
  bool loading_ = true;
};

// Opens the dialog of `template_name` (a linear or two-dimensional one) modally; true after OK.
bool RunSymbologyDialog(Document& doc, std::string_view template_name, QWidget* parent);

// A control's object name from its caption: "Transmit Checksum" -> "transmit_checksum".
QString ControlName(std::string_view caption);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_SYMBOLOGY_DIALOG_H_
