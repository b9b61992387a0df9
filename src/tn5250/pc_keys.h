#ifndef VELTRIX_TN5250_PC_KEYS_H_
#define VELTRIX_TN5250_PC_KEYS_H_

#include <cstdint>
#include <optional>

namespace veltrix {

// The PC keys that the host screen passes on, independent of any window system. The widget layer
// turns its toolkit's key events into these.
enum class PcKey : std::uint8_t {
  kOther,  // any key the host session ignores
  kBackspace,
  kTab,
  kEnter,
  kEscape,
  kPageUp,
  kPageDown,
  kEnd,
  kHome,
  kLeft,
  kUp,
  kRight,
  kDown,
  kDelete,
  kPadPlus,   // "+" on the numeric pad
  kPadMinus,  // "-" on the numeric pad
  kF1,
  kF2,
  kF3,
  kF4,
  kF5,
  kF6,
  kF7,
  kF8,
  kF9,
  kF10,
  kF11,
  kF12,
};

// One row of the key table: the terminal key code a PC key gives and whether the character that
// the same key press produces afterwards must be swallowed.
struct PcKeyMapping {
  PcKey key;
  std::uint8_t key_code;
  bool swallows_character;  // set for the pad "+" and "-", which also produce a character
};

// The terminal key code of a PC key, or nothing when the host session ignores the key.
std::optional<PcKeyMapping> MapPcKey(PcKey key);

// True for a character that types into a field: a letter, digit, punctuation or blank (any
// character that is not a control character).
bool IsTypableCharacter(char32_t c);

// Turns the key presses and characters that the host screen receives into terminal key codes
// (typed characters stay characters). The pad "+" and "-" act as Field Plus and Field Minus on key
// down; the "+" or "-" character that follows them is swallowed.
class PcKeyboard {
 public:
  // What a key press or character gives the terminal: a key code or a typed character.
  struct Input {
    bool is_character = false;
    std::uint8_t key_code = 0;
    char32_t character = 0;
  };

  std::optional<Input> KeyDown(PcKey key);
  std::optional<Input> Character(char32_t c);

  // A new connection starts without pending swallows.
  void Reset() { swallow_plus_ = swallow_minus_ = false; }

 private:
  bool swallow_plus_ = false;
  bool swallow_minus_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_PC_KEYS_H_
