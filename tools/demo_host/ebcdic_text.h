#ifndef VELTRIX_TOOLS_DEMO_HOST_EBCDIC_TEXT_H_
#define VELTRIX_TOOLS_DEMO_HOST_EBCDIC_TEXT_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The host's single-byte code page (international EBCDIC) against ASCII text.
namespace veltrix::demo_host {

// Host byte of a printable ASCII character; a blank (0x40) for anything else.
std::uint8_t AsciiToHost(char c);

// While one lives on this thread, text goes to the station in capitals: the single-byte code
// page of a Japanese (Katakana) station holds half-width katakana where lower-case letters are.
class CapitalsOnly {
 public:
  explicit CapitalsOnly(bool on);
  ~CapitalsOnly();
  CapitalsOnly(const CapitalsOnly&) = delete;
  CapitalsOnly& operator=(const CapitalsOnly&) = delete;

 private:
  bool was_;
};

// ASCII character of a host byte; NUL stays NUL, bytes without an ASCII character give '?'.
char HostToAscii(std::uint8_t b);

std::vector<std::uint8_t> AsciiToHost(std::string_view text);
std::string HostToAscii(std::span<const std::uint8_t> bytes);

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_EBCDIC_TEXT_H_
