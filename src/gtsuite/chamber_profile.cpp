#include "gtsuite/chamber_profile.hpp"

#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"

namespace kvt {

namespace {

constexpr std::size_t HEADER_LINES = 2;
constexpr std::string_view BLANKS = " \t";

/// The second number of a line; the first is the angle.
double volume_of(const std::string& line) {
    const std::size_t angle = line.find_first_not_of(BLANKS);
    const std::size_t blank = line.find_first_of(BLANKS, angle);
    const std::size_t volume = line.find_first_not_of(BLANKS, blank);
    if (angle == std::string::npos || blank == std::string::npos || volume == std::string::npos) {
        throw run_time_error(failure::input_past_end, "no volume in '" + line + "'");
    }
    return number_of_text(line.substr(volume, line.find_first_of(BLANKS, volume) - volume));
}

}  // namespace

chamber_volumes read_chamber_volumes(std::string_view bytes) {
    const std::vector<std::string> lines = split_lines(bytes);
    if (lines.size() <= HEADER_LINES) {
        throw run_time_error(failure::input_past_end, "a chamber profile without volumes");
    }
    chamber_volumes volumes;
    volumes.biggest_mm3 = volumes.smallest_mm3 = volume_of(lines[HEADER_LINES]);
    for (std::size_t i = HEADER_LINES + 1; i < lines.size(); ++i) {
        const double volume = volume_of(lines[i]);
        if (!(volume < volumes.smallest_mm3)) {
            break;
        }
        volumes.smallest_mm3 = volume;
    }
    return volumes;
}

}  // namespace kvt
