#ifndef VELTRIX_CAPTURE_SCREEN_EDITOR_H_
#define VELTRIX_CAPTURE_SCREEN_EDITOR_H_

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "capture/identification.h"
#include "capture/terminal_preview.h"
#include "settings/document.h"
#include "settings/screen/terminal_screen_sizes.h"

namespace veltrix {

inline constexpr int kVisibleLines = 8;
inline constexpr std::string_view kNoFieldChoice = "nil";
inline constexpr std::string_view kDeletePageQuestion = "Are you sure to delete this page ?";

// What loading a screen file came to, with the messages to show in order.
struct LoadOutcome {
  struct Message {
    std::string caption;
    std::string text;
  };
  bool loaded = false;  // the document's pages were rebuilt
  std::vector<Message> messages;
};
// Reads the file, identifies its screens and, only when that succeeds, rebuilds the document's
// pages and sets `ScreensLoaded`. A refused file or a failed identification leaves the document
// as it was.
LoadOutcome LoadScreenFileInto(Document& doc, const std::filesystem::path& path);

// Deletes page p: the later pages move down with everything they own, the freed last slot is
// cleared (its HostColumn entries 1, HostRow entries 0, as the terminal expects), and the count
// drops by one.
void DeleteScreenPage(Document& doc, int page);

// The Screen page's state and rules without widgets: which page and which eight lines show,
// and every change the controls make to the record.
class ScreenEditor {
 public:
  explicit ScreenEditor(Document& doc) : doc_(doc) {}

  struct LineView {
    int number = 0;  // from 1
    bool enabled = false;
    std::string text;
    int field_choice = 0;  // index in field_choices: 0 "nil"
    std::string x;         // host column of the field, empty for "nil"
    std::string y;         // host row
  };
  struct View {
    int total = 0;
    int current = 0;  // from 1, 0 without pages
    bool first = false, previous = false, next = false, last = false, remove = false;
    std::vector<std::string> sizes;  // the size box's entries for the font size
    int size = 0;
    std::vector<std::string> field_choices;  // "nil" and the page's field numbers
    std::array<LineView, kVisibleLines> lines;
    bool lines_back = false, lines_forward = false;
    int text_limit = 0;   // characters a line's text stores (its width less the last column)
    std::string preview;  // the host screen, rows ended by line feeds
    // Cells of the host screen to mark: the characteristic cells that tell the pages apart,
    // and the page's input fields. Rows and columns from 0.
    struct Mark {
      int row = 0;
      int column = 0;
      int length = 1;
      bool characteristic = false;  // else an input field
    };
    std::vector<Mark> marks;
    TerminalPreview terminal;  // the page as the terminal's display shows it
  };
  View Show() const;

  // Opening, loading, Reset: back to the first page and its first lines.
  void Restart();
  void First() { GoTo(0); }
  void Previous() { GoTo(current_ - 1); }
  void Next() { GoTo(current_ + 1); }
  void Last() { GoTo(PageCount() - 1); }
  void LinesBack();
  void LinesForward();
  // After a font change: the page's first lines again.
  void FirstLines() { first_line_ = 0; }
  void ChooseSize(int index);
  // Slot s of the eight visible lines: choice 0 is "nil", k the k-th field entry.
  void ChooseField(int slot, int choice);
  // Stores at most characters per line - 1 characters.
  void EditText(int slot, const std::string& text);
  void DeleteCurrent();
  void Reset();
  // OK: clears the bytes behind each line text's end on every page (first rows - 1 lines).
  void PadLineTexts(int host_rows) const;

  int PageCount() const;
  int current_page() const { return current_; }
  int first_line() const { return first_line_; }

 private:
  void GoTo(int page);
  const TerminalScreenSize& CurrentSize() const;

  Document& doc_;
  int current_ = 0;
  int first_line_ = 0;
};

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_EDITOR_H_
