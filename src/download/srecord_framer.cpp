#include "download/srecord_framer.h"

namespace veltrix {

std::uint8_t HexDigitValue(std::uint8_t c) {
  return static_cast<std::uint8_t>(c >= 'A' ? c - 55 : c - 48);
}

std::vector<std::uint8_t> SealFrame(std::vector<std::uint8_t> frame) {
  const std::size_t n = frame.size();
  frame[2] = static_cast<std::uint8_t>(n - 2);
  unsigned sum = 0;
  for (std::size_t i = 2; i < n; ++i) sum += frame[i];
  frame.push_back(static_cast<std::uint8_t>(0xFF - (sum & 0xFF)));
  frame.push_back(0x0D);
  return frame;
}

void SRecordFramer::Feed(std::span<const std::uint8_t> bytes) {
  for (std::uint8_t c : bytes) {
    if (step_ == Step::kEnded) return;
    if (half_ < 0) {
      half_ = c;
    } else {
      Pair(static_cast<std::uint8_t>(half_), c);
      half_ = -1;
    }
  }
}

void SRecordFramer::SendFrame() {
  frames_.push_back(SealFrame(std::move(frame_)));
  frame_.clear();
}

void SRecordFramer::StartFrameAt(std::uint32_t address) {
  frame_ = {'S',
            '3',
            0,
            static_cast<std::uint8_t>(address >> 24),
            static_cast<std::uint8_t>(address >> 16),
            static_cast<std::uint8_t>(address >> 8),
            static_cast<std::uint8_t>(address)};
}

void SRecordFramer::Pair(std::uint8_t first, std::uint8_t second) {
  const auto byte = static_cast<std::uint8_t>(HexDigitValue(first) * 16 + HexDigitValue(second));
  switch (step_) {
    case Step::kRecordStart:
      // The first character is not examined, only the type digit.
      if (second == '7' || second == '9') {
        if (!frame_.empty()) SendFrame();
        ended_ = true;
        step_ = Step::kEnded;
        return;
      }
      if (frame_.empty()) frame_ = {'S', '3', 0};
      four_byte_address_ = second != '2';
      step_ = Step::kCount;
      return;
    case Step::kCount: {
      const int length = byte - (four_byte_address_ ? 5 : 4);
      data_length_ = length > 0 ? static_cast<std::uint32_t>(length) : 0;
      address_left_ = four_byte_address_ ? 4 : 3;
      address_ = 0;
      if (!four_byte_address_ && frame_.size() < 7) frame_.push_back(0x00);
      step_ = Step::kAddress;
      return;
    }
    case Step::kAddress:
      address_ = address_ * 256 + byte;
      if (frame_.size() < 7) frame_.push_back(byte);
      if (--address_left_ > 0) return;
      if (frame_.size() > 7 && expected_ != 0 && address_ != expected_) {
        SendFrame();
        StartFrameAt(address_);
      }
      expected_ = address_ + data_length_;
      data_left_ = static_cast<int>(data_length_);
      data_index_ = 0;
      step_ = data_left_ > 0 ? Step::kData : Step::kChecksum;
      return;
    case Step::kData:
      // A record too long for the rest of the buffer goes on in a frame of its own.
      if (frame_.size() == kMaxFrameLength) {
        SendFrame();
        StartFrameAt(address_ + data_index_);
      }
      frame_.push_back(byte);
      ++data_index_;
      if (--data_left_ == 0) step_ = Step::kChecksum;
      return;
    case Step::kChecksum:  // the file's record checksums are not checked, as on the terminal
      step_ = Step::kLineEnd;
      return;
    case Step::kLineEnd:
      if (frame_.size() > kFrameSendThreshold) SendFrame();
      step_ = Step::kRecordStart;
      return;
    case Step::kEnded:
      return;
  }
}

}  // namespace veltrix
