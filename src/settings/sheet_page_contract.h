#ifndef VELTRIX_SETTINGS_SHEET_PAGE_CONTRACT_H_
#define VELTRIX_SETTINGS_SHEET_PAGE_CONTRACT_H_

#include <array>
#include <string_view>

#include "settings/document.h"
#include "settings/page_snapshot.h"

namespace veltrix {

// The pages of the settings sheet, in tab order.
enum class SheetPageId { kSystem = 0, kBarcode, kWirelessLan, kEmulation, kScreen };

struct SheetPageInfo {
  SheetPageId id;
  std::string_view caption;          // the tab caption (the dialog's title)
  std::string_view dialog_resource;  // the page's dialog template name
  SnapshotScope scope;               // what the page keeps when first shown
};

inline constexpr std::string_view kSheetCaption = "Settings";

inline constexpr std::array<SheetPageInfo, 5> kSheetPages{{
    {SheetPageId::kSystem, "System", "SYSTEM_DLG", SnapshotScope::kRecord},
    {SheetPageId::kBarcode, "Barcode", "BARCODESETTINGDLG", SnapshotScope::kNone},
    {SheetPageId::kWirelessLan, "Wireless LAN", "WLAN_DLG", SnapshotScope::kRecord},
    {SheetPageId::kEmulation, "Emulation", "EMULATION_DLG", SnapshotScope::kRecordAndKeyCodes},
    {SheetPageId::kScreen, "Screen", "SCREEN_DLG", SnapshotScope::kRecordAndPages},
}};

inline constexpr int kSheetPageCount = static_cast<int>(kSheetPages.size());

inline const SheetPageInfo& SheetPageInfoOf(SheetPageId id) {
  return kSheetPages[static_cast<int>(id)];
}

// What every settings page does for the sheet. The snapshot and the modified flag are handled
// by the sheet (SheetLifecycle), not by the pages: a page only moves values between its
// controls and the document.
class SheetPage {
 public:
  virtual ~SheetPage() = default;
  // First show, after the snapshot was taken: fill the controls from the document.
  virtual void Initialise(Document& doc) = 0;
  // OK: store the controls into the document (pages that write on every change may do
  // nothing here).
  virtual void Apply(Document& doc) = 0;
  // The page is shown (also right after Initialise): refresh what depends on other pages.
  virtual void SetActive(Document& /*doc*/) {}
  // Cancel while this page is showing, after the snapshot (if any) was put back.
  virtual void QueryCancel(Document& /*doc*/) {}
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SHEET_PAGE_CONTRACT_H_
