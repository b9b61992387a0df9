#ifndef VELTRIX_TN5250_REPLAY_H_
#define VELTRIX_TN5250_REPLAY_H_

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tn5250/keys.h"
#include "tn5250/session.h"

namespace veltrix {

// One key stroke of a replay: a printable character (display code), a key, a double-byte
// character (PC code in character and second) or a pointer click on a cell (row >= 0).
struct KeyStroke {
  bool is_character = false;
  std::uint8_t character = 0;
  HostKey key = HostKey::kEnter;
  bool is_pair = false;
  std::uint8_t second = 0;
  int row = -1;
  int column = -1;
};

// A stroke as the key syntax writes it ("<Enter>", "A", "<Point 5 10>").
std::string KeyStrokeText(const KeyStroke& stroke);

// Hands one stroke to the session.
void Press(Session& session, const KeyStroke& stroke);

// Parses replay keys: text is typed as it stands (UTF-8, converted to the host language's
// display code), key names in angle brackets (<Enter> <Tab> <Home> <End> <Delete> <Backspace>
// <FieldPlus> <FieldMinus> <Reset> <PageUp> <PageDown> <F1>..<F12> <Up> <Down> <Left>
// <Right>), "<Point ROW COLUMN>" for a click on a cell (counted from 0) and "<<" for a literal
// "<". A character without a single-byte code is typed as a double-byte character when the
// language has one. Gives false with a message on an unknown key name or a character the host
// language cannot type.
bool ParseReplayKeys(std::string_view text, int emulation_type, std::vector<KeyStroke>& keys,
                     std::string& error);

// One step of a replay: host bytes (Telnet included) fed in pieces of chunk_size bytes (0 for
// all at once), then key strokes.
struct ReplayStep {
  std::vector<std::uint8_t> host;
  std::vector<KeyStroke> keys;
};

// What a replay leaves: the session and everything it reported.
class ReplayRun : public SessionListener {
 public:
  explicit ReplayRun(const SessionConfig& config);
  void Run(std::span<const ReplayStep> steps, std::size_t chunk_size = 0);

  const Session& session() const { return session_; }
  Session& session() { return session_; }
  // A live session: what the session sends also goes to `send` (a socket to the host).
  void SetSender(std::function<void(std::span<const std::uint8_t>)> send) {
    send_ = std::move(send);
  }
  const std::vector<std::uint8_t>& sent() const { return sent_; }
  int alarms() const { return alarms_; }

  // Text output: the screen rows in full (empty cells as blanks), "cursor ROW COLUMN", one "field
  // ..." line per field record, "sent HEX...", then the keyboard state, read mode, alarms and one
  // "trace ..." line each.
  std::string Text() const;
  // The same as one JSON object.
  std::string Json() const;

  void OnSend(std::span<const std::uint8_t> bytes) override;
  void OnAlarm() override { ++alarms_; }
  void OnTrace(const TraceEvent& event) override { traces_.push_back(event); }

 private:
  Session session_;
  std::function<void(std::span<const std::uint8_t>)> send_;
  std::vector<std::uint8_t> sent_;
  std::vector<TraceEvent> traces_;
  int alarms_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_REPLAY_H_
