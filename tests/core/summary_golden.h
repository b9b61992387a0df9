#ifndef VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_
#define VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "default_document.h"
#include "settings/document.h"
#include "shell/summary.h"

namespace veltrix::testing {

// Compares a rendered summary with tests/core/golden/summary/`name`; with VELTRIX_UPDATE_GOLDEN
// set in the environment the file is rewritten from `actual` first.
inline void ExpectSummaryGolden(const std::string& actual, const std::string& name) {
  const std::string path = std::string(VELTRIX_SOURCE_DIR) + "/tests/core/golden/summary/" + name;
  if (std::getenv("VELTRIX_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(path, std::ios::binary) << actual;
  }
  std::ifstream in(path, std::ios::binary);
  ASSERT_TRUE(in) << "missing golden file " << name;
  std::stringstream expected;
  expected << in.rdbuf();
  EXPECT_EQ(expected.str(), actual) << name;
}

// One golden case of a section's summary: defaults of `product`, then `change`.
struct SummaryCase {
  std::string name;
  int product;
  std::function<void(Document&)> change;
  std::string golden;
};

inline void NoChange(Document&) {}

// The summary text of one section under a root node called `title`.
inline std::string SectionSummary(const Document& doc, const std::string& title,
                                  void (*append)(const Document&, SummaryNode&)) {
  SummaryNode root{title, {}};
  append(doc, root);
  return RenderSummaryText({root});
}

// Builds the case's document and compares its section summary with the golden file.
inline void ExpectSummaryCaseGolden(const SummaryCase& c, std::string (*summary)(const Document&)) {
  auto doc = DefaultDocument(c.product);
  c.change(*doc);
  ExpectSummaryGolden(summary(*doc), c.golden);
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_
