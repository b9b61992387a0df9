#include "shell/summary_view.h"

#include <QFont>
#include <QHeaderView>

namespace veltrix {
namespace {

void AddChildren(QTreeWidgetItem* parent, const std::vector<SummaryNode>& nodes) {
  for (const SummaryNode& node : nodes) {
    auto* item = new QTreeWidgetItem(parent, {QString::fromStdString(node.text)});
    AddChildren(item, node.children);
  }
}

}  // namespace

SummaryView::SummaryView(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("settings_tree");
  setColumnCount(1);
  header()->hide();
  setRootIsDecorated(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setDragDropMode(QAbstractItemView::NoDragDrop);
  setFrameShape(QFrame::StyledPanel);
  setFrameShadow(QFrame::Sunken);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  // The tree's font: 16 pixels high, normal weight.
  QFont tree_font = font();
  tree_font.setPixelSize(16);
  tree_font.setWeight(QFont::Normal);
  setFont(tree_font);
}

void SummaryView::ShowSummary(const std::vector<SummaryNode>& nodes) {
  clear();
  for (const SummaryNode& node : nodes) {
    auto* item = new QTreeWidgetItem(this, {QString::fromStdString(node.text)});
    AddChildren(item, node.children);
  }
  collapseAll();
}

}  // namespace veltrix
