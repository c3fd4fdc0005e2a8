#include "exact/port_timing.hpp"

#include "exact/chamber.hpp"
#include "exact/polygon_overlap.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <numbers>

namespace kvt {

namespace {

constexpr double DEGREE = std::numbers::pi / 180.0;
constexpr double SAGITTA = 0.002;  ///< mm, of the chamber's polygon
constexpr double OPEN = 1e-4;      ///< mm2; below it rounding of the polygons
constexpr double NEARNESS = 1e-3 * DEGREE;
constexpr double SHARE_WITH_SPEED = 0.1;  ///< of a chamber's largest opened area

indexed_polygon outline_of(const zeroed_array& x, const zeroed_array& y, std::int16_t last) {
    std::vector<point2> points;
    // The last point repeats the first.
    for (std::size_t i = 0; i < static_cast<std::size_t>(std::max<int>(last, 0)); ++i) {
        points.push_back({x[i], y[i]});
    }
    return moved_aside(std::move(points));
}

using opened_area = double (*)(const chamber_opening&);

double inlet_area(const chamber_opening& opening) {
    return opening.inlet;
}
double outlet_area(const chamber_opening& opening) {
    return opening.outlet + opening.groove;
}

/// The chambers over the ports of a design.
class opened_chambers {
  public:
    opened_chambers(const design_params& design, const port_params& ports, const timed_ports& which)
        : pair_(nominal_pair(design)),
          outline_(outline_of_lobe(design)),
          inlet_(outline_of(ports.inlet.x, ports.inlet.y, which.has_inlet ? ports.inlet.last : 0)),
          outlet_(
              outline_of(ports.outlet.x, ports.outlet.y, which.has_outlet ? ports.outlet.last : 0)),
          groove_(outline_of(ports.groove_x, ports.groove_y,
                             which.has_groove ? ports.groove_main_last : std::int16_t{0})),
          inlet_sides_(which.inlet_double_sided ? 2.0 : 1.0),
          outlet_sides_(which.outlet_double_sided ? 2.0 : 1.0) {}

    const exact_pair& pair() const { return pair_; }
    double life() const { return chamber_life(pair_); }

    double volume_at(double place) const { return chamber_volume(pair_, outline_, place); }

    chamber_opening at(double place) const {
        chamber_opening opening = areas_at(place);
        opening.volume = volume_at(place);
        opening.rate = chamber_rate(pair_, place);
        return opening;
    }

    /// Without volume and rate.
    chamber_opening areas_at(double place) const {
        chamber_opening opening;
        opening.place = place;
        const indexed_polygon chamber(chamber_polygon(pair_, outline_, place, SAGITTA));
        opening.inlet = inlet_sides_ * opened(chamber, inlet_);
        opening.outlet = outlet_sides_ * opened(chamber, outlet_);
        opening.groove = opened(chamber, groove_);
        return opening;
    }

  private:
    static double opened(const indexed_polygon& chamber, const indexed_polygon& port) {
        const double area = shared_area(chamber, port);
        return area < OPEN ? 0.0 : area;
    }

    const exact_pair pair_;
    const lobe_outline outline_;
    const indexed_polygon inlet_, outlet_, groove_;
    const double inlet_sides_, outlet_sides_;
};

// Parts of the life.

using is_state = std::function<bool(const chamber_opening&)>;

/// The opened areas by place. The states change at the same places, so each is asked for again.
class known_areas {
  public:
    explicit known_areas(const opened_chambers& chambers) : chambers_(chambers) {}

    const opened_chambers& chambers() const { return chambers_; }
    const chamber_opening& at(double place) {
        const auto found = known_.find(place);
        return found != known_.end()
                   ? found->second
                   : known_.emplace(place, chambers_.areas_at(place)).first->second;
    }

  private:
    const opened_chambers& chambers_;
    std::map<double, chamber_opening> known_;
};

/// Where a state begins or ends between two places, behind a place where it is `at_first`.
double change_between(known_areas& areas, const is_state& state, bool at_first, double before,
                      double behind) {
    while (behind - before > NEARNESS) {
        const double middle = (before + behind) / 2.0;
        (state(areas.at(middle)) == at_first ? before : behind) = middle;
    }
    return (before + behind) / 2.0;
}

/// The spans in which a state holds. One that holds at the end of the life and at the beginning of
/// the next is one span.
std::vector<life_span> spans_of(known_areas& areas, const std::vector<chamber_opening>& life,
                                const is_state& state) {
    const opened_chambers& chambers = areas.chambers();
    const double whole = chambers.life();
    const double step = whole / static_cast<double>(life.size());
    std::vector<life_span> spans;
    std::vector<double> ends;
    for (std::size_t i = 0; i < life.size(); ++i) {
        const bool now = state(life[i]);
        const bool next = state(life[(i + 1) % life.size()]);
        if (now != next) {
            const double at =
                change_between(areas, state, now, life[i].place, life[i].place + step);
            if (next) {
                spans.push_back({at, at, 0.0});
            } else {
                ends.push_back(at);
            }
        }
    }
    if (spans.empty() && state(life.front())) {
        return {{0.0, whole, 0.0}};
    }
    for (life_span& span : spans) {
        const auto end = std::ranges::upper_bound(ends, span.from);
        span.to = end == ends.end() ? ends.front() + whole : *end;
        span.volume_change = chambers.volume_at(span.to) - chambers.volume_at(span.from);
    }
    return spans;
}

// Speeds.

/// Of the chambers that are open to one port alone, one pitch apart each, from a step on.
double speed_of_port(const port_timing& timing, std::size_t first, opened_area area) {
    double rates = 0.0;
    double areas = 0.0;
    for (std::size_t i = first; i < timing.life.size(); i += timing.steps_a_pitch) {
        const chamber_opening& opening = timing.life[i];
        if (area(opening) > 0.0 && !(opening.is_open_to_inlet() && opening.is_open_to_outlet())) {
            rates += opening.rate;
            areas += area(opening);
        }
    }
    return areas > 0.0 ? std::abs(rates) / areas : 0.0;
}

/// Of one chamber, which is open to one port alone and far enough.
double speed_of_chamber(const chamber_opening& opening, opened_area area, double least_area) {
    const bool has_speed = area(opening) > 0.0 && area(opening) >= least_area &&
                           !(opening.is_open_to_inlet() && opening.is_open_to_outlet());
    return has_speed ? std::abs(opening.rate) / area(opening) : 0.0;
}

double largest_area(const port_timing& timing, opened_area area) {
    double largest = 0.0;
    for (const chamber_opening& opening : timing.life) {
        largest = std::max(largest, area(opening));
    }
    return largest;
}

port_speeds speeds_of(const port_timing& timing, opened_area area) {
    const double least_area = SHARE_WITH_SPEED * largest_area(timing, area);
    port_speeds speeds;
    for (std::size_t i = 0; i < timing.life.size(); ++i) {
        speeds.of_port.push_back(i < timing.steps_a_pitch
                                     ? speed_of_port(timing, i, area)
                                     : speeds.of_port[i - timing.steps_a_pitch]);
        speeds.of_chamber.push_back(speed_of_chamber(timing.life[i], area, least_area));
    }
    return speeds;
}

/// The first of the largest.
port_speed largest_of(const std::vector<double>& speeds, const std::vector<chamber_opening>& life) {
    const auto largest = std::ranges::max_element(speeds);
    if (largest == speeds.end() || *largest == 0.0) {
        return {};
    }
    return {*largest, life[static_cast<std::size_t>(largest - speeds.begin())].place};
}

void fill_speeds(port_timing& timing) {
    timing.inlet_speeds = speeds_of(timing, inlet_area);
    timing.outlet_speeds = speeds_of(timing, outlet_area);
    timing.inlet_speed = largest_of(timing.inlet_speeds.of_port, timing.life);
    timing.outlet_speed = largest_of(timing.outlet_speeds.of_port, timing.life);
    timing.inlet_chamber_speed = largest_of(timing.inlet_speeds.of_chamber, timing.life);
    timing.outlet_chamber_speed = largest_of(timing.outlet_speeds.of_chamber, timing.life);
}

void fill_life(const opened_chambers& chambers, double step_deg, port_timing& timing) {
    const auto lobes = static_cast<std::size_t>(chambers.pair().lobes);
    const double pitch = chambers.life() / static_cast<double>(lobes);
    timing.steps_a_pitch =
        static_cast<std::size_t>(std::max(1.0, std::ceil(pitch / (step_deg * DEGREE))));
    const double step = pitch / static_cast<double>(timing.steps_a_pitch);
    for (std::size_t i = 0; i < lobes * timing.steps_a_pitch; ++i) {
        timing.life.push_back(chambers.at(step * static_cast<double>(i)));
    }
}

void fill_spans(const opened_chambers& chambers, port_timing& timing) {
    known_areas areas(chambers);
    const auto spans = [&](const is_state& state) { return spans_of(areas, timing.life, state); };
    timing.inlet_open = spans(&chamber_opening::is_open_to_inlet);
    timing.outlet_open = spans(&chamber_opening::is_open_to_outlet);
    timing.both_open = spans([](const chamber_opening& opening) {
        return opening.is_open_to_inlet() && opening.is_open_to_outlet();
    });
    timing.trapped = spans([](const chamber_opening& opening) {
        return !opening.is_open_to_inlet() && !opening.is_open_to_outlet();
    });
    for (const life_span& span : timing.trapped) {
        timing.trapped_change += span.volume_change * (chambers.pair().lobes - 1);
    }
}

}  // namespace

port_timing time_ports(const design_params& design, const port_params& ports,
                       const timed_ports& which, double step_deg) {
    const opened_chambers chambers(design, ports, which);
    port_timing timing;
    fill_life(chambers, step_deg, timing);
    fill_spans(chambers, timing);
    fill_speeds(timing);
    return timing;
}

chamber_opening opening_at(const design_params& design, const port_params& ports,
                           const timed_ports& which, double place) {
    return opened_chambers(design, ports, which).at(place);
}

}  // namespace kvt
