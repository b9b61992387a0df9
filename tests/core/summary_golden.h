#ifndef VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_
#define VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

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

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_CORE_SUMMARY_GOLDEN_H_
