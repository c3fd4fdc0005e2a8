#include "ports/groove_outline.hpp"

namespace kvt {

namespace {

void add_inner_path(const groove_shape& groove, groove_outline& built) {
    built.outline.add(groove.a);
    built.outline.add_arc(groove.inner_r, groove.shift, groove.start_inner_deg,
                          groove.inner.t_deg - groove.start_inner_deg, 1);
    built.outline.add(groove.inner.r);
    built.mark_b = built.outline.last();
}

void add_nose(const groove_shape& groove, groove_outline& built) {
    if (groove.f != 0.0) {
        const double sweep = fillet_angle_deg(groove.f, groove.f + groove.inner_r,
                                              distance_squared(groove.inner.s, groove.shift));
        built.outline.add_fillet(groove.inner.c, groove.f, base_after_inner_arc(groove.inner),
                                 sweep);
        built.outline.add(groove.inner.s);
    }
    if (groove.inner.s != groove.outer.s) {
        built.outline.add(groove.outer.s);
        built.mark_c = built.outline.last();
    }
    if (groove.f != 0.0) {
        const double sweep =
            180.0 - fillet_angle_deg(groove.f, groove.outer_r - groove.f,
                                     distance_squared(groove.outer.s, groove.shift));
        built.outline.add_fillet(groove.outer.c, groove.f, base_before_outer_arc(groove.outer),
                                 sweep);
        built.outline.add(groove.outer.r);
    }
}

void add_outer_path(const groove_shape& groove, groove_outline& built) {
    built.outline.add_arc(groove.outer_r, groove.shift, groove.outer.t_deg,
                          groove.outer.t_deg - groove.start_outer_deg, -1);
    built.outline.add(groove.b);
    built.main_last = built.outline.last();
}

void add_tail(const groove_shape& groove, groove_outline& built) {
    built.outline.add_arc(groove.outer_r, groove.shift, groove.start_outer_deg, groove.overlap_deg,
                          -1);
    built.outline.add(groove.tail_outer);
    built.mark_d = built.outline.last();
    built.outline.add(groove.tail_inner);
    built.mark_a = built.outline.last();
    built.outline.add_arc(groove.inner_r, groove.shift, groove.start_inner_deg - groove.overlap_deg,
                          groove.overlap_deg, 1);
    built.outline.add(groove.a);
}

}  // namespace

groove_outline outline_of_groove(const groove_shape& groove) {
    groove_outline built;
    add_inner_path(groove, built);
    add_nose(groove, built);
    add_outer_path(groove, built);
    add_tail(groove, built);
    return built;
}

}  // namespace kvt
