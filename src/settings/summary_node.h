#ifndef VELTRIX_SETTINGS_SUMMARY_NODE_H_
#define VELTRIX_SETTINGS_SUMMARY_NODE_H_

#include <string>
#include <vector>

namespace veltrix {

// One line of the settings summary tree and the lines below it.
struct SummaryNode {
  std::string text;
  std::vector<SummaryNode> children;

  // Appends a child line (cut to 99 characters, as the line buffer holds 100 with its NUL) and
  // returns it, so that sub-lines can be added below.
  SummaryNode& Add(std::string line) {
    if (line.size() > 99) line.resize(99);
    children.push_back(SummaryNode{std::move(line), {}});
    return children.back();
  }
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SUMMARY_NODE_H_
