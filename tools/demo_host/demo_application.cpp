#include "demo_host/demo_application.h"

#include <algorithm>
#include <cstdio>

#include "demo_host/demo_screens.h"
#include "demo_host/ebcdic_text.h"
#include "demo_host/host_codes.h"
#include "demo_host/outbound_record.h"

namespace veltrix::demo_host {

namespace {

// Text of the field that starts at `position`, or nullptr when the station did not send it.
const std::string* FieldAt(const InboundRecord& in, FieldPosition position) {
  for (const InboundField& f : in.fields) {
    if (f.row == position.row && f.column == position.column) return &f.text;
  }
  return nullptr;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? std::string() : text.substr(first);
}

HostOutput Error(const std::string& message, FieldPosition field) {
  HostOutput out;
  out.records.push_back(ErrorRecord(message, field));
  out.log.push_back("error: " + message);
  return out;
}

std::string AidName(std::uint8_t aid) {
  char name[16];
  if (aid == kAidEnter) return "Enter";
  if (aid == kAidRollDown) return "Page Up";
  if (aid == kAidRollUp) return "Page Down";
  if (aid >= 0x31 && aid <= 0x3C) {
    std::snprintf(name, sizeof name, "F%d", aid - 0x30);
  } else {
    std::snprintf(name, sizeof name, "AID %02X", aid);
  }
  return name;
}

}  // namespace

HostOutput DemoApplication::Begin(const StationInfo& station) {
  const auto it = station.environment.find("DEVNAME");
  device_name_ = it == station.environment.end() ? std::string() : it->second;
  const auto codepage = station.environment.find("CODEPAGE");
  if (codepage != station.environment.end()) welcome_ = DoubleByteWelcome(codepage->second);
  capitals_ = codepage != station.environment.end() && codepage->second == "930";
  const CapitalsOnly capitals(capitals_);
  HostOutput out = Show(Screen::kSignOn);
  // Like a midrange host, ask the station what it is first.
  out.records.insert(out.records.begin(), OutboundRecord().Query().Finish());
  return out;
}

HostOutput DemoApplication::OnRecord(std::span<const std::uint8_t> record) {
  const CapitalsOnly capitals(capitals_);
  if (awaiting_immediate_) {
    awaiting_immediate_ = false;
    const InboundRecord in = ParseImmediateRecord(record);
    if (!in.ok) return {{}, {"bad Read Immediate answer: " + in.error}, false};
    return OnImmediate(in);
  }
  const InboundRecord in = ParseAidRecord(record);
  if (!in.ok) return {{}, {"bad record: " + in.error + ": " + HexBytes(record)}, false};
  if (!in.has_aid) return {{}, {"record without AID ignored"}, false};
  if (in.aid == kAidStructuredField) {
    const QueryReplyInfo info = ParseQueryReply(record);
    return {{}, {"query reply: device " + info.device_type + " model " + info.model}, false};
  }
  char where[32];
  std::snprintf(where, sizeof where, " at %d,%d", in.cursor_row, in.cursor_column);
  HostOutput out;
  switch (screen_) {
    case Screen::kSignOn:
      out = OnSignOn(in);
      break;
    case Screen::kMenu:
      out = OnMenu(in);
      break;
    case Screen::kList:
      out = OnList(in);
      break;
    case Screen::kQuantity:
      out = OnQuantity(in);
      break;
  }
  out.log.insert(out.log.begin(), AidName(in.aid) + where);
  return out;
}

HostOutput DemoApplication::OnSignOn(const InboundRecord& in) {
  if (in.aid == kAidF3) {
    HostOutput out;
    out.close = true;
    out.log.push_back("sign-on ended with F3");
    return out;
  }
  if (in.aid == kAidF12) return Show(Screen::kSignOn);
  if (in.aid != kAidEnter) return Error("Function key not allowed.", kUserField);
  const std::string* user = FieldAt(in, kUserField);
  if (user == nullptr || Trimmed(*user).empty()) {
    return Error("Type a user name, then press Enter.", kUserField);
  }
  user_ = Trimmed(*user);
  HostOutput out = Show(Screen::kMenu);
  out.log.push_back("signed on: " + user_);
  return out;
}

HostOutput DemoApplication::OnMenu(const InboundRecord& in) {
  if (in.aid == kAidF3 || in.aid == kAidF12) return Show(Screen::kSignOn);
  if (in.aid != kAidEnter) return Error("Function key not allowed.", kMenuOptionField);
  const std::string* option = FieldAt(in, kMenuOptionField);
  const std::string choice = option == nullptr ? std::string() : Trimmed(*option);
  if (choice.empty()) return Show(Screen::kMenu);
  if (choice == "1" || choice == "01") {
    page_ = 0;
    return Show(Screen::kList);
  }
  if (choice == "2" || choice == "02") {
    item_.clear();
    quantity_.clear();
    return Show(Screen::kQuantity);
  }
  if (choice == "90") return Show(Screen::kSignOn, "Signed off " + user_ + ".");
  return Error("Option " + choice + " is not valid. Type 1, 2 or 90.", kMenuOptionField);
}

HostOutput DemoApplication::OnList(const InboundRecord& in) {
  if (in.aid == kAidF3 || in.aid == kAidF12) return Show(Screen::kMenu);
  if (in.aid == kAidRollUp) {
    if (page_ + 1 >= ListPageCount()) {
      return Error("You are at the bottom of the list.", {kListFirstRow, kListOptionColumn, 1});
    }
    ++page_;
    return Show(Screen::kList);
  }
  if (in.aid == kAidRollDown) {
    if (page_ == 0) {
      return Error("You are at the top of the list.", {kListFirstRow, kListOptionColumn, 1});
    }
    --page_;
    return Show(Screen::kList);
  }
  if (in.aid != kAidEnter) {
    return Error("Function key not allowed.", {kListFirstRow, kListOptionColumn, 1});
  }
  const auto& items = DemoItems();
  std::string message;
  for (int line = 0; line < kListLines; ++line) {
    const FieldPosition field = {kListFirstRow + line, kListOptionColumn, 1};
    const std::string* option = FieldAt(in, field);
    const std::size_t index = static_cast<std::size_t>(page_) * kListLines + line;
    if (option == nullptr || Trimmed(*option).empty() || index >= items.size()) continue;
    if (Trimmed(*option) != "5") {
      return Error("Option " + Trimmed(*option) + " is not valid. Type 5 to display an item.",
                   field);
    }
    char text[80];
    std::snprintf(text, sizeof text, "%s: %s, quantity %d.", items[index].name.c_str(),
                  items[index].description.c_str(), items[index].quantity);
    message = text;  // the last one shown wins, as on a message line
  }
  return Show(Screen::kList, message);
}

HostOutput DemoApplication::OnQuantity(const InboundRecord& in) {
  if (in.aid == kAidF3 || in.aid == kAidF12) return Show(Screen::kMenu);
  if (const std::string* item = FieldAt(in, kItemField)) item_ = Trimmed(*item);
  if (const std::string* quantity = FieldAt(in, kQuantityField)) quantity_ = Trimmed(*quantity);
  if (in.aid == kAidF5) {
    awaiting_immediate_ = true;
    HostOutput out;
    out.records.push_back(OutboundRecord().ReadImmediate().Finish());
    out.log.push_back("Read Immediate sent");
    return out;
  }
  if (in.aid != kAidEnter) return Error("Function key not allowed.", kItemField);
  bool known = false;
  for (const Item& i : DemoItems()) known = known || i.name == item_;
  if (!known) return Error("Item '" + item_ + "' not found. Try ITEM0001 to ITEM0035.", kItemField);
  int value = 0;
  bool number = !quantity_.empty() && quantity_.size() <= 4;
  for (const char c : quantity_) {
    number = number && c >= '0' && c <= '9';
    value = value * 10 + (c - '0');
  }
  if (!number || value < 1 || value > 9999) {
    return Error("Quantity must be a number from 1 to 9999.", kQuantityField);
  }
  const std::string message = "Quantity " + std::to_string(value) + " recorded for " + item_ + ".";
  item_.clear();
  quantity_.clear();
  HostOutput out = Show(Screen::kQuantity, message);
  out.log.push_back(message);
  return out;
}

HostOutput DemoApplication::OnImmediate(const InboundRecord& in) {
  // All fields in table order, NULs as blanks, untrimmed: the item, then the quantity.
  const std::span<const std::uint8_t> data(in.data);
  const std::size_t split = std::min<std::size_t>(data.size(), kItemField.length);
  item_ = Trimmed(FieldText(data.first(split)));
  quantity_ = Trimmed(FieldText(data.subspan(split)));
  const std::string message = "Read Immediate: item '" + item_ + "', quantity '" + quantity_ + "'.";
  HostOutput out = Show(Screen::kQuantity, message);
  out.log.push_back(message);
  return out;
}

HostOutput DemoApplication::Show(Screen screen, const std::string& message) {
  screen_ = screen;
  HostOutput out;
  switch (screen) {
    case Screen::kSignOn:
      user_.clear();
      out.records.push_back(SignOnScreen(device_name_, message, welcome_));
      break;
    case Screen::kMenu:
      out.records.push_back(MenuScreen(user_, message));
      break;
    case Screen::kList:
      out.records.push_back(ItemListScreen(page_, message));
      break;
    case Screen::kQuantity:
      out.records.push_back(QuantityScreen(item_, quantity_, message));
      break;
  }
  return out;
}

}  // namespace veltrix::demo_host
