#ifndef VELTRIX_TN5250_KEYBOARD_H_
#define VELTRIX_TN5250_KEYBOARD_H_

#include <cstdint>

#include "tn5250/host_context.h"
#include "tn5250/inbound_records.h"
#include "tn5250/keys.h"
#include "tn5250/session_listener.h"

namespace veltrix {

// The terminal's keyboard rules behind Session::KeyInput: typing into the current field
// with its shift type, cursor moves with the completeness check, field exit and right adjust,
// the sign keys, Delete, Backspace, Reset and the attention keys.
class Keyboard {
 public:
  Keyboard(HostContext& host, InboundRecords& inbound);

  ScreenChange::Kind KeyInput(HostKey key);
  ScreenChange::Kind CharacterInput(std::uint8_t c);
  // A double-byte character in the PC code of the host language (an input method's text).
  ScreenChange::Kind DoubleByteInput(std::uint8_t first, std::uint8_t second);
  // A click on a cell: moves the cursor there when the cell belongs to an input field.
  ScreenChange::Kind PointAt(CellAddress to);

  // Whether c counts as a printable character (letter, digit, punctuation or blank).
  static bool IsPrintable(std::uint8_t c);

 private:
  ScreenChange::Kind TypeCharacter(std::uint8_t c);
  ScreenChange::Kind DoFunction(KeyFunction function);
  ScreenChange::Kind MoveCursor(HostKey key);
  bool CurrentFieldComplete() const;
  bool Accepts(const FieldRecord& field, std::uint8_t c) const;
  ScreenChange::Kind Delete();
  ScreenChange::Kind FieldSign(bool minus);
  ScreenChange::Kind EndOfField();
  ScreenChange::Kind NextFieldKey();
  ScreenChange::Kind FirstFieldKey();
  ScreenChange::Kind Reset();
  ScreenChange::Kind BackspaceKey();
  ScreenChange::Kind FieldExit();
  void EraseCharacter();
  void Backspace();
  void GoToNextField();
  void GoToFieldStart(const FieldRecord& field);
  CellAddress FieldCell(const FieldRecord& field, int index) const;
  int FieldIndex(const FieldRecord& field) const;  // index of the cursor from the first cell
  void MarkModified();

  HostContext& host_;
  InboundRecords& inbound_;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_KEYBOARD_H_
