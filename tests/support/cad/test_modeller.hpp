// The built-in modeller in a test, with a look into what it holds.
#pragma once

#include "automation/answer.hpp"
#include "automation/object.hpp"
#include "cad/builtin/builtin_host.hpp"

#include <memory>
#include <string_view>
#include <variant>
#include <vector>

namespace kvt {

struct test_modeller {
    builtin::desk_ref desk = std::make_shared<builtin::modeller_desk>();
    builtin::builtin_host host{desk};

    /// What all documents hold, in order of birth.
    std::vector<model_body> bodies() const {
        std::vector<model_body> all;
        for (const model_document& document : host.documents()) {
            all.insert(all.end(), document.bodies.begin(), document.bodies.end());
        }
        return all;
    }
    std::vector<builtin::body> solids() const {
        std::vector<builtin::body> found;
        for (const model_body& one : bodies()) {
            if (const auto* solid = std::get_if<builtin::body>(&desk->store.at(one.number))) {
                found.push_back(*solid);
            }
        }
        return found;
    }
    std::vector<builtin::wire> curves() const {
        std::vector<builtin::wire> found;
        for (const model_body& one : bodies()) {
            if (const auto* curve = std::get_if<builtin::wire>(&desk->store.at(one.number))) {
                found.push_back(*curve);
            }
        }
        return found;
    }
};

/// x0, y0 .. of the corners of a square with its centre at the origin, in whatever unit.
inline std::vector<double> square_numbers(double half_side) {
    const double a = half_side;
    return {a, a, -a, a, -a, -a, a, -a};
}

}  // namespace kvt
