#include "tn5250/keyboard.h"

#include <algorithm>

#include "tn5250/code_tables.h"

namespace veltrix {

namespace {

constexpr std::uint8_t kBlank = 0x20;
constexpr std::uint8_t kMinus = '-';
constexpr std::uint8_t kPlus = '+';

bool IsDigit(std::uint8_t c) { return c >= '0' && c <= '9'; }

bool IsLetter(int emulation_type, std::uint8_t c) {
  if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return true;
  switch (emulation_type) {
    case kEmulationGreek:  // ISO-8859-7 letters
      return (c >= 0xB6 && c <= 0xFE && c != 0xB7 && c != 0xBB && c != 0xBD);
    case kEmulationJapanese:  // half-width katakana
      return c >= 0xA6 && c <= 0xDF;
    default:  // ISO-8859-1 letters
      return c >= 0xC0 && c != 0xD7 && c != 0xF7;
  }
}

std::uint8_t ToUpper(int emulation_type, std::uint8_t c) {
  if (c >= 'a' && c <= 'z') return static_cast<std::uint8_t>(c - 0x20);
  if (emulation_type == kEmulationGreek) {
    if (c >= 0xE1 && c <= 0xFB && c != 0xF2) return static_cast<std::uint8_t>(c - 0x20);
    return c;
  }
  if (emulation_type != kEmulationJapanese && c >= 0xE0 && c != 0xF7 && c != 0xFF) {
    return static_cast<std::uint8_t>(c - 0x20);
  }
  return c;
}

}  // namespace

Keyboard::Keyboard(HostContext& host, InboundRecords& inbound) : host_(host), inbound_(inbound) {}

bool Keyboard::IsPrintable(std::uint8_t c) { return (c >= 0x20 && c < 0x7F) || c >= 0xA0; }

ScreenChange::Kind Keyboard::KeyInput(HostKey key) {
  host_.Trace({TraceCode::kIbmWrite});
  const KeyFunction function = FunctionOfKey(key);
  if (host_.keyboard_locked && function != KeyFunction::kReset) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  if (function != KeyFunction::kNone) return DoFunction(function);
  switch (key) {
    case HostKey::kUp:
    case HostKey::kDown:
    case HostKey::kLeft:
    case HostKey::kRight:
      return MoveCursor(key);
    default:
      return ScreenChange::Kind::kNothing;
  }
}

ScreenChange::Kind Keyboard::CharacterInput(std::uint8_t c) {
  if (!IsPrintable(c)) return ScreenChange::Kind::kNothing;
  host_.Trace({TraceCode::kIbmWrite});
  if (host_.keyboard_locked) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  return TypeCharacter(c);
}

ScreenChange::Kind Keyboard::DoubleByteInput(std::uint8_t first, std::uint8_t second) {
  host_.Trace({TraceCode::kIbmWrite});
  PresentationSpace& ps = host_.ps;
  const FieldRecord field = host_.fields.Current();
  const int index = FieldIndex(field);
  if (host_.keyboard_locked || !field.IsField() || index < 0 || !Accepts(field, 'A')) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  // Right after a double-byte character the cursor rests on its shift-in cell: the new one takes
  // that cell and the next, and the shift-in moves behind it. Otherwise a shift-out cell, the
  // character and a shift-in cell are written. Shift cells show as blanks, as the host's do.
  const CellAddress before_pair = ps.Retreat(ps.Retreat(ps.Cursor()));
  const bool extends = index >= 3 && ps.Character(ps.CursorRow(), ps.CursorColumn()) == kBlank &&
                       ps.IsPairStart(before_pair.row, before_pair.column);
  const int cells = extends ? 3 : 4;
  if (index + cells > field.DataLength()) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  ps.SetCurrentAttribute(ps.Attribute(ps.CursorRow(), ps.CursorColumn()));
  if (!extends) ps.WriteAtCursor(kBlank);
  ps.PutPairAtCursor(first, second);
  const CellAddress shift_in = ps.Cursor();
  ps.WriteAtCursor(kBlank);
  ps.SetCursor(shift_in.row, shift_in.column);
  MarkModified();
  return ScreenChange::Kind::kWhole;
}

ScreenChange::Kind Keyboard::PointAt(CellAddress to) {
  PresentationSpace& ps = host_.ps;
  if (host_.keyboard_locked || !ps.InScreen(to.row, to.column)) return ScreenChange::Kind::kNothing;
  // Only a cell of an input field takes the cursor; elsewhere a click does nothing.
  const auto records = host_.fields.Records();
  int target = -1;
  for (int i = 0; i < static_cast<int>(records.size()) && target < 0; ++i) {
    const FieldRecord& f = records[i];
    const int offset = ps.Linear(to) - ps.Linear({f.row, f.column});
    if (f.IsField() && !f.IsBypass() && offset >= 0 && offset < f.length) target = i;
  }
  if (target < 0) return ScreenChange::Kind::kNothing;
  const FieldRecord& current = host_.fields.Current();
  const bool same_field = current.IsField() && current.row == records[target].row &&
                          current.column == records[target].column;
  if (!same_field && !CurrentFieldComplete()) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  ps.SetCursor(to.row, to.column);
  if (!same_field) {
    host_.fields.SetPosition(target);
    host_.fields.CurrentFromPosition();
  }
  return ScreenChange::Kind::kCaret;
}

CellAddress Keyboard::FieldCell(const FieldRecord& field, int index) const {
  const int columns = host_.ps.Columns();
  const int linear = field.row * columns + field.column + index;
  return {linear / columns, linear % columns};
}

int Keyboard::FieldIndex(const FieldRecord& field) const {
  const PresentationSpace& ps = host_.ps;
  return ps.Linear(ps.Cursor()) - ps.Linear({field.row, field.column});
}

void Keyboard::MarkModified() {
  host_.fields.MutableCurrent().format1 |= kFfwModified;
  host_.fields.WriteBackCurrent();
}

void Keyboard::GoToFieldStart(const FieldRecord& field) {
  host_.fields.SetCurrent(field);
  host_.ps.SetCursor(field.row, field.column);
}

void Keyboard::GoToNextField() {
  FieldTable& fields = host_.fields;
  if (fields.TableIsEmpty()) return;
  if (!fields.NextField()) fields.FirstField();
  GoToFieldStart(fields.ReadField());
}

bool Keyboard::Accepts(const FieldRecord& field, std::uint8_t c) const {
  if (field.IsBypass()) return false;
  switch (field.ShiftType()) {
    case kShiftAlphabetic:
      return IsLetter(host_.emulation_type, c) || c == ',' || c == '.' || c == '-' || c == kBlank;
    case kShiftNumeric:
      return IsDigit(c) || c == kPlus || c == ',' || c == '.' || c == kBlank;
    case kShiftDigits:
      return IsDigit(c);
    case kShiftSignedNumeric:
      return IsDigit(c) && FieldIndex(field) != field.length - 1;  // never the sign cell
    default:
      return true;
  }
}

ScreenChange::Kind Keyboard::TypeCharacter(std::uint8_t c) {
  PresentationSpace& ps = host_.ps;
  const FieldRecord field = host_.fields.Current();
  const int index = FieldIndex(field);
  // A one-row field also holds the cells left of its first cell, and typing there writes.
  if (!field.IsField() || field.IsBypass() ||
      (field.IsSignedNumeric() && index == field.length - 1)) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kNothing;
  }
  if (!Accepts(field, c)) {
    host_.SoundAlarm();
    return ScreenChange::Kind::kCell;
  }
  if (field.format2 & kFfwMonocase) c = ToUpper(host_.emulation_type, c);
  ps.SetCurrentAttribute(ps.Attribute(ps.CursorRow(), ps.CursorColumn()));
  ps.WriteAtCursor(c);
  MarkModified();
  if (FieldIndex(field) == field.DataLength()) {
    if (field.format2 & kFfwFieldExitRequired) {
      const CellAddress back = ps.Retreat(ps.Cursor());
      ps.SetCursor(back.row, back.column);
    } else if (field.format2 & kFfwAutoEnter) {
      inbound_.SendAidRecord(kAidEnter);
    } else {
      GoToNextField();
    }
  }
  return ScreenChange::Kind::kCell;
}

ScreenChange::Kind Keyboard::DoFunction(KeyFunction function) {
  if (const std::uint8_t aid = FunctionToAid(function); aid != 0) {  // an attention key
    inbound_.SendAidRecord(aid);
    return ScreenChange::Kind::kNothing;
  }
  switch (function) {
    case KeyFunction::kDelete:
      return Delete();
    case KeyFunction::kFieldPlus:
      return FieldSign(false);
    case KeyFunction::kFieldMinus:
      return FieldSign(true);
    case KeyFunction::kEndOfField:
      return EndOfField();
    case KeyFunction::kFieldAdvance:
      return NextFieldKey();
    case KeyFunction::kFirstField:
      return FirstFieldKey();
    case KeyFunction::kReset:
      return Reset();
    case KeyFunction::kBackspace:
      return BackspaceKey();
    default:
      return ScreenChange::Kind::kNothing;
  }
}

ScreenChange::Kind Keyboard::MoveCursor(HostKey key) {
  PresentationSpace& ps = host_.ps;
  const CellAddress before = ps.Cursor();
  const int rows = ps.Rows();
  const int columns = ps.Columns();
  // Moves wrap around the screen, so the cursor never leaves it.
  int linear = std::clamp(ps.Linear(before), 0, rows * columns - 1);
  CellAddress to{linear / columns, linear % columns};
  switch (key) {
    case HostKey::kUp:
      to.row = to.row == 0 ? rows - 1 : to.row - 1;
      break;
    case HostKey::kDown:
      to.row = to.row == rows - 1 ? 0 : to.row + 1;
      break;
    case HostKey::kLeft:
      linear = linear == 0 ? rows * columns - 1 : linear - 1;
      to = {linear / columns, linear % columns};
      break;
    default:
      linear = linear == rows * columns - 1 ? 0 : linear + 1;
      to = {linear / columns, linear % columns};
      break;
  }
  if (FieldTable::FieldAt(host_.fields.Current(), to.column, to.row, columns)) {
    ps.SetCursor(to.row, to.column);
  } else if (CurrentFieldComplete()) {
    ps.SetCursor(to.row, to.column);
    host_.fields.FindCurrentField(ps);
  } else {
    host_.SoundAlarm();
  }
  return ScreenChange::Kind::kCaret;
}

bool Keyboard::CurrentFieldComplete() const {
  const FieldRecord& field = host_.fields.Current();
  if (!field.IsField()) return true;
  int filled = 0;
  const int length = std::max(field.DataLength(), 0);
  for (int i = 0; i < length; ++i) {
    const CellAddress cell = FieldCell(field, i);
    if (host_.ps.Character(cell.row, cell.column) != 0) ++filled;
  }
  if (field.Adjust() == kMandatoryFill) return filled == 0 || filled == length;
  if (field.format2 & kFfwMandatoryEnter) return filled > 0;
  return true;
}

void Keyboard::EraseCharacter() {
  host_.Trace({TraceCode::kEraseChar});
  PresentationSpace& ps = host_.ps;
  const FieldRecord& field = host_.fields.Current();
  const int index = FieldIndex(field);
  const int last = field.DataLength() - 1;
  if (index < 0 || index > last) return;
  for (int i = index; i < last; ++i) {
    const CellAddress to = FieldCell(field, i);
    const CellAddress from = FieldCell(field, i + 1);
    ps.SetCell(to.column, to.row, ps.Character(from.row, from.column),
               ps.Attribute(to.row, to.column));
  }
  const CellAddress end = FieldCell(field, last);
  ps.SetCell(end.column, end.row, 0, ps.Attribute(end.row, end.column));
}

ScreenChange::Kind Keyboard::Delete() {
  if (host_.fields.Current().IsField()) {
    EraseCharacter();
    MarkModified();
  }
  return ScreenChange::Kind::kWhole;
}

void Keyboard::Backspace() {
  host_.Trace({TraceCode::kBackspace});
  PresentationSpace& ps = host_.ps;
  FieldTable& fields = host_.fields;
  if (FieldIndex(fields.Current()) == 0) {
    if (!fields.PreviousField()) fields.LastField();
    const FieldRecord previous = fields.ReadField();
    fields.SetCurrent(previous);
    const CellAddress last = FieldCell(previous, std::max(previous.length - 1, 0));
    ps.SetCursor(last.row, last.column);
  } else {
    const CellAddress back = ps.Retreat(ps.Cursor());
    ps.SetCursor(back.row, back.column);
  }
  ps.SetCurrentAttribute(ps.Attribute(ps.CursorRow(), ps.CursorColumn()));
  ps.PutCell(ps.CursorColumn(), ps.CursorRow(), 0);
}

ScreenChange::Kind Keyboard::BackspaceKey() {
  if (host_.fields.Current().IsField()) {
    Backspace();
    EraseCharacter();
    MarkModified();
  }
  return ScreenChange::Kind::kWhole;
}

ScreenChange::Kind Keyboard::FieldExit() {
  PresentationSpace& ps = host_.ps;
  const FieldRecord field = host_.fields.Current();
  if (!field.IsField() || host_.fields.TableIsEmpty()) return ScreenChange::Kind::kNothing;
  bool changed = false;
  const int length = std::max(field.DataLength(), 0);
  if (!field.IsBypass()) {
    int last = -1;
    for (int i = 0; i < length; ++i) {
      const CellAddress c = FieldCell(field, i);
      if (ps.Character(c.row, c.column) != 0) last = i;
    }
    for (int i = std::max(FieldIndex(field), 0); i <= last; ++i) {
      const CellAddress c = FieldCell(field, i);
      if (ps.Character(c.row, c.column) != 0) changed = true;
      ps.SetCell(c.column, c.row, 0, ps.Attribute(c.row, c.column));
    }
    const std::uint8_t adjust = field.Adjust();
    if (adjust == kAdjustZeroFill || adjust == kAdjustBlankFill) {
      const std::uint8_t fill = adjust == kAdjustZeroFill ? '0' : kBlank;
      int trailing = 0;
      while (trailing < length) {
        const CellAddress c = FieldCell(field, length - 1 - trailing);
        const std::uint8_t ch = ps.Character(c.row, c.column);
        if (ch != 0 && ch != kBlank) break;
        ++trailing;
      }
      if (trailing > 0) {
        for (int i = length - 1; i >= 0; --i) {
          const CellAddress to = FieldCell(field, i);
          std::uint8_t ch = fill;
          if (i - trailing >= 0) {
            const CellAddress from = FieldCell(field, i - trailing);
            ch = ps.Character(from.row, from.column);
          }
          ps.PutCell(to.column, to.row, ch);
        }
        changed = true;
      }
    }
  }
  GoToNextField();
  return changed ? ScreenChange::Kind::kWhole : ScreenChange::Kind::kCaret;
}

ScreenChange::Kind Keyboard::FieldSign(bool minus) {
  PresentationSpace& ps = host_.ps;
  const FieldRecord field = host_.fields.Current();
  if (!field.IsField()) return ScreenChange::Kind::kNothing;
  bool changed = false;
  const CellAddress sign = FieldCell(field, field.length - 1);
  if (field.IsSignedNumeric()) {
    const std::uint8_t now = ps.Character(sign.row, sign.column);
    const std::uint8_t want = minus ? kMinus : kBlank;
    if (now != want) {
      ps.SetCell(sign.column, sign.row, want, ps.Attribute(sign.row, sign.column));
      changed = true;
    }
  }
  int last_digit = -1;  // the field's last cell, for the negative zone below
  if (minus && field.ShiftType() == kShiftNumeric) {
    std::uint8_t last = 0;
    for (int i = 0; i < field.length; ++i) {
      const CellAddress c = FieldCell(field, i);
      if (ps.Character(c.row, c.column) != 0) last = ps.Character(c.row, c.column);
    }
    if (last == kPlus || last == kMinus || last == kBlank || last == '.') {
      host_.SoundAlarm();
      return ScreenChange::Kind::kNothing;
    }
    last_digit = field.length - 1;
  }
  const ScreenChange::Kind exit = FieldExit();
  // The flag goes to the field the exit moved to, which is the current field now.
  MarkModified();
  if (last_digit >= 0) {
    // The field's last digit takes the negative zone (host bits 7-4 = 1101).
    const CellAddress c = FieldCell(field, last_digit);
    const std::uint8_t ch = ps.Character(c.row, c.column);
    if (IsDigit(ch)) {
      const std::uint8_t host = DisplayToHost(host_.emulation_type, ch);
      const std::uint8_t negative = HostToDisplay(host_.emulation_type, (host & 0x0F) | 0xD0);
      ps.SetCell(c.column, c.row, negative, ps.Attribute(c.row, c.column));
      changed = true;
    }
  }
  return changed ? ScreenChange::Kind::kWhole : exit;
}

ScreenChange::Kind Keyboard::EndOfField() {
  PresentationSpace& ps = host_.ps;
  const FieldRecord& field = host_.fields.Current();
  if (!field.IsField()) return ScreenChange::Kind::kCaret;
  int i = std::max(field.DataLength() - 1, 0);
  const int start = i;
  while (i > 0) {
    const CellAddress c = FieldCell(field, i);
    if (ps.Character(c.row, c.column) > kBlank) break;
    --i;
  }
  // Just behind the last character; in an empty field that is the second cell.
  if (i != start) ++i;
  const CellAddress to = FieldCell(field, i);
  ps.SetCursor(to.row, to.column);
  return ScreenChange::Kind::kCaret;
}

ScreenChange::Kind Keyboard::NextFieldKey() {
  FieldTable& fields = host_.fields;
  if (fields.TableIsEmpty()) return ScreenChange::Kind::kCaret;
  if (fields.Current().IsField()) {
    GoToNextField();
  } else {
    fields.FirstField();
    GoToFieldStart(fields.ReadField());
  }
  return ScreenChange::Kind::kCaret;
}

ScreenChange::Kind Keyboard::FirstFieldKey() {
  FieldTable& fields = host_.fields;
  if (!fields.FirstField()) return ScreenChange::Kind::kNothing;
  GoToFieldStart(fields.ReadField());
  return ScreenChange::Kind::kCaret;
}

ScreenChange::Kind Keyboard::Reset() {
  host_.SetKeyboardLocked(false);
  if (!host_.ps.ErrorLine()) return ScreenChange::Kind::kNothing;
  host_.ps.SetErrorLine(false);
  host_.ps.RestoreErrorRow();
  return ScreenChange::Kind::kWhole;
}

}  // namespace veltrix
