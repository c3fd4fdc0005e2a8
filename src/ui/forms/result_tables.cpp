#include "ui/forms/result_tables.hpp"

#include "app/program.hpp"
#include "app/trial/pinned_design.hpp"
#include "core/text_table.hpp"
#include "ui/parts/result_table_model.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <array>

namespace kvt {

namespace {

constexpr QSize START_SIZE(800, 340);
constexpr QSize ROOM_FOR_PINNED(0, 250);
constexpr int MARGIN = 8;

/// The tabs in the order of grid_tables, then the angle.
constexpr std::array<const char*, 7> TABS = {"flow_table",    "torque_table",   "power_table",
                                             "vol_eff_table", "mech_eff_table", "overall_eff_table",
                                             "angle_table"};

/// "Pump Speed (rpm) ↓   Pump Delivery Pressure (Pa) →"
QString axes_text(const result_table& table) {
    const QString rows = qt_text(table.row_caption) + QString::fromUtf8(" ↓");
    return table.column_caption.empty()
               ? rows
               : rows + "   " + qt_text(table.column_caption) + QString::fromUtf8(" →");
}

/// Other texts, the same choice.
void show_choices(QComboBox& box, const std::vector<std::string>& texts) {
    const int chosen = std::max(box.currentIndex(), 0);
    const QSignalBlocker quiet(box);
    box.clear();
    for (const std::string& text : texts) {
        box.addItem(qt_text(text));
    }
    box.setCurrentIndex(chosen);
}

table_range range_of(const QItemSelection& selection) {
    const QItemSelectionRange& range = selection.front();
    return {static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom()),
            static_cast<std::size_t>(range.left()), static_cast<std::size_t>(range.right())};
}

}  // namespace

result_tables::result_tables(form_context context)
    : loaded_form("result_tables", context), tabs_(new QTabWidget) {
    auto* content = new QWidget;
    tabs_->setObjectName("tables");
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(tabs_);
    for (const char* name : TABS) {
        const bool over_angle = name == TABS.back();
        tables_.push_back(add_tab(name, over_angle ? choice_of_angle_table() : nullptr));
    }
    bind(content, false);
}

result_tables::tab result_tables::add_tab(const char* name, QWidget* above) {
    auto* page = new QWidget;
    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    const tab added{add_part(name, *parts), add_part(QString(name) + "_pinned", *parts)};
    added.pinned.whole->hide();
    auto* layout = new QVBoxLayout(page);
    if (above != nullptr) {
        layout->addWidget(above);
    }
    layout->addWidget(parts);
    tabs_->addTab(page, QString());
    return added;
}

result_tables::table_part result_tables::add_part(const QString& name, QSplitter& parts) {
    auto* whole = new QWidget;
    const table_part added{whole, new QLabel, new QTableView, new result_table_model(whole)};
    added.view->setObjectName(name);
    added.view->setModel(added.model);
    added.view->setSelectionMode(QAbstractItemView::ContiguousSelection);
    added.view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    added.view->setTabKeyNavigation(false);
    added.view->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* copy_cells = new QAction(added.view);
    copy_cells->setObjectName("copy_cells");
    copy_cells->setShortcut(QKeySequence::Copy);
    copy_cells->setShortcutContext(Qt::WidgetShortcut);
    connect(copy_cells, &QAction::triggered, this, [this, added] { copy(added); });
    added.view->addAction(copy_cells);
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(added.axes);
    layout->addWidget(added.view);
    parts.addWidget(whole);
    return added;
}

QWidget* result_tables::choice_of_angle_table() {
    auto* choice = new QWidget;
    auto* layout = new QHBoxLayout(choice);
    layout->setContentsMargins(0, 0, 0, 0);
    speed_ = new QComboBox;
    speed_->setObjectName("table_speed");
    pressure_ = new QComboBox;
    pressure_->setObjectName("table_pressure");
    speed_label_ = new QLabel;
    pressure_label_ = new QLabel;
    for (const auto& [label, box] :
         {std::pair(speed_label_, speed_), std::pair(pressure_label_, pressure_)}) {
        label->setBuddy(box);
        layout->addWidget(label);
        layout->addWidget(box);
        connect(box, &QComboBox::currentIndexChanged, this, &result_tables::show_angle_table);
    }
    layout->addStretch(1);
    return choice;
}

QSize result_tables::start_size() const {
    return pinned_performance(context_.kavetta) == nullptr ? START_SIZE
                                                           : START_SIZE + ROOM_FOR_PINNED;
}

void result_tables::refresh() {
    loaded_form::refresh();
    const program& kavetta = context_.kavetta;
    const std::int16_t language = kavetta.app_state.language;
    const unit_system system = length_unit_of(kavetta.app_state).system;
    const std::vector<result_table> grids = grid_tables(kavetta.perf_results, language, system);
    for (std::size_t i = 0; i < grids.size(); ++i) {
        show_present(i, grids[i]);
    }
    show_choices(*speed_, grids.front().row_heads);
    show_choices(*pressure_, grids.front().column_heads);
    speed_label_->setText("&" + qt_text(grids.front().row_caption) + ":");
    pressure_label_->setText("&" + qt_text(grids.front().column_caption) + ":");
    for (QAction* copy_cells : findChildren<QAction*>("copy_cells")) {
        copy_cells->setText(qt_text(form_text("result_tables", "copy_cells", language)));
    }
    show_pinned_grids();
    show_angle_table();
}

std::size_t result_tables::chosen_speed() const {
    return static_cast<std::size_t>(speed_->currentIndex());
}

std::size_t result_tables::chosen_pressure() const {
    return static_cast<std::size_t>(pressure_->currentIndex());
}

void result_tables::show_angle_table() {
    const program& kavetta = context_.kavetta;
    show_present(tables_.size() - 1,
                 angle_table(kavetta.perf_results, chosen_speed(), chosen_pressure(),
                             kavetta.app_state.language, length_unit_of(kavetta.app_state).system));
    show_pinned_angle_table();
}

void result_tables::show_present(std::size_t index, result_table table) {
    const table_part& part = tables_[index].present;
    tabs_->setTabText(static_cast<int>(index), qt_text(table.name));
    part.axes->setText(axes_text(table));
    part.view->setAccessibleName(qt_text(table.name));
    const bool is_valid = context_.kavetta.enabling.create_charts;
    show_in(part, index, is_valid ? std::move(table) : without_numbers(std::move(table)));
}

void result_tables::show_pinned_grids() {
    const program& kavetta = context_.kavetta;
    const perf_results* pinned = pinned_performance(kavetta);
    for (const tab& table : tables_) {
        table.pinned.whole->setVisible(pinned != nullptr);
    }
    if (pinned == nullptr) {
        return;
    }
    const std::vector<result_table> grids =
        grid_tables(*pinned, kavetta.app_state.language, length_unit_of(kavetta.app_state).system);
    for (std::size_t i = 0; i < grids.size(); ++i) {
        show_pinned_table(i, grids[i], axes_text(grids[i]));
    }
}

/// At the speed and the pressure of the same number as those of the present design, which may be
/// others, so they are named.
void result_tables::show_pinned_angle_table() {
    const program& kavetta = context_.kavetta;
    const perf_results* pinned = pinned_performance(kavetta);
    if (pinned == nullptr) {
        return;
    }
    const result_table& grid = tables_.front().pinned.model->table();
    result_table table =
        angle_table(*pinned, chosen_speed(), chosen_pressure(), kavetta.app_state.language,
                    length_unit_of(kavetta.app_state).system);
    const QString axes = axes_text(table) + "   " + qt_text(grid.row_caption) + ": " +
                         qt_text(grid.row_heads[chosen_speed()]) + "   " +
                         qt_text(grid.column_caption) + ": " +
                         qt_text(grid.column_heads[chosen_pressure()]);
    show_pinned_table(tables_.size() - 1, std::move(table), axes);
}

void result_tables::show_pinned_table(std::size_t index, result_table table, const QString& axes) {
    const table_part& part = tables_[index].pinned;
    const QString heading = qt_text(pinned_text(context_.kavetta));
    part.axes->setText(heading + "   " + axes);
    part.view->setAccessibleName(heading + ": " + qt_text(table.name));
    show_in(part, index, std::move(table));
}

void result_tables::show_in(const table_part& part, std::size_t index, result_table table) {
    part.view->setToolTip(tooltip_of(context_.kavetta, "result_tables", TABS[index]));
    part.model->show_table(std::move(table), context_.kavetta.decimal_mark);
}

void result_tables::copy(const table_part& shown) const {
    const QItemSelection selection = shown.view->selectionModel()->selection();
    if (!selection.isEmpty()) {
        QGuiApplication::clipboard()->setText(qt_text(copied_cells(
            shown.model->table(), range_of(selection), context_.kavetta.decimal_mark)));
    }
}

}  // namespace kvt
