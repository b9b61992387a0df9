// Summary branches of documents described in tests/core/data/summary_cases.txt, compared with
// golden files.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "cli/settings_input.h"
#include "default_document.h"
#include "settings/reader/working_block.h"
#include "settings_test_files.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

struct SummaryGoldenCase {
  int line = 0;
  std::string golden;
  int product = 0;
  std::string branch;
  std::vector<std::string> assignments;
};

std::vector<SummaryGoldenCase> ReadCases() {
  std::ifstream in(std::string(VELTRIX_SOURCE_DIR) + "/tests/core/data/summary_cases.txt");
  std::vector<SummaryGoldenCase> cases;
  std::string text;
  for (int line = 1; std::getline(in, text); ++line) {
    if (text.empty() || text[0] == '#') continue;
    if (text.rfind("case ", 0) == 0) {
      SummaryGoldenCase c;
      c.line = line;
      const std::size_t golden_end = text.find(' ', 5);
      c.golden = text.substr(5, golden_end - 5);
      const std::size_t product_end = text.find(' ', golden_end + 1);
      c.product = std::stoi(text.substr(golden_end + 1, product_end - golden_end - 1));
      c.branch = text.substr(product_end + 1);
      cases.push_back(c);
    } else if (!cases.empty()) {
      cases.back().assignments.push_back(text);
    }
  }
  return cases;
}

class SummaryGolden : public ::testing::TestWithParam<SummaryGoldenCase> {};

TEST_P(SummaryGolden, MatchesItsFile) {
  const SummaryGoldenCase& c = GetParam();
  auto doc = testing::DefaultDocument(c.product);
  for (const std::string& assignment : c.assignments) {
    ASSERT_EQ("", cli::ApplySetAssignment(*doc, assignment)) << assignment;
  }
  CopyRecordToReaderBlocks(*doc);  // as a file with these bytes opens
  for (const SummaryNode& branch : BuildSummary(*doc)) {
    if (branch.text == c.branch) {
      EXPECT_TRUE(testing::MatchesGolden(RenderSummaryText({branch}), "summary/" + c.golden));
      return;
    }
  }
  FAIL() << "no branch " << c.branch;
}

INSTANTIATE_TEST_SUITE_P(Cases, SummaryGolden, ::testing::ValuesIn(ReadCases()),
                         [](const auto& info) { return "line" + std::to_string(info.param.line); });

}  // namespace
}  // namespace veltrix
