#ifndef VELTRIX_SETTINGS_READER_BARCODE_PAGE_H_
#define VELTRIX_SETTINGS_READER_BARCODE_PAGE_H_

#include <array>

#include "settings/field_binding.h"
#include "settings/reader/reader_page_rules.h"
#include "settings/settings_page.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace veltrix {

class FieldBinder;

// The "Barcode" page of the settings sheet (dialog "BARCODESETTINGDLG"): the reader, its
// settings and the symbologies of the set the reader uses, each with its "more..." dialog.
// Unlike the other pages it keeps no snapshot: the reader list writes the record at once, the
// dialogs write the working blocks or the record on their OK, and the page's own controls wait in
// its binder until the sheet's OK, when both working blocks go into the record.
class BarcodePage : public SettingsPage {
  Q_OBJECT

 public:
  BarcodePage(Document& doc, QWidget* parent = nullptr);

  void Initialise(Document& doc) override;
  void Apply(Document& doc) override;

 private:
  QWidget* BuildReader();
  QWidget* BuildSettings();
  QWidget* BuildSymbologies();
  // The controls of the set in use bound again, showing the record (the unsaved "RFID Reader"
  // mark kept); labels, list entries, check box captions and "more..." buttons for the reader.
  void Reload(bool keep_rfid);
  // Enabling that follows the reader and the marks ("Bookland EAN" follows "EAN13").
  void ShowEnabling();
  void OpenMore(int index);

  FieldBinder* binder_ = nullptr;
  OwnedBindings bindings_;
  bool bound_two_d_ = false;
  int shown_reader_ = -1;
  QComboBox* reader_ = nullptr;
  QPushButton* rfid_more_ = nullptr;
  std::array<QLabel*, 4> setting_labels_{};  // the two lists, box 201, its unit
  QComboBox* first_list_ = nullptr;
  QComboBox* second_list_ = nullptr;
  QLineEdit* number_ = nullptr;
  QLabel* aim_label_ = nullptr;
  QLineEdit* aim_ = nullptr;
  QLabel* aim_unit_ = nullptr;
  std::array<QCheckBox*, kPageCheckBoxCount> checks_{};
  std::array<QPushButton*, kPageCheckBoxCount> more_{};
  // "Bookland EAN" follows "EAN13" (see ReaderPageState).
  bool bookland_follows_ean13_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_BARCODE_PAGE_H_
