#include "demo_host/demo_screens.h"

#include <cstdio>

#include "demo_host/host_codes.h"
#include "demo_host/outbound_record.h"

namespace veltrix::demo_host {

namespace {

OutboundRecord NewScreen(std::string_view title) {
  OutboundRecord r;
  r.ClearUnit().WriteToDisplay(0x00, kCc2UnlockKeyboard);
  const int column = (kColumns - static_cast<int>(title.size())) / 2 + 1;
  r.TextAt(1, column, title, kAttributeHigh);
  return r;
}

void MessageLine(OutboundRecord& r, std::string_view message) {
  if (!message.empty()) r.TextAt(kRows, 2, message, kAttributeHigh);
}

std::vector<std::uint8_t> Finish(OutboundRecord& r, FieldPosition cursor) {
  r.InsertCursor(cursor.row, cursor.column).ReadMdtFields();
  return r.Finish();
}

void Field(OutboundRecord& r, FieldPosition f, std::uint8_t ffw1, std::uint8_t ffw2,
           std::uint8_t attribute, std::string_view initial = {}) {
  r.InputField(f.row, f.column, f.length, ffw1, ffw2, attribute, initial);
}

}  // namespace

const std::vector<Item>& DemoItems() {
  static const std::vector<Item> items = [] {
    static constexpr const char* kKinds[] = {"Hex bolt",   "Lock nut",    "Flat washer", "Bracket",
                                             "Door hinge", "Coil spring", "Hose clamp"};
    static constexpr const char* kSizes[] = {"M4", "M6", "M8", "M10", "M12"};
    std::vector<Item> list;
    for (int i = 0; i < 35; ++i) {
      char name[16];
      std::snprintf(name, sizeof name, "ITEM%04d", i + 1);
      list.push_back({name, std::string(kKinds[i % 7]) + " " + kSizes[i / 7], (i * 37 + 12) % 500});
    }
    return list;
  }();
  return items;
}

int ListPageCount() { return (static_cast<int>(DemoItems().size()) + kListLines - 1) / kListLines; }

std::vector<std::uint8_t> DoubleByteWelcome(std::string_view codepage) {
  // Host pairs of the greeting in each code page's double-byte set.
  if (codepage == "937") return {0x0E, 0x67, 0xE2, 0x51, 0xD1, 0x0F};  // Traditional Chinese
  if (codepage == "935") return {0x0E, 0x4E, 0x56, 0x5A, 0x4D, 0x0F};  // Simplified Chinese
  if (codepage == "930") {                                             // Japanese
    return {0x0E, 0x44, 0xAC, 0x44, 0x83, 0x44, 0x8A, 0x44, 0x90, 0x0F};
  }
  if (codepage == "933") {  // Korean
    return {0x0E, 0xD1, 0xC5, 0xB5, 0x77, 0xD0, 0x73, 0x93, 0xA1, 0x94, 0x61, 0x0F};
  }
  return {};
}

std::vector<std::uint8_t> SignOnScreen(std::string_view device_name, std::string_view message,
                                       const std::vector<std::uint8_t>& welcome) {
  OutboundRecord r = NewScreen("Sign On");
  r.TextAt(2, 48, "System  . . . . . :   VELTRIX");
  r.TextAt(3, 48, "Subsystem . . . . :   DEMO");
  r.TextAt(4, 48, "Display . . . . . :   ");
  r.Text(device_name.empty() ? std::string_view("DEMO0001") : device_name.substr(0, 10));
  r.TextAt(6, 17, "User  . . . . . . . . . . . . . .");
  Field(r, kUserField, kFfwBase, kFfwMonocase, kAttributeUnderline);
  r.TextAt(7, 17, "Password  . . . . . . . . . . . .");
  Field(r, kPasswordField, kFfwBase, 0x00, kAttributeNonDisplay);
  r.TextAt(10, 17, "Any user and password are accepted.", kAttributeBlue);
  if (!welcome.empty()) {
    r.TextAt(12, 17, "", kAttributeNormal);
    r.Raw(welcome);
  }
  r.TextAt(23, 2, "F3=Exit");
  MessageLine(r, message);
  return Finish(r, kUserField);
}

std::vector<std::uint8_t> MenuScreen(std::string_view user, std::string_view message) {
  OutboundRecord r = NewScreen("Veltrix Demo Main Menu");
  r.TextAt(1, 2, "MAIN");
  r.TextAt(1, 72, "VELTRIX");
  r.TextAt(2, 2, "Signed on as ");
  r.Text(user);
  r.TextAt(3, 2, "Select one of the following:");
  r.TextAt(5, 6, " 1. Work with items");
  r.TextAt(6, 6, " 2. Enter a quantity");
  r.TextAt(8, 6, "90. Sign off");
  r.TextAt(20, 2, "Selection or command");
  r.TextAt(21, 2, "===>");
  Field(r, kMenuOptionField, kFfwBase | kShiftDigits, 0x00, kAttributeUnderline);
  r.TextAt(23, 2, "F3=Exit   F12=Cancel");
  MessageLine(r, message);
  return Finish(r, kMenuOptionField);
}

std::vector<std::uint8_t> ItemListScreen(int page, std::string_view message) {
  OutboundRecord r = NewScreen("Work with Items");
  r.TextAt(3, 2, "Type options, press Enter.");
  r.TextAt(4, 4, "5=Display", kAttributeBlue);
  r.TextAt(6, 2, "Opt  Item      Description            Quantity", kAttributeHigh);
  const auto& items = DemoItems();
  for (int line = 0; line < kListLines; ++line) {
    const std::size_t index = static_cast<std::size_t>(page) * kListLines + line;
    if (index >= items.size()) break;
    const int row = kListFirstRow + line;
    Field(r, {row, kListOptionColumn, 1}, kFfwBase, 0x00, kAttributeUnderline);
    char text[64];
    std::snprintf(text, sizeof text, "%-8s  %-22s %5d", items[index].name.c_str(),
                  items[index].description.c_str(), items[index].quantity);
    r.TextAt(row, 7, text);
  }
  r.TextAt(kListFirstRow + kListLines, 70, page + 1 < ListPageCount() ? "More..." : "Bottom");
  r.TextAt(23, 2, "F3=Exit   F12=Cancel   Page Down/Page Up=Scroll");
  MessageLine(r, message);
  return Finish(r, {kListFirstRow, kListOptionColumn, 1});
}

std::vector<std::uint8_t> QuantityScreen(std::string_view item, std::string_view quantity,
                                         std::string_view message) {
  OutboundRecord r = NewScreen("Enter a Quantity");
  r.TextAt(3, 2, "Type the item and a quantity from 1 to 9999, press Enter.");
  r.TextAt(5, 4, "Item  . . . . . . . . . . . .");
  Field(r, kItemField, kFfwBase, kFfwMonocase, kAttributeUnderline, item);
  r.TextAt(6, 4, "Quantity  . . . . . . . . . .");
  Field(r, kQuantityField, kFfwBase, 0x00, kAttributeUnderline, quantity);
  r.TextAt(23, 2, "F3=Exit   F5=Read fields   F12=Cancel");
  MessageLine(r, message);
  return Finish(r, kItemField);
}

std::vector<std::uint8_t> ErrorRecord(std::string_view message, FieldPosition field) {
  OutboundRecord r;
  // Control character 2 bit 6 keeps the cursor where the error code put it.
  r.WriteErrorCode(message, field.row, field.column).ReadMdtFields(0x00, kCc2NoCursorMove);
  return r.Finish();
}

}  // namespace veltrix::demo_host
