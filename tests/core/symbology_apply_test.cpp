// Every symbology dialog shape closed with OK packs its controls into the working block as the
// lines of tests/core/data/symbology_apply.txt say.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/symbology_options.h"
#include "settings/reader/two_d_options.h"
#include "settings/reader/working_block.h"
#include "support/binding_driver.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

std::vector<int> Numbers(const std::string& text) {
  std::vector<int> numbers;
  std::stringstream in(text);
  for (std::string n; std::getline(in, n, ',');) numbers.push_back(std::stoi(n));
  return numbers;
}

// One line: the dialog, its changes as (name, value) and the expected bytes from `offset`.
struct ApplyLine {
  std::string where, dialog;
  std::vector<std::pair<std::string, std::string>> changes;
  std::uint32_t offset = 0;
  std::vector<std::uint8_t> want;
};

std::vector<ApplyLine> Lines(const std::string& shape) {
  std::vector<ApplyLine> lines;
  for (const testing::DataCase& c : testing::ReadDataCases("symbology_apply.txt")) {
    if (c.name != shape) continue;
    for (const testing::CaseLine& text : c.lines) {
      const std::vector<std::string> words = testing::Words(text.text);
      ApplyLine& line = lines.emplace_back();
      line.where = "line " + std::to_string(text.number) + ": " + text.text;
      line.dialog = words[0];
      std::size_t i = 1;
      for (; words[i] != "->"; ++i) {
        const std::size_t eq = words[i].find('=');
        line.changes.emplace_back(words[i].substr(0, eq), words[i].substr(eq + 1));
      }
      line.offset = static_cast<std::uint32_t>(std::stoul(words[i + 1]));
      for (i += 2; i < words.size(); ++i) {
        line.want.push_back(static_cast<std::uint8_t>(std::stoul(words[i], nullptr, 16)));
      }
    }
  }
  EXPECT_FALSE(lines.empty()) << shape;
  return lines;
}

// Clicks or chooses "checked=..", "checked[i]=..", "chosen=..", "chosen[i]=.." as the user would;
// false for other names.
bool ApplyListChange(BindingSession& dialog, const std::string& name, const std::string& value) {
  const std::string list = name.substr(0, name.find('['));
  if (list != "checked" && list != "chosen") return false;
  const std::vector<std::string_view> controls = testing::Controls(dialog, list == "chosen");
  const std::size_t at =
      name.find('[') != std::string::npos ? std::stoul(name.substr(name.find('[') + 1)) : 0;
  const std::vector<int> values = Numbers(value);
  for (std::size_t k = 0; k < values.size(); ++k) dialog.Set(controls.at(at + k), values[k]);
  return true;
}

TEST(SymbologyApply, LinearDialogsPackTheirControls) {
  for (const ApplyLine& line : Lines("linear")) {
    auto doc = testing::DefaultDocument(1);
    const LinearOptionDialog* dialog = FindLinearOptionDialog(line.dialog);
    ASSERT_NE(dialog, nullptr) << line.where;
    const OwnedBindings bindings = LinearOptionBindings(*dialog);
    BindingSession user = testing::Session(*doc, bindings.lines);
    for (const auto& [name, value] : line.changes) {
      if (ApplyListChange(user, name, value)) continue;
      ASSERT_EQ(name, "length") << line.where;
      const std::vector<int> n = Numbers(value);
      user.Set("length_qualification", n[0]);
      user.Type("length_1", std::to_string(n[1]));
      user.Type("length_2", std::to_string(n[2]));
    }
    user.Commit();
    ApplyLinearOptions(*doc, *dialog);
    for (std::size_t i = 0; i < line.want.size(); ++i) {
      EXPECT_EQ(line.want[i], doc->reader_block2[line.offset + i - kReaderBlock2Offset])
          << line.where << " (byte " << line.offset + i << ")";
    }
  }
}

TEST(SymbologyApply, TwoDimensionalDialogsPackTheirControls) {
  for (const ApplyLine& line : Lines("two_d")) {
    auto doc = testing::DefaultDocument(1);
    const TwoDOptionDialog* dialog = FindTwoDOptionDialog(line.dialog);
    ASSERT_NE(dialog, nullptr) << line.where;
    for (const auto& [name, value] : line.changes) {
      if (name != "set") continue;
      const std::size_t colon = value.find(':');
      doc->reader_block1[std::stoul(value.substr(0, colon)) - kReaderBlock1Offset] |=
          static_cast<std::uint8_t>(std::stoul(value.substr(colon + 1), nullptr, 16));
    }
    OpenTwoDOptions(*doc, *dialog);
    const OwnedBindings bindings = TwoDOptionBindings(*dialog);
    BindingSession user = testing::Session(*doc, bindings.lines);
    for (const auto& [name, value] : line.changes) {
      if (name == "set" || ApplyListChange(user, name, value)) continue;
      if (name == "option") {
        user.Set("length_option", value == "two"     ? kTwoLengths
                                  : value == "range" ? kLengthRange
                                                     : kAnyLength);
        LengthOptionChosen(user.Pending(), *dialog);
      } else {
        ASSERT_EQ(name, "lengths") << line.where;
        const std::vector<int> n = Numbers(value);
        user.Type("length_1", std::to_string(n[0]));
        user.Type("length_2", std::to_string(n[1]));
      }
    }
    user.Commit();
    ApplyTwoDOptions(*doc, *dialog);
    for (std::size_t i = 0; i < line.want.size(); ++i) {
      EXPECT_EQ(line.want[i], doc->reader_block1[line.offset + i - kReaderBlock1Offset])
          << line.where << " (byte " << line.offset + i << ")";
    }
  }
}

}  // namespace
}  // namespace veltrix
