#ifndef VELTRIX_CLI_HOST_STREAM_H_
#define VELTRIX_CLI_HOST_STREAM_H_

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace veltrix::cli {

// The byte stream of `veltrix-cli session`: plain TCP, or TLS where the build has Qt Network.
class HostStream {
 public:
  virtual ~HostStream() = default;
  // Connects within `timeout`; false with the reason.
  virtual bool Connect(const std::string& host, int port, std::chrono::milliseconds timeout,
                       std::string& reason) = 0;
  virtual bool Send(std::span<const std::uint8_t> bytes) = 0;
  // Waits up to `wait` for data; the bytes read (empty on time-out), or nothing when the host
  // closed the connection or it failed.
  virtual std::optional<std::vector<std::uint8_t>> Receive(std::chrono::milliseconds wait,
                                                           std::string& reason) = 0;
  // The TLS version and cipher once connected; empty for plain TCP.
  virtual std::string Security() const { return {}; }
  // The last Connect failed because the host's certificate was not accepted.
  virtual bool certificate_refused() const { return false; }
};

struct TlsOptions {
  std::string ca_file;      // extra CA certificates (PEM)
  std::string fingerprint;  // a certificate to accept for the host although it does not verify
};
// A TLS stream that verifies the host as the window does; nothing in a build without Qt.
using TlsStreamMaker = std::unique_ptr<HostStream> (*)(const TlsOptions& options);
void SetTlsStreamMaker(TlsStreamMaker maker);

}  // namespace veltrix::cli

#endif  // VELTRIX_CLI_HOST_STREAM_H_
