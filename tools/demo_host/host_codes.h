#ifndef VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_
#define VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_

// The demo host speaks the codes the terminal's engine reads: one header for both ends.
#include "tn5250/field_record.h"
#include "tn5250/stream_codes.h"
#include "tn5250/telnet_codes.h"

namespace veltrix::demo_host {

// The demo host's screens are the terminal's 24 x 80.
inline constexpr int kRows = 24;
inline constexpr int kColumns = 80;

}  // namespace veltrix::demo_host

#endif  // VELTRIX_TOOLS_DEMO_HOST_HOST_CODES_H_
