#include "ui/shell/chart_windows.hpp"

#include "ui/forms/graphview2.hpp"

namespace kvt {

chart_windows::~chart_windows() {
    for (const QPointer<graphview2>& chart : loaded_) {
        delete chart;
    }
}

void chart_windows::load(const chart_row& chart) {
    std::erase(loaded_, nullptr);  // those that were closed
    loaded_.emplace_back(new graphview2(chart, context_));
}

}  // namespace kvt
