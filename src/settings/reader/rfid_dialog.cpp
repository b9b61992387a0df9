#include "settings/reader/rfid_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <array>
#include <string_view>

#include "resources/text_qt.h"
#include "settings/emulation/key_names.h"
#include "settings/field_binder_qt.h"
#include "settings/grid/char_grid.h"
#include "settings/grid/grid_dialog.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/number_box.h"

namespace veltrix {
namespace {

constexpr std::array<std::string_view, 2> kWorkingModes{"Toggle", "Hybrid"};
constexpr std::array<std::string_view, 2> kControls{"Always Enable", "By 5250 Command"};
constexpr std::array<std::string_view, 2> kReadingModes{"Trigger", "Continous"};

QButtonGroup* RadioPair(QWidget* owner, const char* name, const QString& title,
                        std::span<const std::string_view> captions, int checked,
                        QVBoxLayout* column) {
  auto* box = new QGroupBox(title);
  auto* layout = new QVBoxLayout(box);
  QButtonGroup* group = MakeRadios(owner, name, captions, layout);
  group->button(checked)->setChecked(true);
  column->addWidget(box);
  return group;
}

}  // namespace

RfidDialog::RfidDialog(Document& doc, QWidget* parent)
    : QDialog(parent),
      doc_(doc),
      state_(OpenRfidOptions(doc)),
      binder_(new FieldBinder(doc, this)) {
  setObjectName("RFID_PARAM_DLG");
  setWindowTitle(tr("RFID"));

  auto* data = new QGroupBox(tr("Data"));
  auto* grid = new QGridLayout(data);
  read_uid_ = MakeCheck("read_uid", tr("Read UID"));
  read_data_ = MakeCheck("read_data", tr("Read Data"));
  use_delimiter_ = MakeCheck("use_delimiter", tr("Use Delimiter"));
  start_ = MakeNumberEdit("start", 5);
  max_len_ = MakeNumberEdit("max_len", 5);
  delimiter_ = new QLineEdit;
  delimiter_->setObjectName("delimiter");
  delay_ = MakeNumberEdit("delay_before_reread", 5);
  grid->addWidget(read_uid_, 0, 0, 1, 2);
  grid->addWidget(read_data_, 1, 0, 1, 2);
  AddFormRow(grid, 2, tr("Start"), start_);
  AddFormRow(grid, 3, tr("Max Len"), max_len_);
  grid->addWidget(use_delimiter_, 4, 0);
  grid->addWidget(delimiter_, 4, 1);
  AddFormRow(grid, 5, tr("Delay before Reread(0.1s)"), delay_);
  grid->setRowStretch(6, 1);
  delimiter_->setMaximumWidth(start_->maximumWidth() * 2);

  read_uid_->setChecked(state_.read_uid);
  read_data_->setChecked(state_.read_data);
  use_delimiter_->setChecked(state_.use_delimiter);
  ShowNumber(start_, state_.start);
  ShowNumber(max_len_, state_.max_len);
  ShowNumber(delay_, state_.delay);
  const auto active = [this] { return !loading_; };
  BindNumberBox(start_, kRfidLengthBox, active);
  BindNumberBox(max_len_, kRfidLengthBox, active);
  BindNumberBox(delay_, kRfidDelayBox, active);
  AttachGridEditor(delimiter_, {GridMode::kKeyNames, [] { return 1; },
                                [this] {
                                  return state_.delimiter != 0
                                             ? std::vector<std::uint8_t>{state_.delimiter}
                                             : std::vector<std::uint8_t>{};
                                },
                                [this](std::span<const std::uint8_t> bytes) {
                                  state_.delimiter = bytes.empty() ? 0 : bytes[0];
                                }});

  auto* modes = new QVBoxLayout;
  working_mode_ = RadioPair(this, "working_mode", tr("Working Mode"), kWorkingModes,
                            state_.working_mode, modes);
  control_ = RadioPair(this, "control", tr("Control"), kControls, state_.control, modes);
  reading_mode_ = RadioPair(this, "reading_mode", tr("Reading Mode"), kReadingModes,
                            state_.reading_mode, modes);

  auto* key_row = new QHBoxLayout;
  QComboBox* key = MakeCombo("switch_key", KeyFieldChoices());
  auto* key_label = new QLabel(tr("SwitchKey"));
  key_label->setBuddy(key);
  key_row->addWidget(key_label);
  key_row->addWidget(key);
  key_row->addStretch();

  auto* columns = new QHBoxLayout;
  columns->addWidget(data, 1);
  columns->addLayout(modes);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addLayout(key_row);
  layout->addWidget(MakeOkCancel(this));
  binder_->Bind(RfidBindings());
  binder_->Load();

  connect(read_data_, &QCheckBox::toggled, this, [this] { ShowEnabling(); });
  connect(use_delimiter_, &QCheckBox::toggled, this, [this] {
    ShowEnabling();
    ShowDelimiter();
  });
  ShowEnabling();
  ShowDelimiter();
  loading_ = false;
}

void RfidDialog::ShowEnabling() {
  const RfidEnabling enabling = RfidControlsEnabled(
      {.read_data = read_data_->isChecked(), .use_delimiter = use_delimiter_->isChecked()});
  start_->setEnabled(enabling.start_and_max_len);
  max_len_->setEnabled(enabling.start_and_max_len);
  delimiter_->setEnabled(enabling.delimiter);
}

// The delimiter shows as a key name while it is in use.
void RfidDialog::ShowDelimiter() {
  const std::uint8_t code[] = {state_.delimiter};
  delimiter_->setText(use_delimiter_->isChecked()
                          ? QtText(GridDisplayText(GridMode::kKeyNames, code)).trimmed()
                          : QString());
}

void RfidDialog::accept() {
  state_.read_uid = read_uid_->isChecked();
  state_.read_data = read_data_->isChecked();
  state_.use_delimiter = use_delimiter_->isChecked();
  state_.start = NumberBoxValue(start_, kRfidLengthBox);
  state_.max_len = NumberBoxValue(max_len_, kRfidLengthBox);
  state_.delay = NumberBoxValue(delay_, kRfidDelayBox);
  state_.working_mode = working_mode_->checkedId();
  state_.control = control_->checkedId();
  state_.reading_mode = reading_mode_->checkedId();
  ApplyRfidOptions(doc_, state_);
  QDialog::accept();
}

}  // namespace veltrix
