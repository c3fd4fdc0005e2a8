#include "kvt/performance_summary.hpp"

#include "app/program.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/report_texts.hpp"
#include "performance/result_quantities.hpp"

#include <vector>

namespace kvt {

namespace {

/// The results of perf_res as they stand there: those with a number alone under their captions,
/// then the sentences.
std::string headlines(const program& kavetta) {
    std::vector<std::pair<std::string, std::string>> rows;
    std::string sentences = kavetta.labels.Label5 + "\n";
    for (const used_result& result : results_at(result_place::perf_res)) {
        const std::string_view name = result.use->name;
        const std::string& text = kavetta.labels.*find_named(label_fields(), name)->member;
        if (result.use->lead_in) {
            sentences += text + "\n";
        } else {
            rows.emplace_back(caption_text("kvt", name, kavetta.app_state.language), text);
        }
    }
    return aligned_lines(rows) + sentences;
}

/// The numbers of an axis of the tables.
std::vector<std::string> axis(const program& kavetta, std::string_view name,
                              const perf_list& values) {
    const result_use& use = *result_at(result_place::summary, name)->use;
    std::vector<std::string> texts;
    for (const double value : values) {
        texts.push_back(rounded(shown_value(value, use, length_unit_of(kavetta.app_state).system)));
    }
    return texts;
}

std::string table_text(const program& kavetta, const used_result& result) {
    const unit_system system = length_unit_of(kavetta.app_state).system;
    const perf_results& results = kavetta.perf_results;
    const auto caption = [&](std::string_view name) {
        return unit_caption_text("kvt", name, kavetta.app_state);
    };
    std::vector<std::vector<std::string>> rows = {axis(kavetta, "press_pa", results.press_pa)};
    rows.front().insert(rows.front().begin(), caption("grid_axes"));
    const std::vector<std::string> speeds = axis(kavetta, "speed_rpm", results.speed_rpm);
    const perf_grid grid = grid_of(*result.quantity, results);
    for (std::size_t speed = 0; speed < GRID_SIZE; ++speed) {
        rows.push_back({speeds[speed]});
        for (const double value : grid[speed]) {
            rows.back().push_back(rounded(shown_value(value, *result.use, system)));
        }
    }
    return caption(result.use->name) + "\n" + aligned_table(rows);
}

}  // namespace

std::string performance_summary(const program& kavetta) {
    std::string text = headlines(kavetta);
    for (const used_result& result : results_at(result_place::summary)) {
        if (is_grid(*result.quantity)) {
            text += "\n" + table_text(kavetta, result);
        }
    }
    return text;
}

}  // namespace kvt
