#ifndef VELTRIX_TN5250_TELNET_CODES_H_
#define VELTRIX_TN5250_TELNET_CODES_H_

#include <cstdint>

// Telnet bytes both ends of a TN5250 connection use: the terminal and the demo host.
namespace veltrix {

// Telnet commands.
inline constexpr std::uint8_t kIac = 0xFF;
inline constexpr std::uint8_t kDont = 0xFE;
inline constexpr std::uint8_t kDo = 0xFD;
inline constexpr std::uint8_t kWont = 0xFC;
inline constexpr std::uint8_t kWill = 0xFB;
inline constexpr std::uint8_t kSb = 0xFA;
inline constexpr std::uint8_t kSe = 0xF0;
inline constexpr std::uint8_t kEor = 0xEF;

// Telnet options.
inline constexpr std::uint8_t kOptBinary = 0;
inline constexpr std::uint8_t kOptEcho = 1;
inline constexpr std::uint8_t kOptSuppressGoAhead = 3;
inline constexpr std::uint8_t kOptTerminalType = 24;
inline constexpr std::uint8_t kOptEndOfRecord = 25;
inline constexpr std::uint8_t kOptNaws = 31;
inline constexpr std::uint8_t kOptNewEnviron = 39;

// Subnegotiation verbs (TERMINAL-TYPE, NEW-ENVIRON).
inline constexpr std::uint8_t kSubIs = 0;
inline constexpr std::uint8_t kSubSend = 1;

// NEW-ENVIRON item types.
inline constexpr std::uint8_t kEnvVar = 0;
inline constexpr std::uint8_t kEnvValue = 1;
inline constexpr std::uint8_t kEnvEsc = 2;
inline constexpr std::uint8_t kEnvUserVar = 3;

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TELNET_CODES_H_
