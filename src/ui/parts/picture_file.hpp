// The delivered pictures that windows show.
#pragma once

#include <QPixmap>

#include <filesystem>

namespace kvt {

/// The picture of a file. Throws file_not_found without the file, invalid_property_value for one
/// that holds no picture.
QPixmap picture_of_file(const std::filesystem::path& file);

}  // namespace kvt
