// The controls that forms are put together from, each with its product name.
#pragma once

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kvt {

/// A label whose text comes from the program's captions or labels.
QLabel* named_label(const char* name);

/// A result: right-aligned, set off by its weight, its text can be selected and copied.
QLabel* result_label(const char* name);

/// Gives the main button of a form the colour that stands out; again after a change of the palette.
void accent(QPushButton& button);

/// A box for a number, right-aligned, with a fixed width in pixels.
QLineEdit* number_box(const char* name, int width);

/// A thin horizontal line between groups.
QFrame* hairline();

}  // namespace kvt
