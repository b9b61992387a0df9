// The download exchange over a fake terminal and a fake clock: every reply path, message and
// time-out of both exchanges, run in milliseconds.
#include "download/download_engine.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "download/cradle_ir_setup.h"
#include "download/srecord_framer.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

using Kind = DownloadEvent::Kind;

std::vector<std::uint8_t> Bytes(std::string_view text) { return {text.begin(), text.end()}; }

// A terminal that answers each reply collection from a script: a reply text (its carriage
// return is added), "-" for silence, or what `otherwise` says once the script has run out.
struct Terminal {
  std::deque<std::string> script;
  std::function<std::string(const std::vector<std::uint8_t>& sent)> otherwise = [](const auto&) {
    return std::string("-");
  };
  bool connects = true;            // RF: the terminal connects when the PC listens
  std::deque<bool> retry_answers;  // how the retry questions are answered (then No)
  int close_after_sends = -1;      // RF: the terminal closes once this many bytes strings came
  int stop_after_sends = -1;       // the user stops the download once this many were sent
};

struct Outcome {
  std::vector<std::vector<std::uint8_t>> sent;
  std::vector<std::int64_t> sent_at;
  std::vector<std::string> messages;  // "caption: text", retry questions as "? caption: text"
  std::vector<int> progress;
  std::string status;  // the last status line
  std::int64_t ended_at = 0;
  bool succeeded = false;
  int listens = 0;
  int closes = 0;
};

Outcome Drive(DownloadEngine& engine, Terminal terminal) {
  Outcome o;
  std::int64_t now = 0;
  std::deque<DownloadEvent> queue;
  auto take = [&](DownloadEvents events) {
    for (auto& e : events) queue.push_back(std::move(e));
  };
  std::vector<std::uint8_t> last_sent;
  take(engine.Start(now));
  for (int guard = 0; guard < 100000; ++guard) {
    while (!queue.empty()) {
      DownloadEvent e = std::move(queue.front());
      queue.pop_front();
      switch (e.kind) {
        case Kind::kSend:
          o.sent.push_back(e.bytes);
          o.sent_at.push_back(now);
          last_sent = e.bytes;
          if (static_cast<int>(o.sent.size()) == terminal.close_after_sends) {
            take(engine.LinkClosed(now));
          }
          if (static_cast<int>(o.sent.size()) == terminal.stop_after_sends) take(engine.Stop(now));
          break;
        case Kind::kListen:
          ++o.listens;
          if (terminal.connects) take(engine.TerminalConnected(now));
          break;
        case Kind::kCloseLink:
          ++o.closes;
          break;
        case Kind::kProgress:
          o.progress.push_back(e.value);
          break;
        case Kind::kStatus:
          o.status = e.text;
          break;
        case Kind::kMessage:
          o.messages.push_back(e.caption + ": " + e.text);
          break;
        case Kind::kAskRetry: {
          o.messages.push_back("? " + e.caption + ": " + e.text);
          const bool yes = !terminal.retry_answers.empty() && terminal.retry_answers.front();
          if (!terminal.retry_answers.empty()) terminal.retry_answers.pop_front();
          take(engine.AnswerRetry(yes, now));
          break;
        }
        case Kind::kFinished:
          o.succeeded = e.value == 1;
          o.ended_at = now;
          break;
        default:
          break;
      }
    }
    if (engine.finished()) break;
    // Each reply collection gets one answer from the script, 1 ms into it.
    if (engine.collecting()) {
      std::string reply;
      if (!terminal.script.empty()) {
        reply = terminal.script.front();
        terminal.script.pop_front();
      } else {
        reply = terminal.otherwise(last_sent);
      }
      if (reply != "-") {
        now += 1;
        take(engine.Received(Bytes(reply + "\r"), now));
        continue;
      }
    }
    if (!engine.deadline()) break;
    now = *engine.deadline();
    take(engine.Tick(now));
  }
  return o;
}

std::string Text(const std::vector<std::uint8_t>& bytes) { return {bytes.begin(), bytes.end()}; }

auto AlwaysAck = [](const auto&) { return std::string("ACK"); };
auto AlwaysFa = [](const auto&) { return std::string("FA"); };

SettingsRecord NumberedRecord() {
  SettingsRecord record;
  for (std::size_t i = 0; i < record.size(); ++i) record[i] = static_cast<std::uint8_t>(i * 7);
  return record;
}

TEST(SettingsDownload, SendsTheRecordIn598NumberedBlocksAfterTheHandshakeAndAPause) {
  const SettingsRecord record = NumberedRecord();
  DownloadEngine engine(DownloadVia::kRs232, record);
  Outcome o = Drive(engine, {.otherwise = AlwaysAck});
  ASSERT_TRUE(o.succeeded);
  ASSERT_EQ(o.sent.size(), 1u + 598u);
  EXPECT_EQ(Text(o.sent[0]), "TALMOR\r");
  EXPECT_EQ(o.sent_at[1] - o.sent_at[0], 1 + kTransferPauseMs);  // the reply, then 2 s
  for (std::size_t k = 0; k < 598; ++k) ASSERT_EQ(o.sent[k + 1].size(), 103u);
  EXPECT_EQ(o.sent[1 + 256][102], 0);  // block numbers wrap
  const auto& last = o.sent[598];
  EXPECT_EQ(last[102], 85);
  EXPECT_TRUE(std::equal(last.begin(), last.begin() + 84, record.end() - 84));
  EXPECT_TRUE(std::all_of(last.begin() + 84, last.begin() + 100, [](auto b) { return b == 0; }));
  EXPECT_EQ(o.progress.back(), 598);
  EXPECT_EQ(o.messages, std::vector<std::string>{"Download: Downloaded completely!"});
}

TEST(SettingsDownload, BlockSumIsItsHighAndLowByte) {
  std::vector<std::uint8_t> image(kSettingsImageBytes, 0xFF);
  const auto block = SettingsBlock(image, 3);
  EXPECT_EQ(block[100], 0x63);
  EXPECT_EQ(block[101], 0x9C);
  EXPECT_EQ(block[102], 3);
}

TEST(SettingsDownload, SilentTerminalFailsTheHandshakeAfterThreeTriesWithoutAMessage) {
  DownloadEngine engine(DownloadVia::kRs232, NumberedRecord());
  Outcome o = Drive(engine, {});
  EXPECT_EQ(o.sent.size(), 3u);
  EXPECT_EQ(o.ended_at, 3 * (kReplyDeadlineMs + 1));
  EXPECT_EQ(o.messages,
            std::vector<std::string>{"? Download: Failed to download, would you like to retry?"});
  EXPECT_FALSE(o.succeeded);
}

TEST(SettingsDownload, UnacknowledgedBlockFailsAfterSixSendsAndARetryStartsOver) {
  DownloadEngine engine(DownloadVia::kRs232, NumberedRecord());
  int naks = 0;
  Outcome o = Drive(engine, {.otherwise =
                                 [&](const auto& sent) {
                                   // Block 2 is never acknowledged the first time round.
                                   if (sent.size() == 103 && sent[102] == 2 && naks < 6) {
                                     ++naks;
                                     return std::string("NAK");
                                   }
                                   return std::string("ACK");
                                 },
                             .retry_answers = {true}});
  // Handshake, blocks 0 and 1, six sends of block 2, then the retry: handshake, 598 blocks.
  ASSERT_GE(o.sent.size(), 9u);
  for (int i = 3; i < 9; ++i) EXPECT_EQ(o.sent[i][102], 2);
  EXPECT_EQ(Text(o.sent[9]), "TALMOR\r");
  EXPECT_EQ(o.messages[0], "Error: Error on downloading!");
  EXPECT_EQ(o.messages[1], "? Download: Failed to download, would you like to retry?");
  EXPECT_TRUE(o.succeeded);
}

TEST(SettingsDownload, OverRfAClosedTerminalGetsOneLastResend) {
  DownloadEngine engine(DownloadVia::kRf, NumberedRecord());
  Outcome o = Drive(engine, {.script = {"ACK", "NAK"}, .close_after_sends = 2});
  // The handshake, block 0, its one last resend.
  EXPECT_EQ(o.sent.size(), 3u);
  EXPECT_EQ(o.messages.front(), "Error: Error on downloading!");
  EXPECT_EQ(o.messages.back(), "? Error: Failed to download, would you like to retry?");
  EXPECT_EQ(o.closes, 1);
}

TEST(RfDownload, NoTerminalWithinTenSecondsAsksAgainAndListensAnew) {
  DownloadEngine engine(DownloadVia::kRf, NumberedRecord());
  Outcome o = Drive(engine, {.connects = false, .retry_answers = {true}});
  EXPECT_EQ(o.listens, 2);
  EXPECT_EQ(o.closes, 2);
  EXPECT_EQ(o.ended_at, 2 * kListenWaitMs);
  EXPECT_TRUE(o.sent.empty());
}

TEST(RfDownload, ListenerErrorEndsTheCommandWithItsMessage) {
  DownloadEngine engine(DownloadVia::kRf, NumberedRecord());
  engine.Start(0);
  DownloadEvents events = engine.ListenFailed(ListenError::kBind, 5);
  ASSERT_EQ(events.size(), 3u);
  EXPECT_EQ(events[0].text, "Error in Binding on socket !!");
  EXPECT_EQ(events[0].caption, "Error");
  EXPECT_EQ(events[1].kind, Kind::kCloseLink);
  EXPECT_EQ(events[2].kind, Kind::kFinished);
}

// ---- Reply collection ---------------------------------------------------------------------------

TEST(ReplyCollection, SerialStopsAtTenBytesAndStreamTakesAWholeReceive) {
  DownloadEngine serial(DownloadVia::kRs232, NumberedRecord());
  serial.Start(0);
  serial.Received(Bytes("ABCDEFGHIJKL"), 3);
  EXPECT_EQ(serial.last_reply(), "ABCDEFGHIJ");

  DownloadEngine stream(DownloadVia::kRf, NumberedRecord());
  stream.Start(0);
  stream.TerminalConnected(1);
  stream.Received(Bytes("ACK1\r"), 2);
  EXPECT_EQ(stream.last_reply(), "ACK1");
  // Bytes that come apart still make one reply; nothing at all is an empty one after 2.5 s.
  stream.Received(Bytes("AC"), 3);
  stream.Received(Bytes("K\r"), 4);
  EXPECT_EQ(stream.last_reply(), "ACK");
}

// ---- Program download ---------------------------------------------------------------------------

std::string Record(std::string_view type, std::uint32_t address, int address_bytes, int data,
                   std::uint8_t first = 0) {
  static const char* hex = "0123456789ABCDEF";
  std::string s = "S";
  s += type;
  auto pair = [&](unsigned v) {
    s += hex[(v >> 4) & 15];
    s += hex[v & 15];
  };
  pair(static_cast<unsigned>(data + address_bytes + 1));
  for (int i = address_bytes - 1; i >= 0; --i) pair(address >> (8 * i));
  for (int i = 0; i < data; ++i) pair(static_cast<unsigned>(first + i));
  pair(0);  // checksums are not read
  return s + "\r\n";
}

std::vector<std::uint8_t> Program(std::initializer_list<std::string> records) {
  std::string s;
  for (const auto& r : records) s += r;
  return Bytes(s);
}

TEST(ProgramDownload, HandshakeErasePauseFramesEndFrame) {
  MemoryProgramSource program(
      Program({Record("3", 0x10F0, 4, 32), Record("3", 0x1110, 4, 32), Record("3", 0x1130, 4, 32),
               Record("3", 0x1150, 4, 32), Record("7", 0, 4, 0)}));
  DownloadEngine engine(DownloadVia::kRs232, program);
  Outcome o = Drive(engine, {.script = {"-", "ACK1", "ACK2", "FA"}, .otherwise = AlwaysFa});
  ASSERT_TRUE(o.succeeded);
  std::vector<std::string> tokens;
  for (std::size_t i = 0; i < 4; ++i) tokens.push_back(Text(o.sent[i]));
  EXPECT_EQ(tokens, (std::vector<std::string>{"\r", "PALDREX\r", "DOWNLOAD\r", ":ERASE\r"}));
  // Three records of 32 follow on: 96 data bytes in the first frame, the fourth in the next.
  ASSERT_EQ(o.sent.size(), 4u + 2u + 1u);
  EXPECT_EQ(o.sent[4].size(), 105u);
  EXPECT_EQ(o.sent[4][2], 101);
  EXPECT_EQ(o.sent_at[4] - o.sent_at[3], 1 + kTransferPauseMs);
  EXPECT_EQ(std::vector<std::uint8_t>(o.sent[4].begin() + 3, o.sent[4].begin() + 7),
            (std::vector<std::uint8_t>{0, 0, 0x10, 0xF0}));
  EXPECT_EQ(o.sent[5].size(), 32u + 9u);
  EXPECT_EQ(o.sent.back(), std::vector<std::uint8_t>(std::begin(kEndFrame), std::end(kEndFrame)));
  EXPECT_EQ(o.messages, std::vector<std::string>{"Download: Downloaded completely!"});
}

// The cases of tests/core/data/program_download.txt.
TEST(ProgramDownload, HandshakeEraseAndFrameReplies) {
  const auto cases = testing::ReadDataCases("program_download.txt");
  ASSERT_FALSE(cases.empty());
  for (const testing::DataCase& c : cases) {
    SCOPED_TRACE("line " + std::to_string(c.number) + ": " + c.name);
    Terminal terminal;
    std::vector<std::string> tokens, messages;
    std::int64_t ended = -1;
    for (const testing::CaseLine& line : c.lines) {
      std::vector<std::string> words = testing::Words(line.text);
      const std::string verb = words.front();
      words.erase(words.begin());
      if (verb == "replies") terminal.script.assign(words.begin(), words.end());
      if (verb == "otherwise") terminal.otherwise = [r = words[0]](const auto&) { return r; };
      if (verb == "sends") {
        for (const std::string& w : words) tokens.push_back(w == "CR" ? "\r" : w + "\r");
      }
      if (verb == "message") messages.push_back(line.text.substr(8));
      if (verb == "ended") ended = std::stoll(words[0]);
    }
    MemoryProgramSource program(Program({Record("3", 0, 4, 4), Record("9", 0, 2, 0)}));
    DownloadEngine engine(DownloadVia::kRs232, program);
    Outcome o = Drive(engine, terminal);
    std::vector<std::string> sent_tokens;
    for (const auto& s : o.sent) {
      if (s.size() > 0 && s[0] != 'S') sent_tokens.push_back(Text(s));
    }
    if (!tokens.empty()) {
      EXPECT_EQ(sent_tokens, tokens);
    }
    EXPECT_EQ(o.messages, messages);
    if (ended >= 0) {
      EXPECT_EQ(o.ended_at, ended);
    }
  }
}

TEST(ProgramDownload, FileFaultsAndTheRetryReadsItFromTheStart) {
  struct FileCase {
    const char* name;
    std::string file;
    bool succeeded;
  };
  const FileCase cases[] = {
      {"empty file", "", false},
      {"no end record", Record("3", 0, 4, 8), false},
      {"only an end record", Record("7", 0, 4, 0), true},
  };
  for (const FileCase& c : cases) {
    SCOPED_TRACE(c.name);
    MemoryProgramSource program(Bytes(c.file));
    DownloadEngine engine(DownloadVia::kRs232, program);
    Outcome o = Drive(engine, {.script = {"FN", "FA"}, .otherwise = AlwaysFa});
    EXPECT_EQ(o.succeeded, c.succeeded);
    EXPECT_EQ(o.messages.front(),
              c.succeeded ? "Download: Downloaded completely!" : "Download: Error on downloading!");
  }
  // A frame refused the first time: the retry sends the same frames from the file's start.
  MemoryProgramSource program(Program({Record("3", 0x100, 4, 16), Record("7", 0, 4, 0)}));
  DownloadEngine engine(DownloadVia::kRs232, program);
  Outcome o = Drive(
      engine,
      {.script = {"FN", "FA", "FF", "FN", "FA"}, .otherwise = AlwaysFa, .retry_answers = {true}});
  ASSERT_TRUE(o.succeeded);
  EXPECT_EQ(o.sent[2], o.sent[5]);
}

TEST(ProgramDownload, AStopOrAClosedConnectionSaysHowFarTheTransferGot) {
  std::vector<std::string> records;
  for (int i = 0; i < 8; ++i) records.push_back(Record("3", 0x1000 + 0x100 * i, 4, 32));
  std::string file;
  for (const auto& r : records) file += r;
  file += Record("7", 0, 4, 0);
  // Handshake "\r", ":ERASE", then frames: the terminal closes after the third frame was sent.
  MemoryProgramSource closing(Bytes(file));
  DownloadEngine closed(DownloadVia::kRf, closing);
  Outcome o =
      Drive(closed, {.script = {"FN", "FA"}, .otherwise = AlwaysFa, .close_after_sends = 5});
  EXPECT_EQ(o.messages.front(), "Download: The terminal closed the connection after frame 2");
  EXPECT_LT(o.ended_at, kTransferPauseMs + 100);  // at once, not after the frame time-outs

  MemoryProgramSource stopping(Bytes(file));
  DownloadEngine stopped(DownloadVia::kRs232, stopping);
  EXPECT_FALSE(stopped.reached_terminal());
  o = Drive(stopped, {.script = {"FN", "FA"}, .otherwise = AlwaysFa, .stop_after_sends = 6});
  EXPECT_TRUE(stopped.reached_terminal());
  EXPECT_FALSE(o.succeeded);
  EXPECT_EQ(o.status, "Download stopped after frame 3 of 8");

  DownloadEngine settings(DownloadVia::kRf, NumberedRecord());
  o = Drive(settings, {.otherwise = AlwaysAck, .stop_after_sends = 11});
  EXPECT_EQ(o.status, "Download stopped after block 9 of 598");
  EXPECT_EQ(o.closes, 1);
}

// ---- Framing ------------------------------------------------------------------------------------

std::vector<std::vector<std::uint8_t>> Frames(const std::vector<std::uint8_t>& file,
                                              bool* ended = nullptr) {
  SRecordFramer framer;
  // Fed in uneven chunks, as the file reads may split a pair.
  for (std::size_t i = 0; i < file.size(); i += 7) {
    framer.Feed(std::span(file).subspan(i, std::min<std::size_t>(7, file.size() - i)));
  }
  if (ended) *ended = framer.ended();
  return {framer.frames().begin(), framer.frames().end()};
}

std::uint32_t AddressOf(const std::vector<std::uint8_t>& frame) {
  return static_cast<std::uint32_t>(frame[3] << 24 | frame[4] << 16 | frame[5] << 8 | frame[6]);
}

TEST(SRecordFramer, RecordsThatFollowOnShareAFrameOthersStartOne) {
  bool ended = false;
  auto frames = Frames(
      Program({Record("3", 0x10F0, 4, 32), Record("3", 0x1110, 4, 32), Record("3", 0x0100, 4, 32),
               Record("3", 0x0030, 4, 32), Record("9", 0, 2, 0)}),
      &ended);
  EXPECT_TRUE(ended);
  ASSERT_EQ(frames.size(), 3u);
  EXPECT_EQ(AddressOf(frames[0]), 0x10F0u);
  EXPECT_EQ(frames[0].size(), 64u + 9u);
  EXPECT_EQ(AddressOf(frames[1]), 0x0100u);
  EXPECT_EQ(AddressOf(frames[2]), 0x0030u);
  // The checksum makes the sum of count, address and data 0xFF.
  unsigned sum = 0;
  for (std::size_t i = 2; i + 1 < frames[0].size(); ++i) sum += frames[0][i];
  EXPECT_EQ(sum & 0xFF, 0xFFu);
  EXPECT_EQ(frames[0].back(), 0x0D);
}

TEST(SRecordFramer, AddressWidthsAndTypes) {
  // S2: a leading zero byte; type 8 reads as a 4-byte-address data record.
  auto frames = Frames(Program({Record("2", 0x123456, 3, 2, 0xAA), Record("7", 0, 4, 0)}));
  ASSERT_EQ(frames.size(), 1u);
  EXPECT_EQ(AddressOf(frames[0]), 0x00123456u);
  EXPECT_EQ(frames[0][7], 0xAA);
  frames = Frames(Program({Record("8", 0x01020304, 4, 1), Record("7", 0, 4, 0)}));
  ASSERT_EQ(frames.size(), 1u);
  EXPECT_EQ(AddressOf(frames[0]), 0x01020304u);
  EXPECT_EQ(frames[0].size(), 7u + 1u + 2u);
  // Lower-case hex reads by the terminal's rule: 'a' is 97 - 55 = 42.
  EXPECT_EQ(HexDigitValue('a'), 42);
  EXPECT_EQ(HexDigitValue('F'), 15);
}

TEST(SRecordFramer, LongRecordsSplitBeforeTheBufferIsFull) {
  // Two records of 200 data bytes follow on: no frame may exceed the terminal's 260 bytes.
  auto frames = Frames(Program(
      {Record("3", 0x1000, 4, 200), Record("3", 0x1000 + 200, 4, 200), Record("7", 0, 4, 0)}));
  std::uint32_t next = 0x1000;
  std::size_t data = 0;
  for (const auto& f : frames) {
    EXPECT_LE(f.size(), kFrameBufferBytes);
    EXPECT_EQ(f[2], f.size() - 4);  // the count byte still holds the frame's count
    EXPECT_EQ(AddressOf(f), next);
    next += static_cast<std::uint32_t>(f.size() - 9);
    data += f.size() - 9;
  }
  EXPECT_EQ(data, 400u);
}

// ---- Infrared cradle ----------------------------------------------------------------------------

std::string Describe(const std::vector<IrAction>& actions) {
  std::string s;
  for (const IrAction& a : actions) {
    if (a.kind == IrAction::Kind::kApply) {
      s += "apply " + std::to_string(a.line.rate) + (a.line.dtr ? " DTR" : "") +
           (a.line.rts ? " RTS" : "") + "; ";
    } else if (a.kind == IrAction::Kind::kWrite) {
      s += "write " + std::to_string(a.bytes[0]) + "; ";
    } else {
      s += a.ok ? "ready" : "failed";
    }
  }
  return s;
}

// Runs the set-up against a device that answers the probe with `answer` at `rate` only.
std::string RunIr(int rate, std::uint8_t answer, std::int64_t* ended = nullptr) {
  CradleIrSetup setup(57600, {});
  std::int64_t now = 0;
  std::string log = Describe(setup.Start(now));
  int line_rate = 0;
  for (int guard = 0; guard < 1000 && !setup.finished(); ++guard) {
    now = *setup.deadline();
    const auto actions = setup.Tick(now);
    log += Describe(actions);
    for (const IrAction& a : actions) {
      if (a.kind == IrAction::Kind::kApply) line_rate = a.line.rate;
      if (a.kind == IrAction::Kind::kWrite && a.bytes[0] == kIrProbeByte && line_rate == rate) {
        log += Describe(setup.Received(std::vector<std::uint8_t>{answer}, now + 1));
      }
    }
  }
  if (ended) *ended = now;
  return log;
}

TEST(CradleIr, FindsTheDeviceOnTheThirdProbeAndSwitchesItToTheDownloadRate) {
  EXPECT_EQ(RunIr(57600, 0x0F),
            "apply 38400 DTR RTS; "
            "apply 115200 DTR; write 15; apply 115200 DTR RTS; "
            "apply 38400 DTR; write 15; apply 38400 DTR RTS; "
            "apply 57600 DTR; write 15; apply 57600 DTR RTS; "
            "apply 57600 DTR; write 7; write 53; write 81; apply 57600 DTR RTS; ready");
}

TEST(CradleIr, AWrongAnswerFailsAtOnceAndNoAnswerFailsTheSetUp) {
  std::int64_t ended = 0;
  const std::string log = RunIr(115200, 0x55, &ended);
  EXPECT_TRUE(log.ends_with("failed"));
  // Each probe: 100 ms after the rate, 100 after the write, the window, 100 after RTS; the
  // first probe's wrong answer ends its window at once.
  EXPECT_EQ(ended, 100 + 300 + 4 * 400);
}

}  // namespace
}  // namespace veltrix
