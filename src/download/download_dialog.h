#ifndef VELTRIX_DOWNLOAD_DOWNLOAD_DIALOG_H_
#define VELTRIX_DOWNLOAD_DOWNLOAD_DIALOG_H_

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLabel;
class QProgressBar;

namespace veltrix {

// "Download Properties": the link, the serial port and the rate of this download. The port list
// is the system's serial ports with the first selected each time; a path can be typed too
// (pseudo-terminals and some USB adapters are not listed). The settings record is not changed.
class DownloadPropertiesDialog : public QDialog {
  Q_OBJECT

 public:
  DownloadPropertiesDialog(int via, int baud_index, const QStringList& ports,
                           QWidget* parent = nullptr);
  int via() const;
  QString port() const;
  int baud_index() const;
  QComboBox* via_box() const { return via_; }
  QComboBox* port_box() const { return port_; }
  QComboBox* rate_box() const { return rate_; }

  // The system's serial ports by name ("ttyS0", "ttyUSB0"), sorted.
  static QStringList SystemPorts();

 private:
  void ShowEnabling();
  QComboBox* via_;
  QComboBox* port_;
  QComboBox* rate_;
};

// "Progress": "Downloading..." over a bar that follows the transfer; with `maximum` 0, the wait
// for a terminal over RF, with a busy bar. Closing it or its Cancel button asks the download to
// stop.
class DownloadProgressDialog : public QDialog {
  Q_OBJECT

 public:
  explicit DownloadProgressDialog(int maximum, QWidget* parent = nullptr);
  DownloadProgressDialog(const QString& caption, const QString& text, int maximum,
                         QWidget* parent = nullptr);
  void SetPosition(int position);
  QProgressBar* bar() const { return bar_; }

 signals:
  void stopRequested();

 protected:
  void reject() override;

 private:
  QProgressBar* bar_;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_DOWNLOAD_DIALOG_H_
