#ifndef TERMINAL_SIM_SIMULATED_TERMINAL_H_
#define TERMINAL_SIM_SIMULATED_TERMINAL_H_

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace veltrix::sim {

// Ways the simulated terminal can be told to misbehave.
struct TerminalFaults {
  bool silent = false;    // never answers
  bool wrong = false;     // answers everything with "XX"
  bool garbage = false;   // answers everything with twelve bytes of noise
  int nak_block = -1;     // this settings block is answered "NAK" the first time
  int fn_frame = -1;      // this program frame is answered "FN" the first time
  int ff_frame = -1;      // this program frame is answered "FF"
  int close_at = -1;      // the link is closed when this block or frame arrives
  bool erase_fn = false;  // the erase answers "FN" once before "FB"
};

// One thing the terminal does: send `bytes` after `delay_ms`, or close the link.
struct TerminalOutput {
  std::vector<std::uint8_t> bytes;
  int delay_ms = 0;
  bool close = false;
};

// The terminal's side of both downloads, without I/O: bytes from the PC go in, replies come out.
// It checks every block's sum and number and every frame's count, checksum and address, and keeps
// what it received.
class SimulatedTerminal {
 public:
  explicit SimulatedTerminal(TerminalFaults faults = {}) : faults_(faults) {}

  std::vector<TerminalOutput> Received(std::span<const std::uint8_t> bytes);

  bool settings_complete() const { return settings_complete_; }
  bool program_complete() const { return program_complete_; }
  // The settings record (the image without its 16 trailing zero bytes).
  std::vector<std::uint8_t> settings() const;
  // The program from its lowest address to its highest, gaps filled with 0xFF.
  std::vector<std::uint8_t> ProgramImage(std::uint32_t* base = nullptr) const;
  // What the checks found wrong, one line each.
  const std::vector<std::string>& problems() const { return problems_; }
  int blocks() const { return block_; }
  int frames() const { return frame_; }

 private:
  enum class Mode { kCommand, kSettings, kFrames };
  void Reply(std::vector<TerminalOutput>& out, std::string_view text, int delay_ms = 0);
  bool Command(std::vector<TerminalOutput>& out);
  bool Block(std::vector<TerminalOutput>& out);
  bool Frame(std::vector<TerminalOutput>& out);

  TerminalFaults faults_;
  Mode mode_ = Mode::kCommand;
  std::vector<std::uint8_t> input_;
  std::vector<std::uint8_t> image_;
  int block_ = 0;
  int frame_ = 0;
  bool nak_done_ = false;
  bool fn_done_ = false;
  bool erase_fn_done_ = false;
  bool settings_complete_ = false;
  bool program_complete_ = false;
  std::map<std::uint32_t, std::uint8_t> program_;
  std::vector<std::string> problems_;
};

}  // namespace veltrix::sim

#endif  // TERMINAL_SIM_SIMULATED_TERMINAL_H_
