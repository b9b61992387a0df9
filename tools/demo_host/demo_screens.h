#ifndef VELTRIX_TOOLS_DEMO_HOST_DEMO_SCREENS_H_
#define VELTRIX_TOOLS_DEMO_HOST_DEMO_SCREENS_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The screens of the demo application, each one complete 5250 record (Clear Unit, Write to
// Display, Read MDT Fields). Field positions are 1-based first data cells.
namespace veltrix::demo_host {

struct FieldPosition {
  int row;
  int column;
  int length;
};

inline constexpr FieldPosition kUserField = {6, 53, 10};
inline constexpr FieldPosition kPasswordField = {7, 53, 10};
inline constexpr FieldPosition kMenuOptionField = {21, 7, 2};
inline constexpr FieldPosition kItemField = {5, 34, 8};
inline constexpr FieldPosition kQuantityField = {6, 34, 5};
// The list's option fields: one per line, kListFirstRow .. kListFirstRow + kListLines - 1.
inline constexpr int kListFirstRow = 7;
inline constexpr int kListLines = 10;
inline constexpr int kListOptionColumn = 3;

struct Item {
  std::string name;  // "ITEM0001"
  std::string description;
  int quantity;
};

// The demo's 35 items.
const std::vector<Item>& DemoItems();
int ListPageCount();

// "Welcome" in the double-byte language of a host code page ("937", "935", "930", "933"), as
// shift-out, host pairs, shift-in; empty for any other code page.
std::vector<std::uint8_t> DoubleByteWelcome(std::string_view codepage);

// `welcome` (host bytes, may be empty) goes on a line of its own.
std::vector<std::uint8_t> SignOnScreen(std::string_view device_name, std::string_view message,
                                       const std::vector<std::uint8_t>& welcome = {});
std::vector<std::uint8_t> MenuScreen(std::string_view user, std::string_view message);
std::vector<std::uint8_t> ItemListScreen(int page, std::string_view message);
std::vector<std::uint8_t> QuantityScreen(std::string_view item, std::string_view quantity,
                                         std::string_view message);
// Write Error Code with the cursor on `field`, then the same read again.
std::vector<std::uint8_t> ErrorRecord(std::string_view message, FieldPosition field);

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_DEMO_SCREENS_H_
