#ifndef VELTRIX_SHELL_SUMMARY_VIEW_H_
#define VELTRIX_SHELL_SUMMARY_VIEW_H_

#include <QString>
#include <QTreeWidget>
#include <vector>

#include "settings/summary_node.h"

namespace veltrix {

// The settings tree: a read-only tree of the summary's lines, rebuilt as a whole each time. The
// branches the user opened stay open across rebuilds; a context menu expands, collapses and
// copies; an empty tree says where a terminal model is chosen.
class SummaryView : public QTreeWidget {
  Q_OBJECT

 public:
  explicit SummaryView(QWidget* parent = nullptr);

  // Empties the tree and fills it with `nodes`. Every item starts collapsed, but a branch that
  // was open before stays open (branches are known by their place in the tree).
  void ShowSummary(const std::vector<SummaryNode>& nodes);

  // The lines of `item` and everything below it, two blanks further in per level.
  static QString BranchText(const QTreeWidgetItem* item);
  // Copies the selected branch's lines to the clipboard.
  void CopySelectedBranch();

  static constexpr const char* kEmptyHint =
      "Choose a terminal model in the product box to see its settings.";

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SUMMARY_VIEW_H_
