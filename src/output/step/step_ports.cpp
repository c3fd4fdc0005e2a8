#include "output/step/step_ports.hpp"

#include "base/checked_math.hpp"
#include "output/step/step_wall.hpp"

#include <algorithm>
#include <span>

namespace kvt {

namespace {

/// Twice the area within the points, positive when they run counter-clockwise.
double twice_area(const std::vector<point2>& points) {
    double sum = 0.0;
    point2 before = points.back();
    for (const point2& point : points) {
        sum += before.x * point.y - point.x * before.y;
        before = point;
    }
    return sum;
}

std::vector<point2> inlet_contour(const port_params& ports) {
    return port_contour(ports.inlet.x, ports.inlet.y, ports.inlet.last);
}

std::vector<point2> outlet_contour(const port_params& ports) {
    return port_contour(ports.outlet.x, ports.outlet.y, ports.outlet.last);
}

std::optional<step_prism> lower_body(const char* product, std::vector<point2> contour,
                                     const design_params& design, bool double_sided) {
    const double depth = double_sided ? 0.5 * design.thick : design.thick;
    return step_prism{"PORTING", product, std::move(contour), -depth, depth};
}

std::optional<step_prism> upper_body(const char* solid, const char* product,
                                     std::vector<point2> contour, const design_params& design,
                                     bool double_sided, const entries& boxes) {
    if (!double_sided && !is_ticked(boxes.shadow_ports)) {
        return std::nullopt;
    }
    const double depth = double_sided ? 0.5 * design.thick : 0.2 * design.thick;
    return step_prism{solid, product, std::move(contour), design.axial_clear + design.thick, depth};
}

std::optional<step_prism> groove_body(const port_params& ports, const entries& boxes) {
    if (!is_ticked(boxes.metering_groove)) {
        return std::nullopt;
    }
    const double depth = ports.groove_depth_mm;
    return step_prism{"Metering Groove PORTING", "Metering Groove",
                      port_contour(ports.groove_x, ports.groove_y, ports.groove_last), -depth,
                      depth};
}

std::optional<step_prism> body_of(step_port port, const design_params& design,
                                  const port_params& ports, const entries& boxes) {
    const bool inlet_double = is_ticked(boxes.inlet_double_sided);
    const bool outlet_double = is_ticked(boxes.outlet_double_sided);
    switch (port) {
        case step_port::inlet_lower:
            return lower_body("Inlet Port Lower", inlet_contour(ports), design, inlet_double);
        case step_port::outlet_lower:
            return lower_body("Outlet Port Lower", outlet_contour(ports), design, outlet_double);
        case step_port::outlet_upper:
            return upper_body("OUTLET UPPER PORTING", "Outlet Port Upper", outlet_contour(ports),
                              design, outlet_double, boxes);
        case step_port::inlet_upper:
            return upper_body("INLET UPPER PORTING", "Inlet Port Upper", inlet_contour(ports),
                              design, inlet_double, boxes);
        case step_port::groove:
            break;
    }
    return groove_body(ports, boxes);
}

}  // namespace

std::vector<point2> port_contour(std::span<const double> x, std::span<const double> y,
                                 std::int16_t last) {
    std::vector<point2> points;
    for (std::int64_t i = 0; i < last; ++i) {
        points.push_back({checked_at(x, i), checked_at(y, i)});
    }
    if (!points.empty() && twice_area(points) < 0.0) {
        std::reverse(points.begin() + 1, points.end());
    }
    return points;
}

std::optional<step_prism> port_body(step_port port, const design_params& design,
                                    const port_params& ports, const entries& boxes) {
    std::optional<step_prism> body = body_of(port, design, ports, boxes);
    if (body && body->contour.size() < SMALLEST_CONTOUR) {
        body.reset();
    }
    return body;
}

void write_step_port(text_lines& out, step_port port, const design_params& design,
                     const port_params& ports, const entries& boxes) {
    if (const std::optional<step_prism> body = port_body(port, design, ports, boxes)) {
        write_step_prism(out, *body, static_cast<int>(port) * STEP_BODY_OFFSET);
    }
}

}  // namespace kvt
