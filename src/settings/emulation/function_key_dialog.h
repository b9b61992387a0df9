#ifndef VELTRIX_SETTINGS_EMULATION_FUNCTION_KEY_DIALOG_H_
#define VELTRIX_SETTINGS_EMULATION_FUNCTION_KEY_DIALOG_H_

#include <QDialog>

#include "settings/document.h"
#include "settings/emulation/key_mapping.h"

class QComboBox;
class QLineEdit;

namespace veltrix {

// "Function Key Mapping" for one terminal key: its group (shown, not chosen) and host key, and
// the key code they stand for. OK stores the choice; Cancel changes nothing.
class FunctionKeyDialog : public QDialog {
  Q_OBJECT

 public:
  FunctionKeyDialog(Document& doc, int key_number, QWidget* parent = nullptr);
  void accept() override;

 private:
  // Either list changed: the key code becomes the table's code for the pair.
  void ListsChanged();
  void ShowKeyCode();

  Document& doc_;
  int key_number_;
  KeyCodeBytes code_{};
  // The key's group as stored: the list (shown, not chosen) holds only 0-2, a file may hold more.
  int group_value_ = 0;
  QComboBox* group_;
  QComboBox* host_key_;
  QLineEdit* key_code_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_FUNCTION_KEY_DIALOG_H_
