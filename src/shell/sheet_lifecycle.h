#ifndef VELTRIX_SHELL_SHEET_LIFECYCLE_H_
#define VELTRIX_SHELL_SHEET_LIFECYCLE_H_

#include <array>
#include <functional>

#include "settings/document.h"
#include "settings/page_snapshot.h"
#include "settings/sheet_page_contract.h"

namespace veltrix {

// The settings sheet's contract with its pages, independent of any widget:
// - a page is created and initialised the first time it is shown (the first page on Open);
//   pages that keep a snapshot take it and clear the modified flag before they fill their
//   controls;
// - every show sends set-active;
// - OK applies every created page in page order; pages with a snapshot then set the modified
//   flag;
// - Cancel goes to the showing page only: its snapshot is put back while the modified flag is
//   clear.
class SheetLifecycle {
 public:
  // Creates the page at `index` (0..kSheetPageCount-1). The caller owns the page; it must live
  // until the sheet closes.
  using PageFactory = std::function<SheetPage*(int index)>;

  SheetLifecycle(Document& doc, PageFactory create_page);

  // The sheet opens on the first page.
  void Open() { Show(0); }
  // The user selected the tab at `index`.
  void Show(int index);
  void Ok();
  void Cancel();

  bool created(int index) const { return slots_[index].page != nullptr; }
  int current() const { return current_; }

 private:
  struct Slot {
    SheetPage* page = nullptr;
    PageSnapshot snapshot{SnapshotScope::kNone};
  };

  Document& doc_;
  PageFactory create_page_;
  std::array<Slot, kSheetPageCount> slots_;
  int current_ = -1;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SHEET_LIFECYCLE_H_
