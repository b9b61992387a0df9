#include "tn5250/telnet_options.h"

#include <array>
#include <initializer_list>
#include <span>
#include <string_view>

#include "tn5250/code_tables.h"
#include "tn5250/telnet_codes.h"
#include "tn5250/telnet_receiver.h"

namespace veltrix {

namespace {

constexpr int kLocalNameWidth = 10;

// BINARY and END-OF-RECORD: always accepted. BINARY ignores WONT/DONT.
void NegotiateBinary(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  if (command == kWill || command == kDo) t.Accept(command, option);
}

void NegotiateEndOfRecord(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  t.Accept(command, option);
}

void NegotiateEcho(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  if (command == kWill) {
    t.set_echo(true);
    t.SendAnswer(kDo, option);
  } else if (command == kWont) {
    if (t.echo()) {
      t.set_echo(false);
      t.SendAnswer(kDont, option);
    }
  } else {
    t.SendAnswer(kWont, option);
  }
}

void NegotiateSuppressGoAhead(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  switch (command) {
    case kWill:
      t.set_suppress_go_ahead(true);
      t.set_echo(true);
      t.SendAnswer(kDo, option);
      t.SendAnswer(kWill, option);
      t.SendAnswer(kDo, kOptEcho);
      break;
    case kWont:
      if (t.suppress_go_ahead()) {
        t.set_suppress_go_ahead(false);
        t.set_echo(false);
        t.SendAnswer(kDont, option);
        t.SendAnswer(kWont, option);
      }
      break;
    case kDo:
      if (!t.suppress_go_ahead()) t.SendAnswer(kDo, option);
      break;
    case kDont:
      if (t.suppress_go_ahead()) t.SendAnswer(kDont, option);
      break;
    default:
      break;
  }
}

// TERMINAL-TYPE, NEW-ENVIRON and NAWS: DO is accepted, WILL refused, WONT/DONT ignored.
void NegotiateClientOption(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  if (command == kDo) t.Accept(command, option);
  if (command == kWill) t.Refuse(command, option);
}

void NegotiateNaws(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  NegotiateClientOption(t, command, option);
  if (command != kDo) return;
  // The presentation space is always 80 x 24 here.
  const std::uint8_t size[] = {kIac, kSb, kOptNaws, 0, 80, 0, 24, kIac, kSe};
  t.Send(size);
}

void NegotiateOther(TelnetReceiver& t, std::uint8_t command, std::uint8_t option) {
  t.Refuse(command, option);
}

// An answer under construction; answers are short and built without the heap.
class Answer {
 public:
  Answer(std::initializer_list<std::uint8_t> start) {
    for (std::uint8_t b : start) push_back(b);
  }
  void push_back(std::uint8_t b) {
    if (size_ < bytes_.size()) bytes_[size_++] = b;
  }
  operator std::span<const std::uint8_t>() const { return {bytes_.data(), size_}; }

 private:
  std::array<std::uint8_t, 128> bytes_{};
  std::size_t size_ = 0;
};

void Append(Answer& out, std::string_view text) {
  for (char c : text) out.push_back(static_cast<std::uint8_t>(c));
}

void SubnegotiateTerminalType(TelnetReceiver& t) {
  const auto sub = t.Subnegotiation();
  if (sub.size() < 2 || sub[1] != kSubSend) return;
  Answer out = {kIac, kSb, kOptTerminalType, kSubIs};
  Append(out, IsDoubleByteLanguage(t.config().emulation_type) ? "IBM-5555-B01" : "IBM-3179-2");
  out.push_back(kIac);
  out.push_back(kSe);
  t.Send(out);
}

void AppendUserVar(Answer& out, std::string_view name, std::string_view value) {
  out.push_back(kEnvUserVar);
  Append(out, name);
  out.push_back(kEnvValue);
  Append(out, value);
}

struct LanguageVariables {
  int emulation_type;
  std::array<std::string_view, 6> pairs;  // name, value, ...
};

constexpr std::array<LanguageVariables, 4> kLanguageVariables = {{
    {kEmulationTraditionalChinese, {"CODEPAGE", "937", "CHARSET", "1175", "", ""}},
    {kEmulationSimplifiedChinese, {"CODEPAGE", "935", "CHARSET", "1174", "", ""}},
    {kEmulationKorean, {"CODEPAGE", "933", "CHARSET", "1173", "", ""}},
    {kEmulationJapanese, {"KBDTYPE", "JKB", "CODEPAGE", "930", "CHARSET", "1172"}},
}};

void SubnegotiateNewEnviron(TelnetReceiver& t) {
  const auto sub = t.Subnegotiation();
  if (sub.size() < 2 || sub[1] != kSubSend) return;
  Answer out = {kIac, kSb, kOptNewEnviron, kSubIs};
  // The password seed goes out without a value: no seed and no encrypted password.
  out.push_back(kEnvUserVar);
  Append(out, "IBMRSEED");
  out.push_back(0);
  std::string_view name = t.config().local_name;
  name = name.substr(0, std::min<std::size_t>(name.find('\0'), kLocalNameWidth));
  AppendUserVar(out, "DEVNAME", name);
  for (const LanguageVariables& lv : kLanguageVariables) {
    if (lv.emulation_type != t.config().emulation_type) continue;
    for (std::size_t i = 0; i + 1 < lv.pairs.size() && !lv.pairs[i].empty(); i += 2) {
      AppendUserVar(out, lv.pairs[i], lv.pairs[i + 1]);
    }
  }
  out.push_back(kIac);
  out.push_back(kSe);
  t.Send(out);
}

// In the terminal's order; the last entry serves every option not listed.
constexpr std::array<TelnetOption, 8> kOptionTable = {{
    {kOptBinary, NegotiateBinary, nullptr},
    {kOptEcho, NegotiateEcho, nullptr},
    {kOptEndOfRecord, NegotiateEndOfRecord, nullptr},
    {kOptSuppressGoAhead, NegotiateSuppressGoAhead, nullptr},
    {kOptTerminalType, NegotiateClientOption, SubnegotiateTerminalType},
    {kOptNewEnviron, NegotiateClientOption, SubnegotiateNewEnviron},
    {kOptNaws, NegotiateNaws, nullptr},
    {256, NegotiateOther, nullptr},
}};

}  // namespace

const TelnetOption& FindTelnetOption(std::uint8_t code) {
  for (const TelnetOption& entry : kOptionTable) {
    if (entry.code == code || entry.code == 256) return entry;
  }
  return kOptionTable.back();
}

}  // namespace veltrix
