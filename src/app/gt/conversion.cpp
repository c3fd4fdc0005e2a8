#include "app/gt/conversion.hpp"

#include "app/gt/gt_installation.hpp"
#include "base/path_text.hpp"
#include "core/tool_starter.hpp"

namespace kvt {

namespace {

using clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

std::optional<conversion_sizes> sizes_of(const conversion& files) {
    std::error_code no_model;
    std::error_code no_profile;
    const conversion_sizes sizes = {std::filesystem::file_size(files.model, no_model),
                                    std::filesystem::file_size(files.profile, no_profile)};
    return no_model || no_profile ? std::nullopt : std::optional(sizes);
}

/// False when the person ended the wait.
bool wait_for_conversion(tool_starter& person, const conversion& files,
                         const conversion_limits& limits) {
    conversion_watch watch(limits);
    const clock::time_point start = clock::now();
    const auto passed = [&] {
        return std::chrono::duration_cast<milliseconds>(clock::now() - start);
    };
    while (!watch.is_over(passed(), sizes_of(files), person.is_tool_running())) {
        if (!person.wait(limits.step)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool conversion_watch::is_over(milliseconds now, const std::optional<conversion_sizes>& sizes,
                               bool is_running) {
    if (sizes != sizes_) {
        sizes_ = sizes;
        sizes_since_ = now;
    }
    if (!is_running && !ended_at_) {
        ended_at_ = now;
    }
    const bool is_there = sizes_ && now - sizes_since_ >= limits_.unchanged;
    const bool has_ended = ended_at_ && now - *ended_at_ >= limits_.after_end;
    return is_there || has_ended || now >= limits_.whole;
}

bool run_conversion(tool_starter& person, const conversion& files,
                    const conversion_limits& limits) {
    person.start_tool({find_gt_tool(gt_tool::converter),
                       {"-v" + std::to_string(files.gt_version), utf8_of_path(files.source)},
                       gt_tools_folder()});
    const bool is_waited_for = wait_for_conversion(person, files, limits);
    person.end_tool();
    return is_waited_for;
}

}  // namespace kvt
