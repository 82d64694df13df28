// Converts between the logic's UTF-8 and Qt's strings.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace widgets {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

}  // namespace widgets
