#ifndef VELTRIX_TN5250_SESSION_LOG_H_
#define VELTRIX_TN5250_SESSION_LOG_H_

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

namespace veltrix {

inline constexpr std::string_view kLogDirectoryName = "Logs";
inline constexpr std::string_view kSessionLogFileName = "Quarvel-TN.log";

// Local date and time as the log stamps it.
struct LocalTime {
  int year = 0;
  int month = 0;  // 1..12
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// Where the log takes the time from (tests inject a fixed one).
class LocalClock {
 public:
  virtual ~LocalClock() = default;
  virtual LocalTime Now() const = 0;
};

// The computer's local time.
class SystemLocalClock : public LocalClock {
 public:
  LocalTime Now() const override;
};

// Where the log's text goes. Every failure is silent: logging just stops.
class LogSink {
 public:
  virtual ~LogSink() = default;
  // Creates the log directory (an existing one is fine), deletes the "*.bmp" files in it and
  // creates the log file anew (emptied). False when the file cannot be created.
  virtual bool Create() = 0;
  virtual void Write(std::string_view text) = 0;
  virtual void Close() = 0;
};

// Writes "Quarvel-TN.log" in a log directory.
class FileLogSink : public LogSink {
 public:
  explicit FileLogSink(std::filesystem::path directory);
  bool Create() override;
  void Write(std::string_view text) override;
  void Close() override;

  const std::filesystem::path& directory() const { return directory_; }
  std::filesystem::path file_path() const { return directory_ / kSessionLogFileName; }

 private:
  std::filesystem::path directory_;
  std::ofstream file_;
};

// The log directory for a working directory: the working directory joined with "Logs".
std::filesystem::path LogDirectoryFor(const std::filesystem::path& working_directory);

// "%d%d%d%d%d%d" of year, month, day, hour, minute and second, without padding.
std::string LogTimeStamp(const LocalTime& time);

// Every byte as two upper-case hexadecimal digits and a blank, then CR LF.
// `masked` marks bytes written as "**" (the line keeps its length).
std::string LogDataLine(std::span<const std::uint8_t> bytes,
                        std::span<const std::uint8_t> masked = {});

// The session log of one connection: the connection's traffic as time-stamped lines with the
// bytes in hexadecimal, written only while "Save Log" was ticked for the connection.
class SessionLog {
 public:
  SessionLog(LogSink& sink, const LocalClock& clock) : sink_(sink), clock_(clock) {}

  // "Save Log" of the connect dialog; every write checks it.
  void set_save_log(bool on) { save_log_ = on; }
  bool save_log() const { return save_log_; }
  bool is_open() const { return open_; }

  // After a successful connect: with "Save Log" on, creates the file and writes "Connect:".
  void LogConnect();
  // After a failed connect: with "Save Log" on, the file holds "Failed:" and what failed, so
  // the user can tell where to and why.
  void LogConnectFailed(std::string_view text);
  // Before bytes go to the host: "Send:" and the data line.
  // Bytes marked in `secret` (a password's) are written as "**" unless set_include_secrets.
  void LogSend(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t> secret = {});
  void set_include_secrets(bool include) { include_secrets_ = include; }
  // After a receive: "Recv:" and the data line (empty when the host closed or an error came).
  void LogReceive(std::span<const std::uint8_t> bytes);
  // After the socket is closed: "Close:", then the file is closed.
  void LogClose();

  // Writes `text` and, unless it ends with a line feed, CR LF after it.
  void WriteLogLine(std::string_view text);

 private:
  void WriteStamped(std::string_view label);

  LogSink& sink_;
  const LocalClock& clock_;
  bool save_log_ = false;
  bool include_secrets_ = false;
  bool open_ = false;
};

}  // namespace veltrix

#endif  // VELTRIX_TN5250_SESSION_LOG_H_
