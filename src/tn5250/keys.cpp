#include "tn5250/keys.h"

#include "tn5250/stream_codes.h"

namespace veltrix {

namespace {

struct KeyFunctionEntry {
  HostKey key;
  KeyFunction function;
};

// Keys and their functions; F1..F9 are computed from their codes.
constexpr KeyFunctionEntry kKeyFunctions[] = {
    {HostKey::kF10, CommandFunction(10)},
    {HostKey::kF11, CommandFunction(11)},
    {HostKey::kF12, CommandFunction(12)},
    {HostKey::kEnter, KeyFunction::kEnter},
    {HostKey::kPageUp, KeyFunction::kRollDown},
    {HostKey::kPageDown, KeyFunction::kRollUp},
    {HostKey::kDelete, KeyFunction::kDelete},
    {HostKey::kFieldPlus, KeyFunction::kFieldPlus},
    {HostKey::kFieldMinus, KeyFunction::kFieldMinus},
    {HostKey::kTab, KeyFunction::kFieldAdvance},
    {HostKey::kHome, KeyFunction::kFirstField},
    {HostKey::kEnd, KeyFunction::kEndOfField},
    {HostKey::kReset, KeyFunction::kReset},
    {HostKey::kBackspace, KeyFunction::kBackspace},
};

}  // namespace

KeyFunction FunctionOfKey(HostKey key) {
  const int code = static_cast<int>(key);
  if (code >= 128 && code <= 137) return CommandFunction(code - 127);  // F1..F9, and 137 as F10
  for (const KeyFunctionEntry& e : kKeyFunctions) {
    if (e.key == key) return e.function;
  }
  return KeyFunction::kNone;
}

std::uint8_t FunctionToAid(KeyFunction function) {
  const int n = CommandKeyNumber(function);
  if (n >= 1 && n <= 12) return static_cast<std::uint8_t>(0x30 + n);
  if (n >= 13) return static_cast<std::uint8_t>(0xB0 + n - 12);
  switch (function) {
    case KeyFunction::kEnter:
      return kAidEnter;
    case KeyFunction::kRollDown:
      return kAidRollDown;
    case KeyFunction::kRollUp:
      return kAidRollUp;
    default:
      return 0;
  }
}

HostKey FunctionKey(int n) {
  if (n >= 1 && n <= 9) return static_cast<HostKey>(127 + n);
  if (n == 10) return HostKey::kF10;
  if (n == 11) return HostKey::kF11;
  return HostKey::kF12;
}

}  // namespace veltrix
