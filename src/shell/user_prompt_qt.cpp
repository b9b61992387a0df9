#include "shell/user_prompt_qt.h"

#include <QMessageBox>

#include "resources/text_qt.h"

namespace veltrix {
namespace {

QMessageBox::Icon BoxIcon(PromptIcon icon) {
  switch (icon) {
    case PromptIcon::kInformation:
      return QMessageBox::Information;
    case PromptIcon::kExclamation:
      return QMessageBox::Warning;
    case PromptIcon::kQuestion:
      return QMessageBox::Question;
    case PromptIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

void QtUserPrompt::ShowMessage(std::string_view caption, std::string_view text, PromptIcon icon) {
  QMessageBox box(BoxIcon(icon), QtText(caption), QtText(text), QMessageBox::Ok, parent_);
  box.exec();
}

PromptAnswer QtUserPrompt::AskYesNoCancel(std::string_view caption, std::string_view text) {
  QMessageBox box(QMessageBox::Question, QtText(caption), QtText(text),
                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, parent_);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::Cancel);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return PromptAnswer::kYes;
    case QMessageBox::No:
      return PromptAnswer::kNo;
    default:
      return PromptAnswer::kCancel;
  }
}

bool QtUserPrompt::AskYesNo(std::string_view caption, std::string_view text) {
  return QMessageBox::question(parent_, QtText(caption), QtText(text),
                               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace veltrix
