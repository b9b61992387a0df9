#ifndef VELTRIX_SETTINGS_READER_RFID_DIALOG_H_
#define VELTRIX_SETTINGS_READER_RFID_DIALOG_H_

#include <QDialog>

#include "settings/document.h"
#include "settings/reader/rfid_options.h"

class QButtonGroup;
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
  void ShowEnabling();
  void ShowDelimiter();

  Document& doc_;
  RfidState state_;
  FieldBinder* binder_;
  QCheckBox* read_uid_;
  QCheckBox* read_data_;
  QCheckBox* use_delimiter_;
  QLineEdit* start_;
  QLineEdit* max_len_;
  QLineEdit* delimiter_;
  QLineEdit* delay_;
  QButtonGroup* working_mode_;
  QButtonGroup* control_;
  QButtonGroup* reading_mode_;
  bool loading_ = true;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_RFID_DIALOG_H_
