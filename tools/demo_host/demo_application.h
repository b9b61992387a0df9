#ifndef VELTRIX_TOOLS_DEMO_HOST_DEMO_APPLICATION_H_
#define VELTRIX_TOOLS_DEMO_HOST_DEMO_APPLICATION_H_

#include <cstdint>
#include <string>
#include <vector>

#include "demo_host/host_application.h"
#include "demo_host/inbound_record.h"

namespace veltrix::demo_host {

// The demo: sign-on, main menu, a paged item list with option fields, and a quantity entry
// that answers bad input with Write Error Code. F3 goes back (and ends the session from the
// sign-on), F12 cancels to the previous screen, F5 on the quantity screen reads the fields with
// Read Immediate. The 5250 query goes out first; its reply is logged.
class DemoApplication : public HostApplication {
 public:
  enum class Screen { kSignOn, kMenu, kList, kQuantity };

  HostOutput Begin(const StationInfo& station) override;
  HostOutput OnRecord(std::span<const std::uint8_t> record) override;

  Screen screen() const { return screen_; }
  const std::string& user() const { return user_; }
  int list_page() const { return page_; }

 private:
  HostOutput OnSignOn(const InboundRecord& in);
  HostOutput OnMenu(const InboundRecord& in);
  HostOutput OnList(const InboundRecord& in);
  HostOutput OnQuantity(const InboundRecord& in);
  HostOutput OnImmediate(const InboundRecord& in);
  HostOutput Show(Screen screen, const std::string& message = {});

  Screen screen_ = Screen::kSignOn;
  std::string device_name_;
  std::vector<std::uint8_t> welcome_;  // double-byte greeting of the station's code page
  bool capitals_ = false;              // a Katakana station: text in capitals only
  std::string user_;
  int page_ = 0;
  std::string item_;
  std::string quantity_;
  bool awaiting_immediate_ = false;
};

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_DEMO_APPLICATION_H_
