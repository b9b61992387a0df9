#ifndef VELTRIX_TN5250_SESSION_CONFIG_H_
#define VELTRIX_TN5250_SESSION_CONFIG_H_

#include <string>

namespace veltrix {

// What a session takes from the settings record; the caller reads the values.
struct SessionConfig {
  int emulation_type = 0;  // `EmulationType` 0..6
  std::string local_name;  // `LocalName`; only the first 10 bytes up to a NUL are used
};

// Read modes chosen by the host's read commands.
enum class ReadMode : int {
  kNone = 0,
  kInputFields = 1,
  kMdtFields = 2,
  kMdtAlternate = 3,
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_SESSION_CONFIG_H_
