#include "ui/forms/study_form.hpp"

#include "app/program.hpp"
#include "app/study/pareto_front.hpp"
#include "app/study/study_files.hpp"
#include "app/study/study_problem.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/entry_limits.hpp"
#include "base/number_text.hpp"
#include "core/entry_names.hpp"
#include "core/entry_numbers.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/chart_view.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/study_table_model.hpp"
#include "ui/parts/study_worker.hpp"
#include "ui/shell/qt_text.hpp"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace kvt {

namespace {

constexpr QSize START_SIZE(1080, 640);
constexpr int MARGIN = 8;
constexpr int PLAN_WIDTH = 360;
constexpr int FIRST_COUNT = 200;
constexpr int MOST_DESIGNS = 10000000;
constexpr int MOST_SEED = 1000000000;
/// So often the chart is drawn anew while rows come.
constexpr int REDRAW_MS = 300;
constexpr int CHART_PAGE = 1;

/// The kinds of a study in the order of their list.
enum study_kind { grid_kind, latin_kind, sobol_kind, search_kind };
constexpr std::array<const char*, 4> KINDS = {"kind_grid", "kind_latin", "kind_sobol",
                                              "kind_search"};
constexpr std::array<const char*, 3> SAMPLES = {"grid", "latin:", "sobol:"};

constexpr const char* FIRST_ENTRY = "ecc";

/// What a new study records.
constexpr std::array<const char*, 5> FIRST_QUANTITIES = {"capacity", "outer_diameter",
                                                         "overall_eff_max", "ripple", "hertz_max"};

QLineEdit* text_box(const char* name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setAcceptDrops(false);
    return box;
}

QSpinBox* count_box(const char* name, int least, int most, int value) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(least, most);
    box->setValue(value);
    return box;
}

QComboBox* choice_box(const char* name) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return box;
}

/// Those that are one number.
std::vector<study_quantity> listed_quantities(const program& kavetta) {
    std::vector<study_quantity> listed = study_quantities(kavetta);
    std::erase_if(listed, [](const study_quantity& quantity) {
        return quantity.spread != quantity_spread::nothing;
    });
    return listed;
}

QPushButton* plain_button(const char* name) {
    auto* button = new QPushButton;
    button->setObjectName(name);
    return button;
}

void add_labelled(QGridLayout& grid, const char* label, QWidget* box) {
    auto* text = named_label(label);
    text->setBuddy(box);
    const int row = grid.rowCount();
    grid.addWidget(text, row, 0);
    grid.addWidget(box, row, 1);
}

/// Texts between semicolons, without the blanks around them.
std::vector<std::string> parted(const QString& text) {
    std::vector<std::string> parts;
    for (const QString& part : text.split(';', Qt::SkipEmptyParts)) {
        if (!part.trimmed().isEmpty()) {
            parts.push_back(utf8_text(part.trimmed()));
        }
    }
    return parts;
}

QString joined(const std::vector<std::string>& parts) {
    QStringList texts;
    for (const std::string& part : parts) {
        texts.append(qt_text(part));
    }
    return texts.join("; ");
}

/// A power of ten, between a hundredth and a thousandth of a range.
double round_step(double range) {
    return std::pow(10.0, std::floor(std::log10(range)) - 2.0);
}

/// The accepted range of a number as it stands, "2.1:2.87:0.01"; half to double of it where an end
/// is open; the text itself where no number is accepted.
std::string first_values(const program& kavetta, const entry_field& entry) {
    const std::string& present = kavetta.entries.*entry.member;
    if (entry.kind == entry_kind::check) {
        return "0,1";
    }
    const double number = val(commas_to_points(present));
    const calc_stage last = std::max(reading_stage(entry).value_or(calc_stage::profiles),
                                     last_calculated_stage(kavetta));
    const auto limits = find_limits(kavetta, entry, last);
    if (!limits || number == 0.0) {
        return present;
    }
    const auto end = [](const std::optional<entry_limit>& limit, double open) {
        return limit ? commas_to_points(limit->shown) : number_text(open);
    };
    const std::string lowest = end(limits->lowest, number / 2.0);
    const std::string highest = end(limits->highest, number * 2.0);
    const bool is_whole = number_kind_of(entry.name) == number_kind::whole;
    const double step = is_whole ? 1.0 : round_step(val(highest) - val(lowest));
    return lowest + ":" + highest + ":" + number_text(step);
}

}  // namespace

study_form::study_form(form_context context)
    : loaded_form("study_form", context),
      variables_(new QTableWidget(0, 2)),
      entry_(new QComboBox),
      kind_(new QComboBox),
      count_(count_box("study_count", 1, MOST_DESIGNS, FIRST_COUNT)),
      seed_(count_box("study_seed", 0, MOST_SEED, 0)),
      step_(text_box("study_step")),
      with_assist_(new QCheckBox),
      quantity_filter_(text_box("quantity_filter")),
      quantities_(new QListWidget),
      conditions_(text_box("study_conditions")),
      targets_(text_box("study_targets")),
      aims_(text_box("study_aims")),
      run_(plain_button("run_study")),
      stop_(plain_button("stop_study")),
      progress_(new QProgressBar),
      progress_text_(new QLabel),
      filter_(text_box("study_filter")),
      shown_text_(new QLabel),
      tabs_(new QTabWidget),
      table_(new QTableView),
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
    content->addWidget(plan_side());
    content->addWidget(result_side());
    content->setStretchFactor(1, 1);
    connect(worker_, &study_worker::came, this, &study_form::take_rows);
    connect(worker_, &study_worker::progressed, this, &study_form::show_progress);
    connect(worker_, &study_worker::ended, this, &study_form::end_run);
    fill_quantities();
    bind(content, false);
    set_main_button(run_);
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

void study_form::closeEvent(QCloseEvent* event) {
    emit design_pointed(nullptr);
    mdi_form::closeEvent(event);
}

// What is asked.

QWidget* study_form::plan_side() {
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    add_variables(*layout);
    auto* grid = new QGridLayout;
    add_kind(*grid);
    add_texts(*grid);
    layout->addLayout(grid);
    add_quantities(*layout);
    add_commands(*layout);
    side->setMinimumWidth(PLAN_WIDTH);
    return side;
}

void study_form::add_variables(QBoxLayout& side) {
    variables_->setObjectName("variables");
    variables_->verticalHeader()->hide();
    variables_->horizontalHeader()->setStretchLastSection(true);
    variables_->setSelectionBehavior(QAbstractItemView::SelectRows);
    variables_->setTabKeyNavigation(false);
    entry_->setObjectName("study_entry");
    auto* label = named_label("variables_label");
    label->setBuddy(variables_);
    side.addWidget(label);
    side.addWidget(variables_);
    auto* row = new QHBoxLayout;
    row->addWidget(entry_, 1);
    QPushButton* add = plain_button("add_variable");
    QPushButton* remove = plain_button("remove_variable");
    row->addWidget(add);
    row->addWidget(remove);
    side.addLayout(row);
    connect(add, &QPushButton::clicked, this, &study_form::add_variable);
    connect(remove, &QPushButton::clicked, this, &study_form::remove_variable);
}

void study_form::add_kind(QGridLayout& grid) {
    kind_->setObjectName("study_kind");
    add_labelled(grid, "kind_label", kind_);
    add_labelled(grid, "count_label", count_);
    add_labelled(grid, "seed_label", seed_);
    add_labelled(grid, "step_label", step_);
    step_->setText("0.01");
    with_assist_->setObjectName("begin_with_assist");
    grid.addWidget(with_assist_, grid.rowCount(), 1);
    connect(kind_, &QComboBox::currentIndexChanged, this, &study_form::show_kind);
}

void study_form::add_texts(QGridLayout& grid) {
    add_labelled(grid, "conditions_label", conditions_);
    add_labelled(grid, "targets_label", targets_);
    add_labelled(grid, "aims_label", aims_);
}

void study_form::add_quantities(QBoxLayout& side) {
    quantities_->setObjectName("quantities");
    auto* label = named_label("quantities_label");
    label->setBuddy(quantity_filter_);
    side.addWidget(label);
    side.addWidget(quantity_filter_);
    side.addWidget(quantities_);
    connect(quantity_filter_, &QLineEdit::textChanged, this, &study_form::filter_quantities);
}

void study_form::add_commands(QBoxLayout& side) {
    progress_->setObjectName("study_progress");
    progress_->setTextVisible(false);
    progress_text_->setObjectName("study_progress_text");
    side.addWidget(progress_);
    side.addWidget(progress_text_);
    auto* row = new QHBoxLayout;
    QPushButton* open = plain_button("open_study");
    QPushButton* save = plain_button("save_study");
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
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->setWordWrap(false);
    tabs_->setObjectName("study_tabs");
    tabs_->addTab(table_, QString());
    tabs_->addTab(chart_page(), QString());
    layout->addWidget(tabs_, 1);

    auto* below = new QHBoxLayout;
    QPushButton* take = plain_button("take_over");
    QPushButton* table = plain_button("save_table");
    QPushButton* projects = plain_button("save_projects");
    below->addWidget(take);
    below->addStretch();
    below->addWidget(table);
    below->addWidget(projects);
    layout->addLayout(below);

    connect(tabs_, &QTabWidget::currentChanged, this, &study_form::show_chart);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &study_form::point_at_row);
    connect(take, &QPushButton::clicked, this, &study_form::take_over);
    connect(table, &QPushButton::clicked, this, &study_form::save_table);
    connect(projects, &QPushButton::clicked, this, &study_form::save_projects);
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
        variables_->setHorizontalHeaderLabels(
            {text_named("entry_head"), text_named("values_head")});
        fill_entries();
        fill_kinds();
        fill_axes();
        tabs_->setTabText(0, text_named("table_tab"));
        tabs_->setTabText(CHART_PAGE, text_named("chart_tab"));
        no_chart_->setText(text_named("no_dots"));
        model_->set_language(language);
        if (chart_ != nullptr) {
            chart_->translate();
        }
    }
    show_units();
    show_kind();
    show_running();
    show_counts();
}

void study_form::fill_entries() {
    const QVariant chosen = entry_->currentData();
    entry_->clear();
    for (const entry_field& field : entry_fields()) {
        if (field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm") {
            entry_->addItem(qt_text(entry_name(field, context_.kavetta.captions, language_)) +
                                " (" + qt_text(field.name) + ")",
                            qt_text(field.name));
        }
    }
    entry_->setCurrentIndex(entry_->findData(chosen.isValid() ? chosen : FIRST_ENTRY));
}

void study_form::fill_kinds() {
    const int chosen = std::max<int>(kind_->currentIndex(), kind_->count() == 0 ? latin_kind : 0);
    kind_->clear();
    for (const char* kind : KINDS) {
        kind_->addItem(text_named(kind));
    }
    kind_->setCurrentIndex(chosen);
}

void study_form::fill_quantities() {
    for (const study_quantity& quantity : listed_quantities(context_.kavetta)) {
        auto* item = new QListWidgetItem(quantities_);
        item->setData(Qt::UserRole, qt_text(quantity.name));
        const bool is_first =
            std::ranges::find(FIRST_QUANTITIES, quantity.name) != FIRST_QUANTITIES.end();
        item->setCheckState(is_first ? Qt::Checked : Qt::Unchecked);
    }
}

/// Lengths of entries and the capacity have the units in force.
void study_form::show_units() {
    const app_state& state = context_.kavetta.app_state;
    const std::pair units(state.drawing_units, state.capacity_unit);
    if (shown_units_ == units) {
        return;
    }
    shown_units_ = units;
    int row = 0;
    for (const study_quantity& quantity : listed_quantities(context_.kavetta)) {
        const std::string unit = quantity.unit.empty() ? "" : " [" + quantity.unit + "]";
        quantities_->item(row)->setText(qt_text(quantity.name + unit));
        ++row;
    }
}

/// A grid has its own number, a search alone has steps and targets.
void study_form::show_kind() {
    const int kind = kind_->currentIndex();
    count_->setEnabled(kind != grid_kind);
    seed_->setEnabled(kind != grid_kind);
    step_->setEnabled(kind == search_kind);
    with_assist_->setEnabled(kind == search_kind);
    targets_->setEnabled(kind == search_kind);
}

void study_form::show_running() {
    const bool is_running = worker_->is_running();
    run_->setEnabled(!is_running);
    stop_->setEnabled(is_running);
    progress_->setVisible(is_running);
}

void study_form::show_counts() {
    shown_text_->setText(
        text_named("shown").arg(model_->rowCount()).arg(model_->table().rows().size()));
}

void study_form::show_progress(quint64 done, quint64 count, double seconds_left) {
    progress_->setMaximum(static_cast<int>(std::min<quint64>(count, MOST_DESIGNS)));
    progress_->setValue(static_cast<int>(std::min<quint64>(done, MOST_DESIGNS)));
    progress_text_->setText(
        seconds_left > 0.0
            ? text_named("time_left").arg(done).arg(count).arg(std::ceil(seconds_left))
            : text_named("progress").arg(done).arg(count));
}

// Variables and quantities.

void study_form::add_variable() {
    const entry_field* field = find_entry(utf8_text(entry_->currentData().toString()));
    if (field != nullptr) {
        add_variable_row(qt_text(field->name), qt_text(first_values(context_.kavetta, *field)));
    }
}

void study_form::add_variable_row(const QString& control, const QString& values) {
    const int row = variables_->rowCount();
    variables_->insertRow(row);
    auto* name = new QTableWidgetItem(control);
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    variables_->setItem(row, 0, name);
    variables_->setItem(row, 1, new QTableWidgetItem(values));
    variables_->setCurrentCell(row, 1);
}

void study_form::remove_variable() {
    variables_->removeRow(variables_->currentRow());
}

void study_form::filter_quantities(const QString& text) {
    for (int row = 0; row < quantities_->count(); ++row) {
        QListWidgetItem* item = quantities_->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
    }
}

// The study.

study_document study_form::document() const {
    study_document asked;
    for (int row = 0; row < variables_->rowCount(); ++row) {
        asked.varied.push_back(utf8_text(variables_->item(row, 0)->text()) + "=" +
                               utf8_text(variables_->item(row, 1)->text().trimmed()));
    }
    const int kind = kind_->currentIndex();
    const std::string count = std::to_string(count_->value());
    asked.searches = kind == search_kind;
    if (!asked.searches) {
        asked.sample = SAMPLES[static_cast<std::size_t>(kind)] + (kind == grid_kind ? "" : count);
    }
    asked.seed = static_cast<std::uint32_t>(seed_->value());
    asked.budget = static_cast<std::uint64_t>(count_->value());
    asked.begins_with_assist = with_assist_->isChecked();
    asked.step = val(commas_to_points(utf8_text(step_->text())));
    for (int row = 0; row < quantities_->count(); ++row) {
        const QListWidgetItem* item = quantities_->item(row);
        if (item->checkState() == Qt::Checked) {
            asked.recorded.push_back(utf8_text(item->data(Qt::UserRole).toString()));
        }
    }
    asked.conditions = parted(conditions_->text());
    asked.targets = parted(targets_->text());
    asked.aims = parted(aims_->text());
    return asked;
}

void study_form::show_document(const study_document& shown) {
    variables_->setRowCount(0);
    for (const std::string& varied : shown.varied) {
        const std::size_t equals = varied.find('=');
        add_variable_row(qt_text(varied.substr(0, equals)), qt_text(varied.substr(equals + 1)));
    }
    const std::string word = shown.sample.substr(0, shown.sample.find(':') + 1);
    const auto kind = std::ranges::find(SAMPLES, word.empty() ? "grid" : word);
    kind_->setCurrentIndex(shown.searches ? search_kind
                                          : static_cast<int>(kind - SAMPLES.begin()) % search_kind);
    const bool has_count = !shown.searches && !word.empty();
    count_->setValue(has_count ? qt_text(shown.sample.substr(word.size())).toInt()
                               : static_cast<int>(shown.budget));
    seed_->setValue(static_cast<int>(shown.seed));
    with_assist_->setChecked(shown.begins_with_assist);
    step_->setText(qt_text(number_text(shown.step)));
    for (int row = 0; row < quantities_->count(); ++row) {
        QListWidgetItem* item = quantities_->item(row);
        const std::string name = utf8_text(item->data(Qt::UserRole).toString());
        const bool is_recorded = std::ranges::find(shown.recorded, name) != shown.recorded.end();
        item->setCheckState(is_recorded ? Qt::Checked : Qt::Unchecked);
    }
    conditions_->setText(joined(shown.conditions));
    targets_->setText(joined(shown.targets));
    aims_->setText(joined(shown.aims));
}

/// The entries as they stand in the boxes are the project; nothing of it is calculated here.
void study_form::run() {
    context_.runner.act([this](program& kavetta, user& person) {
        try {
            study_document asked = document();
            designs_ = worker_->start(std::make_shared<const program>(trial_copy(kavetta)), asked);
            calculated_ = std::move(asked);
            model_->show_table(study_table(designs_));
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

void study_form::end_run(const QString& problem) {
    show_running();
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
    table_->clearSelection();
}

void study_form::open() {
    context_.runner.act([this](const program& kavetta, user& person) {
        const std::optional<study_document> opened = open_study(kavetta, person);
        if (!opened) {
            return;
        }
        worker_->stop();
        show_document(*opened);
        calculated_ = *opened;
        designs_.reset();
        study_table table;
        if (!opened->rows.empty()) {
            designs_ = std::make_shared<const study>(study_of(kavetta, *opened));
            table = study_table(designs_);
            table.add(opened->rows);
        }
        model_->show_table(std::move(table));
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
        study_document saved = has_rows ? calculated_ : document();
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
