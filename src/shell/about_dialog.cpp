#include "shell/about_dialog.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTextEdit>
#include <QVBoxLayout>

#include "resources/fixed_font_qt.h"
#include "resources/text_qt.h"
#include "shell/about_text.h"
#include "shell/tool_icons_qt.h"

namespace veltrix {
namespace {

// The licence text's fixed-pitch font, about 16 pixels per line and 8 per character.
QFont LicenceFont() {
  QFont font = FixedPitchFont();
  font.setPixelSize(13);
  return font;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle(QtText(kAboutTitle));
  setModal(true);

  auto* icon = new QLabel(this);
  icon->setPixmap(ProgramIcon().pixmap(32, 32));
  icon->setAlignment(Qt::AlignTop);

  product_line_ = new QLabel(QString::fromStdString(AboutProductLine()), this);
  product_line_->setObjectName("product_line");  // control 740
  QFont bold = product_line_->font();
  bold.setBold(true);
  product_line_->setFont(bold);
  rights_line_ = new QLabel(QString::fromStdString(AboutRightsLine()), this);
  rights_line_->setObjectName("rights_line");  // control 741

  licence_ = new QTextEdit(this);
  licence_->setObjectName("licence_text");  // control 201
  licence_->setReadOnly(true);
  licence_->setAcceptRichText(false);
  licence_->setLineWrapMode(QTextEdit::NoWrap);
  licence_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  licence_->setFont(LicenceFont());
  licence_->setPlainText(QString::fromStdString(LicenceText()));
  const QFontMetrics metrics(licence_->font());
  licence_->setMinimumSize(metrics.horizontalAdvance(QString(86, 'M')) + 30,
                           metrics.lineSpacing() * 14);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

  auto* lines = new QVBoxLayout;
  lines->addWidget(product_line_);
  lines->addWidget(rights_line_);
  auto* heading = new QHBoxLayout;
  heading->addWidget(icon);
  heading->addLayout(lines, 1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(heading);
  layout->addWidget(licence_, 1);
  layout->addWidget(buttons);
}

}  // namespace veltrix
