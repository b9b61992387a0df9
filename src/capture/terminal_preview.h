#ifndef VELTRIX_CAPTURE_TERMINAL_PREVIEW_H_
#define VELTRIX_CAPTURE_TERMINAL_PREVIEW_H_

#include <string>
#include <vector>

#include "settings/document.h"

namespace veltrix {

// A page as the terminal's display shows it: its size from the list, and each line's text
// followed by the host field mapped to it, filled from a captured screen and shown between
// brackets, cut at the line's width. Bytes are the screen image's display bytes.
struct TerminalPreview {
  std::string size_text;  // the size box's entry ("20 characters *  8 lines")
  int chars_per_line = 0;
  std::vector<std::string> lines;
};

// Page `page` (from 0) filled from `screen` (the page's own record, or a screen the terminal
// recognises as that page).
TerminalPreview PreviewPage(const Document& doc, int page, const PageRecord& screen);

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_TERMINAL_PREVIEW_H_
