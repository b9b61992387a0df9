#ifndef VELTRIX_TN5250_CERTIFICATE_DIALOG_H_
#define VELTRIX_TN5250_CERTIFICATE_DIALOG_H_

#include <QDialog>
#include <functional>
#include <string>

#include "tn5250/tls_trust.h"

class QListWidget;
class QPushButton;

namespace veltrix {

// "Certificate": a host certificate that did not verify, or that differs from the one the user
// trusts for the host. Shows why, the certificate's subject, issuer, validity and SHA-256
// fingerprint, and the trusted certificates (removable), and asks what to do.
class CertificateDialog : public QDialog {
  Q_OBJECT

 public:
  enum class Answer { kConnectOnce, kAlwaysTrust, kCancel };

  // `changed` is called after the user removed a trusted certificate from the list.
  CertificateDialog(const std::string& host, const CertificateFacts& facts,
                    CertificateVerdict verdict, TrustedCertificates& trusted,
                    std::function<void()> changed, QWidget* parent = nullptr);

  Answer answer() const { return answer_; }
  QPushButton* button(Answer answer) const;

 private:
  void FillTrusted();

  TrustedCertificates& trusted_;
  std::function<void()> changed_;
  QListWidget* list_ = nullptr;
  QPushButton* once_ = nullptr;
  QPushButton* always_ = nullptr;
  QPushButton* cancel_ = nullptr;
  Answer answer_ = Answer::kCancel;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_CERTIFICATE_DIALOG_H_
