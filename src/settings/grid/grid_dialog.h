#ifndef VELTRIX_SETTINGS_GRID_GRID_DIALOG_H_
#define VELTRIX_SETTINGS_GRID_GRID_DIALOG_H_

#include <QDialog>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "settings/grid/char_grid.h"

class QLabel;
class QLineEdit;

namespace veltrix {

// The chart of byte values: headers on top and at the left, the selected cell in blue. A click
// (or an arrow key to move and Enter or Space) picks a cell.
class GridChart : public QWidget {
  Q_OBJECT

 public:
  GridChart(GridEditor& editor, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void picked(GridEditor::Pick pick);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize CellSize() const;
  GridEditor& editor_;
};

// "The Grid Control": the chart, the resulting text, OK, Cancel and "Clear".
class GridDialog : public QDialog {
  Q_OBJECT

 public:
  GridDialog(GridMode mode, int limit, std::span<const std::uint8_t> start,
             QWidget* parent = nullptr);
  const GridEditor& editor() const { return editor_; }

 private:
  void Picked(GridEditor::Pick pick);
  GridEditor editor_;
  QLabel* result_;
};

// What a click-sensitive edit edits: the mode, the limit and starting bytes when it is clicked,
// and where the chosen bytes go on OK: exactly those the edit then shows, zeros included (the
// owner fills what is left of its field).
struct GridEditTarget {
  GridMode mode = GridMode::kHex;
  std::function<int()> limit;
  std::function<std::vector<std::uint8_t>()> start;
  std::function<void(std::span<const std::uint8_t>)> store;
};

// Makes `edit` click-sensitive: its text is not typed; a left click (or Enter or Space while it
// has the focus) opens "The Grid Control" on it, and the edit is blue while the dialog is open.
void AttachGridEditor(QLineEdit* edit, GridEditTarget target);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_GRID_GRID_DIALOG_H_
