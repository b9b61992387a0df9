#include "tn5250/host_ip.h"

#include <cstddef>

namespace veltrix {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

void SplitHostAddress(std::string_view entry, HostOctets& octets) {
  std::size_t index = 0;
  std::size_t start = 0;
  while (index < octets.size()) {
    std::size_t dot = entry.find('.', start);
    std::string_view piece =
        entry.substr(start, dot == std::string_view::npos ? std::string_view::npos : dot - start);
    std::uint32_t value = 0;
    for (char c : piece) {
      if (c < '0' || c > '9') break;
      value = value * 10 + static_cast<std::uint32_t>(c - '0');
      if (value > 0xFFFFFFFu) break;  // a long digit run must not wrap around
    }
    octets[index++] = value;
    if (dot == std::string_view::npos) break;
    start = dot + 1;
  }
}

std::optional<std::uint32_t> ParseOctet(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  if (text.empty()) return std::nullopt;
  std::uint32_t value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + static_cast<std::uint32_t>(c - '0');
    if (value > 255) return std::nullopt;
  }
  return value;
}

std::string FormatHostAddress(const HostOctets& octets) {
  std::string text;
  for (std::size_t i = 0; i < octets.size(); ++i) {
    if (i > 0) text += '.';
    text += std::to_string(static_cast<std::int32_t>(octets[i]));
  }
  return text;
}

std::optional<std::uint32_t> HostAddressValue(const HostOctets& octets) {
  std::uint32_t value = 0;
  for (std::uint32_t octet : octets) {
    if (octet > 255) return std::nullopt;
    value = (value << 8) | octet;
  }
  if (value == 0xFFFFFFFFu) return std::nullopt;
  return value;
}

void HostIpForm::Open(std::string_view active_entry) {
  save_log_ = false;
  log_secrets_ = false;
  SplitHostAddress(active_entry, octets_);
}

void HostIpForm::EditChanged(int index, std::string_view text) {
  if (index < 0 || index >= static_cast<int>(octets_.size())) return;
  if (std::optional<std::uint32_t> value = ParseOctet(text)) octets_[index] = *value;
}

bool HostIpForm::Confirm(const std::array<std::string, 4>& texts, bool save_log_checked,
                         bool log_secrets_checked) {
  HostOctets read{};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::optional<std::uint32_t> value = ParseOctet(texts[i]);
    if (!value) return false;
    read[i] = *value;
  }
  octets_ = read;
  save_log_ = save_log_checked;
  log_secrets_ = save_log_checked && log_secrets_checked;
  return true;
}

}  // namespace veltrix
