#include "settings/grid/grid_dialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "resources/text_qt.h"

namespace veltrix {
namespace {

constexpr QColor kSelected(0, 0, 255);
constexpr QColor kGridLine(196, 196, 196);
constexpr QColor kResultText(128, 128, 128);

}  // namespace

GridChart::GridChart(GridEditor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
  setObjectName("grid_chart");
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize GridChart::minimumSizeHint() const {
  // Wide enough for "Right" and "255" in every cell.
  const QFontMetrics metrics(font());
  const int cell = metrics.horizontalAdvance(QStringLiteral("Right")) + 8;
  return {cell * (editor_.columns() + 1), (metrics.height() + 4) * (kGridRows + 1)};
}

QSize GridChart::sizeHint() const { return minimumSizeHint(); }

QSize GridChart::CellSize() const {
  return {width() / (editor_.columns() + 1), height() / (kGridRows + 1)};
}

void GridChart::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QSize cell = CellSize();
  const int columns = editor_.columns();
  const QRect chart(0, 0, cell.width() * (columns + 1), cell.height() * (kGridRows + 1));
  p.fillRect(chart, Qt::white);
  // Headers on the button face, raised by a white and a black edge.
  const QColor face = palette().color(QPalette::Button);
  p.fillRect(0, 0, chart.width(), cell.height(), face);
  p.fillRect(0, 0, cell.width(), chart.height(), face);
  auto cell_rect = [&](int column, int row) {
    return QRect(column * cell.width(), row * cell.height(), cell.width(), cell.height());
  };
  for (int c = 0; c <= columns; ++c) {
    for (int r = 0; r <= kGridRows; ++r) {
      if (c > 0 && r > 0) continue;
      const QRect rect = cell_rect(c, r).adjusted(0, 0, -1, -1);
      p.setPen(Qt::white);
      p.drawLine(rect.topLeft(), rect.topRight());
      p.drawLine(rect.topLeft(), rect.bottomLeft());
      p.setPen(Qt::black);
      p.drawLine(rect.bottomLeft(), rect.bottomRight());
      p.drawLine(rect.topRight(), rect.bottomRight());
      QString text;
      if (r == 0 && c > 0) text = QtText(GridColumnHeader(c - 1));
      if (c == 0 && r > 0) text = QtText(GridRowHeader(r - 1));
      p.drawText(rect, Qt::AlignCenter, text);
    }
  }
  p.setPen(kGridLine);
  for (int c = 2; c <= columns; ++c) {
    p.drawLine(c * cell.width(), cell.height(), c * cell.width(), chart.height() - 1);
  }
  for (int r = 2; r <= kGridRows; ++r) {
    p.drawLine(cell.width(), r * cell.height(), chart.width() - 1, r * cell.height());
  }
  for (int c = 0; c < columns; ++c) {
    for (int r = 0; r < kGridRows; ++r) {
      const QRect rect = cell_rect(c + 1, r + 1);
      const bool selected = c == editor_.selected_column() && r == editor_.selected_row();
      if (selected) p.fillRect(rect.adjusted(1, 1, 0, 0), kSelected);
      p.setPen(selected ? Qt::white : Qt::black);
      p.drawText(rect, Qt::AlignCenter, QtText(GridCellName(editor_.mode(), GridByte(c, r))));
    }
  }
  p.setPen(Qt::black);
  p.drawRect(chart.adjusted(0, 0, -1, -1));
  if (hasFocus()) {
    QPen focus(palette().color(QPalette::Highlight));
    focus.setWidth(2);
    p.setPen(focus);
    p.drawRect(cell_rect(editor_.selected_column() + 1, editor_.selected_row() + 1)
                   .adjusted(1, 1, -1, -1));
  }
}

void GridChart::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QSize cell = CellSize();
  if (cell.width() <= 0 || cell.height() <= 0) return;
  const QPoint at = event->position().toPoint();
  const GridEditor::Pick pick = editor_.Click(at.x() / cell.width(), at.y() / cell.height());
  if (pick == GridEditor::Pick::kIgnored) return;
  update();
  emit picked(pick);
}

void GridChart::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      editor_.MoveSelection(-1, 0);
      break;
    case Qt::Key_Right:
      editor_.MoveSelection(1, 0);
      break;
    case Qt::Key_Up:
      editor_.MoveSelection(0, -1);
      break;
    case Qt::Key_Down:
      editor_.MoveSelection(0, 1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      emit picked(editor_.PickCell(editor_.selected_column(), editor_.selected_row()));
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  update();
}

GridDialog::GridDialog(GridMode mode, int limit, std::span<const std::uint8_t> start,
                       QWidget* parent)
    : QDialog(parent), editor_(mode, limit, start) {
  setObjectName("GridDlg");
  setWindowTitle(QtText(kGridCaption));
  auto* chart = new GridChart(editor_, this);
  result_ = new QLabel(QtText(editor_.text()));
  result_->setObjectName("grid_result");
  result_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  result_->setIndent(5);
  result_->setMinimumWidth(chart->minimumSizeHint().width() / 2);
  QPalette grey = result_->palette();
  grey.setColor(QPalette::WindowText, kResultText);
  result_->setPalette(grey);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QPushButton* clear = buttons->addButton(tr("Clear"), QDialogButtonBox::ResetRole);
  clear->setObjectName("grid_clear");
  // Enter belongs to the chart, where it picks a cell.
  for (QAbstractButton* b : buttons->buttons()) {
    if (auto* push = qobject_cast<QPushButton*>(b)) push->setAutoDefault(false);
  }
  auto* result_row = new QHBoxLayout;
  result_row->addWidget(new QLabel(QtText(kGridResultLabel)));
  result_row->addWidget(result_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(chart, 1);
  layout->addLayout(result_row);
  layout->addWidget(buttons);
  connect(chart, &GridChart::picked, this, &GridDialog::Picked);
  connect(clear, &QPushButton::clicked, this, [this] {
    editor_.Clear();
    result_->setText(QString());
  });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  chart->setFocus();
}

void GridDialog::Picked(GridEditor::Pick pick) {
  if (pick == GridEditor::Pick::kTooMany) {
    QMessageBox::warning(this, QtText(kGridCaption), QtText(kTooManyCharacters));
    return;
  }
  result_->setText(QtText(editor_.text()));
}

namespace {

// Opens the dialog for its edit on a left click, Enter or Space.
class GridEditOpener : public QObject {
 public:
  GridEditOpener(QLineEdit* edit, GridEditTarget target)
      : QObject(edit), edit_(edit), target_(std::move(target)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != edit_ || !edit_->isEnabled()) return false;
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
      Open();
      return true;
    }
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        Open();
        return true;
      }
    }
    return false;
  }

 private:
  void Open() {
    edit_->setFocus();
    const std::vector<std::uint8_t> start =
        target_.start ? target_.start() : std::vector<std::uint8_t>{};
    const int limit = target_.limit ? target_.limit() : static_cast<int>(start.size());
    GridDialog dialog(target_.mode, limit, start, edit_);
    // Blue while the editor is open, so the user sees which edit it fills.
    const QString style = edit_->styleSheet();
    edit_->setStyleSheet(
        QStringLiteral("QLineEdit { background: rgb(0, 0, 255); color: rgb(0, 0, 255); }"));
    const bool ok = dialog.exec() == QDialog::Accepted;
    edit_->setStyleSheet(style);
    if (ok) {
      edit_->setText(QtText(dialog.editor().text()));
      if (target_.store) target_.store(dialog.editor().bytes());
    } else {
      edit_->setText(QtText(dialog.editor().start_text()));
    }
  }

  QLineEdit* edit_;
  GridEditTarget target_;
};

}  // namespace

void AttachGridEditor(QLineEdit* edit, GridEditTarget target) {
  edit->setReadOnly(true);
  edit->setCursor(Qt::PointingHandCursor);
  edit->installEventFilter(new GridEditOpener(edit, std::move(target)));
}

}  // namespace veltrix
