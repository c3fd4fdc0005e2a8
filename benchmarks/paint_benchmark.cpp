// How long a repaint of the rotor pair takes, one of a chart, and a tick of a held rotation button:
// 3600 elements of the inner rotor, a picture of 700 by 700 pixels.
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "app/windows/view_commands.hpp"
#include "base/text_file.hpp"
#include "core/project_file.hpp"
#include "support/scripted_user.hpp"
#include "ui/parts/chart_painting.hpp"
#include "ui/parts/design_painting.hpp"
#include "views/sight/sight_palette.hpp"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <string>

namespace {

constexpr int SIDE = 700;
constexpr QSize CHART(578, 415);

/// A delivered design, drawn for a picture of that side at coarseness 1.
kvt::program drawn_design() {
    kvt::program kavetta;
    kvt::scripted_user person;
    std::string name;
    const auto file = std::string(KVT_TEST_DATA) + "/designs/n07_engine_oil_groove.KVT";
    kvt::assign_project_record(kavetta, kvt::read_project(kvt::read_file(file), name));
    kavetta.entries.coarseness = "1";
    kavetta.view_state.view_size = SIDE * 15;
    kvt::calculate_profiles(kavetta, person);
    return kavetta;
}

kvt::design_view drawn_pair() {
    return drawn_design().design_view;
}

void paint_the_pair(benchmark::State& state) {
    const kvt::design_painting painting(drawn_pair());
    QImage sheet(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painting.paint(painter, kvt::sight_palette_on(false));
    }
}

void take_over_and_paint_the_pair(benchmark::State& state) {
    const kvt::design_view view = drawn_pair();
    QImage sheet(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    state.counters["elements"] = static_cast<double>(view.Line1.elements.size());
    for (auto _ : state) {
        const kvt::design_painting painting(view);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painting.paint(painter, kvt::sight_palette_on(false));
    }
}

/// All that the timer waits for every 10 ms: a turn by one degree, the rotors taken over, the sheet
/// painted.
void turn_and_paint_the_pair(benchmark::State& state) {
    kvt::program kavetta = drawn_design();
    kvt::design_painting painting(kavetta.design_view);
    QImage sheet(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        kvt::rotation_tick(kavetta, kvt::turning::clockwise);
        painting.take_rotors(kavetta.design_view);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painting.paint(painter, kvt::sight_palette_on(false));
    }
}

/// A chart of a design with its results, at the default size of its window.
void paint_a_chart(benchmark::State& state, kvt::chart_kind kind) {
    kvt::program kavetta = drawn_design();
    kvt::scripted_user person;
    kvt::design_ports(kavetta, person);
    kvt::calculate_performance(kavetta, person);
    const kvt::result_chart chart =
        kvt::make_chart(kind, kavetta.perf_results, kvt::ENGLISH, kvt::unit_system::metric);
    const kvt::chart_drawing drawing =
        kvt::draw_chart(chart, kvt::chart_size(), std::nullopt, kvt::chart_metrics());
    const kvt::hidden_curves hidden(chart.curves.size());
    QImage sheet(CHART, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&sheet);
        kvt::paint_whole_chart(painter, drawing, hidden, CHART);
    }
}

}  // namespace

BENCHMARK_CAPTURE(paint_a_chart, flow, kvt::chart_kind::flow)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paint_a_chart, stress, kvt::chart_kind::stress)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paint_a_chart, ripple, kvt::chart_kind::ripple)->Unit(benchmark::kMillisecond);
BENCHMARK(turn_and_paint_the_pair)->Unit(benchmark::kMillisecond);
BENCHMARK(paint_the_pair)->Unit(benchmark::kMillisecond);
BENCHMARK(take_over_and_paint_the_pair)->Unit(benchmark::kMillisecond);

/// Texts need an application.
int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
