#include "tn5250/host_screen_widget.h"

#include <QApplication>
#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "resources/fixed_font_qt.h"
#include "tn5250/host_keys_qt.h"
#include "tn5250/host_screen_text.h"

namespace veltrix {

HostScreenWidget::HostScreenWidget(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setObjectName(QStringLiteral("Client"));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  // Input methods (Chinese, Japanese, Korean) commit their text to the host screen.
  setAttribute(Qt::WA_InputMethodEnabled, true);
  setAutoFillBackground(false);
  metrics_ = FitCellMetrics(contentsRect().width(), contentsRect().height(), Rows(), Columns());
  UpdateFont();
}

HostScreenWidget::~HostScreenWidget() {
  if (connection_) connection_->SetView(nullptr);
}

void HostScreenWidget::SetConnection(HostConnection* connection) {
  if (connection_) connection_->SetView(nullptr);
  connection_ = connection;
  if (connection_) connection_->SetView(this);
  metrics_ = FitCellMetrics(contentsRect().width(), contentsRect().height(), Rows(), Columns());
  UpdateFont();
  update();
}

int HostScreenWidget::Rows() const {
  return connection_ ? connection_->session().Screen().Rows() : kScreenRows;
}

int HostScreenWidget::Columns() const {
  return connection_ ? connection_->session().Screen().Columns() : kScreenColumns;
}

QRect HostScreenWidget::CellRectangle(int row, int column) const {
  PixelRect r = CellRect(metrics_, row, column);
  return QRect(r.x, r.y, r.width, r.height).translated(contentsRect().topLeft());
}

QString HostScreenWidget::RowText(int row) const {
  if (!connection_) return {};
  const PresentationSpace& ps = connection_->session().Screen();
  if (row < 0 || row >= ps.Rows()) return {};
  auto attrs = ps.AttributePlane().subspan(static_cast<std::size_t>(row) * kPlaneColumns,
                                           static_cast<std::size_t>(ps.Columns()));
  QString text;
  const int language = connection_->emulation_type();
  for (const CellGlyph& g : RowGlyphs(ps, row)) {
    // Cells that are not displayed read as blanks, as they look.
    char32_t c = (attrs[g.column] & 0x07) == 0x07 ? U' ' : GlyphCharacter(language, g);
    text += QString::fromUcs4(&c, 1);
    if (g.width == 2 && c == U' ') text += QLatin1Char(' ');
  }
  return text;
}

void HostScreenWidget::OnKeyboardLockChanged(bool) { emit terminalChanged(); }

std::optional<CellAddress> HostScreenWidget::CellAt(const QPoint& point) const {
  const QPoint p = point - contentsRect().topLeft();
  if (p.x() < 0 || p.y() < 0 || metrics_.cell_width <= 0 || metrics_.row_height() <= 0) {
    return std::nullopt;
  }
  const CellAddress cell{p.y() / metrics_.row_height(), p.x() / metrics_.cell_width};
  if (cell.row >= Rows() || cell.column >= Columns()) return std::nullopt;
  return cell;
}

void HostScreenWidget::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  const std::optional<CellAddress> cell = CellAt(event->position().toPoint());
  if (connection_ && event->button() == Qt::LeftButton && cell) {
    connection_->PointAt(cell->row, cell->column);
  }
  event->accept();
}

void HostScreenWidget::inputMethodEvent(QInputMethodEvent* event) {
  if (connection_) {
    for (uint c : event->commitString().toUcs4()) connection_->Character(static_cast<char32_t>(c));
  }
  event->accept();
}

QVariant HostScreenWidget::inputMethodQuery(Qt::InputMethodQuery query) const {
  // The candidate window opens at the cursor.
  if (query == Qt::ImCursorRectangle && connection_) {
    return CellRectangle(connection_->session().CursorRow(), connection_->session().CursorColumn());
  }
  if (query == Qt::ImEnabled) return connection_ != nullptr && connection_->connected();
  return QFrame::inputMethodQuery(query);
}

void HostScreenWidget::OnScreenChanged(const ScreenChange& change) {
  if (change.kind != ScreenChange::Kind::kNothing) emit terminalChanged();
  switch (change.kind) {
    case ScreenChange::Kind::kNothing:
      return;
    case ScreenChange::Kind::kCaret:
    case ScreenChange::Kind::kCell:
      // The old cell (its new character, or just the caret leaving it) and the caret's new cell.
      update(CellRectangle(change.row, change.column));
      update(
          CellRectangle(connection_->session().CursorRow(), connection_->session().CursorColumn()));
      return;
    case ScreenChange::Kind::kWhole:
      // Qt merges these requests: a host flooding the screen costs one paint per event-loop turn.
      update();
      return;
  }
}

void HostScreenWidget::OnAlarm() { QApplication::beep(); }

bool HostScreenWidget::event(QEvent* event) {
  // Every key goes to the host while the screen has the focus, shortcut keys included.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QFrame::event(event);
}

void HostScreenWidget::keyPressEvent(QKeyEvent* event) {
  if (!connection_) {
    QFrame::keyPressEvent(event);
    return;
  }
  PcKey key = PcKeyFromQt(event->key(), event->modifiers());
  connection_->KeyDown(key);
  // The character of the same key press comes after the key itself, as the terminal expects.
  const QList<uint> characters = event->text().toUcs4();
  for (uint c : characters) {
    connection_->Character(static_cast<char32_t>(c));
  }
  event->accept();
}

bool HostScreenWidget::focusNextPrevChild(bool) { return false; }  // Tab is a host key

void HostScreenWidget::focusInEvent(QFocusEvent* event) {
  QFrame::focusInEvent(event);
  update();
}

void HostScreenWidget::focusOutEvent(QFocusEvent* event) {
  QFrame::focusOutEvent(event);
  update();
}

void HostScreenWidget::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  metrics_ = FitCellMetrics(contentsRect().width(), contentsRect().height(), Rows(), Columns());
  UpdateFont();
  update();
}

QSize HostScreenWidget::minimumSizeHint() const {
  const int frame = 2 * frameWidth();
  return {Columns() * kSmallestCellWidth + frame, Rows() * (kSmallestCharacterHeight + 2) + frame};
}

void HostScreenWidget::UpdateFont() {
  // A fixed-pitch face with wide coverage; characters it lacks (ideographs, Hangul, kana) come
  // from the system's fallback fonts.
  font_ = FixedPitchFont();
  font_.setPixelSize(std::max(metrics_.character_height - 2, 8));
  QFontMetrics fm(font_);
  int advance = fm.horizontalAdvance(QLatin1Char('M'));
  if (advance > metrics_.cell_width && advance > 0) {
    font_.setStretch(std::max(50, metrics_.cell_width * 100 / advance));
    fm = QFontMetrics(font_);
  }
  ascent_ = fm.ascent();
}

void HostScreenWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  drawFrame(&painter);
  if (!connection_) return;
  // Cells are laid out from the client area's corner, inside the sunken edge.
  const QPoint origin = contentsRect().topLeft();
  painter.setClipRect(contentsRect());
  painter.translate(origin);
  painter.setFont(font_);
  const PresentationSpace& ps = connection_->session().Screen();
  const int language = connection_->emulation_type();
  const int rows = ps.Rows();
  const int columns = ps.Columns();
  const int cw = metrics_.cell_width;
  const int rh = metrics_.row_height();
  const int ch = metrics_.character_height;
  QFontMetrics fm(font_);
  const QRect dirty = event->rect().translated(-origin);

  for (int r = 0; r < rows; ++r) {
    const int y = rh * r;
    if (y > dirty.bottom() || y + rh < dirty.top()) continue;
    const std::size_t base = static_cast<std::size_t>(r) * kPlaneColumns;
    auto attrs = ps.AttributePlane().subspan(base, static_cast<std::size_t>(columns));
    std::vector<CellGlyph> glyphs = RowGlyphs(ps, r);
    std::size_t g = 0;
    for (const PaintRun& run : RowRuns(attrs)) {
      const int x = cw * run.first_column;
      const int end_column = run.first_column + run.length;
      while (g < glyphs.size() && glyphs[g].column < run.first_column) ++g;
      if (run.hidden()) continue;
      const QRect run_rect(x, y, run.length * cw, ch + 2);
      if (!run_rect.intersects(dirty)) continue;
      if (run.reverse()) painter.fillRect(QRect(x, y, run.length * cw, ch), Qt::black);
      painter.setPen(run.reverse() ? Qt::white : Qt::black);
      for (; g < glyphs.size() && glyphs[g].column < end_column; ++g) {
        const CellGlyph& glyph = glyphs[g];
        if (!glyph.pair && glyph.lead == ' ') continue;
        char32_t c = GlyphCharacter(language, glyph);
        QString text = QString::fromUcs4(&c, 1);
        const int gx = cw * glyph.column;
        const int span = cw * glyph.width;
        const int advance = fm.horizontalAdvance(text);
        painter.drawText(QPointF(gx + (span - advance) / 2.0, y + ascent_ + 1), text);
      }
      if (run.underline()) {
        // To the run's end, which itself stays clear: a bar on whole device pixels, so every
        // underline has one thickness at any scale (a 1-pixel line at 150% falls between pixels).
        const QTransform device = painter.deviceTransform();
        const qreal scale = device.m22();
        const qreal device_top = std::round(device.map(QPointF(x, y + ch + 1)).y());
        const qreal top = (device_top - device.dy()) / scale;
        const qreal thickness = std::max<qreal>(1.0, std::round(scale)) / scale;
        painter.fillRect(QRectF(x, top, run.length * cw - 1, thickness), Qt::black);
      }
    }
  }

  // The caret: a solid block at the cursor, only while the window has the focus.
  if (hasFocus() && connection_->connected()) {
    QRect caret(cw * connection_->session().CursorColumn(), rh * connection_->session().CursorRow(),
                cw, ch);
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.fillRect(caret, Qt::white);
  }
  emit painted();
}

}  // namespace veltrix
