#ifndef VELTRIX_TESTS_SUPPORT_CASE_FILE_H_
#define VELTRIX_TESTS_SUPPORT_CASE_FILE_H_

#include <fstream>
#include <sstream>
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

// The blank-separated words of a case line.
inline std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

// The columns of a line separated by `separator`, blanks around each trimmed (an empty column
// stays, the last one too).
inline std::vector<std::string> Columns(const std::string& line, char separator) {
  std::vector<std::string> columns;
  for (std::size_t start = 0;;) {
    const std::size_t end = line.find(separator, start);
    const std::string column = line.substr(start, end - start);
    const std::size_t first = column.find_first_not_of(' ');
    columns.push_back(first == std::string::npos
                          ? ""
                          : column.substr(first, column.find_last_not_of(' ') - first + 1));
    if (end == std::string::npos) return columns;
    start = end + 1;
  }
}

// The case named `name` of tests/core/data/`file`: its lines as words, or as columns when a
// separator is given (nothing when missing).
inline std::vector<std::vector<std::string>> CaseRows(const std::string& file,
                                                      const std::string& name, char separator = 0) {
  std::vector<std::vector<std::string>> rows;
  for (const DataCase& c : ReadDataCases(file)) {
    if (c.name != name) continue;
    for (const CaseLine& line : c.lines) {
      rows.push_back(separator == 0 ? Words(line.text) : Columns(line.text, separator));
    }
  }
  return rows;
}

}  // namespace veltrix::testing

#endif  // VELTRIX_TESTS_SUPPORT_CASE_FILE_H_
