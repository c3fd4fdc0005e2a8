// sample_model_store: a store without a kernel that holds something to look at: a box, a ring and a
// curve in one document, a box in another.
#pragma once

#include "app/models/built_in_modeller.hpp"
#include "support/cad/fake_model_store.hpp"
#include "support/cad/mesh_shapes.hpp"

#include <algorithm>
#include <memory>
#include <numbers>

namespace kvt {

class sample_model_store : public fake_model_store {
  public:
    struct saved_model {
        std::filesystem::path file;
        solid_format format;
        std::vector<body_number> bodies;
        std::optional<housing_plan> housing;
    };

    static constexpr body_number BOX = 1, RING = 2, CURVE = 3, INLET = 4;
    static constexpr document_number ROTORS = 1, PORTS = 2;

    sample_model_store() {
        body_mesh curve;
        curve.points = {{-12.0, 0.0, 0.0}, {0.0, 12.0, 0.0}, {12.0, 0.0, 0.0}};
        curve.edges = {{0, 1, 2, 0}};
        add_parts(
            {{"Inner Rotor", body_role::inner_rotor, box_mesh({-10.0, -5.0, 0.0}, {10.0, 5.0, 8.0}),
              200.0},
             {"Outer Rotor", body_role::outer_rotor,
              ring_mesh({-2.0, 0.0}, 20.0, 14.0, 0.0, 8.0, 60), std::numbers::pi * (400.0 - 196.0)},
             {"Trochoid", body_role::other, curve, 0.0}});
        add_parts(
            {{"Inlet", body_role::inlet, box_mesh({0.0, 6.0, -6.0}, {9.0, 16.0, 0.0}), 90.0}});
    }

    /// A further document with a box.
    void build_more() {
        add_parts(
            {{"Outlet", body_role::outlet, box_mesh({0.0, -16.0, -6.0}, {9.0, -6.0, 0.0}), 90.0}});
    }

    void save(const std::filesystem::path& file, solid_format format,
              const std::vector<body_number>& bodies,
              const std::optional<housing_plan>& housing) override {
        fake_model_store::save(file, format, bodies, housing);
        saved.push_back({file, format, bodies, housing});
    }

    std::vector<saved_model> saved;

  private:
    struct part {
        std::string name;
        body_role role;
        body_mesh mesh;
        double area;
    };

    static model_body body_of(const part& from) {
        const auto by = [](double point3::*axis) {
            return [axis](const point3& a, const point3& b) { return a.*axis < b.*axis; };
        };
        const std::vector<point3>& points = from.mesh.points;
        const auto [x0, x1] = std::ranges::minmax_element(points, by(&point3::x));
        const auto [y0, y1] = std::ranges::minmax_element(points, by(&point3::y));
        const auto [z0, z1] = std::ranges::minmax_element(points, by(&point3::z));
        model_body body = box_body({x0->x, y0->y, z0->z}, {x1->x, y1->y, z1->z});
        body.name = from.name;
        body.role = from.role;
        body.is_curve = from.mesh.triangles.empty();
        body.contour_area = from.area;
        return body;
    }
    void add_parts(const std::vector<part>& parts) {
        std::vector<model_body> bodies;
        for (const part& from : parts) {
            meshes[++made_] = from.mesh;
            bodies.push_back(body_of(from));
        }
        add_document(bodies);
    }

    body_number made_ = 0;
};

/// A modeller that holds such a store, which is reached through the pointer that is set.
inline std::shared_ptr<built_in_modeller> sample_modeller(sample_model_store*& store) {
    auto made = std::make_unique<sample_model_store>();
    store = made.get();
    return std::make_shared<built_in_modeller>(std::move(made));
}

}  // namespace kvt
