#ifndef VELTRIX_SHELL_ABOUT_DIALOG_H_
#define VELTRIX_SHELL_ABOUT_DIALOG_H_

#include <QDialog>

class QLabel;
class QTextEdit;

namespace veltrix {

// "The Veltrix": the product line with the version, the rights line and the licence agreement
// in a read-only fixed-pitch text. OK ends it with 1, Cancel (Esc) with 0.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent = nullptr);

  QLabel* product_line() const { return product_line_; }
  QLabel* rights_line() const { return rights_line_; }
  QTextEdit* licence() const { return licence_; }

 private:
  QLabel* product_line_;
  QLabel* rights_line_;
  QTextEdit* licence_;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_ABOUT_DIALOG_H_
