// body_labels: which body of a model is which, told by where it lies. The packages' routines name
// nothing.
#pragma once

#include "cad/dispatch.hpp"
#include "cad/model_store.hpp"

#include <string_view>
#include <vector>

namespace kvt {

struct body_label {
    body_number body = 0;
    std::string_view name;  ///< as the STEP files name the parts: "Inlet Port Lower"
    body_role role = body_role::other;
};

/// Labels of the bodies that a routine left behind, in their order. A curve is the trochoid. Of an
/// assembly the widest body is the outer rotor; a body of the porting is that one of port_bodies
/// whose box is nearest to its own.
std::vector<body_label> labels_of(const std::vector<model_body>& built, model_kind kind,
                                  const model_source& source);

}  // namespace kvt
