#include "shell/command_enabling.h"

#include "shell/command_table.h"

namespace veltrix {

void CommandEnabling::EnableConnectionCommands(bool connected) {
  if (connected) {
    if (!connect) return;
    connect = false;
    disconnect = start_capture = capture = stop_capture = true;
  } else {
    connect = true;
    disconnect = start_capture = capture = stop_capture = false;
  }
}

void CommandEnabling::EnableCaptureCommands(bool capturing) {
  if (capturing) {
    if (!start_capture) return;
    start_capture = false;
    capture = stop_capture = true;
  } else {
    start_capture = true;
    capture = stop_capture = false;
  }
}

bool CommandEnabling::IsEnabled(int id) const {
  switch (id) {
    case kCmdConnect:
      return connect;
    case kCmdDisconnect:
      return disconnect;
    case kCmdStartCapture:
      return start_capture;
    case kCmdCapture:
      return capture;
    case kCmdStopCapture:
      return stop_capture;
    default:
      return true;
  }
}

}  // namespace veltrix
