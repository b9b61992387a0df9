#ifndef VELTRIX_SETTINGS_PAGE_SNAPSHOT_H_
#define VELTRIX_SETTINGS_PAGE_SNAPSHOT_H_

#include <memory>

#include "settings/document.h"

namespace veltrix {

// What a settings page keeps a copy of when it is first shown.
enum class SnapshotScope {
  kNone,               // keeps nothing (the Barcode page)
  kRecord,             // the settings record (System, Wireless LAN)
  kRecordAndKeyCodes,  // plus the key code table (Emulation)
  kRecordAndPages,     // plus the 50 page records (Screen)
};

// A page's copy of the document, taken on first show and put back on Cancel unless OK was
// given. All pages share this one mechanism; they only say which scope they keep.
class PageSnapshot {
 public:
  explicit PageSnapshot(SnapshotScope scope) : scope_(scope) {}

  SnapshotScope scope() const { return scope_; }
  bool keeps_snapshot() const { return scope_ != SnapshotScope::kNone; }

  // Copies the parts of `doc` the scope names and clears the modified flag. Does nothing for
  // kNone.
  void Take(Document& doc);

  // Cancel: while the modified flag is clear, puts the copy back. Returns true when it did.
  bool RestoreOnCancel(Document& doc) const;

  // OK: a page that keeps a snapshot marks the document modified.
  void MarkApplied(Document& doc) const;

 private:
  SnapshotScope scope_;
  bool taken_ = false;
  // Heap copies: a record is ~58 KB and the pages ~500 KB.
  std::unique_ptr<SettingsRecord> record_;
  std::unique_ptr<decltype(Document::key_codes)> key_codes_;
  std::unique_ptr<decltype(Document::pages)> pages_;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PAGE_SNAPSHOT_H_
