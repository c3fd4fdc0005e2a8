#include "cad/builtin/builtin_host.hpp"

#include "automation/no_host.hpp"
#include "base/letter_case.hpp"
#include "cad/builtin/autocad_objects.hpp"
#include "cad/builtin/catia_objects.hpp"
#include "cad/builtin/inventor_objects.hpp"
#include "cad/builtin/solidedge_objects.hpp"
#include "cad/builtin/solidworks_objects.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kvt::builtin {

namespace {

struct package_row {
    std::string_view class_name;
    automation::object_ref (*application)(const desk_ref& desk);
};

constexpr std::array PACKAGES = {package_row{"autocad.application", autocad_application},
                                 package_row{"sldworks.application", solidworks_application},
                                 package_row{"inventor.application", inventor_application},
                                 package_row{"solidedge.application", solidedge_application},
                                 package_row{"catia.application", catia_application}};

const package_row* package_of(std::string_view class_name) {
    const auto* found = std::ranges::find_if(PACKAGES, [class_name](const package_row& row) {
        return is_same_ignoring_case(row.class_name, class_name);
    });
    return found == PACKAGES.end() ? nullptr : found;
}

}  // namespace

builtin_host::builtin_host(desk_ref desk) : desk_(std::move(desk)) {}

automation::object_ref builtin_host::running(std::string_view class_name) {
    const package_row* row = package_of(class_name);
    return row == nullptr ? nullptr : running_[row->class_name];
}

automation::object_ref builtin_host::create(std::string_view class_name) {
    const package_row* row = package_of(class_name);
    if (row == nullptr) {
        return automation::no_host().create(class_name);
    }
    automation::object_ref& held = running_[row->class_name];
    if (held == nullptr) {
        held = row->application(desk_);
    }
    return held;
}

std::vector<model_document> builtin_host::documents() const {
    return desk_->store.documents();
}

void builtin_host::set_drawing_unit(double mm) {
    desk_->drawing_unit_mm = mm;
}

void builtin_host::label(body_number body, const std::string& name, body_role role) {
    desk_->store.label(body, name, role);
}

const body_mesh& builtin_host::mesh_of(body_number body) {
    return desk_->store.mesh_of(body);
}

void builtin_host::save(const std::filesystem::path& file, solid_format format,
                        const std::vector<body_number>& bodies,
                        const std::optional<housing_plan>& housing) {
    desk_->store.save(file, format, bodies, housing);
}

void builtin_host::close_document(document_number document) {
    desk_->store.close_document(document);
}

}  // namespace kvt::builtin
