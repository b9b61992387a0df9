#include "tn5250/tls_trust.h"

#include <gtest/gtest.h>

namespace veltrix {
namespace {

const std::string kA = "SHA256:" + std::string(64, 'A');
const std::string kB = "SHA256:" + std::string(64, 'B');

TEST(TlsTrust, FingerprintsAreReadAsTheUserTypesThem) {
  EXPECT_EQ(CanonicalFingerprint("sha256:" + std::string(64, 'a')), kA);
  std::string colons;
  for (int i = 0; i < 32; ++i) colons.append(i ? ":AA" : "AA");
  EXPECT_EQ(CanonicalFingerprint(colons), kA);
  EXPECT_FALSE(CanonicalFingerprint(std::string(62, 'A')));
  EXPECT_FALSE(CanonicalFingerprint("SHA256:" + std::string(63, 'A') + "G"));
  EXPECT_FALSE(CanonicalFingerprint(""));
}

TEST(TlsTrust, TheFileKeepsOneCertificateAHost) {
  const TrustedCertificates trusted = TrustedCertificates::Parse(
      "# trusted\r\n10.0.0.5 " + kA + "\r\nbroken line\nhost2 not-a-fingerprint\n10.0.0.5 " + kB +
      "\nas400.example " + kA);
  ASSERT_EQ(trusted.entries().size(), 2u);
  EXPECT_EQ(*trusted.Find("10.0.0.5"), kB);
  EXPECT_EQ(trusted.Text(), "10.0.0.5 " + kB + "\nas400.example " + kA + "\n");
  EXPECT_EQ(TrustedCertificates::Parse(trusted.Text()).Text(), trusted.Text());
}

TEST(TlsTrust, Verdicts) {
  TrustedCertificates trusted;
  trusted.Trust("10.0.0.5", kA);
  CertificateFacts verifies{.fingerprint = kA};
  CertificateFacts self_signed{.fingerprint = kA, .problems = {CertificateProblem::kSelfSigned}};
  CertificateFacts other = self_signed;
  other.fingerprint = kB;
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.5", verifies), CertificateVerdict::kVerified);
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.5", self_signed), CertificateVerdict::kTrusted);
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.6", self_signed), CertificateVerdict::kAsk);
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.5", other), CertificateVerdict::kChanged);
  // A changed certificate warns even when it verifies.
  other.problems.clear();
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.5", other), CertificateVerdict::kChanged);
  EXPECT_TRUE(trusted.Remove("10.0.0.5"));
  EXPECT_EQ(JudgeCertificate(trusted, "10.0.0.5", other), CertificateVerdict::kVerified);
}

TEST(TlsTrust, PortIs992OnlyForTheDefaultTelnetPort) {
  EXPECT_EQ(ConnectPort(23, true), 992);
  EXPECT_EQ(ConnectPort(23, false), 23);
  EXPECT_EQ(ConnectPort(2323, true), 2323);
}

}  // namespace
}  // namespace veltrix
