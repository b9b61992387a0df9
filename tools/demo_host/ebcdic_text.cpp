#include "demo_host/ebcdic_text.h"

#include <array>

#include "tn5250/code_tables.h"

namespace veltrix::demo_host {

namespace {

// Inverse for ASCII 0x20..0x7E of the core's single-byte table; the first host byte wins (0x40
// for the blank).
std::array<std::uint8_t, 128> BuildAsciiToHost() {
  std::array<std::uint8_t, 128> table{};
  for (int host = 0xFF; host >= 0x40; --host) {
    const std::uint8_t latin1 =
        HostToDisplay(kEmulationSingleByte, static_cast<std::uint8_t>(host));
    if (latin1 >= 0x20 && latin1 < 0x7F) table[latin1] = static_cast<std::uint8_t>(host);
  }
  return table;
}

const std::array<std::uint8_t, 128>& AsciiToHostTable() {
  static const std::array<std::uint8_t, 128> table = BuildAsciiToHost();
  return table;
}

}  // namespace

thread_local bool g_capitals_only = false;

CapitalsOnly::CapitalsOnly(bool on) : was_(g_capitals_only) { g_capitals_only = on; }
CapitalsOnly::~CapitalsOnly() { g_capitals_only = was_; }

std::uint8_t AsciiToHost(char c) {
  if (g_capitals_only && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  const auto u = static_cast<unsigned char>(c);
  if (u < 0x20 || u >= 0x7F) return 0x40;
  return AsciiToHostTable()[u];
}

char HostToAscii(std::uint8_t b) {
  if (b == 0) return '\0';
  if (b < 0x40) return '?';
  const std::uint8_t latin1 = HostToDisplay(kEmulationSingleByte, b);
  return latin1 >= 0x20 && latin1 < 0x7F ? static_cast<char>(latin1) : '?';
}

std::vector<std::uint8_t> AsciiToHost(std::string_view text) {
  std::vector<std::uint8_t> out;
  out.reserve(text.size());
  for (const char c : text) out.push_back(AsciiToHost(c));
  return out;
}

std::string HostToAscii(std::span<const std::uint8_t> bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (const std::uint8_t b : bytes) out += HostToAscii(b);
  return out;
}

}  // namespace veltrix::demo_host
