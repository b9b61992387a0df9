#ifndef VELTRIX_RESOURCES_TEXT_QT_H_
#define VELTRIX_RESOURCES_TEXT_QT_H_

#include <QString>
#include <string_view>

namespace veltrix {

// A text of the core (UTF-8) as Qt shows it.
inline QString QtText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace veltrix

#endif  // VELTRIX_RESOURCES_TEXT_QT_H_
