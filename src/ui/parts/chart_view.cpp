#include "ui/parts/chart_view.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "app/windows/result_charts.hpp"
#include "core/user.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/accessible_role.hpp"
#include "ui/parts/chart_popup.hpp"
#include "ui/parts/chart_printing.hpp"
#include "ui/parts/legend_frame.hpp"
#include "ui/parts/reading_keys.hpp"
#include "ui/shell/qt_text.hpp"
#include "views/charts/chart_text.hpp"

#include <QClipboard>
#include <QCursor>
#include <QDir>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace kvt {

namespace {

/// How far from a point of a curve the mouse still reads it, twips: more than half of the way
/// between two points at the default size.
constexpr double READING_REACH = 900.0;
/// How far outside the plot the points at its edge can be read, pixels.
constexpr double PLOT_MARGIN = 8.0;
/// What a tooltip takes below and right of its place, at most, pixels.
constexpr QSize TOOLTIP_ROOM(320, 64);

double twips(double pixels) {
    return pixels * TWIPS_PER_PIXEL;
}

const chart_label* label_at(const std::vector<chart_label>& labels, const QPointF& place) {
    for (const chart_label& label : labels) {
        if (label.visible && in_pixels(label.box).contains(place)) {
            return &label;
        }
    }
    return nullptr;
}

}  // namespace

chart_view::chart_view(result_chart chart, form_context context, Qt::ShortcutContext keys,
                       QWidget* parent)
    : QWidget(parent),
      context_(context),
      keys_(keys),
      chart_(std::move(chart)),
      metrics_(chart_metrics()),
      hidden_(chart_.curves.size()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    set_accessible_role(*this, QAccessible::Chart);
    set_accessible_name(*this, qt_text(chart_.title));
    describe(QString());
    add_legend();
    add_popup();
    draw();
}

void chart_view::show_chart(result_chart chart) {
    if (chart.curves.size() != hidden_.size()) {
        hidden_.assign(chart.curves.size(), false);
    }
    chart_ = std::move(chart);
    set_accessible_name(*this, qt_text(chart_.title));
    show_legend_texts();
    end_reading();
    describe(QString());
    draw();
}

void chart_view::translate() {
    delete popup_;
    add_popup();
    show_legend_texts();
}

void chart_view::add_legend() {
    if (chart_.legend_caption.empty()) {
        return;
    }
    legend_ = new legend_frame(this);
    show_legend_texts();
    connect(legend_, &legend_frame::dragged, this, &chart_view::drag_legend);
    connect(legend_, &legend_frame::clicked, this, &chart_view::toggle_curve);
    connect(legend_, &legend_frame::menu_asked, this, &chart_view::open_popup);
}

void chart_view::show_legend_texts() {
    if (legend_ == nullptr) {
        return;
    }
    const QString handling = tooltip_of(context_.kavetta, "graphpopupmenu", "legend_frame");
    legend_->setToolTip(QStringList({qt_text(chart_.legend_hint), handling}).join("\n").trimmed());
    set_accessible_name(*legend_, qt_text(chart_.legend_caption));
}

void chart_view::add_popup() {
    popup_ = new chart_popup(context_.kavetta.app_state.language, this, keys_);
    connect(popup_, &chart_popup::copy_asked, this, &chart_view::copy);
    connect(popup_, &chart_popup::print_asked, this, &chart_view::print);
    connect(popup_, &chart_popup::save_asked, this, &chart_view::save);
    connect(popup_, &chart_popup::export_asked, this, &chart_view::export_chart);
    connect(popup_, &chart_popup::close_asked, this, &chart_view::close_asked);
}

void chart_view::open_popup(const QPoint& global_place) {
    if (!popup_->isVisible()) {
        popup_->popup(global_place);
    }
}

chart_size chart_view::size_twips() const {
    return {twips(width()) + CHART_FRAME.width, twips(height()) + CHART_FRAME.height};
}

shown_chart chart_view::shown() const {
    return {chart_, drawing_, hidden_, size()};
}

void chart_view::draw() {
    drawing_ = draw_chart(chart_, size_twips(), moved_legend_, metrics_);
    if (legend_ != nullptr && drawing_.legend_frame) {
        legend_->show_legend(*drawing_.legend_frame, hidden_);
    }
    update();
}

void chart_view::drag_legend(double x, double y) {
    const chart_box& frame = drawing_.legend_frame->frame;
    const point2 corner = moved_legend_.value_or(point2{frame.left, frame.top});
    moved_legend_ = kept_inside(drawing_, {corner.x + x, corner.y + y}, size_twips());
    draw();
}

void chart_view::toggle_curve(int series) {
    const auto curve = static_cast<std::size_t>(series - 1);
    if (curve >= hidden_.size()) {
        return;
    }
    hidden_[curve] = !hidden_[curve];
    if (reading_ && reading_->curve == curve) {
        end_reading();
    }
    describe(QString());
    draw();
}

void chart_view::show_reading(const chart_reading& reading, const QPoint& global_place) {
    const QString text = qt_text(reading_text(chart_, reading));
    reading_ = reading;
    QToolTip::showText(global_place, text, this);
    describe(text);
    update();
    emit reading_changed(reading_);
}

void chart_view::end_reading() {
    if (!reading_) {
        return;
    }
    reading_.reset();
    QToolTip::hideText();
    describe(QString());
    update();
    emit reading_changed(reading_);
}

std::optional<chart_reading> chart_view::reading_at(const QPointF& place) const {
    const QRectF plot =
        in_pixels(drawing_.Picture1).adjusted(-PLOT_MARGIN, -PLOT_MARGIN, PLOT_MARGIN, PLOT_MARGIN);
    return plot.contains(place)
               ? nearest_reading(chart_, drawing_, {twips(place.x()), twips(place.y())}, hidden_,
                                 READING_REACH)
               : std::nullopt;
}

void chart_view::read_at(const QPointF& place) {
    const std::optional<chart_reading> reading = reading_at(place);
    if (reading == reading_) {
        return;
    }
    is_pointed_at_ = reading.has_value();
    if (reading) {
        show_reading(*reading, mapToGlobal(place.toPoint()));
    } else {
        end_reading();
    }
}

/// The tooltip stands at the point, but not under the pointer, where it would go at once.
void chart_view::read_by_key(const chart_reading& reading) {
    is_pointed_at_ = false;
    const QPointF point = in_pixels(place_of(chart_, drawing_, reading));
    const QPoint place = mapToGlobal(point.toPoint());
    const bool is_under_pointer = QRect(place, TOOLTIP_ROOM).contains(QCursor::pos());
    show_reading(reading, is_under_pointer ? QCursor::pos() : place);
}

/// What a screen reader says: the value that is read, then all that the chart shows.
void chart_view::describe(const QString& reading) {
    QStringList sentences = {
        qt_text(chart_text(chart_, hidden_, context_.kavetta.app_state.language))};
    if (!reading.isEmpty()) {
        sentences.prepend(reading);
    }
    set_accessible_description(*this, sentences.join("; "));
}

/// The hint of the text at a place; empty where there is none.
QString chart_view::hint_at(const QPointF& place) const {
    for (const std::vector<chart_label>& labels :
         {std::vector{drawing_.graph_title, drawing_.xaxis_title}, drawing_.xaxis_marker,
          drawing_.yaxis_marker}) {
        if (const chart_label* label = label_at(labels, place)) {
            return qt_text(label->hint);
        }
    }
    return {};
}

void chart_view::copy() const {
    QGuiApplication::clipboard()->setImage(chart_picture(shown(), devicePixelRatioF()));
}

void chart_view::print() {
    context_.runner.act([this](const program& kavetta, user&) {
        const QDir folder(qt_text(project_folder(kavetta)));
        const QString file = qt_text(kavetta.app_state.project_name) + ".pdf";
        ask_and_print(shown(), QDir::toNativeSeparators(folder.filePath(file)), this);
    });
}

void chart_view::save() {
    context_.runner.act([this](const program& kavetta, user& person) {
        save_chart_picture(kavetta, person, chart_,
                           bitmap_file(QGuiApplication::clipboard()->image()));
    });
}

void chart_view::export_chart() {
    context_.runner.act([this](const program& kavetta, user& person) {
        const std::optional<saved_text> saved = ask_and_save_bytes(
            kavetta, person, chart_export_dialog(kavetta, chart_), [&](const std::string& path) {
                return exported_chart(shown(), format_of(path), devicePixelRatioF(),
                                      kavetta.decimal_mark);
            });
        if (saved) {
            tell_outcome(person, *saved);
        }
    });
}

bool chart_view::event(QEvent* event) {
    // Its keys go before those of the main window that has the same.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Print)) {
        event->accept();
        return true;
    }
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<const QHelpEvent*>(event);
    if (const QString hint = hint_at(help->pos()); !hint.isEmpty()) {
        QToolTip::showText(help->globalPos(), hint, this);
    }
    return true;
}

/// The right button has opened the menu when it went down.
void chart_view::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        open_popup(mapToGlobal(rect().center()));
    }
}

void chart_view::keyPressEvent(QKeyEvent* event) {
    const bool with_ctrl = event->modifiers().testFlag(Qt::ControlModifier);
    const bool is_menu_key =
        event->key() == Qt::Key_Menu ||
        (event->key() == Qt::Key_F10 && event->modifiers().testFlag(Qt::ShiftModifier));
    if (is_menu_key) {
        open_popup(mapToGlobal(rect().center()));
    } else if (event->matches(QKeySequence::Print)) {
        print();
    } else if (event->key() >= Qt::Key_1 && event->key() <= Qt::Key_5 && legend_ != nullptr) {
        toggle_curve(event->key() - Qt::Key_1 + 1);
    } else if (const auto next = next_reading(chart_, hidden_, reading_, event->key(), with_ctrl)) {
        read_by_key(*next);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void chart_view::leaveEvent(QEvent*) {
    if (reading_ && is_pointed_at_) {
        end_reading();
    }
}

void chart_view::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        open_popup(event->globalPosition().toPoint());
    } else if (const auto reading = reading_at(event->position())) {
        emit point_clicked(*reading);
    }
}

void chart_view::mouseMoveEvent(QMouseEvent* event) {
    read_at(event->position());
}

void chart_view::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paint_chart(painter, drawing_, hidden_, size());
    if (reading_) {
        paint_reading(painter, in_pixels(place_of(chart_, drawing_, *reading_)));
    }
}

/// A minimised window has no lengths to draw in.
void chart_view::resizeEvent(QResizeEvent*) {
    if (!window()->isMinimized()) {
        draw();
    }
}

}  // namespace kvt
