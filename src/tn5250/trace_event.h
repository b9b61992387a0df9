#ifndef VELTRIX_TN5250_TRACE_EVENT_H_
#define VELTRIX_TN5250_TRACE_EVENT_H_

#include <cstdint>
#include <string_view>

namespace veltrix {

// What the engine notes while it works: oddities of the host's data stream that it passed over,
// and steps of its own worth a diagnostic line.
enum class TraceCode : std::uint8_t {
  kCallAlarm,
  kResetAid,
  kClearFormatTable,
  kSaveScreen,
  kSbaParameterError,
  kEraseToAddressLengthError,
  kInvalidEaParameter,
  kSohLengthError,
  kWeaTypeError,
  kIbmWrite,
  kEraseChar,
  kBackspace,
  kCursorOffScreen,
};

struct TraceEvent {
  TraceCode code = TraceCode::kCallAlarm;
  // The byte of the host record at which it was noticed; -1 when a key caused it.
  int offset = -1;
};

// The code's name ("SbaParameterError"), as replays and golden files print it.
std::string_view TraceName(TraceCode code);
// The diagnostic line of the code, ending in "\r\n".
std::string_view TraceText(TraceCode code);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_TRACE_EVENT_H_
