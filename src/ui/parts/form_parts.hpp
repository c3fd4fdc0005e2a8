// The controls that forms are put together from, each with its product name.
#pragma once

#include <QFont>
#include <QList>
#include <QPalette>

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace kvt {

struct app_state;

/// A label whose text comes from the program's captions or labels.
QLabel* named_label(const char* name);

/// A result: right-aligned, set off by its weight, its text can be selected and copied.
QLabel* result_label(const char* name);

/// Paints the text of a label in the faint ink of what accompanies another text, by the ground and
/// the ink of its palette at that time.
void paint_faint_text(QLabel& label, QPalette::ColorRole ground = QPalette::Window,
                      QPalette::ColorRole ink = QPalette::WindowText);

/// Gives the main button of a form the colour that stands out; again after a change of the palette.
void accent(QPushButton& button);

/// A box for a number, right-aligned, with a fixed width in pixels.
QLineEdit* number_box(const char* name, int width);

/// A box for a text.
QLineEdit* text_box(const char* name);

/// The font of a form with many entries in little room: a ninth smaller than that of the
/// application.
QFont compact_font();

/// A box for a number in the compact font, as wide as the widest number needs.
QLineEdit* compact_box(const char* name, const char* widest);
int compact_box_width(const char* widest);

/// Widens a compact box by a faint unit behind the number, as wide as its widest text; the label is
/// named as the entry with "_unit".
QLabel* add_unit(QLineEdit& box, const QString& widest);

QPushButton* named_button(const char* name);

/// A button and a check box that Tab reaches and a click does not focus, so that Enter stays with
/// the main button.
QPushButton* command_button(const char* name);
QCheckBox* named_check(const char* name);

/// Shows the length unit in force in the labels beside lengths.
void show_length_unit(const app_state& state, const QList<QLabel*>& labels);

/// A table without a head for its rows, which are as high as a line of text.
void show_low_rows(QTableView& table);

/// A thin horizontal line between groups.
QFrame* hairline();

}  // namespace kvt
