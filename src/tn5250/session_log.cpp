#include "tn5250/session_log.h"

#include <ctime>
#include <system_error>

#include "resources/hex_text.h"

namespace veltrix {

LocalTime SystemLocalClock::Now() const {
  std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return LocalTime{parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
                   parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

FileLogSink::FileLogSink(std::filesystem::path directory) : directory_(std::move(directory)) {}

bool FileLogSink::Create() {
  namespace fs = std::filesystem;
  Close();
  std::error_code ec;
  fs::create_directories(directory_, ec);
  // Screen pictures of an earlier session are stale once a new log starts.
  for (fs::directory_iterator it(directory_, ec), end; !ec && it != end; it.increment(ec)) {
    if (it->path().extension() == ".bmp") {
      std::error_code ignored;
      fs::remove(it->path(), ignored);
    }
  }
  file_.open(file_path(), std::ios::binary | std::ios::trunc);
  return file_.is_open();
}

void FileLogSink::Write(std::string_view text) {
  if (!file_.is_open()) return;
  file_.write(text.data(), static_cast<std::streamsize>(text.size()));
  file_.flush();  // a log that is read while the session runs should be complete
}

void FileLogSink::Close() {
  if (file_.is_open()) file_.close();
  file_.clear();
}

std::filesystem::path LogDirectoryFor(const std::filesystem::path& working_directory) {
  return working_directory / kLogDirectoryName;
}

std::string LogTimeStamp(const LocalTime& t) {
  std::string stamp;
  for (int part : {t.year, t.month, t.day, t.hour, t.minute, t.second}) {
    stamp += std::to_string(part);
  }
  return stamp;
}

std::string LogDataLine(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t> masked) {
  std::string line;
  line.reserve(bytes.size() * 3 + 2);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::uint8_t b = bytes[i];
    const bool hide = i < masked.size() && masked[i] != 0;
    if (hide) {
      line += "**";
    } else {
      AppendHexByte(line, b);
    }
    line += ' ';
  }
  line += "\r\n";
  return line;
}

void SessionLog::LogConnect() {
  open_ = false;
  if (!save_log_) return;
  open_ = sink_.Create();
  WriteStamped("Connect:");
}

void SessionLog::LogConnectFailed(std::string_view text) {
  open_ = false;
  if (!save_log_) return;
  open_ = sink_.Create();
  WriteStamped("Failed:");
  WriteLogLine(text);
  if (open_) sink_.Close();
  open_ = false;
}

void SessionLog::LogSend(std::span<const std::uint8_t> bytes,
                         std::span<const std::uint8_t> secret) {
  WriteStamped("Send:");
  if (open_ && save_log_) {
    sink_.Write(LogDataLine(bytes, include_secrets_ ? std::span<const std::uint8_t>() : secret));
  }
}

void SessionLog::LogReceive(std::span<const std::uint8_t> bytes) {
  WriteStamped("Recv:");
  if (open_ && save_log_) sink_.Write(LogDataLine(bytes));
}

void SessionLog::LogClose() {
  WriteStamped("Close:");
  if (open_) sink_.Close();
  open_ = false;
}

void SessionLog::WriteLogLine(std::string_view text) {
  if (!save_log_ || !open_) return;
  sink_.Write(text);
  if (text.empty() || text.back() != '\n') sink_.Write("\r\n");
}

void SessionLog::WriteStamped(std::string_view label) {
  if (!save_log_ || !open_) return;
  WriteLogLine(std::string(label) + LogTimeStamp(clock_.Now()));
}

}  // namespace veltrix
