#ifndef VELTRIX_SHELL_USER_PROMPT_QT_H_
#define VELTRIX_SHELL_USER_PROMPT_QT_H_

#include <QPointer>
#include <QWidget>

#include "shell/ports.h"

namespace veltrix {

// The user prompt port as modal message boxes over `parent`.
class QtUserPrompt : public UserPrompt {
 public:
  explicit QtUserPrompt(QWidget* parent) : parent_(parent) {}

  void ShowMessage(std::string_view caption, std::string_view text, PromptIcon icon) override;
  PromptAnswer AskYesNoCancel(std::string_view caption, std::string_view text) override;
  bool AskYesNo(std::string_view caption, std::string_view text) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_USER_PROMPT_QT_H_
