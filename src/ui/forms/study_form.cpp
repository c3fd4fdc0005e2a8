#include "ui/forms/study_form.hpp"

#include "app/program.hpp"
#include "app/study/duration_text.hpp"
#include "app/study/pareto_front.hpp"
#include "app/study/study_files.hpp"
#include "app/study/study_problem.hpp"
#include "app/trial/design_trial.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/chart_view.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/study_plan_side.hpp"
#include "ui/parts/study_table_model.hpp"
#include "ui/parts/study_worker.hpp"
#include "ui/shell/qt_text.hpp"

#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <utility>

namespace kvt {

namespace {

constexpr QSize START_SIZE(1080, 640);
constexpr int MARGIN = 8;
constexpr int PLAN_WIDTH = 360;
/// So often the chart is drawn anew while rows come.
constexpr int REDRAW_MS = 300;
constexpr int CHART_PAGE = 1;

QComboBox* choice_box(const char* name) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return box;
}

}  // namespace

study_form::study_form(form_context context)
    : loaded_form("study_form", context),
      plan_(new study_plan_side(context.kavetta)),
      run_(named_button("run_study")),
      stop_(named_button("stop_study")),
      progress_(new QProgressBar),
      progress_text_(new QLabel),
      filter_(text_box("study_filter")),
      shown_text_(new QLabel),
      tabs_(new QTabWidget),
      table_(new QTableView),
      take_over_(named_button("take_over")),
      save_table_(named_button("save_table")),
      save_projects_(named_button("save_projects")),
      chart_x_(choice_box("chart_x")),
      chart_y_(choice_box("chart_y")),
      chart_colour_(choice_box("chart_colour")),
      chart_along_(choice_box("chart_along")),
      no_chart_(new QLabel),
      redraw_(new QTimer(this)),
      model_(new study_table_model(this)),
      worker_(new study_worker(this)) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto* content = new QSplitter;
    content->addWidget(asking_side());
    content->addWidget(result_side());
    content->setStretchFactor(1, 1);
    connect(worker_, &study_worker::came, this, &study_form::take_rows);
    connect(worker_, &study_worker::progressed, this, &study_form::show_progress);
    connect(worker_, &study_worker::ended, this, &study_form::end_run);
    bind(content, false);
    set_main_button(run_);
    accent(*run_);
}

study_form::~study_form() = default;

QSize study_form::start_size() const {
    return START_SIZE;
}

QRect study_form::start_place(const QRect& area) const {
    QRect place(QPoint(0, 0), start_size().boundedTo(area.size()));
    place.moveBottomRight(area.bottomRight());
    return place;
}

void study_form::changeEvent(QEvent* event) {
    loaded_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        accent(*run_);
    }
}

void study_form::closeEvent(QCloseEvent* event) {
    emit design_pointed(nullptr);
    // Hidden as the forms that are always there, not forgotten as those that are loaded.
    mdi_form::closeEvent(event);  // NOLINT(bugprone-parent-virtual-call): that is what is left out
}

// What is asked.

QWidget* study_form::asking_side() {
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(plan_, 1);
    add_commands(*layout);
    side->setMinimumWidth(PLAN_WIDTH);
    return side;
}

void study_form::add_commands(QVBoxLayout& side) {
    progress_->setObjectName("study_progress");
    progress_->setTextVisible(false);
    // Nothing moves when it comes and goes.
    QSizePolicy place = progress_->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(place);
    progress_text_->setObjectName("study_progress_text");
    side.addWidget(progress_);
    side.addWidget(progress_text_);
    auto* row = new QHBoxLayout;
    QPushButton* open = named_button("open_study");
    QPushButton* save = named_button("save_study");
    row->addWidget(run_);
    row->addWidget(stop_);
    row->addStretch();
    row->addWidget(open);
    row->addWidget(save);
    side.addLayout(row);
    connect(run_, &QPushButton::clicked, this, &study_form::run);
    connect(stop_, &QPushButton::clicked, worker_, &study_worker::stop);
    connect(open, &QPushButton::clicked, this, &study_form::open);
    connect(save, &QPushButton::clicked, this, &study_form::save);
}

QWidget* study_form::result_side() {
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(filter_line());

    table_->setObjectName("study_table");
    table_->setModel(model_);
    table_->setSortingEnabled(true);
    sort_by_number();
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    show_low_rows(*table_);
    table_->setWordWrap(false);
    tabs_->setObjectName("study_tabs");
    tabs_->addTab(table_, QString());
    tabs_->addTab(chart_page(), QString());
    layout->addWidget(tabs_, 1);

    auto* below = new QHBoxLayout;
    below->addWidget(take_over_);
    below->addStretch();
    below->addWidget(save_table_);
    below->addWidget(save_projects_);
    layout->addLayout(below);

    connect(tabs_, &QTabWidget::currentChanged, this, &study_form::show_chart);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &study_form::point_at_row);
    // Other rows: none is chosen, of which no signal tells.
    connect(model_, &QAbstractItemModel::modelReset, this, &study_form::point_at_row);
    connect(take_over_, &QPushButton::clicked, this, &study_form::take_over);
    connect(save_table_, &QPushButton::clicked, this, &study_form::save_table);
    connect(save_projects_, &QPushButton::clicked, this, &study_form::save_projects);
    return side;
}

QWidget* study_form::filter_line() {
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = named_label("filter_label");
    label->setBuddy(filter_);
    shown_text_->setObjectName("study_shown");
    layout->addWidget(label);
    layout->addWidget(filter_, 1);
    layout->addWidget(shown_text_);
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        model_->filter(utf8_text(text));
        show_counts();
        redraw_->start();
    });
    return line;
}

QWidget* study_form::chart_page() {
    auto* page = new QWidget;
    chart_place_ = new QVBoxLayout(page);
    auto* choices = new QHBoxLayout;
    const std::array<std::pair<const char*, QComboBox*>, 4> axes = {
        {{"x_label", chart_x_},
         {"y_label", chart_y_},
         {"colour_label", chart_colour_},
         {"along_label", chart_along_}}};
    for (const auto& [label, list] : axes) {
        auto* text = named_label(label);
        text->setBuddy(list);
        choices->addWidget(text);
        choices->addWidget(list, 1);
        connect(list, &QComboBox::activated, this, &study_form::show_chart);
    }
    chart_place_->addLayout(choices);
    no_chart_->setObjectName("study_no_chart");
    no_chart_->setAlignment(Qt::AlignCenter);
    chart_place_->addWidget(no_chart_, 1);
    redraw_->setSingleShot(true);
    redraw_->setInterval(REDRAW_MS);
    connect(redraw_, &QTimer::timeout, this, &study_form::show_chart);
    return page;
}

// What is shown.

QString study_form::text_named(const char* name) const {
    return qt_text(form_text("study_form", name, context_.kavetta.app_state.language));
}

void study_form::refresh() {
    loaded_form::refresh();
    const std::int16_t language = context_.kavetta.app_state.language;
    if (language_ != language) {
        language_ = language;
        fill_axes();
        tabs_->setTabText(0, text_named("table_tab"));
        tabs_->setTabText(CHART_PAGE, text_named("chart_tab"));
        no_chart_->setText(text_named("no_dots"));
        model_->set_language(language);
        if (chart_ != nullptr) {
            chart_->translate();
        }
    }
    plan_->refresh();
    show_running();
    show_counts();
}

/// The focus stays with the two buttons: from one that can't be pressed it would go on to the next.
void study_form::show_running() {
    const bool is_running = worker_->is_running();
    QPushButton* usable = is_running ? stop_ : run_;
    QPushButton* other = is_running ? run_ : stop_;
    usable->setEnabled(true);
    if (other->hasFocus()) {
        usable->setFocus();
    }
    other->setEnabled(false);
    progress_->setVisible(is_running);
}

void study_form::show_usable() {
    const bool is_chosen = table_->selectionModel()->hasSelection();
    take_over_->setEnabled(is_chosen);
    save_projects_->setEnabled(is_chosen);
    save_table_->setEnabled(!model_->table().rows().empty());
}

void study_form::show_counts() {
    shown_text_->setText(
        text_named("shown").arg(model_->rowCount()).arg(model_->table().rows().size()));
    show_usable();
}

void study_form::show_progress(quint64 done, quint64 count, double seconds_left) {
    constexpr quint64 MOST = std::numeric_limits<int>::max();
    progress_->setMaximum(static_cast<int>(std::min(count, MOST)));
    progress_->setValue(static_cast<int>(std::min(done, MOST)));
    progress_text_->setText(
        seconds_left > 0.0
            ? text_named("time_left").arg(done).arg(count).arg(qt_text(duration_text(seconds_left)))
            : text_named("progress").arg(done).arg(count));
}

// The study.

/// The entries as they stand in the boxes are the project; nothing of it is calculated here.
void study_form::run() {
    context_.runner.act([this](program& kavetta, user& person) {
        try {
            study_document asked = plan_->document();
            designs_ = worker_->start(std::make_shared<const program>(trial_copy(kavetta)), asked);
            calculated_ = std::move(asked);
            model_->show_table(study_table(designs_));
            sort_by_number();
            model_->filter(utf8_text(filter_->text()));
            fill_axes();
        } catch (const study_problem& problem) {
            person.show_message(problem.text(kavetta.app_state.language));
        }
    });
}

void study_form::take_rows(const std::vector<study_row>& rows) {
    const bool are_first = model_->table().rows().empty();
    model_->add(rows);
    show_counts();
    if (are_first) {
        table_->resizeColumnsToContents();
    }
    if (!redraw_->isActive()) {
        redraw_->start();
    }
}

/// As the rows come, which the head then says.
void study_form::sort_by_number() {
    table_->sortByColumn(0, Qt::AscendingOrder);
}

/// Rows that came since the head was clicked stand behind the others.
void study_form::sort_again() {
    const QHeaderView& head = *table_->horizontalHeader();
    const bool is_by_number =
        head.sortIndicatorSection() == 0 && head.sortIndicatorOrder() == Qt::AscendingOrder;
    if (!is_by_number) {
        table_->sortByColumn(head.sortIndicatorSection(), head.sortIndicatorOrder());
    }
}

void study_form::end_run(const QString& problem) {
    show_running();
    sort_again();
    mark_front();
    show_chart();
    if (!problem.isEmpty()) {
        context_.person.show_message(utf8_text(problem));
    }
}

void study_form::mark_front() {
    if (designs_ == nullptr || designs_->plan().aims.empty()) {
        return;
    }
    pareto_front front(*designs_);
    for (const study_row& row : model_->table().rows()) {
        front.add(row);
    }
    std::set<std::uint64_t> numbers;
    for (const study_row& row : front.rows()) {
        numbers.insert(row.number);
    }
    model_->mark(std::move(numbers));
}

// The chart.

/// The columns of the table; what was chosen stays chosen where there is such a column.
void study_form::fill_axes() {
    const study_table& table = model_->table();
    for (QComboBox* list : {chart_x_, chart_y_, chart_colour_, chart_along_}) {
        const QString chosen = list->currentText();
        list->clear();
        if (list == chart_colour_ || list == chart_along_) {
            list->addItem(text_named("nothing"));
        }
        for (const std::size_t column : number_columns(table)) {
            if (list != chart_along_ || column < table.result_column()) {
                list->addItem(qt_text(table.heading(column)), static_cast<int>(column));
            }
        }
        list->setCurrentIndex(std::max(0, list->findText(chosen)));
        open_as_wide_as_its_items(*list);
    }
    if (chart_y_->currentText() == chart_x_->currentText()) {
        chart_y_->setCurrentIndex(chart_y_->count() - 1);
    }
}

void study_form::show_chart() {
    if (tabs_->currentIndex() != CHART_PAGE) {
        return;
    }
    const auto chosen = [](const QComboBox& list) {
        const QVariant column = list.currentData();
        return column.isValid() ? std::optional(static_cast<std::size_t>(column.toInt()))
                                : std::nullopt;
    };
    const auto x = chosen(*chart_x_);
    const auto y = chosen(*chart_y_);
    drawn_ = x && y ? make_study_chart(model_->table(),
                                       {*x, *y, chosen(*chart_colour_), chosen(*chart_along_)},
                                       language_)
                    : std::nullopt;
    no_chart_->setVisible(!drawn_);
    if (chart_ != nullptr) {
        chart_->setVisible(drawn_.has_value());
    }
    if (!drawn_) {
        return;
    }
    if (chart_ != nullptr) {
        chart_->show_chart(drawn_->chart);
        return;
    }
    chart_ = new chart_view(drawn_->chart, context_, Qt::WidgetWithChildrenShortcut);
    chart_->setObjectName("study_chart");
    chart_place_->addWidget(chart_, 1);
    connect(chart_, &chart_view::point_clicked, this, [this](const chart_reading& reading) {
        choose_design(drawn_->designs[reading.curve][reading.point]);
    });
}

/// As if its row were clicked.
void study_form::choose_design(std::uint64_t number) {
    for (std::size_t place = 0; place < model_->table().shown_count(); ++place) {
        if (model_->table().shown(place).number == number) {
            table_->selectRow(static_cast<int>(place));
            return;
        }
    }
}

// What is done with a design.

std::vector<study_row> study_form::chosen_rows() const {
    std::vector<study_row> rows;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        rows.push_back(model_->table().shown(static_cast<std::size_t>(index.row())));
    }
    return rows;
}

void study_form::point_at_row() {
    show_usable();
    const std::vector<study_row> rows = chosen_rows();
    if (rows.empty() || designs_ == nullptr) {
        pointing_.give_up();
        emit design_pointed(nullptr);
        return;
    }
    pointing_.start([this, designs = designs_,
                     texts = rows.front().texts](const std::atomic<bool>&) -> latest_task::ending {
        program tried;
        const study_row row = designs->calculate(texts, tried);
        std::shared_ptr<const kept_design> kept;
        if (row.result.end == batch_end::ok) {
            kept = std::make_shared<const kept_design>(kept_design_of(std::move(tried)));
        }
        return [this, kept] { emit design_pointed(kept); };
    });
}

void study_form::take_over() {
    const std::vector<study_row> rows = chosen_rows();
    if (rows.empty()) {
        return;
    }
    context_.runner.act([&](program& kavetta, user& person) {
        take_over_design(kavetta, person, designs_->plan().variables, rows.front().texts);
    });
    // The button can't be pressed then: the focus goes back to the rows.
    table_->setFocus();
    table_->clearSelection();
}

void study_form::open() {
    context_.runner.act([this](const program& kavetta, user& person) {
        const std::optional<study_document> opened = open_study(kavetta, person);
        if (!opened) {
            return;
        }
        worker_->stop();
        plan_->show_document(*opened);
        calculated_ = *opened;
        designs_.reset();
        study_table table;
        if (!opened->rows.empty()) {
            designs_ = std::make_shared<const study>(study_of(kavetta, *opened));
            table = study_table(designs_);
            table.add(opened->rows);
        }
        model_->show_table(std::move(table));
        sort_by_number();
        table_->resizeColumnsToContents();
        fill_axes();
        mark_front();
        show_chart();
    });
}

/// The study that the rows came of, whatever was typed since.
void study_form::save() {
    context_.runner.act([this](const program& kavetta, user& person) {
        const bool has_rows = !model_->table().rows().empty();
        study_document saved = has_rows ? calculated_ : plan_->document();
        saved.rows = model_->table().rows();
        save_study(kavetta, person, saved);
    });
}

void study_form::save_table() {
    if (designs_ == nullptr) {
        return;
    }
    context_.runner.act([this](const program& kavetta, user& person) {
        std::vector<study_row> shown;
        for (std::size_t place = 0; place < model_->table().shown_count(); ++place) {
            shown.push_back(model_->table().shown(place));
        }
        save_study_table(kavetta, person, *designs_, shown);
    });
}

void study_form::save_projects() {
    const std::vector<study_row> rows = chosen_rows();
    if (rows.empty()) {
        return;
    }
    context_.runner.act([&](const program& kavetta, user& person) {
        save_study_projects(kavetta, person, *designs_, rows);
    });
}

}  // namespace kvt
