#include "ui/parts/entry_validator.hpp"

#include "base/code_page.hpp"
#include "ui/shell/qt_text.hpp"

#include <algorithm>

namespace kvt {

namespace {

bool ends_a_line(QChar character) {
    return character == '\r' || character == '\n' || character == QChar(0);
}

bool is_of_a_number(QChar character) {
    static const QString signs = QStringLiteral("0123456789+-,.eE \t");
    return signs.contains(character);
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

QValidator::State number_validator::validate(QString& text, int& position) const {
    const State stored = entry_validator::validate(text, position);
    return std::ranges::all_of(text, is_of_a_number) ? stored : Invalid;
}

void validate_number(QLineEdit& box, const std::function<void()>& refused) {
    box.setValidator(new number_validator(&box));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, refused);
}

void validate_entry(QLineEdit& box, const std::function<void()>& refused) {
    box.setValidator(new entry_validator(&box));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, refused);
}

}  // namespace kvt
