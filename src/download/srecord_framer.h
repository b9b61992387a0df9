#ifndef VELTRIX_DOWNLOAD_SRECORD_FRAMER_H_
#define VELTRIX_DOWNLOAD_SRECORD_FRAMER_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace veltrix {

// The frame buffer the terminal's loader reads into: a frame of n bytes before its checksum goes
// out as n + 2 bytes (checksum and carriage return), and its count byte holds n - 2, so n is at
// most 257.
inline constexpr std::size_t kFrameBufferBytes = 260;
inline constexpr std::size_t kMaxFrameLength = 257;
static_assert(kMaxFrameLength + 2 <= kFrameBufferBytes && kMaxFrameLength - 2 <= 0xFF);
// A frame is sent at the end of a record once it holds more than this many bytes.
inline constexpr std::size_t kFrameSendThreshold = 100;
// "S7", count 5, address 0, checksum, carriage return.
inline constexpr std::uint8_t kEndFrame[] = {'S', '7', 0x05, 0x00, 0x00, 0x00, 0x00, 0xFA, 0x0D};

// The value of one hexadecimal digit as the terminal's loader reads it: a character at or above
// 'A' counts as its code minus 55, any other as its code minus 48 (only 0-9 and A-F are right).
std::uint8_t HexDigitValue(std::uint8_t c);

// Turns the n bytes of a frame into what goes on the wire: the count at byte 2, the checksum at
// byte n and the carriage return behind it.
std::vector<std::uint8_t> SealFrame(std::vector<std::uint8_t> frame);

// Reads an S-record program (.SHX) as the terminal expects it: two characters at a time, record
// by record, repacking the data of records whose addresses follow on from each other into binary
// S3 frames. Bytes may be fed in chunks of any size; the state carries over. Frames come out
// sealed, in order; after the end record (type 7 or 9) nothing more is read.
class SRecordFramer {
 public:
  void Feed(std::span<const std::uint8_t> bytes);
  // Frames ready to send, oldest first.
  std::deque<std::vector<std::uint8_t>>& frames() { return frames_; }
  // The end record has been read: frames() holds everything that goes before the end frame.
  bool ended() const { return ended_; }

 private:
  enum class Step { kRecordStart, kCount, kAddress, kData, kChecksum, kLineEnd, kEnded };
  void Pair(std::uint8_t first, std::uint8_t second);
  void SendFrame();
  void StartFrameAt(std::uint32_t address);

  Step step_ = Step::kRecordStart;
  std::vector<std::uint8_t> frame_;  // n = frame_.size()
  bool four_byte_address_ = true;
  int address_left_ = 0;
  int data_left_ = 0;
  std::uint32_t data_length_ = 0;
  std::uint32_t address_ = 0;
  std::uint32_t expected_ = 0;
  std::uint32_t data_index_ = 0;
  int half_ = -1;  // the first character of a pair split between two chunks
  bool ended_ = false;
  std::deque<std::vector<std::uint8_t>> frames_;
};

}  // namespace veltrix

#endif  // VELTRIX_DOWNLOAD_SRECORD_FRAMER_H_
