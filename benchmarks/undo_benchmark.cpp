// How long Undo and Redo take on the desktop, from the key to windows that show it: one edited
// entry of a calculated design, with a full history behind it.
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/shell/desktop.hpp"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace {

/// A delivered design after all three stages.
std::unique_ptr<kvt::desktop> calculated_desk(const kvt::temporary_folder& folder) {
    kvt::write_file(folder.path() / "KVT.ini", "\r\n\r\n\r\n\r\n1\r\nmanual\r\n##\r\n");
    kvt::write_file(folder.path() / "screen.ini", "");
    auto desk = std::make_unique<kvt::desktop>(folder.path());
    const std::filesystem::path project = folder.path() / "n07_engine_oil_groove.KVT";
    std::filesystem::copy_file(
        std::filesystem::path(KVT_TEST_DATA) / "designs" / project.filename(), project);
    desk->start(kvt::utf8_of_path(project));
    desk->runner().act([](kvt::program& kavetta, kvt::user& person) {
        kvt::calculate_profiles(kavetta, person);
        kvt::design_ports(kavetta, person);
        kvt::calculate_performance(kavetta, person);
    });
    return desk;
}

/// Two entries in turn: edits of one after the other would be one step.
void type_until_the_history_is_full(kvt::desktop& desk, std::string kvt::entries::*last) {
    for (std::size_t i = 0; i < 2 * kvt::edit_history::MAX_STEPS; ++i) {
        kvt::entries& boxes = desk.program().entries;
        (i % 2 == 0 ? boxes.ecc : boxes.*last) = std::to_string(i);
        desk.runner().note_edit();
    }
}

void undo_and_redo_a_step(benchmark::State& state, std::string kvt::entries::*edited) {
    const kvt::temporary_folder folder;
    const std::unique_ptr<kvt::desktop> desk = calculated_desk(folder);
    type_until_the_history_is_full(*desk, edited);
    const std::size_t last = desk->runner().history().position();
    state.counters["steps"] = static_cast<double>(last);
    std::size_t to = last;
    for (auto _ : state) {
        to = to == last ? last - 1 : last;
        desk->runner().go_to_step(to);
        QApplication::processEvents();
    }
}

}  // namespace

BENCHMARK_CAPTURE(undo_and_redo_a_step, of_the_rotors, &kvt::entries::radouter)
    ->Unit(benchmark::kMillisecond);
// The hint of the performance is worked out for each of its entries.
BENCHMARK_CAPTURE(undo_and_redo_a_step, of_the_performance, &kvt::entries::thick)
    ->Unit(benchmark::kMillisecond);

/// Windows need an application.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
