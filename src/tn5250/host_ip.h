#ifndef VELTRIX_TN5250_HOST_IP_H_
#define VELTRIX_TN5250_HOST_IP_H_

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

// The four parts of the dotted host address as the connect dialog shows and edits them. They keep
// their values between connections.
using HostOctets = std::array<std::uint32_t, 4>;

// Fills `octets` from a host entry: the text is split at each "."; each piece gives its leading
// decimal digits as a number (no digits give 0). At most four pieces are taken; octets beyond the
// pieces found keep their earlier values.
void SplitHostAddress(std::string_view entry, HostOctets& octets);

// An octet edit's text read as an unsigned number in 0..255; nothing when the text is not a number
// or lies outside that range. Leading and trailing blanks are allowed.
std::optional<std::uint32_t> ParseOctet(std::string_view text);

// "%d.%d.%d.%d" of the four octets.
std::string FormatHostAddress(const HostOctets& octets);

// The address text converted to a 32-bit address (first octet in the high byte), or nothing when
// it gives the no-address value (all bits set), which is what 255.255.255.255 gives.
std::optional<std::uint32_t> HostAddressValue(const HostOctets& octets);

inline constexpr std::string_view kInvalidIpAddressMessage = "Invalid IP Address!";

// The rules of the connect dialog, apart from its widgets.
class HostIpForm {
 public:
  // On opening: "Save Log" is cleared and the active host entry is split into the octets.
  void Open(std::string_view active_entry);
  // An octet edit changed: a number in 0..255 becomes that octet, anything else is ignored.
  void EditChanged(int index, std::string_view text);
  // OK: every edit is read again. False when one is not a number in 0..255 (the dialog shows
  // kInvalidIpAddressMessage and stays open); otherwise "Save Log" takes the check box's state.
  // "Include passwords in the log" counts only with "Save Log".
  bool Confirm(const std::array<std::string, 4>& texts, bool save_log_checked,
               bool log_secrets_checked = false);

  const HostOctets& octets() const { return octets_; }
  bool save_log() const { return save_log_; }
  bool log_secrets() const { return log_secrets_; }
  // "Use TLS": off at first, then as the user last left it.
  bool use_tls() const { return use_tls_; }
  void set_use_tls(bool on) { use_tls_ = on; }

 private:
  HostOctets octets_{};
  bool save_log_ = false;
  bool log_secrets_ = false;
  bool use_tls_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_IP_H_
