#include "shell/file_chooser_qt.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>

#include "resources/text_qt.h"

namespace veltrix {
namespace {

// "Settings (*.QVL)": the dialog matches the pattern without regard to case.
QString NameFilter(const FileFilter& filter) {
  QString description = QtText(filter.description);
  const QString pattern = QtText(filter.pattern);
  if (!description.contains(pattern)) description += " (" + pattern + ")";
  return description;
}

}  // namespace

std::optional<std::string> QtFileChooser::Run(QFileDialog& dialog) {
  QSize size(900, 560);
  if (const QScreen* screen = dialog.screen()) {
    size = size.boundedTo(screen->availableGeometry().size() * 9 / 10);
  }
  dialog.resize(size);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString chosen = dialog.selectedFiles().front();
  last_folder_ = QFileInfo(chosen).absolutePath();
  return chosen.toStdString();
}

std::optional<std::string> QtFileChooser::ChooseFileToOpen(const FileFilter& filter,
                                                           std::string_view initial) {
  QFileDialog dialog(parent_, QString(), last_folder_, NameFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (!initial.empty()) dialog.selectFile(QtText(initial));
  return Run(dialog);
}

std::optional<std::string> QtFileChooser::ChooseFileToSave(const FileFilter& filter,
                                                           std::string_view default_extension) {
  QFileDialog dialog(parent_, QString(), last_folder_, NameFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(QtText(default_extension));
  return Run(dialog);
}

}  // namespace veltrix
