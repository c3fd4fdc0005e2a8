// chart_windows: the chart windows of a running program. They have no owner among the windows, so
// this ends them with the program.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QPointer>

#include <string_view>
#include <vector>

namespace kvt {

class graphview2;
struct chart_row;

class chart_windows {
  public:
    explicit chart_windows(form_context context) : context_(context) {}
    ~chart_windows();
    chart_windows(const chart_windows&) = delete;
    chart_windows& operator=(const chart_windows&) = delete;

    /// Loads a chart, not shown yet.
    void load(const chart_row& chart);

  private:
    form_context context_;
    std::vector<QPointer<graphview2>> loaded_;
};

}  // namespace kvt
