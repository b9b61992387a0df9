#ifndef VELTRIX_SHELL_FILE_CHOOSER_QT_H_
#define VELTRIX_SHELL_FILE_CHOOSER_QT_H_

#include <QPointer>
#include <QWidget>

#include "shell/ports.h"

namespace veltrix {

// The file chooser port as the standard open and save dialogs over `parent`.
class QtFileChooser : public FileChooser {
 public:
  explicit QtFileChooser(QWidget* parent) : parent_(parent) {}

  std::optional<std::string> ChooseFileToOpen(const FileFilter& filter,
                                              std::string_view initial) override;
  std::optional<std::string> ChooseFileToSave(const FileFilter& filter,
                                              std::string_view default_extension) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_FILE_CHOOSER_QT_H_
