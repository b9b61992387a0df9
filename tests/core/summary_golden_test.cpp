// Summary branches of documents described in tests/core/data/summary_cases.txt, compared with
// golden files.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "cli/settings_input.h"
#include "default_document.h"
#include "settings/field_values.h"
#include "settings/reader/working_block.h"
#include "settings_test_files.h"
#include "shell/summary.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

struct SummaryGoldenCase {
  int line = 0;
  std::string golden;
  int product = 0;
  std::string branch;
  std::vector<std::string> assignments;
  std::vector<std::string> expected;  // lines the branch holds, where no golden file is named
};

std::vector<SummaryGoldenCase> ReadCases() {
  std::vector<SummaryGoldenCase> cases;
  for (const testing::DataCase& d : testing::ReadDataCases("summary_cases.txt")) {
    // "GOLDEN PRODUCT BRANCH"
    SummaryGoldenCase c;
    c.line = d.number;
    const std::size_t golden_end = d.name.find(' ');
    const std::size_t product_end = d.name.find(' ', golden_end + 1);
    c.golden = d.name.substr(0, golden_end);
    c.product = std::stoi(d.name.substr(golden_end + 1, product_end - golden_end - 1));
    c.branch = d.name.substr(product_end + 1);
    for (const testing::CaseLine& l : d.lines) {
      (l.text.rfind("~ ", 0) == 0 ? c.expected : c.assignments).push_back(l.text);
    }
    cases.push_back(c);
  }
  return cases;
}

class SummaryGolden : public ::testing::TestWithParam<SummaryGoldenCase> {};

TEST_P(SummaryGolden, MatchesItsFile) {
  const SummaryGoldenCase& c = GetParam();
  auto doc = testing::DefaultDocument(c.product);
  for (const std::string& assignment : c.assignments) {
    if (assignment.rfind("raw ", 0) == 0) {  // a number set refuses, as a file may hold it
      const std::size_t eq = assignment.find('=');
      const ElementLookup element = LookUpElement(assignment.substr(4, eq - 4));
      ASSERT_TRUE(element.single()) << assignment;
      const FieldElement e = ElementsOf(element)[0];
      WriteNumber(doc->record, *e.field, std::stoul(assignment.substr(eq + 1)), e.i, e.j);
      continue;
    }
    ASSERT_EQ("", cli::ApplySetAssignment(*doc, assignment)) << assignment;
  }
  CopyRecordToReaderBlocks(*doc);  // as a file with these bytes opens
  for (const SummaryNode& branch : BuildSummary(*doc)) {
    if (branch.text != c.branch) continue;
    const std::string text = RenderSummaryText({branch});
    if (c.golden == "-") {
      for (const std::string& line : c.expected) {
        const std::string wanted = " " + line.substr(line.find_first_not_of("~ ")) + "\n";
        EXPECT_NE(std::string::npos, text.find(wanted)) << line << "\n" << text;
      }
    } else {
      EXPECT_TRUE(testing::MatchesGolden(text, "summary/" + c.golden));
    }
    return;
  }
  FAIL() << "no branch " << c.branch;
}

INSTANTIATE_TEST_SUITE_P(Cases, SummaryGolden, ::testing::ValuesIn(ReadCases()),
                         [](const auto& info) { return "line" + std::to_string(info.param.line); });

}  // namespace
}  // namespace veltrix
