// veltrix-cli session: a host session without a window, for scripted capture and for testing
// host applications. The same engine as Telnet > Connect, driven over a TCP socket here.
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <optional>
#include <ostream>

#include "capture/screen_capture.h"
#include "capture/screen_file.h"
#include "cli/cli_args.h"
#include "cli/cli_command.h"
#include "cli/host_stream.h"
#include "settings/atomic_file.h"
#include "settings/file_read.h"
#include "tn5250/replay.h"
#include "tn5250/session_log.h"
#include "tn5250/tls_trust.h"

namespace veltrix::cli {
namespace {

using Clock = std::chrono::steady_clock;

TlsStreamMaker tls_stream_maker = nullptr;

// Plain TCP over the system's sockets.
class Socket : public HostStream {
 public:
  ~Socket() override {
    if (fd_ >= 0) ::close(fd_);
  }
  bool Connect(const std::string& host, int port, std::chrono::milliseconds timeout,
               std::string& reason) override {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (int rc = ::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found); rc) {
      reason = ::gai_strerror(rc);
      return false;
    }
    reason = "no address";
    for (addrinfo* a = found; a != nullptr && fd_ < 0; a = a->ai_next) {
      const int fd = ::socket(a->ai_family, a->ai_socktype | SOCK_NONBLOCK, a->ai_protocol);
      if (fd < 0) continue;
      int error = 0;
      if (::connect(fd, a->ai_addr, a->ai_addrlen) != 0 && errno == EINPROGRESS) {
        pollfd p{fd, POLLOUT, 0};
        if (::poll(&p, 1, static_cast<int>(timeout.count())) == 1) {
          socklen_t length = sizeof error;
          ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &length);
        } else {
          error = ETIMEDOUT;
        }
      } else if (errno != 0 && errno != EINPROGRESS) {
        error = errno;
      }
      if (error == 0) {
        fd_ = fd;
      } else {
        reason = std::strerror(error);
        ::close(fd);
      }
    }
    ::freeaddrinfo(found);
    return fd_ >= 0;
  }

  bool Send(std::span<const std::uint8_t> bytes) override {
    std::size_t done = 0;
    while (done < bytes.size()) {
      const ssize_t n = ::send(fd_, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
      if (n > 0) {
        done += static_cast<std::size_t>(n);
      } else if (n < 0 && (errno == EAGAIN || errno == EINTR)) {
        pollfd p{fd_, POLLOUT, 0};
        ::poll(&p, 1, 1000);
      } else {
        return false;
      }
    }
    return true;
  }

  std::optional<std::vector<std::uint8_t>> Receive(std::chrono::milliseconds wait,
                                                   std::string& reason) override {
    pollfd p{fd_, POLLIN, 0};
    const int ready = ::poll(&p, 1, static_cast<int>(std::max<long long>(wait.count(), 0)));
    if (ready == 0) return std::vector<std::uint8_t>{};
    std::vector<std::uint8_t> buffer(4096);
    const ssize_t n = ::recv(fd_, buffer.data(), buffer.size(), 0);
    if (n > 0) {
      buffer.resize(static_cast<std::size_t>(n));
      return buffer;
    }
    if (n < 0 && (errno == EAGAIN || errno == EINTR)) return std::vector<std::uint8_t>{};
    reason = n == 0 ? "the host closed the connection" : std::strerror(errno);
    return std::nullopt;
  }

 private:
  int fd_ = -1;
};

// The host has answered: no record is half received, and the keyboard is free or locked by an
// error the host wrote on the error line (Reset frees it).
bool Answered(const Session& session) {
  return session.BetweenRecords() && (!session.KeyboardLocked() || session.Screen().ErrorLine());
}

// Receives until the host has answered and then sent nothing for 100 ms (a burst of records has
// ended), for at most `wait`. False with `reason` when the host ended the connection;
// `timed_out` when no answer came in time.
bool WaitForHost(HostStream& socket, ReplayRun& run, SessionLog& log,
                 std::chrono::milliseconds wait, bool& timed_out, std::string& reason) {
  constexpr std::chrono::milliseconds kQuiet(100);
  const auto deadline = Clock::now() + wait;
  timed_out = false;
  for (;;) {
    const bool answered = Answered(run.session());
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) {
      timed_out = !answered;
      return true;
    }
    std::optional<std::vector<std::uint8_t>> bytes =
        socket.Receive(answered ? std::min(left, kQuiet) : left, reason);
    if (!bytes) {
      log.LogReceive({});
      if (answered) return true;  // the answer stands; the closing shows at the next wait
      return false;
    }
    if (bytes->empty()) {
      if (answered) return true;  // quiet for 100 ms after the answer
      continue;
    }
    log.LogReceive(*bytes);
    run.session().Receive(*bytes);
  }
}

// The key list's pieces: keys in replay syntax, with <Capture> between them.
std::vector<std::string> SplitCaptures(const std::string& keys) {
  std::vector<std::string> pieces;
  std::size_t from = 0;
  for (std::size_t at; (at = keys.find("<Capture>", from)) != std::string::npos;) {
    pieces.push_back(keys.substr(from, at - from));
    from = at + 9;
  }
  pieces.push_back(keys.substr(from));
  return pieces;
}

// The start of a capture file's new content: a new file's header, or with --append the existing
// file, checked as Load checks it. An existing file is refused without --append or --overwrite.
bool StartCaptureContent(const std::string& path, bool append, bool overwrite,
                         std::vector<std::uint8_t>& content, std::string& error) {
  if (append && overwrite) {
    error = "--append and --overwrite exclude each other";
    return false;
  }
  std::error_code code;
  const bool exists = std::filesystem::exists(path, code);
  if (exists && !append && !overwrite) {
    error = "'" + path + "' exists: --append adds the screens to it, --overwrite replaces it";
    return false;
  }
  if (exists && append) {
    std::optional<FileRead> read = ReadRegularFile(path, std::size_t{256} << 20, &error);
    if (!read) {
      error = "cannot read '" + path + "': " + error;
      return false;
    }
    if (!ScreensInFileOfSize(read->bytes.size()) ||
        !std::equal(kScreenFileTag.begin(), kScreenFileTag.end(), read->bytes.begin())) {
      error = "'" + path + "': " + std::string(kVersionErrorMessage);
      return false;
    }
    content = std::move(read->bytes);
    return true;
  }
  const auto header = ScreenFileHeader();
  content.assign(header.begin(), header.end());
  return true;
}

}  // namespace

void SetTlsStreamMaker(TlsStreamMaker maker) { tls_stream_maker = maker; }

int RunSessionCommand(std::span<const std::string> args, CliIo& io) {
  constexpr std::string_view kValues[] = {"--port",    "--emulation", "--local-name", "--keys",
                                          "--capture", "--wait",      "--ca",         "--trust"};
  constexpr std::string_view kFlags[] = {"--json",   "--log",       "--log-secrets",
                                         "--append", "--overwrite", "--tls"};
  const ParsedArgs parsed = ParseArgs(args, kValues, kFlags);
  if (!parsed.error.empty()) return Fail(io, "session: " + parsed.error);
  if (std::string error = ExpectPositional(parsed, 1, 1); !error.empty()) {
    return Fail(io, "session: " + error +
                        " (session HOST [--port N] [--emulation N] [--local-name NAME] [--keys "
                        "KEYS] [--capture FILE.SCR [--append|--overwrite]] [--log [--log-secrets]] "
                        "[--wait SECONDS] [--tls [--ca FILE.pem] [--trust SHA256:HEX]] "
                        "[--json])");
  }
  const bool tls = parsed.has_flag("--tls");
  TlsOptions tls_options;
  if (const std::string* ca = parsed.value("--ca")) tls_options.ca_file = *ca;
  if (const std::string* trust = parsed.value("--trust")) {
    const std::optional<std::string> fingerprint = CanonicalFingerprint(*trust);
    if (!fingerprint) {
      return Fail(io, "session: --trust takes a SHA-256 fingerprint (SHA256: and 64 hex digits)");
    }
    tls_options.fingerprint = *fingerprint;
  }
  if (!tls && (parsed.value("--ca") || parsed.value("--trust"))) {
    return Fail(io, "session: --ca and --trust go with --tls");
  }
  if (tls && tls_stream_maker == nullptr) {
    return Fail(io, "session: this build of veltrix-cli has no TLS");
  }
  int port = tls ? kTelnetTlsPort : 23;
  int emulation = 0;
  int wait_seconds = 10;
  if (!ReadIntOption(parsed, "--port", 1, 65535, port))
    return Fail(io, "session: --port takes 1 to 65535");
  if (!ReadIntOption(parsed, "--emulation", 0, 6, emulation)) {
    return Fail(io, "session: --emulation takes a host language from 0 to 6");
  }
  if (!ReadIntOption(parsed, "--wait", 1, 3600, wait_seconds)) {
    return Fail(io, "session: --wait takes 1 to 3600 seconds");
  }
  SessionConfig config;
  config.emulation_type = emulation;
  if (const std::string* name = parsed.value("--local-name")) config.local_name = *name;

  // Every key piece is checked before anything connects.
  std::vector<std::vector<KeyStroke>> pieces;
  for (const std::string& piece :
       SplitCaptures(parsed.value("--keys") ? *parsed.value("--keys") : std::string())) {
    std::string error;
    pieces.emplace_back();
    if (!ParseReplayKeys(piece, emulation, pieces.back(), error)) {
      return Fail(io, "session: --keys: " + error);
    }
  }
  // The screens go to the file only when the session ends, through a temporary file renamed
  // into place: a session that fails to connect leaves an existing file as it was.
  const std::string* capture_path = parsed.value("--capture");
  std::vector<std::uint8_t> capture;  // the file's new content: header (or old file) and screens
  int captured = 0;
  if (capture_path) {
    std::string error;
    if (!StartCaptureContent(*capture_path, parsed.has_flag("--append"),
                             parsed.has_flag("--overwrite"), capture, error)) {
      return Fail(io, "session: " + error);
    }
  } else if (pieces.size() > 1) {
    return Fail(io, "session: <Capture> needs --capture FILE.SCR");
  } else if (parsed.has_flag("--append") || parsed.has_flag("--overwrite")) {
    return Fail(io, "session: --append and --overwrite go with --capture FILE.SCR");
  }
  // Writes what was captured, also after a time-out or a closed connection; false when the
  // write failed (the old file is then as it was).
  auto write_capture = [&]() {
    if (!capture_path || captured == 0) return true;
    const std::span<const std::uint8_t> parts[] = {capture};
    SaveStatus status;
    if (WriteFileAtomically(*capture_path, parts, SystemFileCalls(), &status)) return true;
    io.err << "veltrix-cli: session: cannot write '" << *capture_path << "': " << status.reason
           << "; the " << captured << " screens of this session were not saved\n";
    return false;
  };

  FileLogSink sink(LogDirectoryFor(std::filesystem::current_path()));
  SystemLocalClock clock;
  SessionLog log(sink, clock);
  log.set_save_log(parsed.has_flag("--log"));
  log.set_include_secrets(parsed.has_flag("--log-secrets"));

  const std::string& host = parsed.positional[0];
  std::unique_ptr<HostStream> stream =
      tls ? tls_stream_maker(tls_options) : std::make_unique<Socket>();
  HostStream& socket = *stream;
  std::string reason;
  if (!socket.Connect(host, port, std::chrono::seconds(wait_seconds), reason)) {
    io.err << "veltrix-cli: session: Can not establish connection to " << host << ':' << port
           << ": " << reason << '\n';
    // A certificate that is not accepted is the user's input to fix, as a wrong argument is.
    return socket.certificate_refused() ? kExitUsage : kExitFailed;
  }
  log.LogConnect();
  if (const std::string security = socket.Security(); !security.empty()) {
    log.WriteLogLine("Secured: " + security);
    io.err << "veltrix-cli: session: " << host << ':' << port << " secured with " << security
           << '\n';
  }
  ReplayRun run(config);
  bool send_failed = false;
  run.SetSender([&](std::span<const std::uint8_t> bytes) {
    log.LogSend(bytes, run.session().SendSecret());
    send_failed = send_failed || !socket.Send(bytes);
  });
  const std::chrono::milliseconds wait = std::chrono::seconds(wait_seconds);
  auto fail_host = [&](const std::string& why) {
    log.LogClose();
    io.err << "veltrix-cli: session: " << why << '\n';
    write_capture();
    return kExitFailed;
  };
  bool timed_out = false;
  if (!WaitForHost(socket, run, log, wait, timed_out, reason)) return fail_host(reason);
  if (timed_out) {
    log.LogClose();
    io.err << "veltrix-cli: session: no first screen within " << wait_seconds << " seconds\n";
    write_capture();
    return kExitFailed;
  }
  for (std::size_t p = 0; p < pieces.size(); ++p) {
    if (p > 0) {
      auto page = std::make_unique<PageRecord>();
      CopyScreenRecord(run.session(), *page);
      BlankNonDisplayFields(*page);
      capture.insert(capture.end(), page->begin(), page->end());
      ++captured;
    }
    for (const KeyStroke& key : pieces[p]) {
      Press(run.session(), key);
      if (send_failed) return fail_host("sending to the host failed");
      if (!run.session().KeyboardLocked()) continue;
      // An attention key: wait for the host's answer.
      if (!WaitForHost(socket, run, log, wait, timed_out, reason)) return fail_host(reason);
      if (timed_out) {
        log.LogClose();
        io.err << "veltrix-cli: session: the host did not answer " << KeyStrokeText(key)
               << " within " << wait_seconds << " seconds\n";
        write_capture();
        return kExitFailed;
      }
    }
  }
  log.LogClose();
  if (!write_capture()) return kExitFailed;
  io.out << (parsed.has_flag("--json") ? run.Json() : run.Text());
  return kExitOk;
}

}  // namespace veltrix::cli
