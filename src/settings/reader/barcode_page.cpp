#include "settings/reader/barcode_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "resources/text_qt.h"
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/reader/advanced_barcode_dialog.h"
#include "settings/reader/reader_names.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/rfid_dialog.h"
#include "settings/reader/symbology_dialog.h"

namespace veltrix {
namespace {

constexpr int kSymbologyRows = 9;

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

void Refill(QComboBox* list, std::span<const std::string_view> entries) {
  const QSignalBlocker quiet(list);  // new entries are not the user's choice
  list->clear();
  for (std::string_view entry : entries) list->addItem(QtText(entry));
}

}  // namespace

BarcodePage::BarcodePage(Document& doc, QWidget* parent)
    : SettingsPage(doc, parent), binder_(new FieldBinder(doc, this)) {
  setObjectName("BARCODESETTINGDLG");
  auto* top = new QHBoxLayout;
  top->addWidget(BuildReader(), 0, Qt::AlignTop);
  top->addWidget(BuildSettings(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(BuildSymbologies());
  layout->addStretch();
  binder_->OnChanged([this] {
    if (ReaderPositionOf(this->doc().record[kReaderType.offset]) != shown_reader_) {
      Reload(true);
    } else {
      ShowEnabling();
    }
  });
}

QWidget* BarcodePage::BuildReader() {
  auto* box = new QGroupBox(tr("Reader Type"));
  auto* grid = new QGridLayout(box);
  reader_ = MakeCombo("barcode_reader", kReaderNames);
  auto* label = new QLabel(tr("Barcode Reader :"));
  label->setBuddy(reader_);
  rfid_more_ = MoreButton("rfid_more");
  grid->addWidget(label, 0, 0, 1, 2);
  grid->addWidget(reader_, 1, 0, 1, 2);
  grid->addWidget(MakeCheck("rfid_reader", tr("RFID Reader")), 2, 0);
  grid->addWidget(rfid_more_, 2, 1);
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
    Reload(true);
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
    // Before the binder stores the mark: "Bookland EAN" may start following "EAN13".
    connect(checks_[i], &QCheckBox::clicked, this, [this, i] {
      bookland_follows_ean13_ = BooklandFollowsEan13(bookland_follows_ean13_, kFirstCheckBoxId + i,
                                                     doc().record[kReaderType.offset]);
    });
    connect(more_[i], &QPushButton::clicked, this, [this, i] { OpenMore(i); });
  }
  for (int column : {0, 2, 4}) grid->setColumnStretch(column, 1);
  return box;
}

void BarcodePage::Initialise(Document& /*doc*/) { Reload(false); }

void BarcodePage::Reload(bool keep_rfid) {
  const std::uint8_t reader_type = doc().record[kReaderType.offset];
  const bool two_d = UsesTwoDSet(reader_type);
  const std::uint32_t rfid = ReadNumber(binder_->Pending().record, kRfidReader);
  if (bindings_.lines.empty() || two_d != bound_two_d_) {
    binder_->Unbind();
    bindings_ = ReaderPageBindings(two_d);
    bound_two_d_ = two_d;
    binder_->Bind(bindings_.lines);
  }
  const ReaderSettingLabels& labels = two_d ? kTwoDSettingLabels : kLinearSettingLabels;
  const auto lists = ReaderSettingLists(two_d);
  const std::string_view texts[] = {lists[0].caption, lists[1].caption, labels.number,
                                    labels.number_unit};
  for (std::size_t k = 0; k < setting_labels_.size(); ++k) {
    setting_labels_[k]->setText(QtText(texts[k]));
    setting_labels_[k]->setEnabled(!two_d);
  }
  Refill(first_list_, lists[0].texts);
  Refill(second_list_, lists[1].texts);
  SetTypingLimit(number_, two_d ? 1 : 3);
  shown_reader_ = ReaderPositionOf(reader_type);
  const bool long_range = shown_reader_ == kLongRangeLaser;
  aim_label_->setEnabled(long_range);
  aim_unit_->setEnabled(long_range);

  const auto boxes = ReaderPageCheckBoxes(two_d);
  for (int i = 0; i < kPageCheckBoxCount; ++i) {
    const bool shown = i < static_cast<int>(boxes.size());
    checks_[i]->setVisible(shown);
    checks_[i]->setText(shown ? QtText(boxes[i].text) : QString());
    if (!shown) checks_[i]->setChecked(false);
    more_[i]->setVisible(shown && !boxes[i].more_dialog.empty());
  }
  rfid_more_->setEnabled(MayChangeReader(doc()));
  bookland_follows_ean13_ = two_d;

  binder_->Revert();
  if (keep_rfid) {
    WriteNumber(binder_->Pending().record, kRfidReader, rfid);
    binder_->Load();
  }
  ShowEnabling();
}

void BarcodePage::ShowEnabling() {
  ReaderPageState state = FillReaderPageState(binder_->Pending());
  state.bookland_follows_ean13 = bookland_follows_ean13_;
  for (int i = 0; i < kPageCheckBoxCount; ++i) {
    checks_[i]->setEnabled(PageCheckBoxEnabled(state, kFirstCheckBoxId + i));
    more_[i]->setEnabled(MoreButtonEnabled(state, kFirstCheckBoxId + i));
  }
}

void BarcodePage::OpenMore(int index) {
  const auto boxes = ReaderPageCheckBoxes(reader_->currentIndex() != kLaserCcdReader);
  if (index >= static_cast<int>(boxes.size())) return;
  RunSymbologyDialog(doc(), boxes[index].more_dialog, this);
}

void BarcodePage::Apply(Document& doc) {
  binder_->Commit();
  ApplyReaderPage(doc);
}

}  // namespace veltrix
