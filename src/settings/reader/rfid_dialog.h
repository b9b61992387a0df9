#ifndef VELTRIX_SETTINGS_READER_RFID_DIALOG_H_
#define VELTRIX_SETTINGS_READER_RFID_DIALOG_H_

#include <QDialog>

#include "settings/document.h"

class QCheckBox;
class QLineEdit;

namespace veltrix {

class FieldBinder;

// "RFID" (dialog "RFID_PARAM_DLG"), opened by the "more..." beside "RFID Reader". The switch key
// is claimed as soon as it is chosen; everything else is stored on OK.
class RfidDialog : public QDialog {
  Q_OBJECT

 public:
  RfidDialog(Document& doc, QWidget* parent = nullptr);
  void accept() override;

 private:
  // The delimiter shows as a key name while it is in use.
  void ShowDelimiter();

  FieldBinder* binder_;
  QCheckBox* use_delimiter_;
  QLineEdit* delimiter_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_RFID_DIALOG_H_
