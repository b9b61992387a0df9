#include "capture/screen_capture.h"

#include <algorithm>

#include "tn5250/field_record.h"
#include "tn5250/presentation_space.h"

namespace veltrix {

void CopyScreenRecord(const Session& session, PageRecord& page) {
  static_assert(kPlaneSize == kScreenImageRows * kScreenImageRowBytes);
  static_assert(kFieldRecordSize == kFieldEntrySize);
  page.fill(0);
  const auto plane = session.Screen().CharacterPlane();
  std::copy(plane.begin(), plane.end(), page.begin() + kScreenImageOffset);
  std::size_t at = kFieldEntriesOffset;
  for (const FieldRecord& f : session.Fields().Records()) {
    if (at + kFieldEntrySize > kPageRecordSize) break;  // the first 255 fields
    const auto bytes = f.Serialize();
    std::copy(bytes.begin(), bytes.end(), page.begin() + static_cast<std::ptrdiff_t>(at));
    at += kFieldEntrySize;
  }
}

void ScreenCapture::Capture(HostConnection& connection,
                            std::function<void(const std::string&)> failed) {
  connection.CaptureScreen([file = file_, failed = std::move(failed)](const Session& session) {
    if (!file->capturing()) return;
    auto page = std::make_unique<PageRecord>();
    CopyScreenRecord(session, *page);
    if (file->Append(*page)) return;
    // A full disk must not lose screens unnoticed.
    const std::string name = file->path().string();
    file->Stop();
    failed("Writing the screen file " + name + " failed; it is incomplete. Capture stopped.");
  });
}

}  // namespace veltrix
