#include "shell/tool_icons_qt.h"

#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <functional>

namespace veltrix {
namespace {

const QColor kInk(32, 32, 32);
const QColor kGreen(0, 150, 0);
const QColor kRed(200, 0, 0);
const QColor kSteel(96, 110, 140);

QPixmap Blank() {
  QPixmap pixmap(kToolImageWidth, kToolImageHeight);
  pixmap.fill(Qt::transparent);
  return pixmap;
}

// A plug (left) and a socket (right) with their cables; `gap` pixels apart.
QPixmap Plug(int gap, const QColor& tint) {
  QPixmap pixmap = Blank();
  QPainter p(&pixmap);
  const int mid = 7;
  const int left_end = 7 - gap / 2;
  const int right_start = 8 + (gap - gap / 2);
  p.setPen(kInk);
  p.drawLine(0, mid, left_end - 4, mid);          // cable
  p.fillRect(left_end - 4, mid - 3, 4, 7, tint);  // plug body
  p.drawRect(left_end - 4, mid - 3, 3, 6);
  p.drawLine(left_end, mid - 2, left_end, mid - 2);  // pins
  p.drawLine(left_end, mid + 2, left_end, mid + 2);
  p.fillRect(right_start, mid - 3, 4, 7, tint);  // socket body
  p.drawRect(right_start, mid - 3, 3, 6);
  p.drawLine(right_start + 4, mid, kToolImageWidth - 1, mid);  // cable
  return pixmap;
}

// A small camera with a mark in its upper right corner.
QPixmap Camera(const std::function<void(QPainter&)>& mark) {
  QPixmap pixmap = Blank();
  QPainter p(&pixmap);
  p.setPen(kInk);
  p.fillRect(1, 5, 11, 8, kSteel);
  p.drawRect(1, 5, 10, 7);
  p.fillRect(3, 3, 4, 2, kInk);  // viewfinder
  p.setBrush(Qt::white);
  p.drawEllipse(4, 6, 5, 5);  // lens
  mark(p);
  return pixmap;
}

}  // namespace

QIcon ProgramIcon() {
  QPixmap pixmap(32, 32);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(kSteel);
  p.drawRoundedRect(QRectF(8.5, 1.5, 15, 29), 3, 3);  // body
  p.setBrush(QColor(190, 230, 190));
  p.drawRect(QRectF(10.5, 4.5, 11, 9));  // screen
  p.setPen(Qt::NoPen);
  p.setBrush(Qt::white);
  for (int row = 0; row < 4; ++row) {  // keypad
    for (int col = 0; col < 3; ++col) p.drawRect(11 + col * 4, 16 + row * 3, 2, 2);
  }
  p.setBrush(kRed);
  p.drawRect(14, 0, 4, 2);  // reader window
  return QIcon(pixmap);
}

QIcon ToolIcon(ToolImage image, const QStyle* style) {
  switch (image) {
    case ToolImage::kStandardNew:
      return style->standardIcon(QStyle::SP_FileIcon);
    case ToolImage::kStandardOpen:
      return style->standardIcon(QStyle::SP_DialogOpenButton);
    case ToolImage::kStandardSave:
      return style->standardIcon(QStyle::SP_DialogSaveButton);
    case ToolImage::kStandardProperties:
      return style->standardIcon(QStyle::SP_FileDialogDetailedView);
    case ToolImage::kStandardCopy:
      return style->standardIcon(QStyle::SP_ArrowDown);
    case ToolImage::kConnect:
      return QIcon(Plug(0, kGreen));
    case ToolImage::kDisconnect:
      return QIcon(Plug(4, kRed));
    case ToolImage::kStartCapture:
      return QIcon(Camera([](QPainter& p) {  // green "go" triangle
        p.setPen(Qt::NoPen);
        p.setBrush(kGreen);
        const QPoint play[] = {{11, 0}, {15, 3}, {11, 6}};
        p.drawPolygon(play, 3);
      }));
    case ToolImage::kCapture:
      return QIcon(Camera([](QPainter& p) {  // flash
        p.setPen(QColor(230, 180, 0));
        p.drawLine(13, 0, 11, 3);
        p.drawLine(11, 3, 14, 3);
        p.drawLine(14, 3, 12, 6);
      }));
    case ToolImage::kStopCapture:
      return QIcon(Camera([](QPainter& p) {  // red "stop" square
        p.fillRect(11, 0, 5, 5, kRed);
      }));
    case ToolImage::kNone:
      break;
  }
  return QIcon();
}

}  // namespace veltrix
