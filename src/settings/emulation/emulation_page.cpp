#include "settings/emulation/emulation_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "resources/text_qt.h"
#include "settings/emulation/emulation_choices.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_key_dialog.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_names.h"
#include "settings/field_binder_qt.h"
#include "settings/page_controls_qt.h"

namespace veltrix {
namespace {

QLineEdit* Edit(const char* name, int characters, bool digits_only) {
  return MakeEdit(name, {.width = EditShape::Width::kAtMost,
                         .characters = characters,
                         .number = true,
                         .digits_only = digits_only});
}

constexpr std::string_view kFontSizes[] = {"Small (6x8)", "Large (8x16)"};

}  // namespace

EmulationPage::EmulationPage(Document& doc, QWidget* parent)
    : SettingsPage(doc, parent), binder_(new FieldBinder(doc, this)) {
  setObjectName("EMULATION_DLG");

  auto* top = new QHBoxLayout;
  auto* language = MakeCombo("language", LanguageChoices());
  auto* language_label = new QLabel(tr("Language:"));
  language_label->setBuddy(language);
  auto* reset = new QPushButton(tr("Reset"));
  reset->setObjectName("reset");
  top->addWidget(language_label);
  top->addWidget(language);
  top->addStretch();
  top->addWidget(reset);

  auto* font_box = new QGroupBox(tr("Font Size"));
  auto* font_layout = new QVBoxLayout(font_box);
  MakeRadios(this, "font_size", kFontSizes, font_layout);

  auto* length_box = new QGroupBox(tr("Field Length if Exceed"));
  auto* length_layout = new QVBoxLayout(length_box);
  MakeRadios(this, "field_length", FieldLengthChoices(), length_layout);

  auto* lock_box = new QGroupBox(tr("Lock Screen"));
  auto* lock_layout = new QGridLayout(lock_box);
  AddFormRow(lock_layout, 0, tr("X"), Edit("view_org_x", 2, true));
  AddFormRow(lock_layout, 1, tr("Y"), Edit("view_org_y", 2, true));
  lock_layout->addWidget(MakeCheck("lock_screen", tr("Lock Screen")), 2, 0, 1, 2);

  auto* scroll_box = new QGroupBox(tr("Screen Scroll && Control"));
  auto* scroll = new QGridLayout(scroll_box);
  AddFormRow(scroll, 0, tr("Navigator :"), MakeCombo("navigator", NavigatorChoices()));
  AddFormRow(scroll, 1, tr("Navigator Key :"), MakeCombo("navigator_key", KeyFieldChoices()));
  AddFormRow(scroll, 2, tr("Horizontal Steps :"), Edit("horizontal_steps", 3, false));
  AddFormRow(scroll, 3, tr("Vertical Steps :"), Edit("vertical_steps", 3, false));
  scroll->addWidget(MakeCheck("cursor_tracking", tr("Cursor Tracking")), 4, 0, 1, 2);
  scroll->addWidget(MakeCheck("trim_spaces", tr("Trim Spaces")), 5, 0, 1, 2);
  scroll->addWidget(MakeCheck("remove_empty_line", tr("Remove Empty Line")), 6, 0, 1, 2);
  // Kept as the terminal's page has it: present, bound, never shown.
  QCheckBox* echo = MakeCheck("disable_local_echo", tr("Disable Local Echo"));
  echo->setParent(scroll_box);
  echo->hide();

  auto* message_box = new QGroupBox(tr("Message"));
  auto* message = new QGridLayout(message_box);
  auto* lines = new QComboBox;
  lines->setObjectName("message_line");
  for (int n = 1; n <= 24; ++n) lines->addItem(QString::number(n));
  AddFormRow(message, 0, tr("Line Number"), lines);
  AddFormRow(message, 1, tr("Function Key"), MakeCombo("message_key", KeyFieldChoices()));
  AddFormRow(message, 2, tr("Time Out (Second)"), Edit("message_time_out", 3, true));
  QLineEdit* exclude = Edit("exclude_string", 19, false);
  exclude->setMaxLength(static_cast<int>(kExcludeString.width) - 1);
  AddFormRow(message, 3, tr("Exclude String"), exclude);

  auto* left = new QVBoxLayout;
  left->addWidget(font_box);
  left->addWidget(length_box);
  left->addWidget(lock_box);
  left->addStretch();
  auto* middle = new QVBoxLayout;
  middle->addWidget(scroll_box);
  middle->addWidget(message_box);
  middle->addStretch();
  auto* columns = new QHBoxLayout;
  columns->addLayout(left);
  columns->addLayout(middle);
  columns->addWidget(BuildMapping(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(columns, 1);

  binder_->Bind(EmulationBindings());
  // A key combo may claim or release a key of the mapping.
  binder_->OnChanged([this] { ShowMapping(); });
  connect(reset, &QPushButton::clicked, this, [this] {
    ResetEmulationSection(this->doc());
    binder_->Load();
    ShowMapping();
  });
}

QWidget* EmulationPage::BuildMapping() {
  auto* box = new QGroupBox(tr("Function Key Mapping"));
  // The 39 rows scroll within the group, so the page keeps the sheet's size.
  auto* rows = new QWidget;
  auto* grid = new QGridLayout(rows);
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(4);
  const std::span<const int> keys = MappingRowKeys();
  for (int row = 0; row < kMappingRowCount; ++row) {
    const int key = keys[static_cast<std::size_t>(row)];
    auto* button = new QPushButton(QtText(MappingButtonText(row)));
    button->setObjectName(QStringLiteral("key_%1").arg(key));
    button->setMaximumWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("Insert")) + 18);
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("key_label_%1").arg(key));
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("Navigator Key")));
    grid->addWidget(button, row, 0);
    grid->addWidget(new QLabel(QStringLiteral("=>")), row, 1);
    grid->addWidget(label, row, 2);
    key_buttons_[static_cast<std::size_t>(row)] = button;
    key_labels_[static_cast<std::size_t>(row)] = label;
    connect(button, &QPushButton::clicked, this, [this, key] {
      FunctionKeyDialog dialog(doc(), key, this);
      if (dialog.exec() == QDialog::Accepted) ShowMapping();
    });
  }
  auto* scroll = new QScrollArea;
  scroll->setObjectName("key_mapping");
  scroll->setWidget(rows);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setMinimumWidth(rows->sizeHint().width() +
                          scroll->verticalScrollBar()->sizeHint().width());
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(scroll);
  return box;
}

void EmulationPage::Initialise(Document& doc) {
  ApplyKeyAvailability(doc);
  binder_->Load();
  ShowMapping();
}

// The Wireless LAN and Barcode pages may have claimed keys meanwhile.
void EmulationPage::SetActive(Document& /*doc*/) {
  binder_->Load();
  ShowMapping();
}

void EmulationPage::ShowMapping() {
  const std::span<const int> keys = MappingRowKeys();
  for (int row = 0; row < kMappingRowCount; ++row) {
    const int key = keys[static_cast<std::size_t>(row)];
    key_labels_[static_cast<std::size_t>(row)]->setText(QtText(MappingLabel(doc(), key)));
    key_buttons_[static_cast<std::size_t>(row)]->setEnabled(MappingRowEnabled(doc(), key));
  }
}

}  // namespace veltrix
