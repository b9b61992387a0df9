#include "terminal_sim/simulated_terminal.h"

#include <algorithm>

#include "download/download_engine.h"

namespace veltrix::sim {
namespace {

constexpr int kEraseMs = 50;  // the erase answers "FB" at once and "FA" when done

}  // namespace

void SimulatedTerminal::Reply(std::vector<TerminalOutput>& out, std::string_view text,
                              int delay_ms) {
  if (faults_.silent) return;
  if (faults_.garbage) {
    out.push_back({{0x01, 0xFE, 0x55, 0xAA, 0x00, 0x7F, 0x80, 0x10, 0x20, 0x30, 0x40, 0x50}});
    return;
  }
  if (faults_.wrong) text = "XX";
  TerminalOutput o{{text.begin(), text.end()}, delay_ms};
  o.bytes.push_back('\r');
  out.push_back(std::move(o));
}

std::vector<TerminalOutput> SimulatedTerminal::Received(std::span<const std::uint8_t> bytes) {
  input_.insert(input_.end(), bytes.begin(), bytes.end());
  std::vector<TerminalOutput> out;
  for (bool more = true; more && !input_.empty();) {
    switch (mode_) {
      case Mode::kCommand:
        more = Command(out);
        break;
      case Mode::kSettings:
        more = Block(out);
        break;
      case Mode::kFrames:
        more = Frame(out);
        break;
    }
    if (!out.empty() && out.back().close) break;
  }
  return out;
}

bool SimulatedTerminal::Command(std::vector<TerminalOutput>& out) {
  const auto cr = std::ranges::find(input_, '\r');
  if (cr == input_.end()) {
    if (input_.size() > 64) input_.clear();  // no command is this long
    return false;
  }
  const std::string line(input_.begin(), cr);
  input_.erase(input_.begin(), cr + 1);
  if (line == "TALMOR") {
    mode_ = Mode::kSettings;
    block_ = 0;
    image_.clear();
    settings_complete_ = false;
    Reply(out, "ACK");
  } else if (line.empty()) {
    Reply(out, "ACK");  // awake, but not in download mode: the PC wakes it up
  } else if (line == "PALDREX") {
    Reply(out, "ACK1");
  } else if (line == "DOWNLOAD") {
    Reply(out, "ACK2");
  } else if (line == ":ERASE") {
    if (faults_.erase_fn && !erase_fn_done_) {
      erase_fn_done_ = true;
      Reply(out, "FN");
      Reply(out, "FB", kEraseMs);
    } else {
      Reply(out, "FB");
    }
    Reply(out, "FA", 2 * kEraseMs);
    mode_ = Mode::kFrames;
    frame_ = 0;
    program_.clear();
    program_complete_ = false;
  } else {
    problems_.push_back("unknown command \"" + line + "\"");
  }
  return true;
}

bool SimulatedTerminal::Block(std::vector<TerminalOutput>& out) {
  static constexpr std::uint8_t kTalmor[] = {'T', 'A', 'L', 'M', 'O', 'R', '\r'};
  if (block_ == 0 && input_.size() >= 7 && std::equal(kTalmor, kTalmor + 7, input_.begin())) {
    mode_ = Mode::kCommand;  // the handshake again
    return true;
  }
  if (input_.size() < kSettingsBlockBytes) return false;
  std::vector<std::uint8_t> block(input_.begin(), input_.begin() + kSettingsBlockBytes);
  input_.erase(input_.begin(), input_.begin() + kSettingsBlockBytes);
  if (block_ == faults_.close_at) {
    out.push_back({{}, 0, true});
    return false;
  }
  unsigned sum = 0;
  for (std::size_t i = 0; i < kSettingsBlockData; ++i) sum += block[i];
  const bool sum_ok = block[100] == (sum >> 8) && block[101] == (sum & 0xFF);
  const bool number_ok = block[102] == (block_ & 0xFF);
  if (!sum_ok) problems_.push_back("block " + std::to_string(block_) + ": wrong sum");
  if (!number_ok) {
    problems_.push_back("block " + std::to_string(block_) + ": number " +
                        std::to_string(block[102]));
  }
  if (!sum_ok || !number_ok || (block_ == faults_.nak_block && !nak_done_)) {
    if (block_ == faults_.nak_block) nak_done_ = true;
    Reply(out, "NAK");
    return true;
  }
  image_.insert(image_.end(), block.begin(), block.begin() + kSettingsBlockData);
  ++block_;
  if (block_ == kSettingsBlockCount) {
    settings_complete_ = true;
    mode_ = Mode::kCommand;
  }
  Reply(out, "ACK");
  return true;
}

bool SimulatedTerminal::Frame(std::vector<TerminalOutput>& out) {
  if (input_[0] != 'S') {  // out of step: wait for the next frame
    problems_.push_back("frame " + std::to_string(frame_) + ": does not start with S");
    input_.clear();
    Reply(out, "FN");
    return false;
  }
  if (input_.size() < 3) return false;
  const std::size_t total = static_cast<std::size_t>(input_[2]) + 4;
  if (input_.size() < total) return false;
  std::vector<std::uint8_t> frame(input_.begin(), input_.begin() + static_cast<long>(total));
  input_.erase(input_.begin(), input_.begin() + static_cast<long>(total));
  if (frame[1] == '7') {
    if (!std::ranges::equal(frame, kEndFrame)) problems_.push_back("the end frame is wrong");
    program_complete_ = true;
    mode_ = Mode::kCommand;
    Reply(out, "FA");
    return true;
  }
  if (frame_ == faults_.close_at) {
    out.push_back({{}, 0, true});
    return false;
  }
  const std::string name = "frame " + std::to_string(frame_);
  unsigned sum = 0;
  for (std::size_t i = 2; i + 2 < total; ++i) sum += frame[i];
  bool ok = frame[1] == '3' && frame[total - 1] == '\r' && total >= 9;
  if (!ok) problems_.push_back(name + ": malformed");
  if (ok && frame[total - 2] != static_cast<std::uint8_t>(0xFF - (sum & 0xFF))) {
    problems_.push_back(name + ": wrong checksum");
    ok = false;
  }
  if (frame_ == faults_.ff_frame) return Reply(out, "FF"), true;
  if (!ok || (frame_ == faults_.fn_frame && !fn_done_)) {
    if (frame_ == faults_.fn_frame) fn_done_ = true;
    Reply(out, "FN");
    return true;
  }
  const std::uint32_t address =
      static_cast<std::uint32_t>(frame[3]) << 24 | frame[4] << 16 | frame[5] << 8 | frame[6];
  for (std::size_t i = 7; i + 2 < total; ++i) {
    const std::uint32_t at = address + static_cast<std::uint32_t>(i - 7);
    if (program_.contains(at)) {
      problems_.push_back(name + ": writes address " + std::to_string(at) + " twice");
      break;
    }
    program_[at] = frame[i];
  }
  ++frame_;
  Reply(out, "FA");
  return true;
}

std::vector<std::uint8_t> SimulatedTerminal::settings() const {
  return {image_.begin(), image_.begin() + static_cast<long>(std::min(image_.size(), kRecordSize))};
}

std::vector<std::uint8_t> SimulatedTerminal::ProgramImage(std::uint32_t* base) const {
  if (program_.empty()) return {};
  const std::uint32_t low = program_.begin()->first;
  const std::uint32_t high = program_.rbegin()->first;
  if (base) *base = low;
  if (high - low >= (64u << 20)) return {};  // too sparse to write out as one image
  std::vector<std::uint8_t> image(static_cast<std::size_t>(high - low) + 1, 0xFF);
  for (const auto& [at, byte] : program_) image[at - low] = byte;
  return image;
}

}  // namespace veltrix::sim
