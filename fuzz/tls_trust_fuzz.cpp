// The trusted-certificates file: any text parses, and what it keeps reads back the same.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tn5250/tls_trust.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const veltrix::TrustedCertificates trusted = veltrix::TrustedCertificates::Parse(text);
  const std::string kept = trusted.Text();
  if (veltrix::TrustedCertificates::Parse(kept).Text() != kept) __builtin_trap();
  if (auto fingerprint = veltrix::CanonicalFingerprint(text)) {
    if (veltrix::CanonicalFingerprint(*fingerprint) != fingerprint) __builtin_trap();
  }
  return 0;
}
