#include "download/cradle_ir_setup.h"

#include <algorithm>
#include <utility>

namespace veltrix {
namespace {

// The steps, in order; each ends in a pause unless it says otherwise.
enum Step {
  kRaiseLines,  // 38400 bit/s, DTR and RTS raised
  kProbeRate,   // the probe's rate, RTS dropped
  kProbeWrite,  // 0x0F
  kProbeRead,   // the first byte within 100 ms decides (no pause)
  kProbeEnd,    // RTS raised
  kProbeNext,   // the next rate, or on (no pause)
  kDropRts,
  kCommand,  // 0x07
  kRateCode,
  kQuit,  // "Q"
  kRaiseRts,
  kFinish,
};

}  // namespace

CradleIrSetup::CradleIrSetup(int download_rate, LineSettings line)
    : download_rate_(download_rate), line_(line) {}

std::vector<IrAction> CradleIrSetup::Start(std::int64_t now) {
  now_ = now;
  step_ = kRaiseLines;
  Run();
  return std::exchange(out_, {});
}

std::vector<IrAction> CradleIrSetup::Received(std::span<const std::uint8_t> bytes,
                                              std::int64_t now) {
  now_ = now;
  input_.insert(input_.end(), bytes.begin(), bytes.end());
  if (reading_ && !input_.empty()) {
    const std::uint8_t first = input_.front();
    input_.pop_front();
    Decide(first == kIrProbeByte);
  }
  return std::exchange(out_, {});
}

std::vector<IrAction> CradleIrSetup::Tick(std::int64_t now) {
  now_ = now;
  if (deadline_ && now_ >= *deadline_) {
    deadline_.reset();
    if (reading_) {
      Decide(false);  // no byte within the window
    } else {
      Run();
    }
  }
  return std::exchange(out_, {});
}

void CradleIrSetup::Apply() { out_.push_back({IrAction::Kind::kApply, line_, {}, false}); }

void CradleIrSetup::Write(std::uint8_t byte) {
  out_.push_back({IrAction::Kind::kWrite, line_, {byte}, false});
}

void CradleIrSetup::Pause() { deadline_ = now_ + kIrPauseMs; }

void CradleIrSetup::Decide(bool answered) {
  reading_ = false;
  deadline_.reset();
  probe_ok_ = answered;
  step_ = kProbeEnd;
  Run();
}

void CradleIrSetup::Run() {
  while (step_ != kDone && !deadline_) {
    switch (step_++) {
      case kRaiseLines:
        line_ = {38400, true, true};
        Apply();
        Pause();
        break;
      case kProbeRate:
        line_.rate = kIrProbeRates[static_cast<std::size_t>(probe_)];
        line_.rts = false;
        Apply();
        Pause();
        break;
      case kProbeWrite:
        Write(kIrProbeByte);
        Pause();
        break;
      case kProbeRead:
        --step_;  // Decide goes on
        if (!input_.empty()) {
          const std::uint8_t first = input_.front();
          input_.pop_front();
          return Decide(first == kIrProbeByte);
        }
        reading_ = true;
        deadline_ = now_ + kIrPauseMs;
        return;
      case kProbeEnd:
        line_.rts = true;
        Apply();
        Pause();
        break;
      case kProbeNext:
        if (probe_ok_) {
          found_rate_ = line_.rate;
        } else if (++probe_ < static_cast<int>(kIrProbeRates.size())) {
          step_ = kProbeRate;
        } else {
          step_ = kDone;
          out_.push_back({IrAction::Kind::kFinished, line_, {}, false});
        }
        break;
      case kDropRts:
        line_.rts = false;
        Apply();
        Pause();
        break;
      case kCommand:
        Write(0x07);
        Pause();
        break;
      case kRateCode: {
        const auto at = std::ranges::find(kDownloadRates, download_rate_) - kDownloadRates.begin();
        Write(static_cast<std::uint8_t>(kCradleRateCodes[static_cast<std::size_t>(
            std::min<std::ptrdiff_t>(at, kCradleRateCodes.size() - 1))]));
        line_.rate = download_rate_;
        Pause();
        break;
      }
      case kQuit:
        Write('Q');
        Pause();
        break;
      case kRaiseRts:
        line_.rts = true;
        Apply();
        Pause();
        break;
      case kFinish:
        step_ = kDone;
        out_.push_back({IrAction::Kind::kFinished, line_, {}, true});
        break;
    }
  }
}

}  // namespace veltrix
