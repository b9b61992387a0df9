#ifndef VELTRIX_TN5250_SESSION_ENGINE_H_
#define VELTRIX_TN5250_SESSION_ENGINE_H_

#include <vector>

#include "tn5250/data_stream.h"
#include "tn5250/host_context.h"
#include "tn5250/inbound_records.h"
#include "tn5250/keyboard.h"
#include "tn5250/session_config.h"
#include "tn5250/session_listener.h"
#include "tn5250/telnet_receiver.h"

namespace veltrix {

// Everything one session holds: the Telnet receiver, the interpreter, the keyboard and the
// shared host context, wired to the listener.
class SessionEngine : public RecordOutput, public TelnetPeer {
 public:
  SessionEngine(SessionConfig config, SessionListener* listener);

  void SendRaw(std::span<const std::uint8_t> bytes) override;
  void SendRecord(std::span<const std::uint8_t> record,
                  std::span<const std::uint8_t> secret = {}) override;
  // During OnSend: which of the bytes being sent are secret (1), or empty when none are.
  std::span<const std::uint8_t> send_secret() const { return send_secret_; }
  void HostData(std::span<const std::uint8_t> bytes) override;

  void Connect();
  void Receive(std::span<const std::uint8_t> bytes);
  void KeyInput(HostKey key);
  void TypeCharacter(std::uint8_t c);
  void TypeDoubleByte(std::uint8_t first, std::uint8_t second);
  void PointAt(int row, int column);

  SessionConfig config;
  SessionListener* listener;  // never null: a listener that ignores everything stands in
  HostContext host;
  InboundRecords inbound;
  DataStreamInterpreter interpreter;
  TelnetReceiver telnet;
  Keyboard keyboard;

 private:
  void Report(ScreenChange::Kind repaint, CellAddress before);
  std::vector<std::uint8_t> framed_;
  std::vector<std::uint8_t> framed_secret_;
  std::span<const std::uint8_t> send_secret_;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_SESSION_ENGINE_H_
