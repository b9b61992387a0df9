#ifndef VELTRIX_CLI_DOWNLOAD_REQUEST_H_
#define VELTRIX_CLI_DOWNLOAD_REQUEST_H_

#include <string>
#include <vector>

#include "cli/cli_command.h"
#include "download/download_engine.h"
#include "settings/document.h"

namespace veltrix::cli {

// `veltrix-cli download`, as its arguments ask for it.
struct DownloadRequest {
  DownloadKind kind = DownloadKind::kSettings;
  std::string file;
  SettingsRecord record{};            // a settings download: the file's record
  std::vector<std::uint8_t> program;  // a program download: the checked records
  bool json = false;                  // one object per terminal instead of the report lines
  DownloadVia via = DownloadVia::kRs232;
  std::vector<std::string> ports;  // serial: one download per port, all at once
  int rate = 115200;
  int retries = 0;  // how many retry questions are answered Yes
  std::string listen_address = "0.0.0.0";
  int listen_port = 3000;
  int terminals = 1;                            // RF: how many terminals are served on the port
  std::int64_t listen_wait_ms = kListenWaitMs;  // RF: each attempt's wait for a terminal
};

// Runs the downloads on an event loop with the real links; the build with Qt provides it (the
// command says so when there is none).
using DownloadRunner = int (*)(const DownloadRequest& request, CliIo& io);
void SetDownloadRunner(DownloadRunner runner);

}  // namespace veltrix::cli

#endif  // VELTRIX_CLI_DOWNLOAD_REQUEST_H_
