#ifndef VELTRIX_TESTS_SUPPORT_FAKE_PORTS_H_
#define VELTRIX_TESTS_SUPPORT_FAKE_PORTS_H_

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ports.h"

namespace veltrix {

// Prompt port for tests: records every box and answers questions from a queue (Cancel when
// the queue is empty, so a forgotten answer never saves or discards anything).
class FakeUserPrompt : public UserPrompt {
 public:
  struct Shown {
    std::string caption;
    std::string text;
    PromptIcon icon;
  };

  void ShowMessage(std::string_view caption, std::string_view text, PromptIcon icon) override {
    shown.push_back({std::string(caption), std::string(text), icon});
  }
  PromptAnswer AskYesNoCancel(std::string_view caption, std::string_view text) override {
    shown.push_back({std::string(caption), std::string(text), PromptIcon::kQuestion});
    if (answers.empty()) return PromptAnswer::kCancel;
    PromptAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<Shown> shown;
  std::deque<PromptAnswer> answers;
};

// File chooser for tests: returns the prepared names (nothing = the user cancelled).
class FakeFileChooser : public FileChooser {
 public:
  std::optional<std::string> ChooseFileToOpen(const FileFilter& filter,
                                              std::string_view initial) override {
    ++open_calls;
    last_filter = filter;
    last_initial = std::string(initial);
    return open_result;
  }
  std::optional<std::string> ChooseFileToSave(const FileFilter& filter,
                                              std::string_view default_extension) override {
    ++save_calls;
    last_filter = filter;
    last_extension = std::string(default_extension);
    return save_result;
  }

  std::optional<std::string> open_result;
  std::optional<std::string> save_result;
  int open_calls = 0;
  int save_calls = 0;
  FileFilter last_filter;
  std::string last_initial;
  std::string last_extension;
};

}  // namespace veltrix

#endif  // VELTRIX_TESTS_SUPPORT_FAKE_PORTS_H_
