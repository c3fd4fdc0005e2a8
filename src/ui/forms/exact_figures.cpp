#include "ui/forms/exact_figures.hpp"

#include "app/program.hpp"
#include "app/stages/stale_results.hpp"
#include "app/windows/chamber_commands.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/chart_view.hpp"
#include "ui/parts/exact_worker.hpp"
#include "ui/shell/help_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace kvt {

namespace {

constexpr QSize START_SIZE(1200, 420);
constexpr int MARGIN = 8;
constexpr int WHY_WIDTH = 330;

/// The columns in their order, by the names of their heads.
enum column {
    quantity_column,
    product_column,
    exact_column,
    difference_column,
    why_column,
    guide_column
};
constexpr std::array<const char*, 6> HEADS = {"quantity_head",   "product_head", "exact_head",
                                              "difference_head", "why_head",     "guide_head"};

QLabel* wrapped_label(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

std::array<QString, HEADS.size()> cells_of(const exact_row& row) {
    return {qt_text(row.quantity),   qt_text(row.product), qt_text(row.exact),
            qt_text(row.difference), qt_text(row.why),     qt_text(row.section)};
}

}  // namespace

exact_figures::exact_figures(form_context context)
    : loaded_form("exact_figures", context),
      stale_(wrapped_label("exact_stale")),
      tabs_(new QTabWidget),
      table_(new QTableWidget),
      worker_(new exact_worker(this)) {
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(stale_);
    layout->addWidget(tabs_);
    tabs_->setObjectName("exact_tabs");
    add_table();
    for (const exact_chart_row& row : exact_chart_rows()) {
        add_chart_tab(row);
    }
    bind(content, false);
    connect(worker_, &exact_worker::worked_out, this, &exact_figures::take);
    connect(&context_.runner, &command_runner::edited, this, &exact_figures::show_stale_hint);
}

void exact_figures::add_table() {
    table_->setObjectName("exact_table");
    table_->setColumnCount(static_cast<int>(HEADS.size()));
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    table_->setWordWrap(true);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(why_column, QHeaderView::Interactive);
    table_->setColumnWidth(why_column, WHY_WIDTH);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* copy = new QAction(table_);
    copy->setObjectName("copy_cells");
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &exact_figures::copy_cells);
    table_->addAction(copy);
    const auto open_guide = [this](int, int at) {
        if (at == guide_column) {
            context_.runner.act(open_help_file);
        }
    };
    connect(table_, &QTableWidget::cellClicked, this, open_guide);
    connect(table_, &QTableWidget::cellActivated, this, open_guide);
    tabs_->addTab(table_, QString());
}

void exact_figures::add_chart_tab(const exact_chart_row& row) {
    chart_tab tab{row, new QStackedWidget, wrapped_label("exact_reason")};
    tab.reason->setAlignment(Qt::AlignCenter);
    tab.pages->setObjectName(QString("%1_tab").arg(qt_text(row.name)));
    tab.pages->addWidget(tab.reason);
    tabs_->addTab(tab.pages, QString());
    charts_.push_back(tab);
}

QSize exact_figures::start_size() const {
    return START_SIZE;
}

QRect exact_figures::start_place(const QRect& area) const {
    QRect place(QPoint(0, 0), start_size().boundedTo(area.size()));
    place.moveBottomLeft(area.bottomLeft());
    return place;
}

void exact_figures::refresh() {
    loaded_form::refresh();
    show_stale_hint();
    show_figures();
    show_asked_row();
    work_out_missing();
}

/// Once a design: what failed is not tried again.
void exact_figures::work_out_missing() {
    const exact_record& record = context_.kavetta.exact_record;
    if (begun_revision_ == record.revision) {
        return;
    }
    begun_revision_ = record.revision;
    std::vector<exact_part> missing;
    for (const exact_part part : EXACT_PARTS) {
        if (record.results.state_of(part) == part_state::waiting) {
            missing.push_back(part);
        }
    }
    worker_->start(record.source, missing);
}

void exact_figures::take(exact_part part, const exact_results& results) {
    exact_record& record = context_.kavetta.exact_record;
    if (begun_revision_ == record.revision) {
        take_part(part, results, record.results);
        show_figures();
    }
}

void exact_figures::show_stale_hint() {
    const QString hint = qt_text(stale_hint(context_.kavetta));
    stale_->setText(hint);
    stale_->setVisible(!hint.isEmpty());
}

void exact_figures::show_figures() {
    show_table();
    for (chart_tab& tab : charts_) {
        show_chart(tab);
    }
    language_ = context_.kavetta.app_state.language;
}

void exact_figures::show_table() {
    const std::int16_t language = context_.kavetta.app_state.language;
    const auto text = [&](const char* name) {
        return qt_text(form_text("exact_figures", name, language));
    };
    tabs_->setTabText(0, text("table_tab"));
    table_->setAccessibleName(text("table_tab"));
    table_->setToolTip(tooltip_of(context_.kavetta, "exact_figures", "exact_table"));
    table_->actions().front()->setText(text("copy_cells"));
    QStringList heads;
    for (const char* head : HEADS) {
        heads.append(text(head));
    }
    table_->setHorizontalHeaderLabels(heads);
    const std::vector<exact_row> rows = present_exact_rows(context_.kavetta);
    table_->setRowCount(static_cast<int>(rows.size()));
    for (int index = 0; index < table_->rowCount(); ++index) {
        show_row(index, rows[static_cast<std::size_t>(index)]);
    }
}

void exact_figures::show_row(int index, const exact_row& row) {
    const auto cells = cells_of(row);
    for (int at = 0; at < table_->columnCount(); ++at) {
        QTableWidgetItem* cell = table_->item(index, at);
        if (cell == nullptr) {
            cell = new QTableWidgetItem;
            table_->setItem(index, at, cell);
        }
        cell->setText(cells[static_cast<std::size_t>(at)]);
        if (at == product_column || at == exact_column || at == difference_column) {
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
    }
    QFont font = table_->font();
    font.setBold(row.differs);
    table_->item(index, difference_column)->setFont(font);
    font = table_->font();
    font.setUnderline(true);
    table_->item(index, guide_column)->setFont(font);
    table_->item(index, guide_column)->setForeground(palette().link());
    table_->item(index, quantity_column)->setData(Qt::UserRole, qt_text(row.name));
}

void exact_figures::show_chart(chart_tab& tab) {
    const program& kavetta = context_.kavetta;
    const exact_record& record = kavetta.exact_record;
    const std::int16_t language = kavetta.app_state.language;
    tabs_->setTabText(tabs_->indexOf(tab.pages),
                      qt_text(form_text("exact_figures", tab.row.name, language)));
    std::optional<result_chart> chart =
        make_exact_chart(tab.row, *record.source, record.results, present_manner(kavetta));
    if (!chart) {
        const bool waits = record.results.state_of(tab.row.part) == part_state::waiting;
        tab.reason->setText(
            qt_text(waits ? std::string(form_text("exact_figures", "waiting", language))
                          : missing_reason(tab.row.part, record.results, language)));
        tab.pages->setCurrentWidget(tab.reason);
        return;
    }
    if (tab.view == nullptr) {
        tab.view = new chart_view(std::move(*chart), context_, Qt::WidgetWithChildrenShortcut);
        tab.view->setObjectName(qt_text(tab.row.name));
        tab.pages->addWidget(tab.view);
        connect(tab.view, &chart_view::close_asked, this, &QWidget::close);
        if (tab.row.is_over_life) {
            connect(tab.view, &chart_view::reading_changed, this,
                    [this, view = tab.view](const std::optional<chart_reading>& reading) {
                        follow_reading(*view, reading);
                    });
        }
    } else {
        tab.view->show_chart(std::move(*chart));
        if (language != language_) {
            tab.view->translate();
        }
    }
    tab.pages->setCurrentWidget(tab.view);
}

/// The row that a sign asked for.
void exact_figures::show_asked_row() {
    const QString asked = qt_text(context_.kavetta.exact_record.asked_row);
    context_.kavetta.exact_record.asked_row.clear();
    for (int row = 0; !asked.isEmpty() && row < table_->rowCount(); ++row) {
        if (table_->item(row, quantity_column)->data(Qt::UserRole).toString() == asked) {
            tabs_->setCurrentWidget(table_);
            table_->selectRow(row);
            table_->scrollToItem(table_->item(row, quantity_column));
            table_->setFocus();
        }
    }
}

/// The chamber whose place is read stands in the Design view, and stays there when the reading
/// ends, to be turned on.
void exact_figures::follow_reading(const chart_view& view,
                                   const std::optional<chart_reading>& reading) {
    if (!reading) {
        return;
    }
    const double place = view.chart().x_values[reading->point];
    if (context_.runner.step([place](program& kavetta) { point_at_chamber(kavetta, place); })) {
        emit chamber_shown();
    }
}

void exact_figures::copy_cells() const {
    const QList<QTableWidgetSelectionRange> ranges = table_->selectedRanges();
    if (ranges.isEmpty()) {
        return;
    }
    const QTableWidgetSelectionRange& range = ranges.front();
    QStringList lines;
    for (int row = range.topRow(); row <= range.bottomRow(); ++row) {
        QStringList cells;
        for (int at = range.leftColumn(); at <= range.rightColumn(); ++at) {
            cells.append(table_->item(row, at)->text());
        }
        lines.append(cells.join('\t'));
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void exact_figures::unload() {
    worker_->give_up();
    forget_chamber(context_.kavetta);
    emit chamber_shown();
}

}  // namespace kvt
