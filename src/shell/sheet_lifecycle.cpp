#include "shell/sheet_lifecycle.h"

#include <utility>

namespace veltrix {

SheetLifecycle::SheetLifecycle(Document& doc, PageFactory create_page)
    : doc_(doc), create_page_(std::move(create_page)) {}

void SheetLifecycle::Show(int index) {
  if (index < 0 || index >= kSheetPageCount) return;
  Slot& slot = slots_[index];
  if (slot.page == nullptr) {
    slot.page = create_page_(index);
    if (slot.page == nullptr) return;
    slot.snapshot = PageSnapshot(kSheetPages[index].scope);
    slot.snapshot.Take(doc_);
    slot.page->Initialise(doc_);
  }
  current_ = index;
  slot.page->SetActive(doc_);
}

void SheetLifecycle::Ok() {
  for (Slot& slot : slots_) {
    if (slot.page == nullptr) continue;
    slot.page->Apply(doc_);
    slot.snapshot.MarkApplied(doc_);
  }
}

void SheetLifecycle::Cancel() {
  if (current_ < 0) return;
  Slot& slot = slots_[current_];
  slot.snapshot.RestoreOnCancel(doc_);
  slot.page->QueryCancel(doc_);
}

}  // namespace veltrix
