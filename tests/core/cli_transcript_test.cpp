// veltrix-cli run as a program from the transcripts in tests/core/data/cli_transcripts.txt.
// Each case runs in a fresh working folder; the file's header explains the notation.
#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "settings_test_files.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

using testing::ReadBytes;
using testing::ReadText;
using testing::TempFolder;
using testing::WriteBytes;

using Case = testing::DataCase;
using Line = testing::CaseLine;

// Words split on blanks; "double quotes" keep blanks inside a word.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false, any = false;
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if (c == ' ' && !quoted) {
      if (any) words.push_back(word);
      word.clear();
      any = false;
    } else {
      word += c;
      any = true;
    }
  }
  if (any) words.push_back(word);
  return words;
}

std::string Quote(const std::string& arg) {
  std::string quoted = "'";
  for (char c : arg) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// A line that starts a step of its own, not one of what a command prints.
bool IsDirective(const std::string& text) {
  for (const char* word :
       {"$ ", "file ", "size ", "host", "contains ", "lacks ", "terminal", "same "}) {
    if (text.rfind(word, 0) == 0) return true;
  }
  return false;
}

std::map<std::string, std::vector<std::uint8_t>> Snapshot(const std::filesystem::path& folder) {
  std::map<std::string, std::vector<std::uint8_t>> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;  // a FIFO is never read here
    files[entry.path().filename().string()] = ReadBytes(entry.path().string());
  }
  return files;
}

// Starts `args` with standard output to `out_fd` (or nowhere) and standard error nowhere.
pid_t Spawn(std::vector<std::string> args, int out_fd = -1) {
  std::vector<char*> argv;
  for (std::string& a : args) argv.push_back(a.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  if (out_fd >= 0) {
    posix_spawn_file_actions_adddup2(&actions, out_fd, STDOUT_FILENO);
  } else {
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  }
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t pid = -1;
  if (::posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) != 0) pid = -1;
  posix_spawn_file_actions_destroy(&actions);
  return pid;
}

// veltrix-demo-host on a port of its choosing, for as long as the case runs.
class DemoHost {
 public:
  ~DemoHost() {
    if (pid_ > 0) {
      ::kill(pid_, SIGTERM);
      ::waitpid(pid_, nullptr, 0);
    }
  }
  // Starts it (over TLS with `certificate` when given); the port it listens on, or "" on failure.
  std::string Start(const std::string& certificate) {
#ifdef VELTRIX_DEMO_HOST_PATH
    const std::string tls = std::string(VELTRIX_SOURCE_DIR) + "/tests/ui/data/tls/";
    std::vector<std::string> args = {VELTRIX_DEMO_HOST_PATH, "--port", "0"};
    if (!certificate.empty()) {
      args.insert(args.end(), {"--tls-cert", tls + certificate, "--tls-key", tls + "host.key"});
    }
    int out[2];
    if (::pipe(out) != 0) return "";
    pid_ = Spawn(args, out[1]);
    const bool spawned = pid_ > 0;
    ::close(out[1]);
    std::string line;  // "listening on 127.0.0.1:PORT"
    for (char c; spawned && ::read(out[0], &c, 1) == 1 && c != '\n';) line += c;
    ::close(out[0]);
    const std::size_t colon = line.rfind(':');
    return colon == std::string::npos ? ""
                                      : line.substr(colon + 1, line.find(' ', colon) - colon - 1);
#else
    static_cast<void>(certificate);
    return "";
#endif
  }

 private:
  pid_t pid_ = -1;
};

// A port nobody listens on: one the system gave out and took back.
std::string ClosedPort() {
  const int s = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ::bind(s, reinterpret_cast<sockaddr*>(&address), sizeof address);
  ::getsockname(s, reinterpret_cast<sockaddr*>(&address), &size);
  ::close(s);
  return std::to_string(ntohs(address.sin_port));
}

class CliTranscript : public ::testing::TestWithParam<Case> {
 protected:
  // Writes a file as a "file" line describes it: hex BYTES, fill N BYTE,
  // copy SOURCE [first N] [poke OFFSET BYTE], or fifo (a FIFO nobody writes to).
  void MakeFile(const std::vector<std::string>& w) {
    if (w[1] == "fifo") {
      ASSERT_EQ(0, ::mkfifo(work_.File(w[0]).c_str(), 0600));
      return;
    }
    std::vector<std::uint8_t> bytes;
    std::size_t i = 2;
    if (w[1] == "hex") {
      for (; i < w.size(); ++i) bytes.push_back(static_cast<std::uint8_t>(std::stoul(w[i], 0, 16)));
    } else if (w[1] == "fill") {
      bytes.assign(std::stoul(w[2]), static_cast<std::uint8_t>(std::stoul(w[3], 0, 16)));
      i = 4;
    } else if (w[1] == "copy") {
      bytes = ReadBytes(work_.File(w[2]));
      for (i = 3; i + 1 < w.size(); i += 2) {
        if (w[i] == "first") bytes.resize(std::stoul(w[i + 1]));
        if (w[i] == "poke") {
          bytes.at(std::stoul(w[i + 1])) = static_cast<std::uint8_t>(std::stoul(w[i + 2], 0, 16));
          ++i;
        }
      }
    }
    WriteBytes(work_.File(w[0]), bytes);
  }

  void Run(const std::string& args) {
    std::string command = "cd " + Quote(work_.path().string()) + " && " + Quote(VELTRIX_CLI_PATH);
    for (std::string arg : Words(args)) {
      for (const auto& [name, value] : variables_) {
        for (std::size_t at; (at = arg.find(name)) != std::string::npos;)
          arg.replace(at, name.size(), value);
      }
      command.append(" ").append(Quote(arg));
    }
    const std::string out = output_.File("out"), err = output_.File("err");
    const int raw = std::system((command + " >" + Quote(out) + " 2>" + Quote(err)).c_str());
    status_ = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    out_ = ReadText(out);
    err_ = ReadText(err);
  }

  // Simulated terminals started by "terminal": waited for after the next command.
  void StartTerminals(int count, const std::vector<std::string>& args) {
#ifdef VELTRIX_TERMINAL_SIM_PATH
    for (int i = 0; i < count; ++i) {
      std::vector<std::string> argv = {VELTRIX_TERMINAL_SIM_PATH, "--connect",
                                       "127.0.0.1:" + variables_["$FREE"], "--wait", "30"};
      for (std::string arg : args) {
        if (const std::size_t at = arg.find("%i"); at != std::string::npos) {
          arg.replace(at, 2, std::to_string(i));
        }
        const bool file = argv.back() == "--settings-out" || argv.back() == "--program-out";
        argv.push_back(file ? work_.File(arg) : arg);
      }
      terminals_.push_back(Spawn(argv));
    }
#else
    static_cast<void>(count);
    static_cast<void>(args);
#endif
  }
  void WaitForTerminals() {
    for (pid_t pid : terminals_) ::waitpid(pid, nullptr, 0);
    terminals_.clear();
  }

  TempFolder work_, output_;
  DemoHost host_;
  std::vector<pid_t> terminals_;
  std::map<std::string, std::string> variables_;
  int status_ = 0;
  std::string out_, err_;
};

TEST_P(CliTranscript, Runs) {
  const std::vector<Line>& lines = GetParam().lines;
  variables_["$FREE"] = ClosedPort();
  variables_["$DATA"] = std::string(VELTRIX_SOURCE_DIR) + "/tests/core/data";
  for (std::size_t i = 0; i < lines.size();) {
    const Line& command = lines[i++];
    const std::string& text = command.text;
    const std::string where = "line " + std::to_string(command.number) + ": " + text;
    if (text.rfind("file ", 0) == 0) {
      MakeFile(Words(text.substr(5)));
      continue;
    }
    if (text.rfind("size ", 0) == 0) {
      const auto w = Words(text.substr(5));
      EXPECT_EQ(std::stoul(w[1]), std::filesystem::file_size(work_.File(w[0]))) << where;
      continue;
    }
    if (text.rfind("host", 0) == 0) {
      const auto w = Words(text);
      variables_["$PORT"] = host_.Start(w.size() > 2 ? w[2] : "");
      if (variables_["$PORT"].empty()) GTEST_SKIP() << "no demo host in this build";
      variables_["$CLOSED"] = ClosedPort();
      variables_["$TLS"] = std::string(VELTRIX_SOURCE_DIR) + "/tests/ui/data/tls";
      continue;
    }
    if (text.rfind("terminal", 0) == 0) {  // "terminal ARGS" or "terminals N ARGS"
      auto w = Words(text);
      const int count = w[0] == "terminals" ? std::stoi(w[1]) : 1;
      w.erase(w.begin(), w.begin() + (w[0] == "terminals" ? 2 : 1));
      StartTerminals(count, w);
#ifndef VELTRIX_TERMINAL_SIM_PATH
      GTEST_SKIP() << "no terminal simulator in this build";
#endif
      continue;
    }
    if (text.rfind("same ", 0) == 0) {  // same A B [first N]
      const auto w = Words(text);
      std::vector<std::uint8_t> b = ReadBytes(
          w[2].rfind("$DATA", 0) == 0 ? variables_["$DATA"] + w[2].substr(5) : work_.File(w[2]));
      if (w.size() > 4) b.resize(std::stoul(w[4]));
      EXPECT_TRUE(ReadBytes(work_.File(w[1])) == b) << where;
      continue;
    }
    if (text.rfind("contains ", 0) == 0 || text.rfind("lacks ", 0) == 0) {
      const std::size_t name = text.find(' ') + 1;
      const std::size_t wanted = text.find(' ', name) + 1;
      const std::string file = ReadText(work_.File(text.substr(name, wanted - name - 1)));
      EXPECT_EQ(text[0] == 'c', file.find(text.substr(wanted)) != std::string::npos) << where;
      continue;
    }
    ASSERT_EQ(0u, text.rfind("$ ", 0)) << where;
    const auto before = Snapshot(work_.path());
    Run(text.substr(2));
    WaitForTerminals();
    // What follows the command: its output lines, then checks.
    std::string expected;
    bool whole = true, prefix = false;
    int status = 0;
    for (; i < lines.size() && !IsDirective(lines[i].text); ++i) {
      const std::string& l = lines[i].text;
      if (l.rfind("? ", 0) == 0) {
        status = std::stoi(l.substr(2));
      } else if (l.rfind("! ", 0) == 0) {
        EXPECT_NE(std::string::npos, err_.find(l.substr(2))) << where << "\nstderr: " << err_;
      } else if (l.rfind("* ", 0) == 0) {  // "* N TEXT": TEXT stands N times in the output
        whole = false;
        const std::size_t blank = l.find(' ', 2);
        const std::string wanted = l.substr(blank + 1);
        std::size_t n = 0;
        for (std::size_t at = out_.find(wanted); at != std::string::npos;
             at = out_.find(wanted, at + 1)) {
          ++n;
        }
        EXPECT_EQ(std::stoul(l.substr(2, blank - 2)), n) << where << ": " << wanted;
      } else if (l.rfind("!~ ", 0) == 0) {
        whole = false;
        EXPECT_EQ(std::string::npos, out_.find(l.substr(3))) << where << "\nstdout: " << out_;
      } else if (l.rfind("~ ", 0) == 0) {
        whole = false;
        EXPECT_NE(std::string::npos, out_.find(l.substr(2))) << where << "\nstdout: " << out_;
      } else if (l.size() >= 3 && l.compare(l.size() - 3, 3, "...") == 0) {
        expected += l.substr(0, l.size() - 3);
        prefix = true;
      } else {
        expected += l + "\n";
      }
    }
    EXPECT_EQ(status, status_) << where << "\nstderr: " << err_;
    if (prefix) {
      EXPECT_EQ(0u, out_.rfind(expected, 0)) << where << "\nstdout: " << out_;
    } else if (whole) {
      EXPECT_EQ(expected, out_) << where;
    }
    if (status_ == 2) {
      // Refused: one line saying why (after any warnings, or the usage), and every file of the
      // folder as it was.
      std::istringstream err(err_);
      std::vector<std::string> err_lines;
      for (std::string l; std::getline(err, l);) err_lines.push_back(l);
      const bool one_reason =
          !err_lines.empty() && err_.back() == '\n' &&
          std::all_of(err_lines.begin(), err_lines.end() - 1, [](const std::string& l) {
            return l.rfind("veltrix-cli: warning:", 0) == 0;
          });
      EXPECT_TRUE(one_reason || err_.rfind("usage:", 0) == 0) << where << "\nstderr: " << err_;
      EXPECT_TRUE(Snapshot(work_.path()) == before) << where << " changed the folder";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, CliTranscript,
                         ::testing::ValuesIn(testing::ReadDataCases("cli_transcripts.txt")),
                         [](const auto& info) {
                           std::string name;
                           for (const char c : info.param.name) {
                             name += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace veltrix
