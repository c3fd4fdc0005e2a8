#include "ui/shell/help_file.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"

#include <QDesktopServices>
#include <QUrl>

#include <string>
#include <system_error>

namespace kvt {

void open_help_file(program& kavetta, user& person) {
    show_help_file(kavetta, person);
}

void show_help_file(const program& kavetta, progress_shower& person) {
    const std::filesystem::path file = kavetta.folder / HELP_FILE_NAME;
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error) ||
        !QDesktopServices::openUrl(QUrl::fromLocalFile(qt_path(file)))) {
        person.show_status(
            std::string(message_text(message::open_failed, kavetta.app_state.language)) +
            utf8_of_path(file));
    }
}

}  // namespace kvt
