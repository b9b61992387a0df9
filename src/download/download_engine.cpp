#include "download/download_engine.h"

#include <algorithm>
#include <array>
#include <utility>

#include "resources/strings.h"

namespace veltrix {
namespace {

using Kind = DownloadEvent::Kind;

constexpr std::string_view kTalmor = "TALMOR\r";
constexpr std::string_view kProbeToken = "\r";
constexpr std::string_view kWakeToken = "PALDREX\r";
constexpr std::string_view kDownloadToken = "DOWNLOAD\r";
constexpr std::string_view kEraseToken = ":ERASE\r";
constexpr int kHandshakeTries = 3;
constexpr int kBlockSends = 6;
constexpr int kFrameSends = 3;
constexpr std::size_t kProgramChunk = 256;

std::span<const std::uint8_t> Bytes(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

std::vector<std::uint8_t> SettingsBlock(std::span<const std::uint8_t> image, int k) {
  std::vector<std::uint8_t> block(kSettingsBlockBytes, 0);
  const std::size_t from = static_cast<std::size_t>(k) * kSettingsBlockData;
  unsigned sum = 0;
  for (std::size_t i = 0; i < kSettingsBlockData && from + i < image.size(); ++i) {
    block[i] = image[from + i];
    sum += block[i];
  }
  block[100] = static_cast<std::uint8_t>(sum >> 8);
  block[101] = static_cast<std::uint8_t>(sum);
  block[102] = static_cast<std::uint8_t>(k);
  return block;
}

std::string_view ListenErrorText(ListenError error) {
  switch (error) {
    case ListenError::kSocketLibrary:
      return download_text::kSocketLibrary;
    case ListenError::kCreate:
      return download_text::kCreateSocket;
    case ListenError::kBind:
      return download_text::kBindSocket;
    case ListenError::kListen:
      return download_text::kListenSocket;
  }
  return download_text::kListenSocket;
}

std::size_t MemoryProgramSource::Read(std::span<std::uint8_t> buffer) {
  const std::size_t n = std::min(buffer.size(), bytes_.size() - at_);
  std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), n, buffer.begin());
  at_ += n;
  return n;
}

DownloadEngine::DownloadEngine(DownloadVia via, std::span<const std::uint8_t> record)
    : kind_(DownloadKind::kSettings), via_(via) {
  std::copy_n(record.begin(), std::min(record.size(), record_.size()), record_.begin());
}

DownloadEngine::DownloadEngine(DownloadVia via, ProgramSource& program)
    : kind_(DownloadKind::kProgram), via_(via), program_(&program) {
  // Framed once ahead, so that a stop can say how many frames there were.
  SRecordFramer framer;
  std::array<std::uint8_t, kProgramChunk> chunk;
  for (std::size_t got; !framer.ended() && (got = program.Read(chunk)) > 0;) {
    framer.Feed(std::span(chunk).first(got));
    frames_total_ += static_cast<int>(framer.frames().size());
    framer.frames().clear();
  }
  program.Rewind();
}

void DownloadEngine::Emit(Kind kind, int value, std::string_view text, std::string_view caption) {
  if (kind == Kind::kProgressOpen) progress_open_ = true;
  if (kind == Kind::kProgressClose) progress_open_ = false;
  out_.push_back({kind, value, {}, std::string(text), std::string(caption)});
}

std::string DownloadEngine::StopText() const {
  if (kind_ == DownloadKind::kSettings) {
    return "Download stopped after block " + std::to_string(block_) + " of " +
           std::to_string(kSettingsBlockCount);
  }
  return "Download stopped after frame " + std::to_string(frames_acked_) + " of " +
         std::to_string(frames_total_);
}

DownloadEvents DownloadEngine::Stop(std::int64_t now) {
  now_ = now;
  if (step_ == Step::kDone) return std::exchange(out_, {});
  if (progress_open_) Emit(Kind::kProgressClose);
  if (via_ == DownloadVia::kRf) Emit(Kind::kCloseLink);
  Emit(Kind::kStatus, 0, StopText());
  Finish(false);
  return std::exchange(out_, {});
}

void DownloadEngine::Message(std::string_view text, std::string_view caption) {
  Emit(Kind::kMessage, 0, text, caption);
}

DownloadEvents DownloadEngine::Start(std::int64_t now) {
  now_ = now;
  if (step_ == Step::kIdle) BeginAttempt();
  Pump();
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::Received(std::span<const std::uint8_t> bytes, std::int64_t now) {
  now_ = now;
  // What the port or the socket cannot hold is lost, as on the line.
  const std::size_t limit = via_ == DownloadVia::kRf ? kStreamInputLimit : kSerialInputQueue;
  const std::size_t room = limit - std::min(limit, input_.size());
  input_.insert(input_.end(), bytes.begin(), bytes.begin() + std::min(room, bytes.size()));
  Pump();
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::Tick(std::int64_t now) {
  now_ = now;
  if (deadline_ && now_ >= *deadline_) {
    if (collecting_) {
      Pump();
    } else if (step_ == Step::kPause) {
      deadline_.reset();
      StartSending();
      Pump();
    } else if (step_ == Step::kListening) {
      // No terminal in time is not an error of its own: the retry question follows.
      deadline_.reset();
      Emit(Kind::kCloseLink);
      AttemptEnded(false);
    }
  }
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::TerminalConnected(std::int64_t now) {
  now_ = now;
  if (step_ == Step::kListening) {
    deadline_.reset();
    input_.clear();  // a new connection brings nothing of the last one
    StartExchange();
    Pump();
  }
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::ListenFailed(ListenError error, std::int64_t now) {
  now_ = now;
  if (step_ == Step::kListening) {
    Message(ListenErrorText(error), kErrorCaption);
    Emit(Kind::kCloseLink);
    Finish(false);
  }
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::LinkClosed(std::int64_t now) {
  now_ = now;
  link_closed_ = true;
  // Frames sent into a closed connection can only time out: say so at once instead.
  if (kind_ == DownloadKind::kProgram && (step_ == Step::kFrame || step_ == Step::kPause)) {
    Message("The terminal closed the connection after frame " + std::to_string(frames_acked_),
            download_text::kDownload);
    TransferEnded(false);
  }
  return std::exchange(out_, {});
}

DownloadEvents DownloadEngine::AnswerRetry(bool retry, std::int64_t now) {
  now_ = now;
  if (step_ != Step::kAskRetry) return std::exchange(out_, {});
  if (!retry) {
    Finish(false);
  } else if (program_ != nullptr && !program_->Rewind()) {
    Message(download_text::kCannotOpenFile, download_text::kDownload);
    Finish(false);
  } else {
    BeginAttempt();
    Pump();
  }
  return std::exchange(out_, {});
}

void DownloadEngine::BeginAttempt() {
  link_closed_ = false;
  if (via_ == DownloadVia::kRf) {
    step_ = Step::kListening;
    deadline_ = now_ + listen_wait_ms_;
    Emit(Kind::kStatus, 0, download_text::kWaitingForTerminal);
    Emit(Kind::kListen);
    return;
  }
  StartExchange();
}

void DownloadEngine::StartExchange() {
  Emit(Kind::kStatus, 0, download_text::kCallingTerminal);
  tries_ = 1;
  if (kind_ == DownloadKind::kSettings) {
    step_ = Step::kSettingsHandshake;
    Exchange(Bytes(kTalmor));
  } else {
    step_ = Step::kProbe;
    Exchange(Bytes(kProbeToken));
  }
}

void DownloadEngine::Exchange(std::span<const std::uint8_t> bytes) {
  out_.push_back({Kind::kSend, 0, {bytes.begin(), bytes.end()}, {}, {}});
  Collect();
}

void DownloadEngine::Collect() {
  collecting_ = true;
  collected_.clear();
  last_byte_ = 0;
  // The collection stops once the tick count has passed start + 2500.
  deadline_ = now_ + kReplyDeadlineMs + 1;
}

void DownloadEngine::Pump() {
  while (collecting_) {
    bool done = false;
    while (!done && collected_.size() < kReplyStopLength && !input_.empty()) {
      // A serial read takes one byte; a TCP receive whatever has come, up to 256 bytes.
      const std::size_t take =
          via_ == DownloadVia::kRf ? std::min(input_.size(), kStreamReceiveBytes) : 1;
      for (std::size_t i = 0; i < take; ++i) {
        if (collected_.size() < kReplyCapacity) collected_.push_back(static_cast<char>(input_[i]));
      }
      last_byte_ = input_[take - 1];
      input_.erase(input_.begin(), input_.begin() + static_cast<std::ptrdiff_t>(take));
      done = last_byte_ == '\r';
    }
    if (collected_.size() >= kReplyStopLength) done = true;
    if (!done && !(deadline_ && now_ >= *deadline_)) return;
    collecting_ = false;
    deadline_.reset();
    reply_ = collected_;
    if (!reply_.empty() && reply_.back() == '\r') reply_.pop_back();
    OnReply();
  }
}

void DownloadEngine::OnReply() {
  const std::string& r = reply_;
  switch (step_) {
    case Step::kSettingsHandshake:
      if (r == "ACK") {
        BeginTransfer();
      } else if (tries_ < kHandshakeTries) {
        ++tries_;
        Exchange(Bytes(kTalmor));
      } else {
        AttemptEnded(false);  // no message of its own: the retry question says it
      }
      return;
    case Step::kProbe:
      if (r == "FN" || r == "FF") return StartErase();
      step_ = Step::kWake;
      Exchange(Bytes(kWakeToken));
      return;
    case Step::kWake:
      if (r == "FN") return StartErase();
      if (r == "ACK1") {
        step_ = Step::kEnterDownload;
        Exchange(Bytes(kDownloadToken));
        return;
      }
      NextProbePass();
      return;
    case Step::kEnterDownload:
      if (r == "FN" || r == "ACK2") return StartErase();
      NextProbePass();
      return;
    case Step::kErase:
    case Step::kEraseAgain:
    case Step::kEraseFinal:
      EraseReply();
      return;
    case Step::kBlock:
      BlockReply();
      return;
    case Step::kFrame:
      FrameReply();
      return;
    case Step::kEndFrame:  // the end frame's reply is not looked at
      TransferEnded(true);
      return;
    default:
      return;
  }
}

void DownloadEngine::NextProbePass() {
  if (tries_ < kHandshakeTries) {
    ++tries_;
    step_ = Step::kProbe;
    Exchange(Bytes(kProbeToken));
    return;
  }
  Message(download_text::kNotReady, download_text::kDownload);
  AttemptEnded(false);
}

void DownloadEngine::StartErase() {
  Emit(Kind::kStatus, 0, download_text::kErasing);
  erase_deadline_ = now_ + kEraseWaitMs;
  step_ = Step::kErase;
  reached_terminal_ = true;  // from here on the old program is gone
  Exchange(Bytes(kEraseToken));
}

void DownloadEngine::EraseReply() {
  const std::string& r = reply_;
  if (step_ == Step::kEraseFinal) {
    if (r.starts_with("FA")) return BeginTransfer();
    Message(download_text::kEraseFailed, download_text::kDownload);
    return AttemptEnded(false);
  }
  if (r == "FA") return BeginTransfer();
  if (r == "FB") {  // under way: one more reply tells
    step_ = Step::kEraseFinal;
    return Collect();
  }
  if (step_ == Step::kEraseAgain) {
    Message(download_text::kCannotErase, download_text::kDownload);
    return AttemptEnded(false);
  }
  if (r == "FN") erase_deadline_ = now_ + kEraseWaitMs;  // still busy: 5 s more
  if (now_ > erase_deadline_) {
    step_ = Step::kEraseAgain;
    return Exchange(Bytes(kEraseToken));
  }
  Collect();
}

void DownloadEngine::BeginTransfer() {
  Emit(Kind::kStatus, 0, download_text::kDownloading);
  Emit(Kind::kProgressOpen, kind_ == DownloadKind::kSettings ? kSettingsBlockCount : 100);
  Emit(Kind::kProgress, 0);
  step_ = Step::kPause;
  deadline_ = now_ + kTransferPauseMs;
}

void DownloadEngine::StartSending() {
  block_ = 0;
  if (kind_ == DownloadKind::kSettings) {
    // The record as it stands when the transfer starts, and 16 zero bytes.
    image_.assign(record_.begin(), record_.end());
    image_.resize(kSettingsImageBytes, 0);
    SendNextBlock();
    return;
  }
  program_size_ = program_->Size();
  if (program_size_ == 0) {
    Message(download_text::kDownloadError, download_text::kDownload);
    return TransferEnded(false);
  }
  framer_ = SRecordFramer();
  program_read_ = 0;
  frames_acked_ = 0;
  chunk_pending_ = false;
  NextProgramStep();
}

void DownloadEngine::SendNextBlock() {
  sent_ = SettingsBlock(image_, block_);
  reached_terminal_ = true;
  sends_ = 1;
  last_send_ = false;
  step_ = Step::kBlock;
  Exchange(sent_);
}

void DownloadEngine::BlockReply() {
  if (reply_ == "ACK") {
    ++block_;
    Emit(Kind::kProgress, block_);
    if (block_ == kSettingsBlockCount) return TransferEnded(true);
    return SendNextBlock();
  }
  if (sends_ < kBlockSends && !last_send_) {
    // Over RF a terminal that has closed gets one last try.
    if (via_ == DownloadVia::kRf && link_closed_) last_send_ = true;
    ++sends_;
    return Exchange(sent_);
  }
  Message(download_text::kDownloadError, kErrorCaption);
  TransferEnded(false);
}

void DownloadEngine::NextProgramStep() {
  std::array<std::uint8_t, kProgramChunk> chunk;
  for (;;) {
    if (!framer_.frames().empty()) {
      sent_ = std::move(framer_.frames().front());
      framer_.frames().pop_front();
      sends_ = 1;
      looks_ = 0;
      discarding_ = false;
      step_ = Step::kFrame;
      return Exchange(sent_);
    }
    if (framer_.ended()) {
      step_ = Step::kEndFrame;
      return Exchange(kEndFrame);
    }
    if (chunk_pending_) {
      Emit(Kind::kProgress, static_cast<int>(program_read_ * 100 / program_size_));
      chunk_pending_ = false;
    }
    const std::size_t got = program_->Read(chunk);
    if (got == 0) {  // the end of the file without an end record
      Message(download_text::kDownloadError, download_text::kDownload);
      return TransferEnded(false);
    }
    program_read_ += got;
    chunk_pending_ = true;
    framer_.Feed(std::span(chunk).first(got));
  }
}

void DownloadEngine::FrameReply() {
  if (discarding_) return ResendFrame();
  ++looks_;
  if (reply_ == "FA") {
    ++frames_acked_;
    return NextProgramStep();
  }
  if (reply_ == "FN") return ResendFrame();
  if (reply_ == "FF") {
    Message(download_text::kDownloadError, download_text::kDownload);
    return TransferEnded(false);
  }
  // Anything else: look at the next reply; after two, read one more unseen and send again.
  if (looks_ >= 2) discarding_ = true;
  Collect();
}

void DownloadEngine::ResendFrame() {
  if (sends_ >= kFrameSends) {
    Message(download_text::kTimeOut, reply_);
    return TransferEnded(false);
  }
  ++sends_;
  looks_ = 0;
  discarding_ = false;
  Exchange(sent_);
}

void DownloadEngine::TransferEnded(bool success) {
  Emit(Kind::kProgressClose);
  if (success) Message(download_text::kCompleted, download_text::kDownload);
  AttemptEnded(success);
}

void DownloadEngine::AttemptEnded(bool success) {
  collecting_ = false;
  deadline_.reset();
  if (via_ == DownloadVia::kRf && step_ != Step::kListening) Emit(Kind::kCloseLink);
  if (success) return Finish(true);
  step_ = Step::kAskRetry;
  Emit(Kind::kAskRetry, 0, download_text::kRetry,
       via_ == DownloadVia::kRf ? kErrorCaption : download_text::kDownload);
}

void DownloadEngine::Finish(bool success) {
  collecting_ = false;
  deadline_.reset();
  step_ = Step::kDone;
  succeeded_ = success;
  Emit(Kind::kFinished, success ? 1 : 0);
}

}  // namespace veltrix
