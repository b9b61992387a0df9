// Loads a screen file made of any bytes, of any length, identifies its screens and explains the
// result, then stores it into a document: nothing a file holds may crash these, every cell of a
// kept run lies on the host screen, and the page count never passes 50.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>

#include "capture/identification.h"
#include "capture/screen_file.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto loaded = veltrix::ParseScreenFile(std::span(data, size));
  if (!loaded) return 0;
  // The first byte after the header (when there is one) picks K, as a foreign document could.
  const int k = size > 20 ? data[20] % 21 : 20;
  const veltrix::HostScreenSize screen = veltrix::kHostScreen;
  const veltrix::Identification id = veltrix::IdentifyScreens(loaded->screens, k, screen);
  for (const veltrix::ScreenCell& cell : id.cells) {
    if (cell.row >= screen.rows || cell.column >= screen.columns) std::abort();
  }
  if (id.pages.size() > veltrix::kPageCount) std::abort();
  if (loaded->screens.size() <= 12) veltrix::ExplainIdentification(loaded->screens, k, screen, id);
  for (const veltrix::PageRecord& page : loaded->screens) veltrix::FieldEntries(page);
  auto doc = std::make_unique<veltrix::Document>();
  veltrix::SetScreenPageDefaults(*doc);
  veltrix::StoreIdentification(*doc, loaded->screens, id, k);
  if (veltrix::ReadNumber(doc->record, veltrix::kTotalPages) > veltrix::kPageCount) std::abort();
  return 0;
}
