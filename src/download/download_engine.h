#ifndef VELTRIX_DOWNLOAD_DOWNLOAD_ENGINE_H_
#define VELTRIX_DOWNLOAD_DOWNLOAD_ENGINE_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "download/srecord_framer.h"
#include "settings/document.h"

namespace veltrix {

// The link a download runs over, as `DownloadVia` numbers it.
enum class DownloadVia : std::uint8_t { kCradleIr = 0, kRs232 = 1, kIrDa = 2, kRf = 3 };
// What a download sends: the settings record or an SHX program.
enum class DownloadKind { kSettings, kProgram };

// Reply collection: a reply ends at its carriage return, at the 10th byte or 2.5 s after the
// collection started. A TCP receive brings up to 256 bytes at once; what a reply keeps is bounded
// to 255 bytes (the rest of that receive is dropped).
inline constexpr std::int64_t kReplyDeadlineMs = 2500;
inline constexpr std::size_t kReplyStopLength = 10;
inline constexpr std::size_t kReplyCapacity = 255;
inline constexpr std::size_t kStreamReceiveBytes = 256;
// What waits for a read: the serial port's input queue, or what the socket holds.
inline constexpr std::size_t kSerialInputQueue = 256;
inline constexpr std::size_t kStreamInputLimit = 64 * 1024;

inline constexpr std::int64_t kListenWaitMs = 10000;  // for the terminal to connect over RF
inline constexpr std::int64_t kTransferPauseMs = 2000;
inline constexpr std::int64_t kEraseWaitMs = 5000;

// The settings go out as the record and 16 zero bytes, in 598 blocks of 100 bytes, each with the
// high and low byte of its sum and its number (k modulo 256).
inline constexpr std::size_t kSettingsBlockData = 100;
inline constexpr std::size_t kSettingsBlockBytes = 103;
inline constexpr std::size_t kSettingsImageBytes = kRecordSize + 16;
inline constexpr int kSettingsBlockCount =
    static_cast<int>(kSettingsImageBytes / kSettingsBlockData);
static_assert(kSettingsImageBytes % kSettingsBlockData == 0);
std::vector<std::uint8_t> SettingsBlock(std::span<const std::uint8_t> image, int k);

// The messages and captions of the download.
namespace download_text {
inline constexpr std::string_view kDownload = "Download";
inline constexpr std::string_view kCompleted = "Downloaded completely!";
inline constexpr std::string_view kDownloadError = "Error on downloading!";
inline constexpr std::string_view kNotReady = "Terminal is not ready!";
inline constexpr std::string_view kCannotErase = "Can't erase flash memory!";
inline constexpr std::string_view kEraseFailed = "Failed to erase flash memory!";
inline constexpr std::string_view kTimeOut = "Error : Time out !!";
inline constexpr std::string_view kRetry = "Failed to download, would you like to retry?";
inline constexpr std::string_view kCannotOpenFile = "Can't open the file!";
inline constexpr std::string_view kCannotOpenPort = "Can't open the COM port!";
inline constexpr std::string_view kIrDeviceFailed = "Failed to set IR device!";
inline constexpr std::string_view kLineSettingsFailed = "Error on setting communication state.";
inline constexpr std::string_view kSocketLibrary = "Unable to initialize the WinSock library";
inline constexpr std::string_view kCreateSocket = "Create socket failed !!";
inline constexpr std::string_view kBindSocket = "Error in Binding on socket !!";
inline constexpr std::string_view kListenSocket = "Error in Listing on socket !!";
inline constexpr std::string_view kProgressCaption = "Progress";
inline constexpr std::string_view kDownloading = "Downloading...";
// Status lines of our own between the messages.
inline constexpr std::string_view kWaitingForTerminal = "Waiting for the terminal to connect...";
inline constexpr std::string_view kCallingTerminal = "Calling the terminal...";
inline constexpr std::string_view kErasing = "Erasing the terminal's program memory...";
// Stopping a download that has reached the terminal leaves part of it there: the user is told.
inline constexpr std::string_view kStopSettings =
    "Stop the download? The terminal keeps an incomplete settings.";
inline constexpr std::string_view kStopProgram =
    "Stop the download? The terminal keeps an incomplete program.";
}  // namespace download_text

// Why listening for the terminal failed (the listener's negative results).
enum class ListenError { kSocketLibrary = -1, kCreate = -2, kBind = -3, kListen = -4 };
std::string_view ListenErrorText(ListenError error);

// The SHX program being downloaded, read in chunks from its start; a retry reads it again.
class ProgramSource {
 public:
  virtual ~ProgramSource() = default;
  virtual std::uint64_t Size() = 0;
  // Up to buffer.size() bytes from where the last read ended; 0 at the end or on a read error.
  virtual std::size_t Read(std::span<std::uint8_t> buffer) = 0;
  // Back to the start, as closing and opening the file again; false when it cannot be opened.
  virtual bool Rewind() = 0;
};

// A program already in memory (tests, fuzzing).
class MemoryProgramSource : public ProgramSource {
 public:
  explicit MemoryProgramSource(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
  std::uint64_t Size() override { return bytes_.size(); }
  std::size_t Read(std::span<std::uint8_t> buffer) override;
  bool Rewind() override {
    at_ = 0;
    return true;
  }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t at_ = 0;
};

// What the engine asks of its driver, in order.
struct DownloadEvent {
  enum class Kind {
    kSend,           // write `bytes` to the link
    kListen,         // RF: start listening for the terminal (TerminalConnected or ListenFailed)
    kCloseLink,      // RF: close the connection and the listener
    kProgressOpen,   // show the progress dialog with the range 0..value
    kProgress,       // move the bar to value
    kProgressClose,  // destroy the progress dialog
    kStatus,         // what the exchange is doing now, for a status line (`text`)
    kMessage,        // show `text` with `caption` (exclamation icon, OK)
    kAskRetry,       // ask `text` with `caption` (Yes/No); answer through AnswerRetry
    kFinished,       // the command is over; value 1 when the download succeeded
  };
  Kind kind;
  int value = 0;
  std::vector<std::uint8_t> bytes;
  std::string text;
  std::string caption;
};
using DownloadEvents = std::vector<DownloadEvent>;

// The download exchange with one terminal, from the first handshake to the last retry question,
// without any I/O of its own: the driver hands in what the link received, the passing of time
// (a steady millisecond count) and the user's answers, and carries out the events it gets back.
// It calls Tick once `deadline()` has come. One engine per terminal; nothing is shared.
class DownloadEngine {
 public:
  // A settings download: `record` is the settings record as it stands now.
  DownloadEngine(DownloadVia via, std::span<const std::uint8_t> record);
  // A program download: `program` must outlive the engine.
  DownloadEngine(DownloadVia via, ProgramSource& program);

  DownloadEvents Start(std::int64_t now);
  DownloadEvents Received(std::span<const std::uint8_t> bytes, std::int64_t now);
  DownloadEvents Tick(std::int64_t now);
  // RF: the terminal connected, or the listener failed (the command ends).
  DownloadEvents TerminalConnected(std::int64_t now);
  DownloadEvents ListenFailed(ListenError error, std::int64_t now);
  // RF: the terminal closed its end; later sends go nowhere.
  DownloadEvents LinkClosed(std::int64_t now);
  DownloadEvents AnswerRetry(bool retry, std::int64_t now);
  // The user stops the download: the link is closed and the command ends, saying how far the
  // transfer got (StopText).
  DownloadEvents Stop(std::int64_t now);

  // "Download stopped after block N of 598" (or "frame N of M"): what the terminal acknowledged.
  std::string StopText() const;
  // The terminal's settings or program have been touched (a block sent, the flash erased), so a
  // stop leaves it part of a download.
  bool reached_terminal() const { return reached_terminal_; }
  DownloadKind kind() const { return kind_; }

  // RF: how long each attempt waits for the terminal (10 s unless a fleet's driver says).
  void set_listen_wait(std::int64_t ms) { listen_wait_ms_ = ms; }
  // Blocks or frames the terminal has acknowledged in this attempt.
  int acknowledged() const { return kind_ == DownloadKind::kSettings ? block_ : frames_acked_; }

  std::optional<std::int64_t> deadline() const { return deadline_; }
  bool finished() const { return step_ == Step::kDone; }
  bool succeeded() const { return succeeded_; }
  // A reply is being collected.
  bool collecting() const { return collecting_; }
  // The text of the last reply collected.
  const std::string& last_reply() const { return reply_; }

 private:
  enum class Step {
    kIdle,
    kListening,
    kSettingsHandshake,
    kProbe,          // program handshake: "\r"
    kWake,           // "PALDREX\r"
    kEnterDownload,  // "DOWNLOAD\r"
    kErase,
    kEraseAgain,
    kEraseFinal,
    kPause,
    kBlock,
    kFrame,
    kEndFrame,
    kAskRetry,
    kDone,
  };

  void BeginAttempt();
  void StartExchange();
  void Exchange(std::span<const std::uint8_t> bytes);  // send, then collect a reply
  void Collect();                                      // collect a reply without sending
  void Pump();  // completes replies from what has arrived, one after another
  void OnReply();
  void NextProbePass();
  void StartErase();
  void EraseReply();
  void BeginTransfer();
  void StartSending();
  void SendNextBlock();
  void BlockReply();
  void NextProgramStep();
  void FrameReply();
  void ResendFrame();
  void TransferEnded(bool success);
  void AttemptEnded(bool success);
  void Finish(bool success);
  void Message(std::string_view text, std::string_view caption);
  void Emit(DownloadEvent::Kind kind, int value = 0, std::string_view text = {},
            std::string_view caption = {});

  DownloadKind kind_;
  DownloadVia via_;
  SettingsRecord record_{};
  ProgramSource* program_ = nullptr;

  Step step_ = Step::kIdle;
  std::int64_t now_ = 0;
  std::optional<std::int64_t> deadline_;
  DownloadEvents out_;
  bool succeeded_ = false;
  bool link_closed_ = false;
  bool reached_terminal_ = false;
  bool progress_open_ = false;
  std::int64_t listen_wait_ms_ = kListenWaitMs;

  // Reply collection.
  bool collecting_ = false;
  std::deque<std::uint8_t> input_;
  std::string collected_;
  std::uint8_t last_byte_ = 0;
  std::string reply_;

  // Steps of an attempt.
  int tries_ = 0;
  std::int64_t erase_deadline_ = 0;
  std::vector<std::uint8_t> image_;
  int block_ = 0;
  std::vector<std::uint8_t> sent_;  // the block or frame being sent
  int sends_ = 0;
  bool last_send_ = false;  // RF: the terminal has closed, this send is the last
  int looks_ = 0;
  bool discarding_ = false;  // a frame's third reply is read and not looked at
  bool chunk_pending_ = false;
  SRecordFramer framer_;
  std::uint64_t program_size_ = 0;
  std::uint64_t program_read_ = 0;
  int frames_total_ = 0;  // the data frames of the whole program
  int frames_acked_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_DOWNLOAD_ENGINE_H_
