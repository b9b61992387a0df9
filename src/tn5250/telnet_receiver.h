#ifndef VELTRIX_TN5250_TELNET_RECEIVER_H_
#define VELTRIX_TN5250_TELNET_RECEIVER_H_

#include <array>
#include <cstdint>
#include <span>

#include "tn5250/session_config.h"
#include "tn5250/telnet_codes.h"

namespace veltrix {

// Subnegotiations longer than this are cut; real hosts send a few bytes.
inline constexpr int kSubnegotiationCapacity = 256;

// The user of the Telnet layer: it gets the data bytes the layer passes on and sends the answers
// the layer makes, as they stand.
class TelnetPeer {
 public:
  virtual ~TelnetPeer() = default;
  virtual void HostData(std::span<const std::uint8_t> bytes) = 0;
  virtual void SendRaw(std::span<const std::uint8_t> bytes) = 0;
};

// The receiving side of Telnet: strips commands, answers the host's
// option negotiation and hands every data byte on. It never starts a negotiation itself.
class TelnetReceiver {
 public:
  TelnetReceiver(const SessionConfig& config, TelnetPeer& peer);

  // A new connection: state 0, buffer empty, echo flag clear, suppress-go-ahead flag set.
  void Reset();
  void Receive(std::span<const std::uint8_t> bytes);

  bool echo() const { return echo_; }
  bool suppress_go_ahead() const { return suppress_go_ahead_; }

  // Used by the option handlers.
  void SendAnswer(std::uint8_t verb, std::uint8_t option);
  void Accept(std::uint8_t command, std::uint8_t option);
  void Refuse(std::uint8_t command, std::uint8_t option);
  void Send(std::span<const std::uint8_t> bytes) { peer_.SendRaw(bytes); }
  std::span<const std::uint8_t> Subnegotiation() const {
    return {subnegotiation_.data(), std::size_t(subnegotiation_count_)};
  }
  const SessionConfig& config() const { return config_; }
  void set_echo(bool on) { echo_ = on; }
  void set_suppress_go_ahead(bool on) { suppress_go_ahead_ = on; }

 private:
  enum class State { kData, kIac, kOption };
  void Command(std::uint8_t b);
  void Option(std::uint8_t b);

  const SessionConfig& config_;
  TelnetPeer& peer_;
  State state_ = State::kData;
  std::uint8_t saved_command_ = 0;
  std::array<std::uint8_t, kSubnegotiationCapacity> subnegotiation_{};
  int subnegotiation_count_ = 0;
  bool echo_ = false;
  bool suppress_go_ahead_ = true;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TELNET_RECEIVER_H_
