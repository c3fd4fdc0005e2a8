#include "ui/parts/differing_sign.hpp"

#include "app/program.hpp"
#include "app/windows/chamber_commands.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/ink.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/exact/exact_table.hpp"

#include <QPainter>

#include <algorithm>

namespace kvt {

namespace {

constexpr QSize SIZE(16, 16);

/// The row of the table that a figure of a form has.
std::string row_of_control(std::string_view form, std::string_view control) {
    const auto controls = exact_controls();
    const auto found = std::ranges::find_if(controls, [&](const exact_control& each) {
        return each.form == form && each.control == control;
    });
    return found == controls.end() ? std::string() : std::string(found->row);
}

/// "Displacement / Product's Figure: 1.3894 CC/Rev / Exact Figure: 1.1914 CC/Rev / ..", a line
/// each.
QString both_figures(const exact_row& row, std::int16_t language) {
    const auto line = [language](std::string_view head, const std::string& value) {
        return "\n" + std::string(form_text("exact_figures", head, language)) + ": " + value;
    };
    return qt_text(row.quantity + line("product_head", row.product) +
                   line("exact_head", row.exact) + line("difference_head", row.difference));
}

}  // namespace

differing_sign::differing_sign(const char* form, const char* control, form_context context)
    : row_(row_of_control(form, control)), context_(context) {
    setObjectName(QString(control) + "_exact");
    setAutoRaise(true);
    setFixedSize(SIZE);
    setFocusPolicy(Qt::TabFocus);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    connect(this, &QToolButton::clicked, this, [this] {
        context_.runner.act(
            [row = row_](program& kavetta, user& person) { show_exact_row(kavetta, row, person); });
    });
    hide();
}

QSize differing_sign::sizeHint() const {
    return SIZE;
}

void differing_sign::refresh() {
    const std::vector<exact_row> rows = present_exact_rows(context_.kavetta);
    const auto row = std::ranges::find(rows, row_, &exact_row::name);
    const bool differs = row != rows.end() && row->differs;
    setVisible(differs);
    if (differs) {
        const QString figures = both_figures(*row, context_.kavetta.app_state.language);
        setAccessibleName(figures);
        setToolTip(figures + "\n" + tooltip_of(context_.kavetta, "exact_figures", "sign"));
    }
}

/// Two waves, in an ink that stands back.
void differing_sign::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    const QColor ground = palette().color(QPalette::Window);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(faint_ink(ground, palette().color(QPalette::WindowText)), 1.4));
    for (const double y : {6.0, 10.0}) {
        QPainterPath wave(QPointF(3.5, y));
        wave.cubicTo(QPointF(6.0, y - 3.5), QPointF(10.0, y + 3.5), QPointF(12.5, y));
        painter.drawPath(wave);
    }
}

bool has_exact_value(std::string_view form, std::string_view control) {
    return !row_of_control(form, control).empty();
}

void refresh_signs(const QWidget& form) {
    for (differing_sign* sign : form.findChildren<differing_sign*>()) {
        sign->refresh();
    }
}

}  // namespace kvt
