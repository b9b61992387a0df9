#include "shell/settings_sheet_dialog.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QTabWidget>
#include <QVBoxLayout>

#include "shell/tool_icons_qt.h"

namespace veltrix {
namespace {

// Every page is 420 x 250 dialog units; a dialog unit is a quarter of the average character
// width across and an eighth of the character height down.
QSize PageSize(const QFontMetrics& metrics) {
  return QSize(420 * metrics.averageCharWidth() / 4, 250 * metrics.height() / 8);
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

}  // namespace

SettingsSheetDialog::SettingsSheetDialog(Document& doc, const SettingsPageRegistry& registry,
                                         QWidget* parent)
    : QDialog(parent),
      doc_(doc),
      registry_(registry),
      lifecycle_(doc, [this](int index) { return CreatePage(index); }) {
  setWindowTitle(Text(kSheetCaption));
  setWindowIcon(ProgramIcon());
  setModal(true);

  tabs_ = new QTabWidget(this);
  const QSize page_size = PageSize(fontMetrics());
  for (int i = 0; i < kSheetPageCount; ++i) {
    auto* holder = new QWidget;
    holder->setMinimumSize(page_size);
    holders_[i] = new QVBoxLayout(holder);
    holders_[i]->setContentsMargins(0, 0, 0, 0);
    tabs_->addTab(holder, Text(kSheetPages[i].caption));
  }

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  layout->addWidget(buttons);

  tabs_->setCurrentIndex(0);
  lifecycle_.Open();
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { lifecycle_.Show(index); });
}

SheetPage* SettingsSheetDialog::CreatePage(int index) {
  SettingsPage* page = registry_.Create(kSheetPages[index].id, doc_, nullptr);
  if (page == nullptr) return nullptr;
  holders_[index]->addWidget(page);
  pages_[index] = page;
  return page;
}

void SettingsSheetDialog::accept() {
  if (!closed_) {
    closed_ = true;
    lifecycle_.Ok();
  }
  QDialog::accept();
}

void SettingsSheetDialog::reject() {
  if (!closed_) {
    closed_ = true;
    lifecycle_.Cancel();
  }
  QDialog::reject();
}

}  // namespace veltrix
