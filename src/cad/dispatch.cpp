#include "cad/dispatch.hpp"

#include "base/number_text.hpp"
#include "cad/autocad_models.hpp"
#include "cad/catia_models.hpp"
#include "cad/inventor_models.hpp"
#include "cad/solidedge_models.hpp"
#include "cad/solidworks_models.hpp"
#include "core/text_table.hpp"

namespace kvt {

namespace {

constexpr std::array<model_row, MODEL_KIND_COUNT> MODEL_ROWS = {
    {{model_kind::trochoid, "trochoid"},
     {model_kind::inner, "inner"},
     {model_kind::outer, "outer"},
     {model_kind::porting, "porting"},
     {model_kind::assembly, "assembly"}}};

std::string text_of(message id, const model_failure& failure) {
    return std::string(message_text(id, failure.language));
}

std::string autocad_failure(const model_failure& failure) {
    const bool of_dimensions = failure.kind == model_kind::assembly && failure.works_on_solids;
    return text_of(of_dimensions ? message::autocad_solids_failed : message::autocad_failed,
                   failure);
}

std::string inventor_failure(const model_failure& failure) {
    return text_of(message::inventor_failed, failure) + number_text(failure.number) +
           text_of(message::inventor_notify, failure);
}

std::string solidedge_failure(const model_failure& failure) {
    return text_of(message::solidedge_failed, failure);
}

/// Kept: the porting says nothing; dispatch_test holds it.
std::string solidworks_failure(const model_failure& failure) {
    return failure.kind == model_kind::porting ? "" : text_of(message::solidworks_failed, failure);
}

/// Kept: trochoid and porting have no error code; dispatch_test holds it.
std::string catia_failure(const model_failure& failure) {
    const std::string text = text_of(message::catia_failed, failure);
    if (failure.kind == model_kind::trochoid || failure.kind == model_kind::porting) {
        return text;
    }
    return text + text_of(message::catia_error_code, failure) + number_text(failure.number);
}

constexpr std::array MODEL_PACKAGES = {
    model_package{"acad",
                  "Option1",
                  {autocad::trochoid, autocad::inner_rotor, autocad::outer_rotor, autocad::porting,
                   autocad::assembly},
                  autocad_failure},
    model_package{"invent",
                  "Option2",
                  {inventor::trochoid, inventor::inner_rotor, inventor::outer_rotor,
                   inventor::porting, inventor::assembly},
                  inventor_failure},
    model_package{"SE",
                  "Option3",
                  {solidedge::trochoid, solidedge::inner_rotor, solidedge::outer_rotor,
                   solidedge::porting, solidedge::assembly},
                  solidedge_failure},
    model_package{"SW",
                  "Option4",
                  {solidworks::trochoid, solidworks::inner_rotor, solidworks::outer_rotor,
                   solidworks::porting, solidworks::assembly},
                  solidworks_failure},
    model_package{
        "CAT",
        "Option5",
        {catia::trochoid, catia::inner_rotor, catia::outer_rotor, catia::porting, catia::assembly},
        catia_failure},
    model_package{"CREO", "Option6", {}, nullptr}};

}  // namespace

std::span<const model_row> model_rows() {
    return MODEL_ROWS;
}

std::span<const model_package> model_packages() {
    return MODEL_PACKAGES;
}

const model_package* model_package_of(std::string_view code) {
    for (const model_package& package : MODEL_PACKAGES) {
        if (package.code == code) {
            return &package;
        }
    }
    return nullptr;
}

}  // namespace kvt
