#include "ui/forms/Perffrm.hpp"

#include "app/gt/gt_fluids.hpp"
#include "app/gt/gt_installation.hpp"
#include "app/gt/gt_simulation.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "core/app_state.hpp"
#include "core/entry_names.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace kvt {

namespace {

/// Room between the controls, pixels: the form is narrow and high in the default layout.
constexpr int ROW_SPACING = 4;
constexpr int COLUMN_SPACING = 3;
constexpr int GROUP_SPACING = 7;
constexpr int MARGIN = 4;
/// Entries alone in their row, and entries in pairs.
constexpr const char* WIDEST_SINGLE = "0.00012";
constexpr const char* WIDEST_IN_PAIR = "29000";
constexpr const char* WIDEST_PERCENTAGE = "99.5";

/// The grid's columns: the caption, the left box of a pair, what stands between, the right or only
/// box.
constexpr int CAPTION = 0;
constexpr int LEFT_BOX = 1;
constexpr int BETWEEN = 2;
constexpr int RIGHT_BOX = 3;
constexpr int COLUMNS = 4;

/// Between two looks for the converter's model, milliseconds.
constexpr int GEMC_INTERVAL_MS = 1000;

/// Fills a list anew when it holds something else.
void show_in_list(QComboBox& list, const QStringList& rows, int row) {
    QStringList shown;
    for (int i = 0; i < list.count(); ++i) {
        shown.append(list.itemText(i));
    }
    if (shown != rows) {
        list.clear();
        list.addItems(rows);
    }
    list.setCurrentIndex(row);
}

/// One label that heads two columns of boxes. Its text holds two words set apart by blanks, whose
/// number means nothing here: the first word stands centred over a box at the left edge, the second
/// over a box at the right edge.
class column_heads : public QLabel {
  public:
    /// box_width: width of each box, pixels.
    column_heads(const char* name, int box_width) : box_width_(box_width) { setObjectName(name); }

  protected:
    void paintEvent(QPaintEvent*) override {
        const QStringList words = text().simplified().split(' ');
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, 0, box_width_, height()), Qt::AlignCenter, words.front());
        painter.drawText(QRect(width() - box_width_, 0, box_width_, height()), Qt::AlignCenter,
                         words.back());
    }

  private:
    int box_width_;
};

void add_heading(QGridLayout& grid, const char* name) {
    QLabel* heading = named_label(name);
    QFont font = compact_font();
    font.setBold(true);
    heading->setFont(font);
    grid.addWidget(heading, grid.rowCount(), CAPTION, 1, COLUMNS);
}

/// A caption with the box at the end of its row.
QLineEdit* add_entry(QGridLayout& grid, const char* entry, const char* widest = WIDEST_SINGLE) {
    const int row = grid.rowCount();
    QLineEdit* box = compact_box(entry, widest);
    QLabel* text = named_label(entry_label(entry));
    text->setBuddy(box);
    grid.addWidget(text, row, CAPTION, 1, BETWEEN);
    grid.addWidget(box, row, BETWEEN, 1, 2, Qt::AlignRight);
    return box;
}

/// A percentage: the sign stands in the box, behind the number.
void add_percentage(QGridLayout& grid, const char* entry) {
    QLineEdit* box = add_entry(grid, entry, WIDEST_PERCENTAGE);
    const QString sign = qt_text(message_text(message::unit_percent, ENGLISH));
    add_unit(*box, sign)->setText(sign);
}

/// A caption with two boxes. between may be nullptr: the boxes are columns then.
void add_pair(QGridLayout& grid, const char* label, const char* left, const char* between,
              const char* right) {
    const int row = grid.rowCount();
    QLineEdit* left_box = compact_box(left, WIDEST_IN_PAIR);
    QLabel* text = named_label(label);
    text->setBuddy(left_box);
    grid.addWidget(text, row, CAPTION);
    grid.addWidget(left_box, row, LEFT_BOX);
    QLineEdit* right_box = compact_box(right, WIDEST_IN_PAIR);
    if (between != nullptr) {
        QLabel* to = named_label(between);
        to->setBuddy(right_box);
        to->setAlignment(Qt::AlignCenter);
        grid.addWidget(to, row, BETWEEN);
    }
    grid.addWidget(right_box, row, RIGHT_BOX);
}

}  // namespace

Perffrm::Perffrm(form_context context) : mdi_form("Perffrm", context) {
    auto* content = new QWidget;
    content->setFont(compact_font());
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(GROUP_SPACING);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(COLUMN_SPACING);
    grid->setVerticalSpacing(ROW_SPACING);
    grid->setColumnStretch(CAPTION, 1);
    add_fluid(*grid);
    add_materials(*grid);
    add_range(*grid);
    layout->addLayout(grid);
    calc_perf_ = command_button("calc_perf");
    calc_perf_->setDefault(true);
    accent(*calc_perf_);
    layout->addWidget(calc_perf_);
    layout->addWidget(hairline());
    layout->addWidget(simulation_part());
    layout->addStretch(1);
    bind(content, true);
    set_main_button(calc_perf_);
    command_runner& runner = context_.runner;
    connect(calc_perf_, &QPushButton::clicked, this, [&runner] {
        runner.act([](program& kavetta, user& person) { calculate_performance(kavetta, person); });
    });
}

void Perffrm::add_fluid(QGridLayout& grid) {
    add_heading(grid, "Label5");
    add_entry(grid, "fluid_density");
    add_entry(grid, "kin_visc");
    add_entry(grid, "vap_press");
    add_entry(grid, "bulk_mod_text");
    grid.addWidget(hairline(), grid.rowCount(), CAPTION, 1, COLUMNS);
}

void Perffrm::add_materials(QGridLayout& grid) {
    add_heading(grid, "Label13");
    auto* heads = new column_heads("Label12", compact_box_width(WIDEST_IN_PAIR));
    grid.addWidget(heads, grid.rowCount(), LEFT_BOX, 1, 3);
    add_pair(grid, "Label10", "young_inner", nullptr, "young_outer");
    add_pair(grid, "Label11", "poissons_inner", nullptr, "poissons_outer");
    add_entry(grid, "friction");
    add_entry(grid, "UTS_value");
    add_percentage(grid, "Face_area_value");
    add_percentage(grid, "OD_area_value");
    grid.addWidget(hairline(), grid.rowCount(), CAPTION, 1, COLUMNS);
}

void Perffrm::add_range(QGridLayout& grid) {
    add_heading(grid, "Label15");
    add_pair(grid, "Label6", "speed_lo", "Label8", "speed_hi");
    add_pair(grid, "Label7", "pressure_lo", "Label9", "pressure_hi");
}

/// The simulation package: its version, the fluid of its library, the run.
QWidget* Perffrm::simulation_part() {
    auto* part = new QWidget;
    auto* layout = new QGridLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(COLUMN_SPACING);
    layout->setVerticalSpacing(ROW_SPACING);
    gt_combo_ = new QComboBox;
    gt_combo_->setObjectName("GT_combo");
    for (int year = FIRST_GT_VERSION; year <= LAST_GT_VERSION; ++year) {
        gt_combo_->addItem(QString("GT %1").arg(year));
    }
    gt_fluid_ = new QComboBox;
    gt_fluid_->setObjectName("GT_fluid");
    for (QComboBox* list : {gt_combo_, gt_fluid_}) {
        list->setFocusPolicy(Qt::TabFocus);
        list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    QPushButton* button = command_button("GT_Sim_Button");
    layout->addWidget(gt_combo_, 0, 0);
    layout->addWidget(gt_fluid_, 0, 1);
    layout->addWidget(button, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    connect_simulation(*button);
    return part;
}

void Perffrm::connect_simulation(QPushButton& button) {
    command_runner& runner = context_.runner;
    connect(gt_combo_, &QComboBox::activated, this, [this, &runner] {
        const std::string version = utf8_text(gt_combo_->currentText());
        runner.act([&version](program& kavetta, user& person) {
            select_gt_version(kavetta, person, version);
        });
    });
    connect(gt_fluid_, &QComboBox::activated, this, [&runner](int row) {
        runner.act([row](program& kavetta, user&) {
            select_gt_fluid(kavetta, static_cast<std::size_t>(row));
        });
    });
    connect(&button, &QPushButton::clicked, this, [&runner] {
        runner.act([](program& kavetta, user& person) {
            simulate_in_gt(kavetta, person, gt_request_of(kavetta));
        });
    });
    tim_gemc_ = new QTimer(this);
    tim_gemc_->setObjectName("tim_gemc");
    tim_gemc_->setInterval(GEMC_INTERVAL_MS);
    connect(tim_gemc_, &QTimer::timeout, this, [&runner] { runner.act(look_for_converted_model); });
}

void Perffrm::refresh() {
    mdi_form::refresh();
    const gt_choices& choices = context_.kavetta.gt_choices;
    gt_combo_->setCurrentIndex(choices.gt_version == 0 ? -1
                                                       : choices.gt_version - FIRST_GT_VERSION);
    QStringList fluids = {gt_fluid_->placeholderText()};
    for (const std::string& fluid : choices.fluids) {
        fluids.append(qt_text(fluid));
    }
    show_in_list(*gt_fluid_, fluids, static_cast<int>(choices.fluid_row));
    if (choices.tim_gemc_enabled != tim_gemc_->isActive()) {
        choices.tim_gemc_enabled ? tim_gemc_->start() : tim_gemc_->stop();
    }
}

void Perffrm::changeEvent(QEvent* event) {
    mdi_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && calc_perf_ != nullptr) {
        accent(*calc_perf_);
    }
}

}  // namespace kvt
