#include "shell/summary_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>

namespace veltrix {
namespace {

// A branch's place in the tree: the child indices from the top.
using Place = QList<int>;

Place PlaceOf(const QTreeWidgetItem* item) {
  Place place;
  for (; item != nullptr; item = item->parent()) {
    const QTreeWidgetItem* parent = item->parent();
    const QTreeWidget* tree = item->treeWidget();
    auto* self = const_cast<QTreeWidgetItem*>(item);  // the index lookups take no const item
    place.prepend(parent ? parent->indexOfChild(self) : tree->indexOfTopLevelItem(self));
  }
  return place;
}

void CollectOpen(const QTreeWidgetItem* item, QList<Place>& open) {
  if (item->isExpanded()) open.append(PlaceOf(item));
  for (int i = 0; i < item->childCount(); ++i) CollectOpen(item->child(i), open);
}

void AppendBranch(const QTreeWidgetItem* item, int depth, QString& out) {
  out += QString(2 * depth, ' ') + item->text(0) + '\n';
  for (int i = 0; i < item->childCount(); ++i) AppendBranch(item->child(i), depth + 1, out);
}

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
  QList<Place> open;
  for (int i = 0; i < topLevelItemCount(); ++i) CollectOpen(topLevelItem(i), open);
  clear();
  for (const SummaryNode& node : nodes) {
    auto* item = new QTreeWidgetItem(this, {QString::fromStdString(node.text)});
    AddChildren(item, node.children);
  }
  collapseAll();
  for (const Place& place : open) {
    QTreeWidgetItem* item = nullptr;
    for (int index : place) {
      item = item ? item->child(index) : topLevelItem(index);
      if (item == nullptr) break;
    }
    if (item != nullptr) item->setExpanded(true);
  }
}

QString SummaryView::BranchText(const QTreeWidgetItem* item) {
  QString out;
  if (item != nullptr) AppendBranch(item, 0, out);
  return out;
}

void SummaryView::CopySelectedBranch() {
  const QTreeWidgetItem* item = currentItem();
  if (item != nullptr) QGuiApplication::clipboard()->setText(BranchText(item));
}

void SummaryView::contextMenuEvent(QContextMenuEvent* event) {
  if (QTreeWidgetItem* item = itemAt(viewport()->mapFromGlobal(event->globalPos()))) {
    setCurrentItem(item);
  }
  QMenu menu(this);
  menu.addAction(tr("Expand All"), this, &QTreeWidget::expandAll);
  menu.addAction(tr("Collapse All"), this, &QTreeWidget::collapseAll);
  QAction* copy = menu.addAction(tr("Copy"), this, &SummaryView::CopySelectedBranch);
  copy->setEnabled(currentItem() != nullptr);
  menu.exec(event->globalPos());
}

void SummaryView::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (topLevelItemCount() != 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                   Qt::AlignTop | Qt::AlignLeft | Qt::TextWordWrap, tr(kEmptyHint));
}

}  // namespace veltrix
