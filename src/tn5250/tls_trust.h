#ifndef VELTRIX_TN5250_TLS_TRUST_H_
#define VELTRIX_TN5250_TLS_TRUST_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veltrix {

// Telnet over TLS: 992 is the port hosts serve it on. A record whose TelnetPort was changed
// from 23 keeps its own port.
inline constexpr std::uint16_t kTelnetTlsPort = 992;
std::uint16_t ConnectPort(std::uint16_t telnet_port, bool tls);

// Why a host's certificate did not verify.
enum class CertificateProblem {
  kExpired,
  kNotYetValid,
  kWrongHost,
  kUnknownIssuer,
  kSelfSigned,
  kOther,
};
std::string_view CertificateProblemText(CertificateProblem problem);

// What the user needs to judge a certificate.
struct CertificateFacts {
  std::string subject;
  std::string issuer;
  std::string valid_from;  // "2026-11-24 20:00 UTC"
  std::string valid_until;
  std::string fingerprint;  // "SHA256:" and 64 upper-case hexadecimal digits
  std::vector<CertificateProblem> problems;
  std::string other;  // the TLS library's words for kOther
  // "expired, self-signed" as one line, or the other reason.
  std::string ProblemsText() const;
};

// A fingerprint as the user may type it ("SHA256:ab:cd...", "AB CD ...", with or without the
// prefix) in the canonical form; nothing when it is not 32 bytes of hexadecimal.
std::optional<std::string> CanonicalFingerprint(std::string_view text);

// The certificates the user chose to trust although they did not verify: one fingerprint per
// host, kept as "HOST SHA256:HEX" lines in a small file.
class TrustedCertificates {
 public:
  struct Entry {
    std::string host;
    std::string fingerprint;
  };
  // Lines that are not "HOST FINGERPRINT" are skipped; a later line for a host replaces an
  // earlier one.
  static TrustedCertificates Parse(std::string_view text);
  std::string Text() const;

  const std::string* Find(std::string_view host) const;
  void Trust(std::string_view host, std::string_view fingerprint);
  bool Remove(std::string_view host);
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

// What to do with a host's certificate.
enum class CertificateVerdict {
  kVerified,  // the chain and the host name verify, and no other certificate is trusted for it
  kTrusted,   // it does not verify, but the user trusts exactly this certificate for the host
  kChanged,   // the user trusted another certificate for this host: warn loudly
  kAsk,       // it does not verify: the user decides
};
CertificateVerdict JudgeCertificate(const TrustedCertificates& trusted, std::string_view host,
                                    const CertificateFacts& facts);

// The trust file: read whole (a missing file is an empty list), written atomically.
TrustedCertificates ReadTrustedCertificates(const std::string& path);
bool WriteTrustedCertificates(const std::string& path, const TrustedCertificates& trusted,
                              std::string* reason = nullptr);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TLS_TRUST_H_
