// How long the Study window takes to show another place of a long table.
#include "long_study_table.hpp"
#include "ui/parts/study_table_model.hpp"

#include <QApplication>
#include <QTableView>

#include <benchmark/benchmark.h>

namespace {

void scroll_table(benchmark::State& state) {
    kvt::study_table_model model;
    model.show_table(kvt::long_study_table());
    QTableView view;
    view.setModel(&model);
    view.resize(700, 600);
    view.show();
    QApplication::processEvents();
    int row = 0;
    for (auto _ : state) {
        row = (row + 37123) % model.rowCount();
        view.scrollTo(model.index(row, 0), QAbstractItemView::PositionAtTop);
        view.viewport()->repaint();
    }
}
BENCHMARK(scroll_table)->Unit(benchmark::kMillisecond);

}  // namespace

/// Windows need an application.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
