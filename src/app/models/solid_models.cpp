#include "app/models/solid_models.hpp"

#include "app/files/written_results.hpp"
#include "app/models/built_in_modeller.hpp"
#include "app/program.hpp"
#include "automation/no_host.hpp"
#include "base/run_time_error.hpp"
#include "cad/body_labels.hpp"
#include "core/length_unit.hpp"
#include "core/user.hpp"
#include "output/written_files.hpp"

#include <algorithm>
#include <iterator>

namespace kvt {

namespace {

/// The STEP file of the same parts: it needs the same results.
const written_file& file_of(model_kind kind) {
    switch (kind) {
        case model_kind::trochoid:
        case model_kind::inner:
            break;
        case model_kind::outer:
            return *find_file(file_group::step, "outer");
        case model_kind::porting:
            return *find_file(file_group::step, "ports");
        case model_kind::assembly:
            return *find_file(file_group::step, "assembly");
    }
    return *find_file(file_group::step, "inner");
}

model_source source_of(const program& kavetta, model_kind kind) {
    const noted_entries* older = older_entries(kavetta, file_of(kind));
    return {
        kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
        older != nullptr ? older->boxes : kavetta.entries,
        length_unit_of(older != nullptr ? older->drawing_units : kavetta.app_state.drawing_units)};
}

std::optional<std::string> build_somewhere(program& kavetta, user& person,
                                           const model_package& package, model_kind kind) {
    if (models_are_built_here(kavetta)) {
        return build_in_modeller(kavetta, person, *kavetta.modeller, package, kind).failure;
    }
    automation::no_host nothing_to_drive;
    automation::host& programs = kavetta.packages == nullptr ? nothing_to_drive : *kavetta.packages;
    return build_model(kavetta, person, programs, package, kind);
}

/// The whole run of a model on the desk: hourglass, progress, and both gone before the message.
void build_and_tell(program& kavetta, user& person, const model_package& package, model_kind kind) {
    person.set_busy(true);
    const std::optional<std::string> failure = build_somewhere(kavetta, person, package, kind);
    person.unload_form("progressfrm");
    person.set_busy(false);
    if (failure && !failure->empty()) {
        person.show_message(*failure);
    } else if (!failure && models_are_built_here(kavetta)) {
        person.show_form("model_view");
    }
}

/// The bodies that came after the one of this number.
std::vector<model_body> bodies_after(const model_store& store, body_number last) {
    std::vector<model_body> later;
    for (const model_document& document : store.documents()) {
        std::ranges::copy_if(document.bodies, std::back_inserter(later),
                             [&](const model_body& body) { return body.number > last; });
    }
    return later;
}

body_number last_body(const model_store& store) {
    body_number last = 0;
    for (const model_body& body : bodies_after(store, 0)) {
        last = std::max(last, body.number);
    }
    return last;
}

}  // namespace

bool models_are_built_here(const program& kavetta) {
    return kavetta.packages == nullptr && kavetta.modeller != nullptr &&
           kavetta.modeller->is_there();
}

void choose_modelling_package(program& kavetta, user& person) {
    std::string& code = kavetta.app_state.modelling_package;
    if (const auto chosen = person.ask_modelling_package(code)) {
        code = *chosen;
    }
}

void draw_model(program& kavetta, user& person, model_kind kind) {
    const std::string& code = kavetta.app_state.modelling_package;
    if (model_package_of(code) == nullptr) {
        choose_modelling_package(kavetta, person);
    }
    const model_package* package = model_package_of(code);
    if (package != nullptr && package->routine_of(kind) != nullptr &&
        may_write(kavetta, person, file_of(kind))) {
        build_and_tell(kavetta, person, *package, kind);
    }
}

std::optional<std::string> build_model(program& kavetta, progress_shower& progress,
                                       automation::host& programs, const model_package& package,
                                       model_kind kind) {
    const model_routine build = package.routine_of(kind);
    if (build == nullptr) {
        return std::nullopt;
    }
    const model_source source = source_of(kavetta, kind);
    model_session session{programs, source,
                          [&progress](int percent) { progress.show_progress("", percent); }};
    std::optional<std::string> failure;
    try {
        build(session);
    } catch (const run_time_error& error) {
        failure = package.failure_text(
            {kind, error.number(), session.works_on_solids, kavetta.app_state.language});
    }
    kavetta.driven_package = session.application;
    return failure;
}

built_model build_in_modeller(program& kavetta, progress_shower& progress,
                              built_in_modeller& modeller, const model_package& package,
                              model_kind kind) {
    model_store* store = modeller.store();
    if (store == nullptr) {
        return {build_model(kavetta, progress, modeller, package, kind), {}};
    }
    const model_source source = source_of(kavetta, kind);
    const body_number last = last_body(*store);
    store->set_drawing_unit(source.unit.mm);
    built_model built{build_model(kavetta, progress, modeller, package, kind), {}};
    for (const body_label& one : labels_of(bodies_after(*store, last), kind, source)) {
        store->label(one.body, std::string(one.name), one.role);
    }
    built.bodies = bodies_after(*store, last);
    return built;
}

}  // namespace kvt
