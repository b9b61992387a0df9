#ifndef VELTRIX_TESTS_CORE_TN5250_TEST_UTIL_H_
#define VELTRIX_TESTS_CORE_TN5250_TEST_UTIL_H_

#include <cstdint>
#include <string>
#include <vector>

#include "tn5250/session.h"

namespace veltrix::testing {

// Collects everything a session reports.
struct RecordingListener : SessionListener {
  void OnSend(std::span<const std::uint8_t> bytes) override {
    sent.insert(sent.end(), bytes.begin(), bytes.end());
  }
  void OnScreenChanged(const ScreenChange& change) override { changes.push_back(change); }
  void OnAlarm() override { ++alarms; }
  void OnTrace(const TraceEvent& event) override { traces.push_back(event); }
  void OnKeyboardLockChanged(bool locked) override { lock_events.push_back(locked); }

  std::vector<std::uint8_t> sent;
  std::vector<ScreenChange> changes;
  int alarms = 0;
  std::vector<TraceEvent> traces;
  std::vector<bool> lock_events;
};

// Parses hex with optional blanks ("04 11 00 00").
inline std::vector<std::uint8_t> Hex(std::string_view text) {
  std::vector<std::uint8_t> out;
  int nibble = -1;
  for (char c : text) {
    int v = -1;
    if (c >= '0' && c <= '9') v = c - '0';
    if (c >= 'a' && c <= 'f') v = c - 'a' + 10;
    if (c >= 'A' && c <= 'F') v = c - 'A' + 10;
    if (v < 0) continue;
    if (nibble < 0) {
      nibble = v;
    } else {
      out.push_back(static_cast<std::uint8_t>(nibble * 16 + v));
      nibble = -1;
    }
  }
  return out;
}

// Wraps 5250 record content (after the 10-byte header) into a record with its header.
inline std::vector<std::uint8_t> Record(const std::vector<std::uint8_t>& body) {
  const std::size_t length = body.size() + 10;
  // Sized once: growing a ten-byte vector draws a false -Warray-bounds from GCC 12 at -O3.
  std::vector<std::uint8_t> out(length);
  const std::uint8_t header[] = {static_cast<std::uint8_t>(length >> 8),
                                 static_cast<std::uint8_t>(length),
                                 0x12,
                                 0xA0,
                                 0x00,
                                 0x00,
                                 0x04,
                                 0x00,
                                 0x00,
                                 0x03};
  std::copy(std::begin(header), std::end(header), out.begin());
  std::copy(body.begin(), body.end(), out.begin() + 10);
  return out;
}

inline std::string HexText(std::span<const std::uint8_t> bytes) {
  static const char* kDigits = "0123456789ABCDEF";
  std::string out;
  for (std::uint8_t b : bytes) {
    if (!out.empty()) out += ' ';
    out += kDigits[b >> 4];
    out += kDigits[b & 15];
  }
  return out;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_CORE_TN5250_TEST_UTIL_H_
