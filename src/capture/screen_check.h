#ifndef VELTRIX_CAPTURE_SCREEN_CHECK_H_
#define VELTRIX_CAPTURE_SCREEN_CHECK_H_

#include <span>
#include <vector>

#include "settings/document.h"

namespace veltrix {

// A terminal line of a page that shows a host field the screen does not have.
struct MissingField {
  int line = 0;  // counted from 0
  int row = 0;   // the host field's first cell, counted from 0
  int column = 0;
};

// How the terminal would recognise one captured screen with a document's pages.
struct ScreenCheck {
  std::vector<int> pages;             // the pages whose characteristic string it shows, from 0
  std::vector<MissingField> missing;  // of the one page it matches
  bool ok() const { return pages.size() == 1 && missing.empty(); }
};

// Matches each screen against the stored characteristic cells and strings, as the terminal
// does, and checks that every line of the matched page that shows a host field (one the page's
// own screen has) finds that field on the screen too: the regression check after a host
// application changes.
std::vector<ScreenCheck> CheckScreens(const Document& doc, std::span<const PageRecord> screens);

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_CHECK_H_
