#ifndef VELTRIX_TN5250_STREAM_CODES_H_
#define VELTRIX_TN5250_STREAM_CODES_H_

#include <cstdint>

// The 5250 data stream's codes, for both ends of a connection: the terminal's engine and the
// demo host. The Telnet ones are in telnet_codes.h.
namespace veltrix {

// Every record starts with a 10-byte header: length (2), record type 12 A0, reserved (2),
// variable header length 04, flags (2), opcode.
inline constexpr int kRecordHeaderLength = 10;
inline constexpr std::uint8_t kRecordType1 = 0x12;
inline constexpr std::uint8_t kRecordType2 = 0xA0;
inline constexpr std::uint8_t kVariableHeaderLength = 0x04;
inline constexpr std::uint8_t kOpcodePutGet = 0x03;

// Commands, each after the escape byte.
inline constexpr std::uint8_t kEscape = 0x04;
inline constexpr std::uint8_t kCmdClearUnit = 0x40;
inline constexpr std::uint8_t kCmdClearUnitAlternate = 0x20;
inline constexpr std::uint8_t kCmdClearFormatTable = 0x50;
inline constexpr std::uint8_t kCmdWriteToDisplay = 0x11;
inline constexpr std::uint8_t kCmdWriteErrorCode = 0x21;
inline constexpr std::uint8_t kCmdWriteErrorCodeToWindow = 0x22;
inline constexpr std::uint8_t kCmdReadInputFields = 0x42;
inline constexpr std::uint8_t kCmdReadMdtFields = 0x52;
inline constexpr std::uint8_t kCmdReadMdtAlternate = 0x82;
inline constexpr std::uint8_t kCmdReadImmediate = 0x72;
inline constexpr std::uint8_t kCmdReadImmediateAlternate = 0x83;
inline constexpr std::uint8_t kCmdReadScreen = 0x62;
inline constexpr std::uint8_t kCmdSaveScreen = 0x02;
inline constexpr std::uint8_t kCmdSavePartialScreen = 0x03;
inline constexpr std::uint8_t kCmdRestoreScreen = 0x12;
inline constexpr std::uint8_t kCmdRestorePartialScreen = 0x13;
inline constexpr std::uint8_t kCmdRoll = 0x23;
inline constexpr std::uint8_t kCmdWriteStructuredField = 0xF3;
inline constexpr std::uint8_t kCmdWriteSingleStructuredField = 0xF4;

// Orders inside Write to Display.
inline constexpr std::uint8_t kOrderStartOfHeader = 0x01;
inline constexpr std::uint8_t kOrderRepeatToAddress = 0x02;
inline constexpr std::uint8_t kOrderEraseToAddress = 0x03;
inline constexpr std::uint8_t kOrderTransparentData = 0x10;
inline constexpr std::uint8_t kOrderSetBufferAddress = 0x11;
inline constexpr std::uint8_t kOrderWriteExtendedAttribute = 0x12;
inline constexpr std::uint8_t kOrderInsertCursor = 0x13;
inline constexpr std::uint8_t kOrderMoveCursor = 0x14;
inline constexpr std::uint8_t kOrderWriteStructuredField = 0x15;
inline constexpr std::uint8_t kOrderStartOfField = 0x1D;

// Write to Display control character 2.
inline constexpr std::uint8_t kCc2NoCursorMove = 0x40;  // leave the cursor where the orders put it
inline constexpr std::uint8_t kCc2UnlockKeyboard = 0x08;
inline constexpr std::uint8_t kCc2Alarm = 0x04;

// Attribute bytes (0x20 and the display attribute bits).
inline constexpr std::uint8_t kAttributeNormal = 0x20;
inline constexpr std::uint8_t kAttributeHigh = 0x22;
inline constexpr std::uint8_t kAttributeUnderline = 0x24;
inline constexpr std::uint8_t kAttributeNonDisplay = 0x27;
inline constexpr std::uint8_t kAttributeRed = 0x28;
inline constexpr std::uint8_t kAttributeBlue = 0x3A;

// Attention identifiers of inbound records.
inline constexpr std::uint8_t kAidEnter = 0xF1;
inline constexpr std::uint8_t kAidF3 = 0x33;
inline constexpr std::uint8_t kAidF5 = 0x35;
inline constexpr std::uint8_t kAidF12 = 0x3C;
inline constexpr std::uint8_t kAidRollDown = 0xF4;  // Page Up
inline constexpr std::uint8_t kAidRollUp = 0xF5;    // Page Down
inline constexpr std::uint8_t kAidStructuredField = 0x88;

}  // namespace veltrix

#endif  // VELTRIX_TN5250_STREAM_CODES_H_
