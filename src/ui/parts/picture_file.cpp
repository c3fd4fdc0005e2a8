#include "ui/parts/picture_file.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"

namespace kvt {

QPixmap picture_of_file(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        throw run_time_error(failure::file_not_found, utf8_of_path(file));
    }
    QPixmap picture(qt_path(file));
    if (picture.isNull()) {
        throw run_time_error(failure::invalid_property_value, "no picture: " + utf8_of_path(file));
    }
    return picture;
}

}  // namespace kvt
