#include "ui/parts/form_parts.hpp"

#include "core/app_state.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "ui/parts/accessible_role.hpp"
#include "ui/parts/ink.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTableView>

namespace kvt {

namespace {

/// Room above and below the text of a box together, pixels; one less where the letters are odd.
constexpr int BOX_MARGINS = 6;
/// Room left and right of the number in a box together, pixels.
constexpr int NUMBER_MARGINS = 10;
/// Room between a number, its unit and the border of the box, pixels.
constexpr int UNIT_MARGIN = 5;
constexpr double COMPACT_SHARE = 8.0 / 9.0;

/// The unit behind a number. Its ink follows the palette of the box: the placeholder colour of a
/// desktop's dark palette is often that of its light one.
class box_unit : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent*) override {
        paint_faint_text(*this, QPalette::Base, QPalette::Text);
    }
};

/// Even: with lines one pixel higher than those of the font that the forms are made for, the boxes
/// are no higher, and the Design form still fits its place.
int box_height(const QLineEdit& box) {
    return (box.fontMetrics().height() + BOX_MARGINS) / 2 * 2;
}

}  // namespace

QLabel* named_label(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    return label;
}

QLabel* result_label(const char* name) {
    QLabel* label = named_label(name);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

void paint_faint_text(QLabel& label, QPalette::ColorRole ground, QPalette::ColorRole ink) {
    QPainter painter(&label);
    painter.setPen(faint_ink(label.palette().color(ground), label.palette().color(ink)));
    painter.drawText(label.rect(), static_cast<int>(label.alignment()), label.text());
}

void accent(QPushButton& button) {
    QPalette palette = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Button, palette.color(group, QPalette::Highlight));
        palette.setColor(group, QPalette::ButtonText,
                         ink_on(palette.color(group, QPalette::Highlight),
                                palette.color(group, QPalette::HighlightedText)));
    }
    button.setPalette(palette);
}

QLineEdit* number_box(const char* name, int width) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setFixedWidth(width);
    box->setFixedHeight(box_height(*box));
    box->setAlignment(Qt::AlignRight);
    return box;
}

QLineEdit* text_box(const char* name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setAcceptDrops(false);
    return box;
}

QFont compact_font() {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * COMPACT_SHARE);
    return font;
}

QLineEdit* compact_box(const char* name, const char* widest) {
    QLineEdit* box = number_box(name, 0);
    box->setFont(compact_font());
    box->setFixedSize(compact_box_width(widest), box_height(*box));
    return box;
}

int compact_box_width(const char* widest) {
    return QFontMetrics(compact_font()).horizontalAdvance(widest) + NUMBER_MARGINS;
}

QLabel* add_unit(QLineEdit& box, const QString& widest) {
    auto* unit = new box_unit(&box);
    unit->setObjectName(box.objectName() + "_unit");
    unit->setFont(box.font());
    unit->setAttribute(Qt::WA_TransparentForMouseEvents);
    const int width = unit->fontMetrics().horizontalAdvance(widest) + UNIT_MARGIN;
    unit->setGeometry(box.width() - 1, 0, width, box.height());
    box.setFixedWidth(box.width() + width);
    box.setTextMargins(0, 0, width, 0);
    return unit;
}

QPushButton* named_button(const char* name) {
    auto* button = new QPushButton;
    button->setObjectName(name);
    return button;
}

QPushButton* command_button(const char* name) {
    QPushButton* button = named_button(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QCheckBox* named_check(const char* name) {
    auto* check = new QCheckBox;
    check->setObjectName(name);
    check->setFocusPolicy(Qt::TabFocus);
    check->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return check;
}

void show_length_unit(const app_state& state, const QList<QLabel*>& labels) {
    const message unit = length_unit_of(state).short_name;
    for (QLabel* label : labels) {
        label->setText(qt_text(message_text(unit, state.language)));
    }
}

void show_low_rows(QTableView& table) {
    constexpr int AROUND_TEXT = 6;
    table.verticalHeader()->hide();
    table.verticalHeader()->setMinimumSectionSize(0);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + AROUND_TEXT);
}

QFrame* hairline() {
    auto* line = new QFrame;
    set_accessible_role(*line, QAccessible::Separator);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    line->setFixedHeight(3);
    return line;
}

}  // namespace kvt
