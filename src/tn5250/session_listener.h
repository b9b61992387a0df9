#ifndef VELTRIX_TN5250_SESSION_LISTENER_H_
#define VELTRIX_TN5250_SESSION_LISTENER_H_

#include <cstdint>
#include <span>
#include <string_view>

#include "tn5250/trace_event.h"

namespace veltrix {

// Which part of the host screen has to be repainted: the one repaint type of the engine, from
// received records and from keys alike.
struct ScreenChange {
  enum class Kind {
    kNothing,  // nothing to repaint (never reported)
    kCaret,    // the caret moved from (row, column)
    kCell,     // the cell at (row, column), where the cursor stood, and the caret
    kWhole,    // the whole screen
  };
  Kind kind = Kind::kWhole;
  int row = 0;
  int column = 0;
};

// Events of a session engine. Every call happens inside Session::Receive or a key call, on
// the caller's thread. The default implementations ignore the event.
class SessionListener {
 public:
  virtual ~SessionListener() = default;
  // Bytes to send to the host as they stand (Telnet answers, records already framed with
  // IAC EOR). The span is valid only during the call.
  virtual void OnSend(std::span<const std::uint8_t> bytes) { (void)bytes; }
  virtual void OnScreenChanged(const ScreenChange& change) { (void)change; }
  // The terminal's alarm (the bell).
  virtual void OnAlarm() {}
  // What the engine noted: a host data-stream oddity it passed over, or a step of its own.
  virtual void OnTrace(const TraceEvent& event) { (void)event; }
  virtual void OnKeyboardLockChanged(bool locked) { (void)locked; }
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_SESSION_LISTENER_H_
