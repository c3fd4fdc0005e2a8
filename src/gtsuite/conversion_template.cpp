#include "gtsuite/conversion_template.hpp"

#include "base/run_time_error.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr std::string_view VERSION_ANCHOR = "JMF    version : 2.1.1e";
constexpr std::size_t VERSION_LINE = 2;  // behind the anchor
constexpr std::string_view PROFILE_VALUE =
    "<va a_id=\"986286\" text=\"&lt;OutputProfiles.txt&gt;\" unitID=\"0\"/>";

std::size_t line_of_version(const model_lines& lines) {
    const auto anchor = std::ranges::find_if(lines, [](const std::string& line) {
        return line.find(VERSION_ANCHOR) != std::string::npos;
    });
    if (lines.end() - anchor <= static_cast<model_lines::difference_type>(VERSION_LINE)) {
        throw run_time_error(failure::input_past_end, "no version in the template");
    }
    return static_cast<std::size_t>(anchor - lines.begin()) + VERSION_LINE;
}

std::string& line_of_profile(model_lines& lines) {
    const auto found = std::ranges::find(lines, PROFILE_VALUE, without_blanks);
    if (found == lines.end()) {
        throw run_time_error(failure::input_past_end, "no chamber profile in the template");
    }
    return *found;
}

}  // namespace

void prepare_conversion(model_text& text, int year, std::string_view project_name) {
    text.lines[line_of_version(text.lines)] =
        "--><gem next_obj=\"8010\" product=\"13\" ver=\"" + std::to_string(year) + ".0.0\">";
    std::string& profile = line_of_profile(text.lines);
    const std::string indent = profile.substr(0, profile.find('<'));
    profile = indent + "<va a_id=\"986286\" text=\"&lt;" +
              attribute_text(project_name, text.encoding) + ".txt&gt;\" unitID=\"0\"/>";
}

}  // namespace kvt
