#include "ui/forms/perf_res.hpp"

#include "ui/parts/differing_sign.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/pinned_label.hpp"
#include "ui/parts/trial_label.hpp"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

#include <algorithm>

namespace kvt {

namespace {

/// Size of the window, twips.
constexpr int HEIGHT = 3430;
constexpr int WIDTH = 3540;
/// Room between the results, pixels.
constexpr int MARGIN = 8;
constexpr int ROW_SPACING = 3;
/// A caption, its result, the pinned one.
constexpr int COLUMNS = 3;
constexpr int PINNED_COLUMN = 2;

class result_grid {
  public:
    result_grid(QWidget& content, form_context context)
        : grid_(new QGridLayout(&content)), context_(context) {
        grid_->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
        grid_->setHorizontalSpacing(MARGIN);
        grid_->setVerticalSpacing(ROW_SPACING);
        grid_->setColumnStretch(0, 1);
        grid_->addWidget(new pinned_heading, 0, 0, 1, COLUMNS);
    }

    /// A result in the row of its caption, the pinned one beside it, its trial below it.
    void add(const char* caption, const char* result) {
        const int row = grid_->rowCount();
        QLabel* shown = compact_result(result);
        grid_->addWidget(caption_of_result(caption, *shown), row, 0);
        grid_->addWidget(shown, row, 1);
        add_pinned(result, row);
        add_trial(result);
    }
    /// A result below its caption, which is long.
    void add_below(const char* caption, const char* result) {
        QLabel* shown = compact_result(result);
        grid_->addWidget(wrapped(caption_of_result(caption, *shown)), grid_->rowCount(), 0, 1,
                         COLUMNS);
        const int row = grid_->rowCount();
        if (has_exact_value("perf_res", result)) {
            grid_->addWidget(shown, row, 1);
            grid_->addWidget(new differing_sign("perf_res", result, context_), row, 0,
                             Qt::AlignRight);
        } else {
            grid_->addWidget(shown, row, 0, 1, 2);
        }
        add_pinned(result, row);
        add_trial(result);
    }
    /// A result that is a whole sentence.
    void add_sentence(const char* result) {
        QLabel* sentence = wrapped(named_label(result));
        sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
        sentence->setFocusPolicy(Qt::NoFocus);
        grid_->addWidget(sentence, grid_->rowCount(), 0, 1, COLUMNS);
    }
    void add_trial(const char* result) {
        auto* trial = new trial_label("perf_res", result);
        trial->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid_->addWidget(trial, grid_->rowCount(), 0, 1, COLUMNS);
    }
    void add_pinned(const char* result, int row) {
        grid_->addWidget(new pinned_label("perf_res", result), row, PINNED_COLUMN);
    }
    void add_pinned(const char* result) { add_pinned(result, grid_->rowCount()); }
    void add_line() { grid_->addWidget(hairline(), grid_->rowCount(), 0, 1, COLUMNS); }
    void finish() { grid_->setRowStretch(grid_->rowCount(), 1); }

  private:
    static QLabel* compact_result(const char* name) {
        QLabel* label = result_label(name);
        QFont font = compact_font();
        font.setBold(true);
        label->setFont(font);
        return label;
    }
    static QLabel* caption_of_result(const char* name, QLabel& result) {
        QLabel* caption = named_label(name);
        caption->setBuddy(&result);
        return caption;
    }
    static QLabel* wrapped(QLabel* label) {
        label->setWordWrap(true);
        return label;
    }

    QGridLayout* grid_;
    form_context context_;
};

}  // namespace

perf_res::perf_res(form_context context) : loaded_form("perf_res", context) {
    auto* content = new QWidget;
    content->setFont(compact_font());
    result_grid results(*content, context);
    results.add_below("max_speed_label", "max_speed");
    results.add_sentence("Label5");
    results.add_line();
    results.add("max_shaft_side_load_label", "max_shaft_side_load");
    results.add("side_load_direction_label", "side_load_direction");
    results.add_line();
    results.add_below("max_cutter_inner_label", "max_cutter_inner");
    results.add_line();
    results.add_sentence("Label1");
    results.add_trial("Label1");
    results.add_pinned("Label1");
    results.finish();
    bind(content, true);
}

void perf_res::refresh() {
    loaded_form::refresh();
    refresh_signs(*this);
}

void perf_res::show_trial(const trial_figures* trial) {
    loaded_form::show_trial(trial);
    grow_to_content();
}

void perf_res::show_pinned(const pinned_figures* pinned) {
    loaded_form::show_pinned(pinned);
    grow_to_content();
}

/// Where its rows become more, the window becomes higher rather than scrolls, as far as the main
/// window has room below it.
void perf_res::grow_to_content() {
    auto* area = qobject_cast<QScrollArea*>(widget());
    if (area == nullptr || isMaximized() || isMinimized() || isShaded()) {
        return;
    }
    QLayout* rows = area->widget()->layout();
    rows->activate();
    const int width = std::max(area->viewport()->width(), rows->minimumSize().width());
    const int missing = rows->totalHeightForWidth(width) - area->viewport()->height();
    const int room = parentWidget()->height() - geometry().bottom();
    if (const int more = std::min(missing, room); more > 0) {
        resize(this->width(), height() + more);
    }
}

QSize perf_res::start_size() const {
    return {WIDTH / TWIPS_PER_PIXEL, HEIGHT / TWIPS_PER_PIXEL};
}

}  // namespace kvt
