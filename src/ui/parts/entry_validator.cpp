#include "ui/parts/entry_validator.hpp"

#include "base/code_page.hpp"
#include "ui/shell/qt_text.hpp"

namespace kvt {

namespace {

bool ends_a_line(QChar character) {
    return character == '\r' || character == '\n' || character == QChar(0);
}

}  // namespace

QValidator::State entry_validator::validate(QString& text, int& position) const {
    for (qsizetype index = text.size() - 1; index >= 0; --index) {
        if (ends_a_line(text[index])) {
            text.remove(index, 1);
            position -= index < position ? 1 : 0;
        }
    }
    return fits_code_page(utf8_text(text)) ? Acceptable : Invalid;
}

void validate_entry(QLineEdit& box, const std::function<void()>& refused) {
    box.setValidator(new entry_validator(&box));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, refused);
}

}  // namespace kvt
