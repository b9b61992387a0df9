#ifndef VELTRIX_TN5250_KEYS_H_
#define VELTRIX_TN5250_KEYS_H_

#include <cstdint>

namespace veltrix {

// The engine's own key codes. The values are the terminal's internal key codes, so a key
// read from a recorded session or a key table means the same thing everywhere. Printable
// characters do not go through this enum: they are typed with Session::TypeCharacter.
enum class HostKey : int {
  kBackspace = 8,
  kEnter = 13,
  kReset = 27,  // Esc on the PC keyboard
  kF1 = 128,
  kF2 = 129,
  kF3 = 130,
  kF4 = 131,
  kF5 = 132,
  kF6 = 133,
  kF7 = 134,
  kF8 = 135,
  kF9 = 136,
  kUp = 140,
  kDown = 141,
  kLeft = 142,
  kRight = 143,
  kPageUp = 145,    // Roll Down
  kPageDown = 146,  // Roll Up
  kF10 = 147,
  kF11 = 148,
  kF12 = 149,
  kTab = 150,
  kHome = 152,
  kEnd = 153,
  kDelete = 160,
  kFieldPlus = 161,
  kFieldMinus = 162,
};

// What a key does, numbered as the keyboard numbers its functions: 1 to 24 are the command keys
// F1..F24 (CommandFunction(n)); kNone a key with no function (a cursor move, a character).
enum class KeyFunction : int {
  kNone = 0,
  kDelete = 27,
  kFieldPlus = 30,
  kFieldMinus = 31,
  kEndOfField = 33,
  kFieldAdvance = 34,  // Tab
  kRollUp = 35,        // Page Down
  kRollDown = 36,      // Page Up
  kFirstField = 38,    // Home
  kReset = 44,
  kEnter = 45,
  kBackspace = 47,
};
constexpr KeyFunction CommandFunction(int n) { return static_cast<KeyFunction>(n); }
// The command key number 1..24 of a function, or 0 for any other function.
constexpr int CommandKeyNumber(KeyFunction f) {
  const int n = static_cast<int>(f);
  return n >= 1 && n <= 24 ? n : 0;
}

// The function of a key.
KeyFunction FunctionOfKey(HostKey key);

// AID byte of an attention function (`FunctionToAid`); 0 for any other function.
std::uint8_t FunctionToAid(KeyFunction function);

// Returns the key for F1..F12 (n in 1..12).
HostKey FunctionKey(int n);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_KEYS_H_
