// What can be typed into a box: everything that a project file can hold in one line.
#pragma once

#include <QLineEdit>
#include <QValidator>

#include <functional>

namespace kvt {

/// Refuses characters that the code page does not hold; line ends (of a pasted text) are dropped.
class entry_validator : public QValidator {
    Q_OBJECT

  public:
    using QValidator::QValidator;
    State validate(QString& text, int& position) const override;
};

/// Gives a box its validator; refused is called when the user types or pastes a character that
/// cannot be stored.
void validate_entry(QLineEdit& box, const std::function<void()>& refused);

}  // namespace kvt
