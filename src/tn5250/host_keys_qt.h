#ifndef VELTRIX_TN5250_HOST_KEYS_QT_H_
#define VELTRIX_TN5250_HOST_KEYS_QT_H_

#include <Qt>

#include "tn5250/pc_keys.h"

namespace veltrix {

// The PC key of a Qt key press (kOther for keys the host session ignores). The numeric pad's
// "+" and "-" are told apart from the main keyboard's by the keypad modifier.
PcKey PcKeyFromQt(int qt_key, Qt::KeyboardModifiers modifiers);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_KEYS_QT_H_
