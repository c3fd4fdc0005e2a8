// From a key in an entry to the picture of its trial: the copy of the records, the stages in the
// other thread, the figures, the sheet of 700 by 700 pixels with the outlines over the pair.
#include "app/program.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/tried_design.hpp"
#include "support/performed_design.hpp"
#include "ui/parts/latest_task.hpp"
#include "ui/parts/view_overlays.hpp"
#include "views/sight/sight_palette.hpp"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <atomic>
#include <benchmark/benchmark.h>
#include <utility>

namespace {

constexpr int SIDE = 700;

kvt::program calculated_design() {
    kvt::program kavetta = kvt::performed_design("n07_engine_oil_groove");
    kavetta.view_state.view_size = SIDE * 15;
    kvt::scripted_user person;
    kvt::calculate_profiles(kavetta, person);
    kvt::design_ports(kavetta, person);
    kvt::calculate_performance(kavetta, person);
    return kavetta;
}

kvt::tried_design try_beside(kvt::latest_task& task, const kvt::program& kavetta) {
    auto copy = std::make_shared<kvt::program>(kvt::trial_copy(kavetta));
    const kvt::tried_stages stages = kvt::stages_on_display(kavetta, "ecc");
    std::optional<kvt::tried_design> found;
    task.start([copy, stages, &found](const std::atomic<bool>&) -> kvt::latest_task::ending {
        auto tried =
            std::make_shared<kvt::tried_design>(kvt::try_typed_entries(std::move(*copy), stages));
        return [tried, &found] { found = std::move(*tried); };
    });
    while (!found) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return *found;
}

void paint_over(const kvt::program& kavetta, const kvt::kept_design& trial, QImage& sheet) {
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    const kvt::view_state place = kvt::overlay_place(kavetta, trial);
    kvt::design_painting(kavetta.design_view, kvt::view_box(place))
        .paint(painter, kvt::sight_palette_on(false));
    const kvt::design_painting outlines(kvt::overlay_of(trial, trial.outlines, place),
                                        kvt::view_box(place));
    kvt::paint_overlays({{outlines, QColor(Qt::magenta), 1.0}}, painter);
}

void key_to_picture(benchmark::State& state) {
    kvt::program kavetta = calculated_design();
    kvt::latest_task task;
    QImage sheet(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    bool is_other = false;
    for (auto _ : state) {
        is_other = !is_other;
        kavetta.entries.ecc = is_other ? "2.71" : "2.72";
        const kvt::tried_design tried = try_beside(task, kavetta);
        benchmark::DoNotOptimize(kvt::labels_of(*tried.design, kavetta.app_state));
        paint_over(kavetta, *tried.design, sheet);
    }
}

/// What a key costs the thread of the windows before the trial runs.
void copy_of_the_records(benchmark::State& state) {
    const kvt::program kavetta = calculated_design();
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::trial_copy(kavetta));
    }
}

}  // namespace

BENCHMARK(key_to_picture)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(copy_of_the_records)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
