#ifndef VELTRIX_TN5250_HOST_IP_DIALOG_H_
#define VELTRIX_TN5250_HOST_IP_DIALOG_H_

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "tn5250/host_ip.h"

namespace veltrix {

// "Host IP": asks for the host address as four octets and whether to save the session log.
// The form keeps the octets between openings; the dialog only wires the widgets to it.
class HostIpDialog : public QDialog {
  Q_OBJECT

 public:
  // Shows an error message; the default is a message box captioned "Error".
  using ErrorReporter = std::function<void(QWidget* parent, const QString& text)>;

  // `telnet_port` is the record's TelnetPort: the port shown, or 992 with "Use TLS" while it is
  // 23.
  HostIpDialog(HostIpForm& form, const std::string& active_entry, QWidget* parent = nullptr,
               ErrorReporter report_error = {}, std::uint16_t telnet_port = 23);

  QLineEdit* octet_edit(int index) const { return edits_[index]; }
  QCheckBox* save_log_box() const { return save_log_; }
  QCheckBox* use_tls_box() const { return use_tls_; }

  void accept() override;

 protected:
  // "." typed in an octet box moves on to the next box, as in every address field.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  HostIpForm& form_;
  ErrorReporter report_error_;
  std::array<QLineEdit*, 4> edits_{};
  QCheckBox* save_log_ = nullptr;
  QCheckBox* log_secrets_ = nullptr;
  QCheckBox* use_tls_ = nullptr;
};

// Shows "text" in a modal message box captioned "Error" with the exclamation icon.
void ShowErrorBox(QWidget* parent, const QString& text);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_IP_DIALOG_H_
