#ifndef VELTRIX_RESOURCES_FIXED_FONT_QT_H_
#define VELTRIX_RESOURCES_FIXED_FONT_QT_H_

#include <QFont>

namespace veltrix {

// A fixed-pitch font whatever fonts the machine has: the terminal's texts (prompts, licence,
// host screen, previews) are judged by their widths. The first installed face of a short list
// that is really fixed pitch, else the system's fixed font when it is, else any fixed-pitch face.
// `point_size` 0 keeps the application font's size.
QFont FixedPitchFont(qreal point_size = 0);

}  // namespace veltrix

#endif  // VELTRIX_RESOURCES_FIXED_FONT_QT_H_
