#include "resources/fixed_font_qt.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace veltrix {
namespace {

// Faces with wide coverage first; the list only orders what is installed.
const char* const kPreferred[] = {"DejaVu Sans Mono", "Liberation Mono", "Noto Sans Mono",
                                  "Noto Mono",        "Cousine",         "Nimbus Mono PS",
                                  "Courier New",      "FreeMono"};

bool IsFixed(const QFont& font) { return QFontInfo(font).fixedPitch(); }

QFont Find() {
  const QStringList installed = QFontDatabase::families();
  for (const char* name : kPreferred) {
    const QString family = QString::fromLatin1(name);
    if (!installed.contains(family) || !QFontDatabase::isFixedPitch(family)) continue;
    QFont font(family);
    font.setStyleHint(QFont::TypeWriter);
    if (IsFixed(font)) return font;
  }
  QFont system = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (IsFixed(system)) return system;
  for (const QString& family : installed) {
    if (!QFontDatabase::isFixedPitch(family)) continue;
    QFont font(family);
    if (IsFixed(font)) return font;
  }
  system.setStyleHint(QFont::TypeWriter);
  system.setFixedPitch(true);
  return system;
}

}  // namespace

QFont FixedPitchFont(qreal point_size) {
  static const QFont found = Find();  // the font database does not change while Veltrix runs
  QFont font = found;
  const qreal size = point_size > 0 ? point_size : QApplication::font().pointSizeF();
  if (size > 0) font.setPointSizeF(size);
  return font;
}

}  // namespace veltrix
