#ifndef VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_
#define VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_

#include <QDialog>

#include "settings/document.h"

namespace veltrix {

class FieldBinder;

// "Advanced Barcode Settings" (dialog "ADVANCEDDLG"), opened by the page's "Code ID": leading
// and partial codes, prefix and suffix key codes and the beeper sequences through the grid
// editor, scan control. OK writes the record; Cancel changes nothing.
class AdvancedBarcodeDialog : public QDialog {
  Q_OBJECT

 public:
  AdvancedBarcodeDialog(Document& doc, QWidget* parent = nullptr);
  void accept() override;

 private:
  Document& doc_;
  FieldBinder* binder_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_ADVANCED_BARCODE_DIALOG_H_
