#include "ui/shell/qt_language.hpp"

#include "core/app_state.hpp"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace kvt {

/// Without the translations of the distribution Qt stays English.
qt_language::qt_language() {
    [[maybe_unused]] const bool found =
        german_.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

void qt_language::follow(std::int16_t language) {
    const bool german = language == GERMAN;
    if (german == is_german_) {
        return;
    }
    is_german_ = german;
    if (german) {
        QCoreApplication::installTranslator(&german_);
    } else {
        QCoreApplication::removeTranslator(&german_);
    }
}

}  // namespace kvt
