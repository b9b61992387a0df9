#include "tn5250/trace_event.h"

#include <array>

namespace veltrix {
namespace {

struct TraceInfo {
  std::string_view name;
  std::string_view text;
};

// In the order of TraceCode.
constexpr std::array<TraceInfo, 13> kTraces{{
    {"CallAlarm", "Call Alarm\r\n"},
    {"ResetAid", "Reset AID code\r\n"},
    {"ClearFormatTable", "CLEAR FORMAT TABLE\r\n"},
    {"SaveScreen", "Save Screen: just send 0x0d to host\r\n"},
    {"SbaParameterError", "SBA parameter error\r\n"},
    {"EraseToAddressLengthError", "Erase to Address length error\r\n"},
    {"InvalidEaParameter", "Invalid EA parameter\r\n"},
    {"SohLengthError", "Error SOH length parameter\r\n"},
    {"WeaTypeError", "Error WEA Type\r\n"},
    {"IbmWrite", "IBMWrite\r\n"},
    {"EraseChar", "EraseChar\r\n"},
    {"Backspace", "Backspace\r\n"},
    {"CursorOffScreen", "Cursor address off the screen\r\n"},
}};

const TraceInfo& InfoOf(TraceCode code) {
  const auto i = static_cast<std::size_t>(code);
  return kTraces[i < kTraces.size() ? i : 0];
}

}  // namespace

std::string_view TraceName(TraceCode code) { return InfoOf(code).name; }
std::string_view TraceText(TraceCode code) { return InfoOf(code).text; }

}  // namespace veltrix
