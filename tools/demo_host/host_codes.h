#ifndef VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_
#define VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_

#include <cstdint>

#include "tn5250/telnet_codes.h"

// 5250 codes the demo host speaks; the Telnet ones come from the core.
namespace veltrix::demo_host {

// 5250 commands (each after the escape byte).
inline constexpr std::uint8_t kEscape = 0x04;
inline constexpr std::uint8_t kCmdClearUnit = 0x40;
inline constexpr std::uint8_t kCmdWriteToDisplay = 0x11;
inline constexpr std::uint8_t kCmdWriteErrorCode = 0x21;
inline constexpr std::uint8_t kCmdReadInputFields = 0x42;
inline constexpr std::uint8_t kCmdReadMdtFields = 0x52;
inline constexpr std::uint8_t kCmdReadImmediate = 0x72;
inline constexpr std::uint8_t kCmdWriteStructuredField = 0xF3;

// 5250 orders inside Write to Display.
inline constexpr std::uint8_t kOrderSetBufferAddress = 0x11;
inline constexpr std::uint8_t kOrderInsertCursor = 0x13;
inline constexpr std::uint8_t kOrderRepeatToAddress = 0x02;
inline constexpr std::uint8_t kOrderStartField = 0x1D;

// Write to Display control character 2: unlock the keyboard.
inline constexpr std::uint8_t kCc2UnlockKeyboard = 0x08;
// Control character 2: leave the cursor where the record's orders put it.
inline constexpr std::uint8_t kCc2NoCursorMove = 0x40;

// Field format word, byte 1 and byte 2.
inline constexpr std::uint8_t kFfwBase = 0x40;
inline constexpr std::uint8_t kFfwBypass = 0x20;
inline constexpr std::uint8_t kFfwDigitsOnly = 0x05;
inline constexpr std::uint8_t kFfwMonocase = 0x20;

// Attribute bytes.
inline constexpr std::uint8_t kAttrNormal = 0x20;
inline constexpr std::uint8_t kAttrHigh = 0x22;
inline constexpr std::uint8_t kAttrUnderline = 0x24;
inline constexpr std::uint8_t kAttrNonDisplay = 0x27;
inline constexpr std::uint8_t kAttrRed = 0x28;
inline constexpr std::uint8_t kAttrBlue = 0x3A;

// Attention identifiers of inbound records.
inline constexpr std::uint8_t kAidEnter = 0xF1;
inline constexpr std::uint8_t kAidF3 = 0x33;
inline constexpr std::uint8_t kAidF5 = 0x35;
inline constexpr std::uint8_t kAidF12 = 0x3C;
inline constexpr std::uint8_t kAidPageUp = 0xF4;
inline constexpr std::uint8_t kAidPageDown = 0xF5;
inline constexpr std::uint8_t kAidStructuredField = 0x88;

// Every 5250 record starts with this 10-byte header (length filled in).
inline constexpr int kRecordHeaderSize = 10;
inline constexpr std::uint8_t kRecordType1 = 0x12;
inline constexpr std::uint8_t kRecordType2 = 0xA0;
inline constexpr std::uint8_t kOpcodePutGet = 0x03;

inline constexpr int kRows = 24;
inline constexpr int kColumns = 80;

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_
