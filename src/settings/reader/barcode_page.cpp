#include "settings/reader/barcode_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "resources/text_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/advanced_barcode_dialog.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/rfid_dialog.h"
#include "settings/reader/symbology_dialog.h"

namespace veltrix {
namespace {

constexpr int kSymbologyRows = 9;
// Only product 3 may change the reader and open the RFID settings.
constexpr int kReaderProduct = 3;

// Hidden controls keep their place, so that the columns stay aligned in both sets.
template <typename Widget>
Widget* KeepingItsPlace(Widget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

QPushButton* MoreButton(const QString& name) {
  auto* button = new QPushButton(QObject::tr("more..."));
  button->setObjectName(name);
  button->setFixedWidth(button->fontMetrics().horizontalAdvance(button->text()) + 14);
  return KeepingItsPlace(button);
}

// A stored value no entry stands for (from a loaded file) selects the nearest entry.
void Refill(QComboBox* list, std::span<const std::string_view> entries, int selected) {
  list->clear();
  for (std::string_view entry : entries) list->addItem(QtText(entry));
  list->setCurrentIndex(std::clamp(selected, 0, list->count() - 1));
}

}  // namespace

BarcodePage::BarcodePage(Document& doc, QWidget* parent) : SettingsPage(doc, parent) {
  setObjectName("BARCODESETTINGDLG");
  auto* top = new QHBoxLayout;
  top->addWidget(BuildReader(), 0, Qt::AlignTop);
  top->addWidget(BuildSettings(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(BuildSymbologies());
  layout->addStretch();
}

QWidget* BarcodePage::BuildReader() {
  auto* box = new QGroupBox(tr("Reader Type"));
  auto* grid = new QGridLayout(box);
  reader_ = MakeCombo("barcode_reader", kReaderNames);
  auto* label = new QLabel(tr("Barcode Reader :"));
  label->setBuddy(reader_);
  rfid_ = MakeCheck("rfid_reader", tr("RFID Reader"));
  rfid_more_ = MoreButton("rfid_more");
  grid->addWidget(label, 0, 0, 1, 2);
  grid->addWidget(reader_, 1, 0, 1, 2);
  grid->addWidget(rfid_, 2, 0);
  grid->addWidget(rfid_more_, 2, 1);
  connect(reader_, &QComboBox::currentIndexChanged, this, [this](int position) {
    if (loading_ || position < 0) return;
    ChooseReader(doc(), position);
    Fill();
  });
  connect(rfid_more_, &QPushButton::clicked, this, [this] {
    RfidDialog dialog(doc(), this);
    dialog.exec();
  });
  return box;
}

QWidget* BarcodePage::BuildSettings() {
  auto* box = new QGroupBox(tr("Reader Settings"));
  auto* grid = new QGridLayout(box);
  first_list_ = new QComboBox;
  first_list_->setObjectName("scan_mode");
  second_list_ = new QComboBox;
  second_list_->setObjectName("read_redundancy");
  number_ = MakeNumberEdit("time_out", 3);
  aim_ = MakeNumberEdit("aim_duration", 3);
  for (QLabel*& label : setting_labels_) label = new QLabel;
  setting_labels_[0]->setBuddy(first_list_);
  setting_labels_[1]->setBuddy(second_list_);
  setting_labels_[2]->setBuddy(number_);
  aim_label_ = new QLabel(tr("AIM Duration :"));
  aim_label_->setBuddy(aim_);
  aim_unit_ = new QLabel(tr("sec"));
  grid->addWidget(setting_labels_[0], 0, 0);
  grid->addWidget(first_list_, 0, 1, 1, 2);
  grid->addWidget(setting_labels_[1], 1, 0);
  grid->addWidget(second_list_, 1, 1, 1, 2);
  grid->addWidget(setting_labels_[2], 2, 0);
  grid->addWidget(number_, 2, 1);
  grid->addWidget(setting_labels_[3], 2, 2);
  grid->addWidget(aim_label_, 3, 0);
  grid->addWidget(aim_, 3, 1);
  grid->addWidget(aim_unit_, 3, 2);
  grid->setColumnStretch(2, 1);
  BindNumberBox(number_, kTimeOutBox, [this] { return !loading_; });
  BindNumberBox(aim_, kAimDurationBox, [this] { return !loading_; });

  auto* code_id = new QPushButton(tr("Code ID"));
  code_id->setObjectName("code_id");
  auto* reset = new QPushButton(tr("Reset to default"));
  reset->setObjectName("reset_to_default");
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(code_id);
  buttons->addWidget(reset);
  buttons->addStretch();
  grid->addLayout(buttons, 0, 3, 4, 1);
  connect(code_id, &QPushButton::clicked, this, [this] {
    AdvancedBarcodeDialog dialog(doc(), this);
    dialog.exec();
  });
  connect(reset, &QPushButton::clicked, this, [this] {
    SetReaderDefaults(doc());
    Fill();
  });
  return box;
}

QWidget* BarcodePage::BuildSymbologies() {
  auto* box = new QGroupBox(tr("Barcode && Parameters"));
  auto* grid = new QGridLayout(box);
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(4);
  for (int i = 0; i < kPageCheckBoxCount; ++i) {
    checks_[i] = KeepingItsPlace(MakeCheck(QStringLiteral("symbology_%1").arg(i + 1), QString()));
    more_[i] = MoreButton(QStringLiteral("more_%1").arg(i + 1));
    const int row = i % kSymbologyRows;
    const int column = 2 * (i / kSymbologyRows);
    grid->addWidget(checks_[i], row, column);
    grid->addWidget(more_[i], row, column + 1);
    connect(checks_[i], &QCheckBox::toggled, this, [this, i] {
      if (loading_) return;
      PageCheckBoxToggled(filled_, kFirstCheckBoxId + i, doc().record[kReaderType.offset]);
      ShowEnabling();
    });
    connect(more_[i], &QPushButton::clicked, this, [this, i] { OpenMore(i); });
  }
  for (int column : {0, 2, 4}) grid->setColumnStretch(column, 1);
  return box;
}

void BarcodePage::Initialise(Document& doc) {
  rfid_->setChecked(ReadNumber(doc.record, kRfidReader) != 0);
  Fill();
}

void BarcodePage::Fill() {
  loading_ = true;
  const ReaderPageState state = FillReaderPageState(doc());
  filled_ = state;
  const bool two_d = state.reader != kLaserCcdReader;
  const ReaderSettingLabels& labels = two_d ? kTwoDSettingLabels : kLinearSettingLabels;
  const std::string_view texts[] = {labels.first_list, labels.second_list, labels.number,
                                    labels.number_unit};
  for (std::size_t k = 0; k < setting_labels_.size(); ++k) {
    setting_labels_[k]->setText(QtText(texts[k]));
  }
  reader_->setCurrentIndex(state.reader);
  if (two_d) {
    Refill(first_list_, kTwoDList401Names, state.first_list);
    Refill(second_list_, kTwoDList402Names, state.second_list);
  } else {
    Refill(first_list_, kScanModeNames, state.first_list);
    Refill(second_list_, kReadRedundancyNames, state.second_list);
  }
  SetTypingLimit(number_, two_d ? 1 : 3);
  ShowNumber(number_, state.number);
  ShowNumber(aim_, state.aim_duration);
  for (QWidget* control :
       std::initializer_list<QWidget*>{setting_labels_[0], setting_labels_[1], setting_labels_[2],
                                       setting_labels_[3], first_list_, second_list_, number_}) {
    control->setEnabled(!two_d);
  }
  for (QWidget* control : std::initializer_list<QWidget*>{aim_label_, aim_, aim_unit_}) {
    control->setEnabled(state.reader == kLongRangeLaser);
  }

  const auto boxes = ReaderPageCheckBoxes(two_d);
  for (int i = 0; i < kPageCheckBoxCount; ++i) {
    const bool shown = i < static_cast<int>(boxes.size());
    checks_[i]->setVisible(shown);
    checks_[i]->setText(shown ? QtText(boxes[i].text) : QString());
    checks_[i]->setChecked(shown && state.checked[i]);
    more_[i]->setVisible(shown && !boxes[i].more_dialog.empty());
  }
  const bool may_change_reader = doc().product() == kReaderProduct;
  reader_->setEnabled(may_change_reader);
  rfid_more_->setEnabled(may_change_reader);
  ShowEnabling();
  loading_ = false;
}

void BarcodePage::ShowEnabling() {
  const ReaderPageState state = Controls();
  for (int i = 0; i < kPageCheckBoxCount; ++i) {
    checks_[i]->setEnabled(PageCheckBoxEnabled(state, kFirstCheckBoxId + i));
    more_[i]->setEnabled(MoreButtonEnabled(state, kFirstCheckBoxId + i));
  }
}

ReaderPageState BarcodePage::Controls() const {
  // Disabled settings keep what the record held, even a value no entry or box can show.
  ReaderPageState state = filled_;
  state.reader = std::max(reader_->currentIndex(), 0);
  state.rfid = rfid_->isChecked();
  if (first_list_->isEnabled()) {
    state.first_list = first_list_->currentIndex();
    state.second_list = second_list_->currentIndex();
    state.number = NumberBoxValue(number_, kTimeOutBox);  // corrected as it was typed
  }
  if (aim_->isEnabled()) state.aim_duration = NumberBoxValue(aim_, kAimDurationBox);
  for (int i = 0; i < kPageCheckBoxCount; ++i) state.checked[i] = checks_[i]->isChecked();
  return state;
}

void BarcodePage::OpenMore(int index) {
  const auto boxes = ReaderPageCheckBoxes(reader_->currentIndex() != kLaserCcdReader);
  if (index >= static_cast<int>(boxes.size())) return;
  RunSymbologyDialog(doc(), boxes[index].more_dialog, this);
}

void BarcodePage::Apply(Document& doc) { ApplyReaderPage(doc, Controls()); }

}  // namespace veltrix
