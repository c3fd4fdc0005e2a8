#include "app/models/shown_models.hpp"

#include "app/models/built_in_modeller.hpp"
#include "app/program.hpp"
#include "base/fixed_number.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "views/model/model_palette.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr double CUBIC_MM_PER_CUBIC_CM = 1000.0;
constexpr int VOLUME_DECIMALS = 3;

model_store* store_of(const program& kavetta) {
    return kavetta.modeller == nullptr ? nullptr : kavetta.modeller->loaded_store();
}

const rgb_colour& colour_of(const model_body& body, const model_palette& palette) {
    switch (body.role) {
        case body_role::inner_rotor:
            return palette.inner_rotor;
        case body_role::outer_rotor:
            return palette.outer_rotor;
        case body_role::inlet:
            return palette.inlet;
        case body_role::outlet:
            return palette.outlet;
        case body_role::groove:
            return palette.groove;
        case body_role::housing:
            return palette.housing;
        case body_role::other:
            break;
    }
    return body.is_curve ? palette.curve : palette.other;
}

std::string word(const program& kavetta, std::string_view name) {
    return std::string(form_text("model_view", name, kavetta.app_state.language));
}

std::string unit_word(const program& kavetta) {
    return std::string(
        message_text(length_unit_of(kavetta.app_state).short_name, kavetta.app_state.language));
}

/// One digit more than the position of the mouse.
std::string length_number(const program& kavetta, double mm) {
    const length_unit& unit = length_unit_of(kavetta.app_state);
    return fixed_number(unit.from_mm(mm), unit.cursor_decimals + 1);
}

model_box box_of(const std::vector<model_body>& bodies) {
    model_box box = bodies.front().box;
    for (const model_body& body : bodies) {
        const auto& [low, high] = body.box;
        box.lowest = {std::min(box.lowest.x, low.x), std::min(box.lowest.y, low.y),
                      std::min(box.lowest.z, low.z)};
        box.highest = {std::max(box.highest.x, high.x), std::max(box.highest.y, high.y),
                       std::max(box.highest.z, high.z)};
    }
    return box;
}

std::string volume_text(const program& kavetta, const std::vector<model_body>& bodies) {
    double volume = 0.0;
    for (const model_body& body : bodies) {
        volume += body.volume();
    }
    return word(kavetta, "volume") + fixed_number(volume / CUBIC_MM_PER_CUBIC_CM, VOLUME_DECIMALS) +
           " cm\u00b3";
}

std::string box_text(const program& kavetta, const std::vector<model_body>& bodies) {
    const model_box box = box_of(bodies);
    const point3 size = box.highest - box.lowest;
    return word(kavetta, "box") + length_number(kavetta, size.x) + " x " +
           length_number(kavetta, size.y) + " x " + length_number(kavetta, size.z) + " " +
           unit_word(kavetta);
}

}  // namespace

std::vector<model_document> built_documents(const program& kavetta) {
    const model_store* store = store_of(kavetta);
    return store == nullptr ? std::vector<model_document>() : store->documents();
}

void close_model_document(const program& kavetta, document_number document) {
    if (model_store* store = store_of(kavetta)) {
        store->close_document(document);
    }
}

model_scene scene_of_bodies(const program& kavetta, const std::vector<model_body>& bodies,
                            const model_look& look) {
    const model_palette& palette = model_palette_on(look.on_dark_ground);
    model_scene scene;
    scene.background = palette.background;
    scene.edge = palette.edge;
    scene.section = palette.section;
    scene.line_width = look.line_width;
    for (const model_body& body : bodies) {
        const part_turn turn =
            look.turns_with_design_view ? turn_of(kavetta, body.role) : part_turn();
        scene.parts.push_back(
            {&store_of(kavetta)->mesh_of(body.number), colour_of(body, palette), turn});
    }
    return scene;
}

part_turn turn_of(const program& kavetta, body_role role) {
    constexpr double RADIANS_PER_DEGREE = std::numbers::pi / 180.0;
    if (role == body_role::inner_rotor) {
        return {{0.0, 0.0}, -kavetta.view_state.rotation_angle * RADIANS_PER_DEGREE};
    }
    if (role == body_role::outer_rotor) {
        return {{-kavetta.design_params.ecc, 0.0},
                -kavetta.view_state.outer_rotation_angle * RADIANS_PER_DEGREE};
    }
    return {};
}

std::string bodies_line(const program& kavetta, const std::vector<model_body>& bodies) {
    if (bodies.empty()) {
        return {};
    }
    const bool has_solids = !std::ranges::all_of(bodies, &model_body::is_curve);
    const std::string name =
        bodies.size() == 1
            ? bodies.front().name
            : fixed_number(static_cast<double>(bodies.size()), 0) + word(kavetta, "bodies");
    return name + ": " + (has_solids ? volume_text(kavetta, bodies) + ", " : "") +
           box_text(kavetta, bodies);
}

std::string distance_line(const program& kavetta, const point3& from, const point3& to) {
    const point3 d = to - from;
    return word(kavetta, "distance") + model_length(kavetta, std::sqrt(dot(d, d))) + ": x " +
           length_number(kavetta, d.x) + ", y " + length_number(kavetta, d.y) + ", z " +
           length_number(kavetta, d.z);
}

std::string model_length(const program& kavetta, double mm) {
    return length_number(kavetta, mm) + " " + unit_word(kavetta);
}

}  // namespace kvt
