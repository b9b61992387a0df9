#include "settings/reader/length_option.h"

#include <algorithm>
#include <utility>

namespace veltrix {

LengthLabels LengthOptionLabels(int option) {
  if (option == kLengthRange) return {"Min Len :", "Max Len :"};
  return {"Length 1 :", "Length 2 :"};
}

LengthBoxEnabling LengthOptionEnabling(int option) {
  return {option >= kOneLength, option >= kTwoLengths};
}

LengthBoxes BoxesAfterChoosingOption(int option, LengthBoxes boxes) {
  const LengthBoxEnabling enabled = LengthOptionEnabling(option);
  if (enabled.first) boxes.first = 0;
  if (enabled.second) boxes.second = 0;
  return boxes;
}

StoredLengthOption StoreLengthOption(int option, LengthBoxes boxes) {
  option = std::clamp(option, static_cast<int>(kAnyLength), static_cast<int>(kLengthRange));
  const LengthBoxEnabling used = LengthOptionEnabling(option);
  StoredLengthOption stored{option, used.first ? std::clamp(boxes.first, 0, 127) : 0,
                            used.second ? std::clamp(boxes.second, 0, 127) : 0};
  if (stored.length1 == 0 && stored.length2 == 0) return StoredLengthOption{};
  if (option == kTwoLengths && stored.length2 > stored.length1) {
    std::swap(stored.length1, stored.length2);
  }
  return stored;
}

}  // namespace veltrix
