#ifndef VELTRIX_SHELL_SUMMARY_VIEW_H_
#define VELTRIX_SHELL_SUMMARY_VIEW_H_

#include <QTreeWidget>
#include <vector>

#include "settings/summary_node.h"

namespace veltrix {

// The settings tree: a read-only tree of the summary's lines, rebuilt as a whole each time.
class SummaryView : public QTreeWidget {
  Q_OBJECT

 public:
  explicit SummaryView(QWidget* parent = nullptr);

  // Empties the tree and fills it with `nodes`, every item collapsed.
  void ShowSummary(const std::vector<SummaryNode>& nodes);
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SUMMARY_VIEW_H_
