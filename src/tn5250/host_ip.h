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

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_IP_H_
