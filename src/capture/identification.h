#ifndef VELTRIX_CAPTURE_IDENTIFICATION_H_
#define VELTRIX_CAPTURE_IDENTIFICATION_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "capture/screen_file.h"
#include "settings/document.h"

namespace veltrix {

inline constexpr std::string_view kIdentifyFailedMessage =
    "Can not find enough characteristics to differentiate the host screens.";
inline constexpr int kMaxPages = static_cast<int>(kPageCount);
// " Screen buffer full !! \r\n Accept at most %d screens. " (caption "Screen").
std::string ScreenBufferFullText(int most);

struct HostScreenSize {
  int rows = 24;
  int columns = 80;
};
// The host screen every screen file is read as: 24 x 80. Bytes of the image beyond it (the
// presentation space's spare rows and columns) take no part in telling screens apart.
inline constexpr HostScreenSize kHostScreen{24, kHostScreenColumns};

// The run length a document asks for: CharacteristicLength when it is 1 to 20; any other value (a
// damaged file) counts as 20, and `finding` says so.
int CharacteristicLengthOf(const SettingsRecord& record, std::string* finding = nullptr);

struct ScreenCell {
  int row = 0;
  int column = 0;
  bool operator==(const ScreenCell&) const = default;
};

// One attempt: K cells from a start cell with a fixed step.
struct CellRun {
  int strategy = 0;  // 0 diagonal, 1 along a row, 2 down a column
  ScreenCell start;
  int row_step = 0;
  int column_step = 0;
  ScreenCell Cell(int j) const {
    return {start.row + j * row_step, start.column + j * column_step};
  }
};
// Every run the search tries, in order. Each run's K cells lie on the host screen.
std::vector<CellRun> CandidateRuns(int k, HostScreenSize size);

struct Identification {
  bool ok = false;
  CellRun run;                                     // the run that told the screens apart
  std::vector<ScreenCell> cells;                   // its K cells
  std::vector<std::vector<std::uint8_t>> strings;  // per screen, the K characters
  std::vector<int> duplicate_of;                   // per screen: the screen it repeats, or -1
  std::vector<int> pages;                          // the screens that become pages, at most 50
  bool buffer_full = false;                        // the 50th page was reached
};

// The search: the first run whose characters tell every two different screens apart; identical
// screens are duplicates of the first of them. Works on at most 100 screens.
Identification IdentifyScreens(std::span<const PageRecord> screens, int k, HostScreenSize size);

// Writes a successful identification into the document: all 50 page records are cleared, the
// pages copied in order with their characteristic strings, the cells stored with the first
// page, K and `TotalPages` set.
void StoreIdentification(Document& doc, std::span<const PageRecord> screens,
                         const Identification& id, int k);

// Why an identification came out as it did.
struct PairDistinction {  // success: what tells two pages apart
  int a = 0;
  int b = 0;
  ScreenCell cell;
  std::uint8_t first = 0;
  std::uint8_t second = 0;
};
struct PairDifference {  // failure: two different screens no run can tell apart
  int a = 0;
  int b = 0;
  std::vector<ScreenCell> cells;  // where they do differ on the host screen
};
struct RunConflicts {  // failure: a run tried and the pairs of screens it cannot tell apart
  CellRun run;
  std::vector<std::pair<int, int>> pairs;
};
struct FragileCell {  // success: a characteristic cell that may not hold what it held
  ScreenCell cell;
  bool in_input_field = false;   // the user or the host may change it
  bool on_message_line = false;  // row 24: messages come and go
  bool blank_in_a_page = false;  // a page tells itself apart by nothing there
};
struct Explanation {
  std::vector<PairDistinction> told_apart;
  std::vector<PairDifference> inseparable;
  std::vector<RunConflicts> runs;
  // The fewest screens found to drop or recapture so that one run tells the rest apart, and
  // that run (empty `drop` when nothing failed).
  std::vector<int> drop;
  CellRun drop_run;
  std::vector<FragileCell> fragile;
};
Explanation ExplainIdentification(std::span<const PageRecord> screens, int k, HostScreenSize size,
                                  const Identification& id);

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_IDENTIFICATION_H_
