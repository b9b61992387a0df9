#ifndef VELTRIX_SHELL_TOOL_ICONS_QT_H_
#define VELTRIX_SHELL_TOOL_ICONS_QT_H_

#include <QIcon>

#include "shell/command_table.h"

class QStyle;

namespace veltrix {

// The toolbar image: the style's standard icons for the file and settings commands, our own
// 16 x 15 drawings for the connection and capture commands.
QIcon ToolIcon(ToolImage image, const QStyle* style);

// The program's icon: a handheld terminal with its small screen and keypad.
QIcon ProgramIcon();

}  // namespace veltrix

#endif  // VELTRIX_SHELL_TOOL_ICONS_QT_H_
