#include "ui/forms/select_graphs.hpp"

#include "app/files/performance_files.hpp"
#include "app/windows/result_charts.hpp"
#include "core/user.hpp"
#include "ui/parts/form_parts.hpp"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace kvt {

namespace {

constexpr int MARGIN = 8;
constexpr int ROW_SPACING = 4;
constexpr int COLUMN_SPACING = 12;

/// In the order in which the charts open: what the pump does, then its efficiencies.
constexpr std::array<const char*, 4> RESULTS = {"flow_checkbox", "power_checkbox",
                                                "stress_checkbox", "ripple_checkbox"};
constexpr std::array<const char*, 3> EFFICIENCIES = {"ve_checkbox", "effic_checkbox",
                                                     "ovr_effic_checkbox"};

}  // namespace

select_graphs::select_graphs(form_context context) : mdi_form("select_graphs", context) {
    auto* content = new QWidget;
    content->setFont(compact_font());
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(COLUMN_SPACING);
    grid->setVerticalSpacing(ROW_SPACING);
    for (std::size_t row = 0; row < RESULTS.size(); ++row) {
        grid->addWidget(named_check(RESULTS[row]), static_cast<int>(row), 0);
    }
    for (std::size_t row = 0; row < EFFICIENCIES.size(); ++row) {
        grid->addWidget(named_check(EFFICIENCIES[row]), static_cast<int>(row), 1);
    }
    grid->setColumnStretch(1, 1);
    create_charts_ = command_button("create_charts");
    create_charts_->setDefault(true);
    accent(*create_charts_);
    connect(create_charts_, &QPushButton::clicked, this,
            [this] { context_.runner.act(kvt::create_charts); });
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    buttons->addWidget(create_charts_, 1);
    QPushButton* export_excel_button = command_button("export_excel");
    connect(export_excel_button, &QPushButton::clicked, this,
            [this] { context_.runner.act(export_excel); });
    buttons->addWidget(export_excel_button, 1);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(ROW_SPACING);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(buttons);
    bind(content, true);
    set_main_button(create_charts_);
}

void select_graphs::changeEvent(QEvent* event) {
    mdi_form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && create_charts_ != nullptr) {
        accent(*create_charts_);
    }
}

}  // namespace kvt
