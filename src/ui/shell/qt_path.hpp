// Paths between the program (std::filesystem, UTF-8) and Qt, which has "/" between folders on every
// system.
#pragma once

#include "base/path_text.hpp"
#include "ui/shell/qt_text.hpp"

#include <QDir>
#include <QString>

#include <filesystem>
#include <string>

namespace kvt {

inline std::filesystem::path path_of_qt(const QString& path) {
    return path_of_utf8(utf8_text(path));
}

inline QString qt_path(const std::filesystem::path& path) {
    return qt_text(utf8_of_path(path));
}

/// A path of Qt as the program shows and keeps it: with the separators of the system.
inline std::string native_path_text(const QString& path) {
    return utf8_text(QDir::toNativeSeparators(path));
}

}  // namespace kvt
