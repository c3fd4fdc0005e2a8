#include "views/sight/snap.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

/// Of the reach: a profile can be had beside the centre of a small fillet, too.
constexpr double CENTRE_SHARE = 0.5;
constexpr double FULL_TURN = 2.0 * std::numbers::pi;

/// An angle brought into 0 .. 2 pi.
double turned_positive(double angle) {
    const double rest = std::fmod(angle, FULL_TURN);
    return rest < 0.0 ? rest + FULL_TURN : rest;
}

point2 on_arc(const drawn_arc& arc, double angle) {
    return {arc.x + arc.radius * std::cos(angle), arc.y - arc.radius * std::sin(angle)};
}

/// Keeps the nearest of the places that it is offered within its reach.
class nearest_place {
  public:
    nearest_place(const point2& place, double reach) : place_(place), reach_(reach) {}

    void offer(const point2& found, snap_kind kind) {
        if (const double away = distance(place_, found); away <= reach_) {
            reach_ = away;
            nearest_ = {found, kind};
            is_found_ = true;
        }
    }
    bool is_found() const { return is_found_; }
    const snapped_place& found() const { return nearest_; }

  private:
    const point2 place_;
    double reach_;
    snapped_place nearest_;
    bool is_found_ = false;
};

void offer_centres(const design_view& view, const view_state& state, nearest_place& nearest) {
    nearest.offer({state.view_cx + state.view_ecc, state.view_cy}, snap_kind::centre);
    nearest.offer({state.view_cx, state.view_cy}, snap_kind::centre);
    for (const drawn_arc& arc : view.Picture1) {
        nearest.offer({arc.x, arc.y}, snap_kind::centre);
    }
}

void offer_lines(const line_array& array, const point2& place, nearest_place& nearest) {
    for (std::size_t index = array.element0_visible ? 0 : 1; index < array.elements.size();
         ++index) {
        nearest.offer(nearest_on_line(array.elements[index], place), snap_kind::profile);
    }
}

void offer_profiles(const design_view& view, const point2& place, nearest_place& nearest) {
    for (const line_array* lines :
         {&view.Line1, &view.inlet_portline, &view.outlet_portline, &view.metering_groove_portline,
          &view.metering_groove_extraline}) {
        offer_lines(*lines, place, nearest);
    }
    for (const drawn_arc& arc : view.Picture1) {
        nearest.offer(nearest_on_arc(arc, place), snap_kind::profile);
    }
    if (const drawn_circle& circle = view.Shape1; circle.visible) {
        nearest.offer(
            nearest_on_arc({circle.x, circle.y, circle.diameter / 2.0, 0.0, FULL_TURN}, place),
            snap_kind::profile);
    }
}

}  // namespace

point2 nearest_on_line(const drawn_line& line, const point2& place) {
    const point2 from{line.x1, line.y1};
    const point2 way = difference({line.x2, line.y2}, from);
    const double square = way.x * way.x + way.y * way.y;
    if (!(square > 0.0)) {
        return from;
    }
    const point2 there = difference(place, from);
    const double share = std::clamp((there.x * way.x + there.y * way.y) / square, 0.0, 1.0);
    return {from.x + share * way.x, from.y + share * way.y};
}

point2 nearest_on_arc(const drawn_arc& arc, const point2& place) {
    if (place == point2{arc.x, arc.y}) {
        return place;
    }
    const double direction = std::atan2(arc.y - place.y, place.x - arc.x);
    const double turn = arc.end_angle - arc.start_angle;
    const double sweep = turn < 0.0 ? turn + FULL_TURN : turn;
    if (turned_positive(direction - arc.start_angle) <= sweep) {
        return on_arc(arc, direction);
    }
    const point2 start = on_arc(arc, arc.start_angle);
    const point2 end = on_arc(arc, arc.end_angle);
    return distance(place, start) < distance(place, end) ? start : end;
}

snapped_place snap_to_drawing(const design_view& view, const view_state& state, const point2& place,
                              double reach) {
    nearest_place centres(place, reach * CENTRE_SHARE);
    offer_centres(view, state, centres);
    if (centres.is_found()) {
        return centres.found();
    }
    nearest_place profiles(place, reach);
    offer_profiles(view, place, profiles);
    return profiles.is_found() ? profiles.found() : snapped_place{place, snap_kind::free};
}

}  // namespace kvt
