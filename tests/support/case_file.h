#ifndef VELTRIX_TESTS_SUPPORT_CASE_FILE_H_
#define VELTRIX_TESTS_SUPPORT_CASE_FILE_H_

#include <fstream>
#include <string>
#include <vector>

namespace veltrix::testing {

// One case of a data file: the text after "case " on its first line, that line's number, and
// the lines up to the next case (blank lines and "#" comments left out).
struct CaseLine {
  int number;
  std::string text;
};
struct DataCase {
  std::string name;
  int number = 0;
  std::vector<CaseLine> lines;
};

// The cases of tests/core/data/`name`.
inline std::vector<DataCase> ReadDataCases(const std::string& name) {
  std::ifstream in(std::string(VELTRIX_SOURCE_DIR) + "/tests/core/data/" + name);
  std::vector<DataCase> cases;
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) {
    if (text.empty() || text[0] == '#') continue;
    if (text.rfind("case ", 0) == 0) {
      cases.push_back({text.substr(5), number, {}});
    } else if (!cases.empty()) {
      cases.back().lines.push_back({number, text});
    }
  }
  return cases;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_CASE_FILE_H_
