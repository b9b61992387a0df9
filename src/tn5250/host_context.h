#ifndef VELTRIX_TN5250_HOST_CONTEXT_H_
#define VELTRIX_TN5250_HOST_CONTEXT_H_

#include <cstdint>
#include <span>
#include <string_view>

#include "tn5250/field_table.h"
#include "tn5250/presentation_space.h"
#include "tn5250/session_config.h"
#include "tn5250/session_listener.h"
#include "tn5250/trace_event.h"

namespace veltrix {

// Where the engine's records leave the session, which frames them for Telnet. Everything else
// the engine reports goes to its SessionListener.
class RecordOutput {
 public:
  virtual ~RecordOutput() = default;
  // A 5250 record without framing; the output adds IAC EOR. `secret` marks, byte for byte, the
  // data of non-display fields (passwords) that the session log must not show; empty: none.
  virtual void SendRecord(std::span<const std::uint8_t> record,
                          std::span<const std::uint8_t> secret = {}) = 0;
};

// The state that the interpreter, the keyboard and the inbound records share: the
// presentation space, the field format table and the session flags.
struct HostContext {
  HostContext(RecordOutput& records, SessionListener& listener) : out(records), events(listener) {}

  void SetKeyboardLocked(bool locked) {
    if (keyboard_locked == locked) return;
    keyboard_locked = locked;
    events.OnKeyboardLockChanged(locked);
  }
  void SoundAlarm() {
    Trace({TraceCode::kCallAlarm});
    events.OnAlarm();
  }
  void Trace(const TraceEvent& event) { events.OnTrace(event); }
  void MarkRepaint() {
    repaint = true;
    changed = true;
  }

  RecordOutput& out;
  SessionListener& events;
  int emulation_type = 0;
  PresentationSpace ps;
  FieldTable fields;
  bool keyboard_locked = true;
  ReadMode read_mode = ReadMode::kNone;
  bool repaint = false;  // cleared at the start of each record
  bool changed = false;  // the screen changed since the session last reported it
  bool move_cursor = false;
  bool message_waiting = false;  // set and reset by Write to Display's CC2 bits 7 and 6
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_CONTEXT_H_
