#include "tn5250/keys.h"

namespace veltrix {

int KeyFunction(HostKey key) {
  const int code = static_cast<int>(key);
  if (code >= 128 && code <= 136) return code - 127;  // F1..F9
  switch (key) {
    case HostKey::kF10:
      return 10;
    case HostKey::kF11:
      return 11;
    case HostKey::kF12:
      return 12;
    case HostKey::kEnter:
      return 45;
    case HostKey::kPageUp:
      return 36;
    case HostKey::kPageDown:
      return 35;
    case HostKey::kDelete:
      return 27;
    case HostKey::kFieldPlus:
      return 30;
    case HostKey::kFieldMinus:
      return 31;
    case HostKey::kTab:
      return 34;
    case HostKey::kHome:
      return 38;
    case HostKey::kEnd:
      return 33;
    case HostKey::kReset:
      return 44;
    case HostKey::kBackspace:
      return 47;
    default:
      return 0;
  }
}

std::uint8_t FunctionToAid(int function) {
  if (function >= 1 && function <= 12) return static_cast<std::uint8_t>(0x30 + function);
  if (function >= 13 && function <= 24) return static_cast<std::uint8_t>(0xB0 + function - 12);
  if (function == 45) return 0xF1;
  if (function == 36) return 0xF4;
  if (function == 35) return 0xF5;
  return 0;
}

HostKey FunctionKey(int n) {
  if (n >= 1 && n <= 9) return static_cast<HostKey>(127 + n);
  if (n == 10) return HostKey::kF10;
  if (n == 11) return HostKey::kF11;
  return HostKey::kF12;
}

}  // namespace veltrix
