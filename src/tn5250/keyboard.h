#ifndef VELTRIX_TN5250_KEYBOARD_H_
#define VELTRIX_TN5250_KEYBOARD_H_

#include <cstdint>

#include "tn5250/host_context.h"
#include "tn5250/inbound_records.h"
#include "tn5250/keys.h"

namespace veltrix {

// The terminal's keyboard rules (`HostKeyInput` and below): typing into the current field
// with its shift type, cursor moves with the completeness check, field exit and right adjust,
// the sign keys, Delete, Backspace, Reset and the attention keys.
class Keyboard {
 public:
  Keyboard(HostContext& host, InboundRecords& inbound);

  Repaint KeyInput(HostKey key);
  Repaint CharacterInput(std::uint8_t c);

  // Whether c counts as a printable character (letter, digit, punctuation or blank).
  static bool IsPrintable(std::uint8_t c);

 private:
  Repaint TypeCharacter(std::uint8_t c);
  Repaint DoFunction(int function);
  Repaint MoveCursor(HostKey key);
  bool CurrentFieldComplete() const;
  bool Accepts(const FieldRecord& field, std::uint8_t c) const;
  Repaint Delete();
  Repaint FieldSign(bool minus);
  Repaint EndOfField();
  Repaint NextFieldKey();
  Repaint FirstFieldKey();
  Repaint Reset();
  Repaint BackspaceKey();
  Repaint FieldExit();
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
