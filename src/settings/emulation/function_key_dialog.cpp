#include "settings/emulation/function_key_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "resources/text_qt.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_names.h"
#include "settings/field.h"
#include "settings/grid/grid_dialog.h"
#include "settings/page_controls_qt.h"

namespace veltrix {

FunctionKeyDialog::FunctionKeyDialog(Document& doc, int key_number, QWidget* parent)
    : QDialog(parent), doc_(doc), key_number_(key_number) {
  setObjectName("FunctionKeyDlg");
  setWindowTitle(QtText(kKeyMappingCaption));
  const KeyMapping mapping = ReadKeyMapping(doc, key_number);
  const auto stored = FieldBytes(std::span<const std::uint8_t>(doc.record), kKeyCode, key_number);
  std::copy_n(stored.begin(), std::min(stored.size(), code_.size()), code_.begin());

  group_ = new QComboBox;
  group_->setObjectName("group");
  for (std::string_view name : KeyGroupNames()) group_->addItem(QtText(name));
  group_value_ = IsRole(mapping.group) ? 0 : mapping.group;
  group_->setCurrentIndex(group_value_ < group_->count() ? group_value_ : -1);
  // The terminal only knows plain keys here: the group is shown, not chosen.
  group_->setEnabled(false);
  host_key_ = new QComboBox;
  host_key_->setObjectName("host_key");
  for (std::string_view name : HostKeyNames()) host_key_->addItem(QtText(name));
  host_key_->setCurrentIndex(mapping.host_key);
  key_code_ = new QLineEdit;
  key_code_->setObjectName("key_code");

  auto* key = new QLabel(QtText(TerminalKeyName(key_number)).trimmed());
  key->setObjectName("key_name");
  auto* row = new QGridLayout;
  row->addWidget(key, 0, 0);
  row->addWidget(new QLabel(QStringLiteral("=>")), 0, 1);
  row->addWidget(group_, 0, 2);
  row->addWidget(new QLabel(QStringLiteral("+")), 0, 3);
  row->addWidget(host_key_, 0, 4);
  auto* code_label = new QLabel(tr("Key Code :"));
  code_label->setBuddy(key_code_);
  row->addWidget(code_label, 1, 0, 1, 2);
  row->addWidget(key_code_, 1, 2, 1, 3);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(row);
  layout->addWidget(MakeOkCancel(this));
  connect(host_key_, &QComboBox::currentIndexChanged, this, &FunctionKeyDialog::ListsChanged);

  AttachGridEditor(
      key_code_, {GridMode::kKeyCodes, [] { return static_cast<int>(kKeyCodeWidth); },
                  [this] { return std::vector<std::uint8_t>(code_.begin(), code_.end()); },
                  [this](std::span<const std::uint8_t> bytes) {
                    code_.fill(0);
                    std::copy_n(bytes.begin(), std::min(bytes.size(), code_.size()), code_.begin());
                  }});
  ShowKeyCode();
  host_key_->setFocus();
}

void FunctionKeyDialog::ListsChanged() {
  code_ = KeyCodeTableEntry(doc_, group_value_, host_key_->currentIndex());
  ShowKeyCode();
}

void FunctionKeyDialog::ShowKeyCode() {
  key_code_->setText(QtText(GridDisplayText(GridMode::kKeyCodes, code_)));
}

void FunctionKeyDialog::accept() {
  ApplyKeyMappingChoice(doc_, key_number_, group_value_, host_key_->currentIndex(), code_);
  QDialog::accept();
}

}  // namespace veltrix
