#ifndef VELTRIX_DOWNLOAD_CRADLE_IR_SETUP_H_
#define VELTRIX_DOWNLOAD_CRADLE_IR_SETUP_H_

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

namespace veltrix {

// The serial line as the download sets it. It lives for the program's run: what one download
// raised (DTR and RTS after a Cradle-IR set-up) stays in force for the next unless it is set
// again.
struct LineSettings {
  int rate = 0;  // bit/s; 8 data bits, no parity, one stop bit, no flow control
  bool dtr = false;
  bool rts = false;
  bool operator==(const LineSettings&) const = default;
};

// The four download rates, as `BaudRate` numbers them, and the cradle's code for each.
inline constexpr std::array<int, 4> kDownloadRates{115200, 57600, 38400, 9600};
inline constexpr std::array<char, 4> kCradleRateCodes{'6', '5', '4', '2'};
// The rates the cradle's IR device is probed at, in order.
inline constexpr std::array<int, 5> kIrProbeRates{115200, 38400, 57600, 19200, 9600};
inline constexpr std::int64_t kIrPauseMs = 100;
inline constexpr std::uint8_t kIrProbeByte = 0x0F;

struct IrAction {
  enum class Kind { kApply, kWrite, kFinished };
  Kind kind;
  LineSettings line;                // kApply: put these on the port
  std::vector<std::uint8_t> bytes;  // kWrite
  bool ok = false;                  // kFinished: the device listens at the download rate
};

// Programs the infrared cradle for the download rate: finds the rate its IR device listens at
// (a 0x0F probe answered by 0x0F), then sends 0x07, the rate code and "Q", with a 100 ms pause
// after each line change or command byte. Sans-IO like the download engine: received bytes and
// time go in, line changes and writes come out; the driver calls Tick once deadline() has come.
class CradleIrSetup {
 public:
  CradleIrSetup(int download_rate, LineSettings line);

  std::vector<IrAction> Start(std::int64_t now);
  std::vector<IrAction> Received(std::span<const std::uint8_t> bytes, std::int64_t now);
  std::vector<IrAction> Tick(std::int64_t now);

  std::optional<std::int64_t> deadline() const { return deadline_; }
  bool finished() const { return step_ == kDone; }
  // The line as the set-up left it (the download rate, DTR and RTS raised on success).
  const LineSettings& line() const { return line_; }
  // The rate the device answered at (0 when none did).
  int found_rate() const { return found_rate_; }

 private:
  void Run();  // goes on from step_ until it has to wait
  void Apply();
  void Write(std::uint8_t byte);
  void Pause();
  void Decide(bool answered);

  static constexpr int kDone = -1;
  int download_rate_;
  LineSettings line_;
  int step_ = 0;
  int probe_ = 0;
  bool probe_ok_ = false;
  bool reading_ = false;  // waiting for the probe's first byte
  int found_rate_ = 0;
  std::int64_t now_ = 0;
  std::optional<std::int64_t> deadline_;
  std::deque<std::uint8_t> input_;
  std::vector<IrAction> out_;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_CRADLE_IR_SETUP_H_
