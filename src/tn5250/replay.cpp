#include "tn5250/replay.h"

#include <array>

#include "resources/hex_text.h"
#include "resources/json_writer.h"
#include "tn5250/display_text.h"
#include "tn5250/double_byte.h"

namespace veltrix {

namespace {

struct KeyName {
  std::string_view name;
  HostKey key;
};

constexpr std::array<KeyName, 27> kKeyNames = {{
    {"Enter", HostKey::kEnter},
    {"Tab", HostKey::kTab},
    {"Home", HostKey::kHome},
    {"End", HostKey::kEnd},
    {"Delete", HostKey::kDelete},
    {"Backspace", HostKey::kBackspace},
    {"FieldPlus", HostKey::kFieldPlus},
    {"FieldMinus", HostKey::kFieldMinus},
    {"Reset", HostKey::kReset},
    {"PageUp", HostKey::kPageUp},
    {"PageDown", HostKey::kPageDown},
    {"Up", HostKey::kUp},
    {"Down", HostKey::kDown},
    {"Left", HostKey::kLeft},
    {"Right", HostKey::kRight},
    {"F1", HostKey::kF1},
    {"F2", HostKey::kF2},
    {"F3", HostKey::kF3},
    {"F4", HostKey::kF4},
    {"F5", HostKey::kF5},
    {"F6", HostKey::kF6},
    {"F7", HostKey::kF7},
    {"F8", HostKey::kF8},
    {"F9", HostKey::kF9},
    {"F10", HostKey::kF10},
    {"F11", HostKey::kF11},
    {"F12", HostKey::kF12},
}};

std::string Hex2(unsigned v) { return HexByte(static_cast<std::uint8_t>(v)); }

std::string Hex4(unsigned hi, unsigned lo) { return Hex2(hi) + Hex2(lo); }

// "SbaParameterError at 12": the code's name and the record byte where the engine noticed it.
std::string TraceLine(const TraceEvent& event) {
  std::string line(TraceName(event.code));
  if (event.offset >= 0) line += " at " + std::to_string(event.offset);
  return line;
}

}  // namespace

bool ParseReplayKeys(std::string_view text, int emulation_type, std::vector<KeyStroke>& keys,
                     std::string& error) {
  std::size_t i = 0;
  while (i < text.size()) {
    if (text[i] == '<') {
      if (i + 1 < text.size() && text[i + 1] == '<') {
        keys.push_back({true, '<', HostKey::kEnter});
        i += 2;
        continue;
      }
      const std::size_t close = text.find('>', i);
      if (close == std::string_view::npos) {
        error = "unterminated key name at offset " + std::to_string(i);
        return false;
      }
      const std::string_view name = text.substr(i + 1, close - i - 1);
      int row = 0;
      int column = 0;
      char tail = 0;
      if (name.starts_with("Point ") &&
          std::sscanf(std::string(name).c_str(), "Point %d %d%c", &row, &column, &tail) == 2) {
        KeyStroke point;
        point.row = row;
        point.column = column;
        keys.push_back(point);
        i = close + 1;
        continue;
      }
      bool found = false;
      for (const KeyName& k : kKeyNames) {
        if (k.name == name) {
          keys.push_back({false, 0, k.key});
          found = true;
          break;
        }
      }
      if (!found) {
        error = "unknown key <" + std::string(name) + ">";
        return false;
      }
      i = close + 1;
      continue;
    }
    const std::size_t at = i;
    const char32_t c = NextUtf8(text, i);
    const TypedCode code = TypedCodeOf(emulation_type, c);
    if (code.size == 0) {
      error = "character at offset " + std::to_string(at) + " cannot be typed in this language";
      return false;
    }
    KeyStroke stroke{true, code.first, HostKey::kEnter};
    stroke.is_pair = code.size == 2;
    stroke.second = code.second;
    keys.push_back(stroke);
  }
  return true;
}

std::string KeyStrokeText(const KeyStroke& stroke) {
  if (stroke.row >= 0) {
    return std::string("<Point ")
        .append(std::to_string(stroke.row))
        .append(" ")
        .append(std::to_string(stroke.column))
        .append(">");
  }
  if (stroke.is_character) return std::string(1, static_cast<char>(stroke.character));
  for (const KeyName& k : kKeyNames) {
    if (k.key == stroke.key) return std::string("<").append(k.name).append(">");
  }
  return "<?>";
}

void Press(Session& session, const KeyStroke& stroke) {
  if (stroke.row >= 0) {
    session.PointAt(stroke.row, stroke.column);
  } else if (stroke.is_pair) {
    session.TypeDoubleByte(stroke.character, stroke.second);
  } else if (stroke.is_character) {
    session.TypeCharacter(stroke.character);
  } else {
    session.KeyInput(stroke.key);
  }
}

ReplayRun::ReplayRun(const SessionConfig& config) : session_(config, this) {}

void ReplayRun::OnSend(std::span<const std::uint8_t> bytes) {
  sent_.insert(sent_.end(), bytes.begin(), bytes.end());
  if (send_) send_(bytes);
}

void ReplayRun::Run(std::span<const ReplayStep> steps, std::size_t chunk_size) {
  for (const ReplayStep& step : steps) {
    const std::span<const std::uint8_t> host(step.host);
    const std::size_t size = chunk_size == 0 ? host.size() : chunk_size;
    for (std::size_t at = 0; at < host.size(); at += size) {
      session_.Receive(host.subspan(at, std::min(size, host.size() - at)));
    }
    for (const KeyStroke& k : step.keys) Press(session_, k);
  }
}

std::string ReplayRun::Text() const {
  const PresentationSpace& ps = session_.Screen();
  const int language = session_.Config().emulation_type;
  std::string out;
  for (int row = 0; row < ps.Rows(); ++row) {
    out += ScreenRowText(ps, language, row);  // whole rows, as the screen holds them
    out += '\n';
  }
  out +=
      "cursor " + std::to_string(ps.CursorRow()) + " " + std::to_string(ps.CursorColumn()) + "\n";
  for (const FieldRecord& f : session_.Fields().Records()) {
    out += "field number=" + std::to_string(f.number) +
           " resequence=" + std::to_string(f.resequence) + " row=" + std::to_string(f.row) +
           " column=" + std::to_string(f.column) + " length=" + std::to_string(f.length) +
           " ffw=" + Hex4(f.format1, f.format2) + " fcw=" + Hex4(f.control1, f.control2) +
           " attribute=" + Hex2(f.attribute) + "\n";
  }
  out += "sent";
  for (std::uint8_t b : sent_) out.append(" ").append(Hex2(b));
  out += "\n";
  out += session_.KeyboardLocked() ? "keyboard locked\n" : "keyboard unlocked\n";
  if (session_.MessageWaiting()) out += "message waiting\n";
  out += "read mode " + std::to_string(static_cast<int>(session_.CurrentReadMode())) + "\n";
  out += "alarms " + std::to_string(alarms_) + "\n";
  for (const TraceEvent& t : traces_) out += "trace " + TraceLine(t) + "\n";
  return out;
}

std::string ReplayRun::Json() const {
  const PresentationSpace& ps = session_.Screen();
  const int language = session_.Config().emulation_type;
  JsonWriter json;
  json.Object().Field("rows", ps.Rows()).Field("columns", ps.Columns());
  json.Key("cursor").Object().Field("row", ps.CursorRow()).Field("column", ps.CursorColumn()).End();
  json.Key("screen").Array();
  for (int row = 0; row < ps.Rows(); ++row) json.Value(ScreenRowText(ps, language, row));
  json.End();
  for (const bool attributes : {false, true}) {
    json.Key(attributes ? "attributes" : "cells").Array();
    for (int row = 0; row < ps.Rows(); ++row) {
      std::string hex;
      for (int column = 0; column < ps.Columns(); ++column) {
        hex += Hex2(attributes ? ps.Attribute(row, column) : ps.Character(row, column));
      }
      json.Value(hex);
    }
    json.End();
  }
  json.Key("fields").Array();
  for (const FieldRecord& f : session_.Fields().Records()) {
    json.Object()
        .Field("number", f.number)
        .Field("resequence", f.resequence)
        .Field("row", f.row)
        .Field("column", f.column)
        .Field("length", f.length)
        .Field("ffw", Hex4(f.format1, f.format2))
        .Field("fcw", Hex4(f.control1, f.control2))
        .Field("attribute", Hex2(f.attribute))
        .End();
  }
  json.End();
  json.Field("keyboard_locked", session_.KeyboardLocked())
      .Field("read_mode", static_cast<int>(session_.CurrentReadMode()));
  std::string sent;
  for (std::uint8_t b : sent_) sent += Hex2(b);
  json.Field("sent", sent).Key("trace").Array();
  for (const TraceEvent& t : traces_) {
    json.Object()
        .Field("code", TraceName(t.code))
        .Field("offset", t.offset)
        .Field("text", TraceText(t.code))
        .End();
  }
  json.End().End();
  return json.text() + "\n";
}

}  // namespace veltrix
