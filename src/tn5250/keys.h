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

// Function numbers of the keyboard (`KeyFunction`); 0 means the key has no function.
int KeyFunction(HostKey key);

// AID byte of an attention function (`FunctionToAid`); 0 for any other function.
std::uint8_t FunctionToAid(int function);

// Returns the key for F1..F12 (n in 1..12).
HostKey FunctionKey(int n);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_KEYS_H_
