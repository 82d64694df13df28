// Converts between the logic's UTF-8 and Qt's strings.
#pragma once

#include <QString>
#include <algorithm>
#include <string>
#include <string_view>

namespace widgets {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
  return text.toStdString();
}

// Whether a text can be read out: a sign such as "?" tells nothing by itself.
inline bool hasWords(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isLetterOrNumber(); });
}

}  // namespace widgets
