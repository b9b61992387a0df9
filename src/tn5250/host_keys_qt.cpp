#include "tn5250/host_keys_qt.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veltrix {
namespace {

constexpr std::array<std::pair<int, PcKey>, 27> kQtKeys = {{
    {Qt::Key_Backspace, PcKey::kBackspace},
    {Qt::Key_Tab, PcKey::kTab},
    {Qt::Key_Backtab, PcKey::kTab},
    {Qt::Key_Return, PcKey::kEnter},
    {Qt::Key_Enter, PcKey::kEnter},
    {Qt::Key_Escape, PcKey::kEscape},
    {Qt::Key_PageUp, PcKey::kPageUp},
    {Qt::Key_PageDown, PcKey::kPageDown},
    {Qt::Key_End, PcKey::kEnd},
    {Qt::Key_Home, PcKey::kHome},
    {Qt::Key_Left, PcKey::kLeft},
    {Qt::Key_Up, PcKey::kUp},
    {Qt::Key_Right, PcKey::kRight},
    {Qt::Key_Down, PcKey::kDown},
    {Qt::Key_Delete, PcKey::kDelete},
    {Qt::Key_F1, PcKey::kF1},
    {Qt::Key_F2, PcKey::kF2},
    {Qt::Key_F3, PcKey::kF3},
    {Qt::Key_F4, PcKey::kF4},
    {Qt::Key_F5, PcKey::kF5},
    {Qt::Key_F6, PcKey::kF6},
    {Qt::Key_F7, PcKey::kF7},
    {Qt::Key_F8, PcKey::kF8},
    {Qt::Key_F9, PcKey::kF9},
    {Qt::Key_F10, PcKey::kF10},
    {Qt::Key_F11, PcKey::kF11},
    {Qt::Key_F12, PcKey::kF12},
}};

}  // namespace

PcKey PcKeyFromQt(int qt_key, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::KeypadModifier)) {
    if (qt_key == Qt::Key_Plus) return PcKey::kPadPlus;
    if (qt_key == Qt::Key_Minus) return PcKey::kPadMinus;
  }
  auto it = std::find_if(kQtKeys.begin(), kQtKeys.end(),
                         [qt_key](const auto& entry) { return entry.first == qt_key; });
  return it == kQtKeys.end() ? PcKey::kOther : it->second;
}

}  // namespace veltrix
