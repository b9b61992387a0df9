#ifndef VELTRIX_TESTS_SUPPORT_MODAL_H_
#define VELTRIX_TESTS_SUPPORT_MODAL_H_

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace veltrix::testing {

// Runs `act` on the next modal window that opens (a dialog or a message box) once it shows:
// call it before the click that opens the window, whose exec() then runs until `act` closes it.
inline void WhenModal(std::function<void(QWidget*)> act, QWidget* current = nullptr,
                      int tries = 0) {
  QTimer::singleShot(tries == 0 ? 0 : 5, [act, current, tries] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != current && modal->isVisible()) {
      act(modal);
    } else if (tries < 1000) {
      WhenModal(act, current, tries + 1);
    }
  });
}

// The text of the next message box, which is closed with its default button.
inline void AnswerMessageBox(QString* text, QWidget* current = nullptr) {
  WhenModal(
      [text](QWidget* w) {
        if (auto* box = qobject_cast<QMessageBox*>(w)) {
          *text = box->windowTitle() + ": " + box->text();
          box->accept();
        } else {
          w->close();
        }
      },
      current);
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_MODAL_H_
