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

present_windows windows_at(const window_rectangles& rectangles) {
    present_windows windows;
    windows.Form1 = rectangles.Form1;
    windows.portdes = rectangles.portdes;
    windows.viewwinfrm = rectangles.viewwinfrm;
    windows.Perffrm = rectangles.Perffrm;
    windows.select_graphs = rectangles.select_graphs;
    windows.explain = rectangles.explain;
    windows.port_explain = rectangles.port_explain;
    windows.MDIForm1 = rectangles.MDIForm1;
    return windows;
}

void check_layout(const std::string& bytes) {
    window_rectangles rectangles;
    const layout_reading reading = read_layout(bytes, rectangles);
    require(reading.explain == rectangles.explain.has_value(), "explain was touched or not");
    require(!reading.failed || rectangles.main_window_maximised,
            "the main window is maximised after a failure");
    const present_windows windows = windows_at(rectangles);
    for (const window_rectangle& window : {windows.Form1, windows.portdes, windows.viewwinfrm,
                                           windows.Perffrm, windows.select_graphs}) {
        require_finite(window);
    }
    const std::string written = write_layout(windows);
    window_rectangles again;
    if (!read_layout(written, again).failed) {
        require(write_layout(windows_at(again)) == written, "writing again gives the same bytes");
    }
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kvt::check_layout(std::string(data, data + size));
    return 0;
}
