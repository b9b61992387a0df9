#include "tn5250/keys.h"

namespace veltrix {

namespace {

struct KeyFunctionEntry {
  HostKey key;
  int function;
};

// Keys and their function numbers; F1..F9 are computed from their codes.
constexpr KeyFunctionEntry kKeyFunctions[] = {
    {HostKey::kF10, 10},    {HostKey::kF11, 11},       {HostKey::kF12, 12},
    {HostKey::kEnter, 45},  {HostKey::kPageUp, 36},    {HostKey::kPageDown, 35},
    {HostKey::kDelete, 27}, {HostKey::kFieldPlus, 30}, {HostKey::kFieldMinus, 31},
    {HostKey::kTab, 34},    {HostKey::kHome, 38},      {HostKey::kEnd, 33},
    {HostKey::kReset, 44},  {HostKey::kBackspace, 47},
};

}  // namespace

int KeyFunction(HostKey key) {
  const int code = static_cast<int>(key);
  if (code >= 128 && code <= 137) return code - 127;  // F1..F9, and 137 as F10
  for (const KeyFunctionEntry& e : kKeyFunctions) {
    if (e.key == key) return e.function;
  }
  return 0;
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
