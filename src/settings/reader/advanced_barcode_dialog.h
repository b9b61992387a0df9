#ifndef VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_
#define VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_

#include <QDialog>

#include "settings/document.h"
#include "settings/reader/advanced_options.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace veltrix {

// "Advanced Barcode Settings" (dialog "ADVANCEDDLG"), opened by the page's "Code ID": leading
// and partial codes, prefix and suffix key codes and the beeper sequences through the grid
// editor, scan control. OK writes the record; Cancel changes nothing.
class AdvancedBarcodeDialog : public QDialog {
  Q_OBJECT

 public:
  AdvancedBarcodeDialog(Document& doc, QWidget* parent = nullptr);
  void accept() override;

 private:
  // The controls' values in state_ (the grid-edited bytes are there already).
  void Collect();
  void ShowEnabling();

  Document& doc_;
  AdvancedState state_;
  QCheckBox* check_leading_;
  QLineEdit* leading_;
  QCheckBox* read_partial_;
  QSpinBox* start_;
  QSpinBox* maximum_;
  QCheckBox* add_prefix_;
  QLineEdit* prefix_;
  QCheckBox* add_suffix_;
  QLineEdit* suffix_;
  QLineEdit* data_beeper_;
  QLineEdit* box214_;
  QLineEdit* alarm_beeper_;
  QLineEdit* vibrator_;
  QButtonGroup* scan_control_;
  bool loading_ = true;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_
