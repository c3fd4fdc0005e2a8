#include "ui/forms/graphview2.hpp"

#include "app/program.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/shell/present_layout.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>

namespace kvt {

namespace {

double twips(double pixels) {
    return pixels * TWIPS_PER_PIXEL;
}

}  // namespace

graphview2::graphview2(const chart_row& row, form_context context)
    : chart_view(load_chart(context.kavetta, row.kind), context, Qt::WindowShortcut),
      loaded_(chart()),
      language_(context.kavetta.app_state.language),
      system_(length_unit_of(context.kavetta.app_state).system) {
    setObjectName(qt_text(row.form));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(qt_text(chart().window_caption));
    setWindowIcon(program_icon());
    connect(this, &chart_view::close_asked, this, &QWidget::close);
    connect(&context_.runner, &command_runner::finished, this, &graphview2::show_pinned);
    put_in_place();
    show_pinned();
    draw();
}

void graphview2::show_pinned() {
    if (pinned_ != context_.kavetta.pinned) {
        pinned_ = context_.kavetta.pinned;
        show_chart(beside_pinned(context_.kavetta, loaded_, language_, system_));
    }
}

void graphview2::put_in_place() {
    setMinimumSize(pixels_of(static_cast<float>(SMALLEST_CHART.width - CHART_FRAME.width)),
                   pixels_of(static_cast<float>(SMALLEST_CHART.height - CHART_FRAME.height)));
    window_rectangle place = chart_place(context_.kavetta, chart().kind);
    place.width -= static_cast<float>(CHART_FRAME.width);
    place.height -= static_cast<float>(CHART_FRAME.height);
    place_window(*this, place);
}

window_rectangle graphview2::place() const {
    const QRect inner = normalGeometry();
    const QPoint corner = inner.topLeft() - (geometry().topLeft() - pos());
    return {static_cast<float>(twips(inner.height()) + CHART_FRAME.height),
            static_cast<float>(twips(inner.width()) + CHART_FRAME.width),
            static_cast<float>(twips(corner.y())), static_cast<float>(twips(corner.x()))};
}

void graphview2::drag_window(const QPointF& step) {
    if (step.isNull()) {
        return;
    }
    dragged_corner_ += step;
    move((dragged_corner_ / TWIPS_PER_PIXEL).toPoint());
}

/// Until the event loop deletes it, nobody shall find the closed chart.
void graphview2::closeEvent(QCloseEvent* event) {
    setObjectName(QString());
    unload_chart(context_.kavetta, chart().kind);
    event->accept();
}

void graphview2::mousePressEvent(QMouseEvent* event) {
    window_drag_.press(event->button(), event->position());
    dragged_corner_ = QPointF(pos()) * TWIPS_PER_PIXEL;
    chart_view::mousePressEvent(event);
}

void graphview2::mouseMoveEvent(QMouseEvent* event) {
    if (window_drag_.is_on()) {
        drag_window(window_drag_.step(event->position()));
    } else {
        chart_view::mouseMoveEvent(event);
    }
}

void graphview2::mouseReleaseEvent(QMouseEvent*) {
    window_drag_.release();
}

graphview2* open_chart(std::string_view form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* chart = qobject_cast<graphview2*>(window);
        if (chart != nullptr && chart->objectName() == qt_text(form)) {
            return chart;
        }
    }
    return nullptr;
}

}  // namespace kvt
