// Fuzz target: screen.ini ends in finite rectangles or in the built-in ones for any bytes.
#include "core/screen_layout.hpp"
#include "require.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kvt {

namespace {

void require_finite(const window_rectangle& window) {
    require(std::isfinite(window.height) && std::isfinite(window.width) &&
                std::isfinite(window.top) && std::isfinite(window.left),
            "a window's numbers are finite");
}

void check_layout(const std::string& bytes) {
    window_rectangles rectangles;
    const layout_reading reading = read_layout(bytes, rectangles);
    require(reading.explain == rectangles.of("explain").has_value(), "explain was touched or not");
    require(!reading.failed || rectangles.main_window_maximised,
            "the main window is maximised after a failure");
    for (const form_row& form : form_rows()) {
        if (const auto& window = rectangles.of(form.name)) {
            require_finite(*window);
        }
    }
    const std::string written = write_layout(rectangles);
    window_rectangles again;
    if (!read_layout(written, again).failed) {
        require(write_layout(again) == written, "writing again gives the same bytes");
    }
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kvt::check_layout(std::string(data, data + size));
    return 0;
}
