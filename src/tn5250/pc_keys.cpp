#include "tn5250/pc_keys.h"

#include <algorithm>
#include <array>

namespace veltrix {
namespace {

// PC key to terminal key code.
constexpr std::array<PcKeyMapping, 27> kKeyTable = {{
    {PcKey::kBackspace, 8, false}, {PcKey::kTab, 150, false},    {PcKey::kEnter, 13, false},
    {PcKey::kEscape, 27, false},   {PcKey::kPageUp, 145, false}, {PcKey::kPageDown, 146, false},
    {PcKey::kEnd, 153, false},     {PcKey::kHome, 152, false},   {PcKey::kLeft, 142, false},
    {PcKey::kUp, 140, false},      {PcKey::kRight, 143, false},  {PcKey::kDown, 141, false},
    {PcKey::kDelete, 160, false},  {PcKey::kPadPlus, 161, true}, {PcKey::kPadMinus, 162, true},
    {PcKey::kF1, 128, false},      {PcKey::kF2, 129, false},     {PcKey::kF3, 130, false},
    {PcKey::kF4, 131, false},      {PcKey::kF5, 132, false},     {PcKey::kF6, 133, false},
    {PcKey::kF7, 134, false},      {PcKey::kF8, 135, false},     {PcKey::kF9, 136, false},
    {PcKey::kF10, 147, false},     {PcKey::kF11, 148, false},    {PcKey::kF12, 149, false},
}};

}  // namespace

std::optional<PcKeyMapping> MapPcKey(PcKey key) {
  auto it = std::find_if(kKeyTable.begin(), kKeyTable.end(),
                         [key](const PcKeyMapping& m) { return m.key == key; });
  if (it == kKeyTable.end()) return std::nullopt;
  return *it;
}

bool IsTypableCharacter(char32_t c) {
  if (c < 0x20 || c == 0x7F) return false;
  if (c >= 0x80 && c < 0xA0) return false;  // C1 control characters
  return c <= 0x10FFFF;
}

std::optional<PcKeyboard::Input> PcKeyboard::KeyDown(PcKey key) {
  std::optional<PcKeyMapping> mapping = MapPcKey(key);
  if (!mapping) return std::nullopt;
  if (key == PcKey::kPadPlus) swallow_plus_ = true;
  if (key == PcKey::kPadMinus) swallow_minus_ = true;
  return Input{false, mapping->key_code, 0};
}

std::optional<PcKeyboard::Input> PcKeyboard::Character(char32_t c) {
  if (c == U'+' && swallow_plus_) {
    swallow_plus_ = false;
    return std::nullopt;
  }
  if (c == U'-' && swallow_minus_) {
    swallow_minus_ = false;
    return std::nullopt;
  }
  if (!IsTypableCharacter(c)) return std::nullopt;
  return Input{true, 0, c};
}

}  // namespace veltrix
