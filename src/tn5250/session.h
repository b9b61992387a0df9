#ifndef VELTRIX_TN5250_SESSION_H_
#define VELTRIX_TN5250_SESSION_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "tn5250/field_table.h"
#include "tn5250/keys.h"
#include "tn5250/presentation_space.h"
#include "tn5250/session_config.h"
#include "tn5250/session_listener.h"

namespace veltrix {

class SessionEngine;

// One TN5250 host session without any I/O: host bytes go in through Receive (in any
// chunking), key presses through KeyInput and TypeCharacter, and everything that comes out
// (bytes to send, repaints, alarm, traces, keyboard lock) goes to the listener. Not thread
// safe: the caller serialises Receive and the key calls.
class Session {
 public:
  explicit Session(SessionConfig config = {}, SessionListener* listener = nullptr);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void SetListener(SessionListener* listener);
  const SessionConfig& Config() const;

  // A new connection: resets the interpreter and the presentation space (24 x 80), clears the
  // character plane, the cursor to (0,0), the echo flag clear and the suppress-go-ahead flag set.
  // The field records stay until the host clears the table.
  void Connect();

  // Host-to-client bytes, Telnet included. After the chunk, a whole-screen change is reported
  // when the host changed the screen.
  void Receive(std::span<const std::uint8_t> bytes);

  // A key of the engine's key enum. What it changed on the screen is reported
  // to the listener, as for received bytes.
  void KeyInput(HostKey key);
  // A printable character, given in the display code of the host language (ISO-8859-1 for the
  // single-byte languages, ISO-8859-7 for Greek, JIS X 0201 for Japanese).
  void TypeCharacter(std::uint8_t display_character);
  // A double-byte character, given in the PC double-byte code of the host language, typed into
  // the current field between a shift-out and a shift-in cell (a character typed right after
  // another one shares its shift cells).
  void TypeDoubleByte(std::uint8_t first, std::uint8_t second);
  // A pointer click on a cell: the cursor goes there when the cell is in an input field and the
  // keyboard is free, under the same completeness rule as the arrow keys.
  void PointAt(int row, int column);

  // Read access for painting, capture and tests.
  const PresentationSpace& Screen() const;
  const FieldTable& Fields() const;
  // During SessionListener::OnSend: a mark for each byte being sent, 1 where it is the data of a
  // non-display field (a password); empty when the bytes hold none.
  std::span<const std::uint8_t> SendSecret() const;
  int CursorRow() const { return Screen().CursorRow(); }
  int CursorColumn() const { return Screen().CursorColumn(); }
  bool KeyboardLocked() const;
  // True when the screen is one whole picture: no record is half carried out.
  bool BetweenRecords() const;
  bool MessageWaiting() const;
  ReadMode CurrentReadMode() const;
  bool EchoFlag() const;
  bool SuppressGoAheadFlag() const;

 private:
  std::unique_ptr<SessionEngine> engine_;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_SESSION_H_
