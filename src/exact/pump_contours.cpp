#include "exact/pump_contours.hpp"

#include "base/run_time_error.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

void append(std::vector<pump_contour>& all, std::vector<pump_contour> more) {
    std::ranges::move(more, std::back_inserter(all));
}

class growing_extents {
  public:
    void take(const point2& point) {
        extents_.low = {std::min(extents_.low.x, point.x), std::min(extents_.low.y, point.y)};
        extents_.high = {std::max(extents_.high.x, point.x), std::max(extents_.high.y, point.y)};
    }

    void take(const exact_piece& piece) {
        take(piece.start);
        take(piece.end);
        if (piece.kind == piece_kind::arc) {
            take_quarters(piece.arc);
        }
        for (std::size_t i = 0; i + 1 < piece.spline.knots.size(); ++i) {
            for (const point2& control : piece.spline.bezier_of(i)) {
                take(control);
            }
        }
    }

    const contour_extents& done() const { return extents_; }

  private:
    /// The places of an arc straight beside, above and below its centre.
    void take_quarters(const true_arc& arc) {
        constexpr double QUARTER = std::numbers::pi / 2.0;
        const auto [first, last] = std::minmax(arc.from, arc.to);
        for (double at = std::ceil(first / QUARTER) * QUARTER; at < last; at += QUARTER) {
            take(arc.at(at));
        }
    }

    static constexpr double FAR = std::numeric_limits<double>::max();
    contour_extents extents_{{FAR, FAR}, {-FAR, -FAR}};
};

}  // namespace

std::string_view name_of(pump_part part) {
    switch (part) {
        case pump_part::inner_rotor:
            return "inner-rotor";
        case pump_part::outer_rotor:
            return "outer-rotor";
        case pump_part::rim:
            return "outer-rim";
        case pump_part::inlet:
            return "inlet-port";
        case pump_part::outlet:
            return "outlet-port";
        case pump_part::groove:
            break;
    }
    return "metering-groove";
}

std::vector<pump_contour> inner_rotor_contours(const design_params& design) {
    return {{pump_part::inner_rotor, inner_rotor_arcs(design)}};
}

std::vector<pump_contour> outer_rotor_contours(const design_params& design) {
    return {{pump_part::rim, rim_of_outer_rotor(design)},
            {pump_part::outer_rotor, outer_rotor_arcs(design)}};
}

std::vector<pump_contour> pair_contours(const design_params& design) {
    std::vector<pump_contour> all = outer_rotor_contours(design);
    append(all, inner_rotor_contours(design));
    return all;
}

std::vector<pump_contour> port_contours(const port_params& ports, port_side side) {
    if (ports.of(side).last <= 0) {
        return {};
    }
    const bool is_inlet = side == port_side::inlet;
    return {{is_inlet ? pump_part::inlet : pump_part::outlet,
             port_arcs(ports.of(side).built, is_inlet)}};
}

std::vector<pump_contour> groove_contours(const port_params& ports, const entries& boxes) {
    if (!is_ticked(boxes.metering_groove) || ports.groove_last <= 0) {
        return {};
    }
    return {{pump_part::groove, groove_arcs(ports.groove_built)}};
}

std::vector<pump_contour> whole_pump_contours(const design_params& design, const port_params& ports,
                                              const entries& boxes) {
    std::vector<pump_contour> all = pair_contours(design);
    append(all, port_contours(ports, port_side::inlet));
    append(all, port_contours(ports, port_side::outlet));
    append(all, groove_contours(ports, boxes));
    return all;
}

void check_that_there_are(const std::vector<pump_contour>& contours) {
    if (contours.empty()) {
        throw run_time_error(failure::invalid_procedure_call, "no such contour");
    }
}

contour_extents extents_of(const std::vector<pump_contour>& contours) {
    growing_extents extents;
    for (const pump_contour& drawn : contours) {
        for (const exact_piece& piece : drawn.contour) {
            extents.take(piece);
        }
    }
    return extents.done();
}

}  // namespace kvt
