// Texts between the program (UTF-8) and the widgets (QString).
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace kvt {

inline QString qt_text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string utf8_text(const QString& text) {
    return text.toStdString();
}

/// A text in which "&" is a character to show, not the mark of an access key.
inline QString literal_text(std::string_view utf8) {
    return qt_text(utf8).replace('&', "&&");
}

}  // namespace kvt
