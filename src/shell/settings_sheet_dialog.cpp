#include "shell/settings_sheet_dialog.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

#include "resources/text_qt.h"
#include "shell/tool_icons_qt.h"

namespace veltrix {
namespace {

// Every page is 420 x 250 dialog units; a dialog unit is a quarter of the average character
// width across and an eighth of the character height down.
QSize PageSize(const QFontMetrics& metrics) {
  return QSize(420 * metrics.averageCharWidth() / 4, 250 * metrics.height() / 8);
}

}  // namespace

SettingsSheetDialog::SettingsSheetDialog(Document& doc, const SettingsPageRegistry& registry,
                                         QWidget* parent)
    : QDialog(parent),
      doc_(doc),
      registry_(registry),
      lifecycle_(doc, [this](int index) { return CreatePage(index); }) {
  setWindowTitle(QtText(kSheetCaption));
  setWindowIcon(ProgramIcon());
  setModal(true);

  tabs_ = new QTabWidget(this);
  auto& areas = areas_;
  for (int i = 0; i < kSheetPageCount; ++i) {
    // A page larger than the sheet scrolls inside it: the sheet has one size, whatever a page
    // holds, and fits the screen.
    areas[i] = new QScrollArea;
    areas[i]->setFrameShape(QFrame::NoFrame);
    areas[i]->setWidgetResizable(true);
    auto* holder = new QWidget;
    holders_[i] = new QVBoxLayout(holder);
    holders_[i]->setContentsMargins(0, 0, 0, 0);
    areas[i]->setWidget(holder);
    tabs_->addTab(areas[i], QtText(kSheetPages[i].caption));
  }

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  layout->addWidget(buttons);
  // The sheet has the size its pages give it: it cannot be resized or maximised.
  layout->setSizeConstraint(QLayout::SetFixedSize);

  tabs_->setCurrentIndex(0);
  lifecycle_.Open();

  // The pages' size: 420 x 250 dialog units, or what the first page needs when the font makes
  // that more.
  QSize page_size = PageSize(fontMetrics());
  if (pages_[0] != nullptr) page_size = page_size.expandedTo(pages_[0]->minimumSizeHint());
  chrome_ = layout->sizeHint() - tabs_->currentWidget()->sizeHint() + QSize(16, 48);
  FitPages(page_size);
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
    lifecycle_.Show(index);
    // A page that needs more room than the others (the Screen page's 80 columns) widens the
    // sheet once, as far as the screen allows; the sheet never shrinks back while open.
    if (pages_[index] != nullptr) {
      const QSize need = pages_[index]->minimumSizeHint();
      const QSize now = areas_[0]->size();
      if (need.width() > now.width() || need.height() > now.height()) {
        FitPages(now.expandedTo(need));
        adjustSize();
      }
    }
  });
}

void SettingsSheetDialog::FitPages(QSize page_size) {
  // Cut to what the screen leaves around the sheet's tabs, buttons and frame.
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QSize room = screen->availableGeometry().size() - chrome_;
    // A page cut in height scrolls down: leave room beside it for the scroll bar.
    if (page_size.height() > room.height()) {
      page_size.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    page_size = page_size.boundedTo(room).expandedTo(QSize(200, 120));
  }
  for (QScrollArea* area : areas_) area->setFixedSize(page_size);
}

SheetPage* SettingsSheetDialog::CreatePage(int index) {
  SettingsPage* page = registry_.Create(kSheetPages[index].id, doc_, nullptr);
  if (page == nullptr) return nullptr;
  holders_[index]->addWidget(page);
  // A page created while the sheet shows would only appear on the next turn of the event loop.
  page->show();
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
