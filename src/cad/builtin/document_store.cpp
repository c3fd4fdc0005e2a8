#include "cad/builtin/document_store.hpp"

#include "base/whole_file.hpp"
#include "cad/builtin/body_mesher.hpp"
#include "cad/builtin/housing_solid.hpp"
#include "cad/builtin/kernel_files.hpp"
#include "cad/builtin/mesh_files.hpp"

#include <algorithm>
#include <utility>

namespace kvt::builtin {

namespace {

constexpr const char* HOUSING_NAME = "Housing";
const body_mesh NO_MESH;

model_box box_of(const wire& curve) {
    const std::vector<point2>& points = curve.sampled();
    const auto [left, right] = std::ranges::minmax(points, {}, &point2::x);
    const auto [low, high] = std::ranges::minmax(points, {}, &point2::y);
    return {{left.x, low.y, 0.0}, {right.x, high.y, 0.0}};
}

std::string bytes_of(const std::vector<saved_body>& bodies, solid_format format) {
    switch (format) {
        case solid_format::step:
            break;
        case solid_format::stl:
            return stl_bytes(printed_meshes(bodies));
        case solid_format::three_mf:
            return three_mf_bytes(printed_meshes(bodies));
        case solid_format::brep:
            return brep_bytes(bodies);
    }
    return step_bytes(bodies);
}

}  // namespace

document_number document_store::add_document(const std::string& name) {
    documents_.emplace(++documents_made_, name);
    return documents_made_;
}

body_number document_store::add(document_number document, const solid_or_curve& one,
                                const std::string& name) {
    static_cast<void>(documents_.at(document));
    bodies_.emplace(++bodies_made_,
                    stored_body{{name, body_role::other, one}, document, std::nullopt});
    return bodies_made_;
}

void document_store::replace(body_number number, const solid_or_curve& one) {
    stored_body& stored = bodies_.at(number);
    stored.body.shape = one;
    stored.mesh.reset();
}

void document_store::remove(body_number number) {
    bodies_.erase(number);
}

bool document_store::has(body_number number) const {
    return bodies_.contains(number);
}

bool document_store::has_document(document_number number) const {
    return documents_.contains(number);
}

const solid_or_curve& document_store::at(body_number number) const {
    return bodies_.at(number).body.shape;
}

std::vector<model_document> document_store::documents() const {
    std::vector<model_document> all;
    for (const auto& [number, name] : documents_) {
        all.push_back({number, name, {}});
        for (const auto& [body_number, one] : bodies_) {
            if (one.document == number) {
                all.back().bodies.push_back(description(body_number, one.body));
            }
        }
    }
    return all;
}

model_body document_store::description(body_number number, const saved_body& one) {
    model_body told;
    told.number = number;
    told.name = one.name;
    told.role = one.role;
    if (const body* solid = std::get_if<body>(&one.shape)) {
        told.contour_area = solid->contour_area();
        told.height = solid->height();
        told.box = solid->box();
    } else {
        told.is_curve = true;
        told.box = box_of(std::get<wire>(one.shape));
    }
    return told;
}

void document_store::label(body_number number, const std::string& name, body_role role) {
    const auto found = bodies_.find(number);
    if (found != bodies_.end()) {
        found->second.body.name = name;
        found->second.body.role = role;
    }
}

const body_mesh& document_store::mesh_of(body_number number) {
    const auto found = bodies_.find(number);
    if (found == bodies_.end()) {
        return NO_MESH;
    }
    std::optional<body_mesh>& mesh = found->second.mesh;
    if (!mesh) {
        const solid_or_curve& shape = found->second.body.shape;
        const body* solid = std::get_if<body>(&shape);
        mesh = solid != nullptr ? builtin::mesh_of(*solid, SHOWN)
                                : builtin::mesh_of(std::get<wire>(shape));
    }
    return *mesh;
}

void document_store::save(const std::filesystem::path& file, solid_format format,
                          const std::vector<body_number>& bodies,
                          const std::optional<housing_plan>& housing) {
    std::vector<saved_body> saved;
    for (const body_number number : bodies) {
        if (has(number)) {
            saved.push_back(bodies_.at(number).body);
        }
    }
    if (housing) {
        saved.push_back({HOUSING_NAME, body_role::housing, housing_solid(*housing)});
    }
    write_file(file, bytes_of(saved, format));
}

void document_store::close_document(document_number document) {
    documents_.erase(document);
    std::erase_if(bodies_, [document](const auto& one) { return one.second.document == document; });
}

}  // namespace kvt::builtin
