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

/// Takes the signs of a number and nothing else: digits, sign, comma, point, exponent, blanks. What
/// stands in the box already, e.g. from a file, can be edited whatever it is.
class number_validator : public entry_validator {
    Q_OBJECT

  public:
    using entry_validator::entry_validator;
    State validate(QString& text, int& position) const override;
};

/// Gives a box for a number its validator; refused is called when the user types or pastes anything
/// else.
void validate_number(QLineEdit& box, const std::function<void()>& refused);

/// The same for a box that takes any text that can be stored.
void validate_entry(QLineEdit& box, const std::function<void()>& refused);

}  // namespace kvt
