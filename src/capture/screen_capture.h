#ifndef VELTRIX_CAPTURE_SCREEN_CAPTURE_H_
#define VELTRIX_CAPTURE_SCREEN_CAPTURE_H_

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "capture/screen_file.h"
#include "settings/document.h"
#include "tn5250/host_connection.h"
#include "tn5250/session.h"

namespace veltrix {

// The host screen as a page record: the character plane and up to 255 field records in table
// order.
void CopyScreenRecord(const Session& session, PageRecord& page);

// Telnet > Start Capture, Capture, Stop Capture: screens of a host session written to a screen
// file as they are taken, each one whole picture with its non-display fields emptied.
class ScreenCapture {
 public:
  // Creates (replaces) the file; false when it cannot be created.
  bool Start(const std::filesystem::path& path) { return file_->Start(path); }
  // Takes the screen once no record is half carried out. A write that fails stops capturing
  // and gives `failed` the message to show: the file is incomplete.
  void Capture(HostConnection& connection, std::function<void(const std::string&)> failed);
  void Stop() { file_->Stop(); }
  bool capturing() const { return file_->capturing(); }

 private:
  // Shared with a capture that waits for the end of a record.
  std::shared_ptr<CaptureFile> file_ = std::make_shared<CaptureFile>();
};

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_CAPTURE_H_
