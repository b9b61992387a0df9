#include "settings/system/system_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <string>
#include <string_view>

#include "resources/fixed_font_qt.h"
#include "resources/text_qt.h"
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"
#include "settings/rewriting_edit_qt.h"
#include "settings/system/system_rules.h"

namespace veltrix {
namespace {

QRadioButton* AddRadio(QButtonGroup* group, const QString& text, int id, const char* name,
                       QLayout* layout) {
  auto* button = new QRadioButton(text);
  button->setObjectName(name);
  group->addButton(button, id);
  layout->addWidget(button);
  return button;
}

QLineEdit* NumberEdit(const char* name, int digits) {
  return MakeEdit(name, {.width = EditShape::Width::kFixed,
                         .characters = digits,
                         .number = true,
                         .right_aligned = true});
}

}  // namespace

SystemPage::SystemPage(Document& doc, QWidget* parent)
    : SettingsPage(doc, parent), editor_(doc), binder_(new FieldBinder(doc, this)) {
  setObjectName("SYSTEM_DLG");
  auto* left = new QVBoxLayout;
  left->addWidget(BuildPowerOnGroup());
  left->addWidget(BuildSecurityGroup());
  left->addWidget(BuildBacklightGroup());
  left->addStretch();

  auto* layout = new QHBoxLayout(this);
  layout->addLayout(left, 0);
  layout->addWidget(BuildRightSide(), 1);
  ConnectControls();
}

QWidget* SystemPage::BuildPowerOnGroup() {
  auto* box = new QGroupBox(tr("Power On"));
  auto* layout = new QVBoxLayout(box);
  power_on_ = new QButtonGroup(this);
  power_on_->setObjectName("power_on");
  AddRadio(power_on_, tr("Resume Program"), 0, "power_resume", layout);
  AddRadio(power_on_, tr("Restart Program"), 1, "power_restart", layout);
  auto* row = new QHBoxLayout;
  auto_power_off_ = NumberEdit("auto_power_off", 5);
  row->addWidget(new QLabel(tr("Auto Power Off :")));
  row->addWidget(auto_power_off_);
  row->addWidget(new QLabel(tr("seconds")));
  row->addStretch();
  layout->addLayout(row);
  return box;
}

QWidget* SystemPage::BuildSecurityGroup() {
  auto* box = new QGroupBox(tr("Security"));
  auto* layout = new QVBoxLayout(box);
  auto* row = new QHBoxLayout;
  password_ = new QLineEdit;
  password_->setObjectName("password");
  password_->setMinimumWidth(password_->fontMetrics().horizontalAdvance(QString(12, '0')));
  auto* label = new QLabel(tr("Password (1 ~ 9 digits) :"));
  label->setBuddy(password_);
  row->addWidget(label);
  row->addWidget(password_);
  layout->addLayout(row);
  for (std::size_t i = 0; i < kSecurityFlags.size(); ++i) {
    // The captions escape "&" as "&&", which a button shows as one "&".
    security_[i] = new QCheckBox(QtText(kSecurityFlags[i].caption));
    security_[i]->setObjectName(QtText(kSecurityFlags[i].field->name));
    layout->addWidget(security_[i]);
  }
  return box;
}

QWidget* SystemPage::BuildBacklightGroup() {
  auto* box = new QGroupBox(tr("Backlight"));
  auto* layout = new QVBoxLayout(box);
  backlight_ = new QButtonGroup(this);
  backlight_->setObjectName("backlight");
  AddRadio(backlight_, tr("Turn Off"), 0, "backlight_off", layout);
  AddRadio(backlight_, tr("Turn On upon power up"), 1, "backlight_on", layout);
  auto* row = new QHBoxLayout;
  idle_ = NumberEdit("idle", 1);
  row->addWidget(new QLabel(tr("Turn off if idle for ")));
  row->addWidget(idle_);
  row->addWidget(new QLabel(tr("(1 ~ 9) * 10 sec")));
  row->addStretch();
  layout->addLayout(row);
  return box;
}

QWidget* SystemPage::BuildRightSide() {
  auto* side = new QWidget;
  auto* grid = new QGridLayout(side);
  grid->setContentsMargins(0, 0, 0, 0);
  screens_ = new QComboBox;
  screens_->setObjectName("prompt_screens");
  // The terminal's texts are fixed-pitch: show them so, so that their widths can be judged.
  const QFont fixed = FixedPitchFont();
  screens_->setFont(fixed);
  // Sized by the longest name ("Emulation Settings (20*8)" padded to 30), not by the product's.
  screens_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  screens_->setMinimumContentsLength(30);
  auto* screens_label = new QLabel(tr("Change Prompts and Messages :"));
  grid->addWidget(screens_label, 0, 0, 1, 2);
  grid->addWidget(screens_, 1, 0, 1, 2);
  for (int k = 0; k < kPromptRowsPerScreen; ++k) {
    row_labels_[k] = new QLabel;
    row_labels_[k]->setObjectName(QStringLiteral("prompt_label_%1").arg(k + 1));
    row_labels_[k]->setFont(fixed);
    row_edits_[k] = new QLineEdit;
    row_edits_[k]->setObjectName(QStringLiteral("prompt_edit_%1").arg(k + 1));
    row_edits_[k]->setFont(fixed);
    // Labels and edits keep their width on every screen: the column never moves.
    const int line_width = QFontMetrics(fixed).horizontalAdvance(QString(21, ' '));
    row_labels_[k]->setFixedWidth(line_width);
    row_edits_[k]->setFixedWidth(line_width + 12);
    // With a buddy the label shows "&&" as one "&", as the terminal's labels expect.
    row_labels_[k]->setBuddy(row_edits_[k]);
    grid->addWidget(row_labels_[k], 2 + k, 0);
    grid->addWidget(row_edits_[k], 2 + k, 1);
  }

  download_via_ = new QComboBox;
  download_via_->setObjectName("download_via");
  for (std::string_view name : kDownloadViaNames) download_via_->addItem(QtText(name));
  baud_rate_ = new QComboBox;
  baud_rate_->setObjectName("baud_rate");
  for (std::string_view name : kBaudRateNames) baud_rate_->addItem(QtText(name));
  key_click_ = new QCheckBox(tr("Key Click"));
  key_click_->setObjectName("key_click");
  reset_ = new QPushButton(tr("Reset"));
  reset_->setObjectName("reset");

  auto* port = new QGridLayout;
  port->addWidget(new QLabel(tr("Download via :")), 0, 0);
  port->addWidget(download_via_, 0, 1);
  port->addWidget(key_click_, 0, 2);
  port->addWidget(new QLabel(tr("Baud Rate :")), 1, 0);
  port->addWidget(baud_rate_, 1, 1);
  port->addWidget(reset_, 1, 2);
  port->setColumnStretch(1, 1);
  grid->setRowMinimumHeight(2 + kPromptRowsPerScreen, 6);
  grid->addLayout(port, 3 + kPromptRowsPerScreen, 0, 1, 2);
  grid->setRowStretch(4 + kPromptRowsPerScreen, 1);
  grid->setColumnStretch(1, 1);
  // Room for the widest label, so the rows do not jump when another screen is chosen.
  grid->setColumnMinimumWidth(0, QFontMetrics(fixed).horizontalAdvance(QString(21, ' ')));
  return side;
}

void SystemPage::ConnectControls() {
  binder_->Bind(SystemBindings());
  connect(screens_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (loading_) return;
    editor_.SelectScreen(index);
    ShowScreen();
  });
  for (int k = 0; k < kPromptRowsPerScreen; ++k) {
    // Only the user's typing stores a line: showing a screen must not cut stored texts.
    connect(row_edits_[k], &QLineEdit::textEdited, this,
            [this, k](const QString& text) { editor_.EditPromptLine(k, ToRecordText(text)); });
  }
  connect(reset_, &QPushButton::clicked, this, [this] {
    editor_.Reset();
    LoadControls();
  });
}

void SystemPage::Initialise(Document& /*doc*/) {
  editor_.Initialise();
  LoadControls();
}

void SystemPage::Apply(Document& /*doc*/) { editor_.Apply(); }

void SystemPage::LoadControls() {
  binder_->Load();
  loading_ = true;
  screens_->clear();
  for (const std::string& name : editor_.ScreenNames()) screens_->addItem(FromRecordText(name));
  screens_->setCurrentIndex(editor_.prompts().selected());
  loading_ = false;
  ShowScreen();
}

void SystemPage::ShowScreen() {
  const auto rows = editor_.Rows();
  for (int k = 0; k < kPromptRowsPerScreen; ++k) {
    row_labels_[k]->setText(FromRecordText(rows[k].label));
    row_edits_[k]->setMaxLength(rows[k].width);
    row_edits_[k]->setText(FromRecordText(rows[k].text));
    row_edits_[k]->setCursorPosition(0);
    row_labels_[k]->setEnabled(rows[k].enabled);
    row_edits_[k]->setEnabled(rows[k].enabled);
  }
}

}  // namespace veltrix
