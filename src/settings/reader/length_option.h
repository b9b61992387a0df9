#ifndef VELTRIX_SETTINGS_READER_LENGTH_OPTION_H_
#define VELTRIX_SETTINGS_READER_LENGTH_OPTION_H_

#include "settings/reader/length_pair.h"

namespace veltrix {

// The length option of a two-dimensional symbology: list 401 with two length boxes.
enum LengthOption : int {
  kAnyLength = 0,
  kOneLength = 1,
  kTwoLengths = 2,
  kLengthRange = 3,
};

// Labels 102 and 103: "Min Len :" and "Max Len :" for a range, else "Length 1 :" and "Length 2 :".
LengthLabels LengthOptionLabels(int option);

struct LengthBoxes {
  int first = 0;
  int second = 0;

  bool operator==(const LengthBoxes&) const = default;
};

// Which boxes are enabled: the first from "One Length" on, the second from "Two Lengths" on.
struct LengthBoxEnabling {
  bool first;
  bool second;
};
LengthBoxEnabling LengthOptionEnabling(int option);

// Choosing an option in the list empties (sets to 0) every box that it enables.
LengthBoxes BoxesAfterChoosingOption(int option, LengthBoxes boxes);

struct StoredLengthOption {
  int option = kAnyLength;
  int length1 = 0;
  int length2 = 0;

  bool operator==(const StoredLengthOption&) const = default;
};

// What OK stores: lengths the option does not use become 0; both 0 makes it "Any Length";
// "Two Lengths" puts the larger first; "Range" keeps minimum then maximum as entered.
StoredLengthOption StoreLengthOption(int option, LengthBoxes boxes);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_LENGTH_OPTION_H_
