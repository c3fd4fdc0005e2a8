// Random entries of the performance, and random designs whose performance is calculated.
#pragma once

#include "app/stages/calculate_performance.hpp"
#include "base/run_time_error.hpp"
#include "support/random_design.hpp"

#include <stdexcept>

namespace kvt {

/// A fluid, materials and a range that any sound design can be calculated with.
inline void type_random_performance(random_values& random, entries& boxes) {
    boxes.fluid_density = typed_number(random.real(700.0, 1000.0));
    boxes.kin_visc = typed_number(random.real(2.0, 100.0));
    boxes.vap_press = typed_number(random.real(0.1, 50.0));
    boxes.bulk_mod_text = typed_number(random.real(0.8, 2.0));
    const double speed = random.real(200.0, 2000.0);
    boxes.speed_lo = typed_number(speed);
    boxes.speed_hi = typed_number(speed + random.real(500.0, 5000.0));
    const double pressure = random.real(0.5, 10.0);
    boxes.pressure_lo = typed_number(pressure);
    boxes.pressure_hi = typed_number(pressure + random.real(1.0, 100.0));
    boxes.young_inner = boxes.young_outer = typed_number(random.real(100.0, 220.0));
    boxes.poissons_inner = boxes.poissons_outer = typed_number(random.real(0.2, 0.35));
    boxes.friction = typed_number(random.real(0.02, 0.2));
}

/// A random design of which Calculate Performance accepts every entry and comes to its end.
inline program random_performance(random_values& random) {
    for (int draw = 0; draw < 1000; ++draw) {
        program kavetta = random_design(random);
        type_random_performance(random, kavetta.entries);
        scripted_user person;
        try {
            if (calculate_performance(kavetta, person) && person.messages.empty()) {
                return kavetta;
            }
        } catch (const run_time_error&) {
            continue;
        }
    }
    throw std::runtime_error("no performance in 1000 draws");
}

}  // namespace kvt
