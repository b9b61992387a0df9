#ifndef VELTRIX_SHELL_FILE_CHOOSER_QT_H_
#define VELTRIX_SHELL_FILE_CHOOSER_QT_H_

#include <QPointer>
#include <QString>
#include <QWidget>

class QFileDialog;

#include "shell/ports.h"

namespace veltrix {

// The file chooser port as the standard open and save dialogs over `parent`. Every dialog starts
// in the folder a file was last chosen in, and is large enough to read its columns.
class QtFileChooser : public FileChooser {
 public:
  explicit QtFileChooser(QWidget* parent) : parent_(parent) {}

  std::optional<std::string> ChooseFileToOpen(const FileFilter& filter,
                                              std::string_view initial) override;
  std::optional<std::string> ChooseFileToSave(const FileFilter& filter,
                                              std::string_view default_extension) override;

  const QString& last_folder() const { return last_folder_; }

 private:
  // Runs the dialog; remembers the chosen file's folder.
  std::optional<std::string> Run(QFileDialog& dialog);

  QPointer<QWidget> parent_;
  QString last_folder_;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_FILE_CHOOSER_QT_H_
