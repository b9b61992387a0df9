#include "settings/page_snapshot.h"

namespace veltrix {

void PageSnapshot::Take(Document& doc) {
  if (!keeps_snapshot()) return;
  record_ = std::make_unique<SettingsRecord>(doc.record);
  if (scope_ == SnapshotScope::kRecordAndKeyCodes) {
    key_codes_ = std::make_unique<decltype(Document::key_codes)>(doc.key_codes);
  }
  if (scope_ == SnapshotScope::kRecordAndPages) {
    pages_ = std::make_unique<decltype(Document::pages)>(doc.pages);
  }
  taken_ = true;
  doc.modified = false;
}

bool PageSnapshot::RestoreOnCancel(Document& doc) const {
  if (!taken_ || doc.modified) return false;
  doc.record = *record_;
  if (key_codes_) doc.key_codes = *key_codes_;
  if (pages_) doc.pages = *pages_;
  return true;
}

void PageSnapshot::MarkApplied(Document& doc) const {
  if (keeps_snapshot()) doc.modified = true;
}

}  // namespace veltrix
