#include "shell/unavailable_page.h"

#include <QLabel>
#include <QVBoxLayout>

namespace veltrix {

UnavailablePage::UnavailablePage(Document& doc, const QString& caption, QWidget* parent)
    : SettingsPage(doc, parent) {
  auto* layout = new QVBoxLayout(this);
  auto* label =
      new QLabel(tr("The %1 settings are not available in this build.").arg(caption), this);
  label->setObjectName("unavailable_text");
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  layout->addWidget(label);
}

}  // namespace veltrix
