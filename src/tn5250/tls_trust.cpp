#include "tn5250/tls_trust.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <span>

#include "settings/atomic_file.h"
#include "settings/file_read.h"

namespace veltrix {
namespace {

constexpr std::string_view kPrefix = "SHA256:";
constexpr std::size_t kTrustFileLimit = 1 << 20;

}  // namespace

std::uint16_t ConnectPort(std::uint16_t telnet_port, bool tls) {
  return tls && telnet_port == 23 ? kTelnetTlsPort : telnet_port;
}

std::string_view CertificateProblemText(CertificateProblem problem) {
  switch (problem) {
    case CertificateProblem::kExpired:
      return "the certificate has expired";
    case CertificateProblem::kNotYetValid:
      return "the certificate is not valid yet";
    case CertificateProblem::kWrongHost:
      return "the certificate was issued for another host";
    case CertificateProblem::kUnknownIssuer:
      return "the certificate's issuer is not trusted";
    case CertificateProblem::kSelfSigned:
      return "the certificate is self-signed";
    case CertificateProblem::kOther:
      break;
  }
  return "the certificate does not verify";
}

std::string CertificateFacts::ProblemsText() const {
  std::string text;
  for (CertificateProblem p : problems) {
    if (!text.empty()) text.append(", ");
    text.append(p == CertificateProblem::kOther && !other.empty() ? std::string_view(other)
                                                                  : CertificateProblemText(p));
  }
  return text;
}

std::optional<std::string> CanonicalFingerprint(std::string_view text) {
  if (text.size() >= kPrefix.size() &&
      std::equal(kPrefix.begin(), kPrefix.end(), text.begin(),
                 [](char a, char b) { return a == std::toupper(static_cast<unsigned char>(b)); })) {
    text.remove_prefix(kPrefix.size());
  }
  std::string hex;
  for (char c : text) {
    if (c == ':' || c == ' ') continue;
    if (!std::isxdigit(static_cast<unsigned char>(c))) return std::nullopt;
    hex += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  if (hex.size() != 64) return std::nullopt;
  return std::string(kPrefix).append(hex);
}

TrustedCertificates TrustedCertificates::Parse(std::string_view text) {
  TrustedCertificates trusted;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::size_t space = line.find(' ');
    if (line.empty() || line.front() == '#' || space == std::string_view::npos) continue;
    if (auto fingerprint = CanonicalFingerprint(line.substr(space + 1))) {
      trusted.Trust(line.substr(0, space), *fingerprint);
    }
  }
  return trusted;
}

std::string TrustedCertificates::Text() const {
  std::string text;
  for (const Entry& e : entries_) text.append(e.host).append(" ").append(e.fingerprint) += '\n';
  return text;
}

const std::string* TrustedCertificates::Find(std::string_view host) const {
  const auto it = std::ranges::find(entries_, host, &Entry::host);
  return it == entries_.end() ? nullptr : &it->fingerprint;
}

void TrustedCertificates::Trust(std::string_view host, std::string_view fingerprint) {
  Remove(host);
  entries_.push_back({std::string(host), std::string(fingerprint)});
}

bool TrustedCertificates::Remove(std::string_view host) {
  return std::erase_if(entries_, [&](const Entry& e) { return e.host == host; }) > 0;
}

CertificateVerdict JudgeCertificate(const TrustedCertificates& trusted, std::string_view host,
                                    const CertificateFacts& facts) {
  const std::string* pinned = trusted.Find(host);
  if (pinned != nullptr && *pinned != facts.fingerprint) return CertificateVerdict::kChanged;
  if (facts.problems.empty()) return CertificateVerdict::kVerified;
  return pinned != nullptr ? CertificateVerdict::kTrusted : CertificateVerdict::kAsk;
}

TrustedCertificates ReadTrustedCertificates(const std::string& path) {
  const std::optional<FileRead> read = ReadRegularFile(path, kTrustFileLimit);
  if (!read) return {};
  return TrustedCertificates::Parse(
      std::string_view(reinterpret_cast<const char*>(read->bytes.data()), read->bytes.size()));
}

bool WriteTrustedCertificates(const std::string& path, const TrustedCertificates& trusted,
                              std::string* reason) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
  const std::string text = trusted.Text();
  const std::span<const std::uint8_t> parts[] = {
      {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}};
  SaveStatus status;
  if (WriteFileAtomically(path, parts, SystemFileCalls(), &status)) return true;
  if (reason != nullptr) *reason = status.reason;
  return false;
}

}  // namespace veltrix
