// port_planes: the sketch planes of the porting in packages that sketch on planes.
#pragma once

#include "automation/value.hpp"
#include "cad/model_outlines.hpp"

#include <functional>

namespace kvt {

/// The base plane, and one plane at the height of everything above the rotors, made when the first
/// body stands there.
class port_planes {
  public:
    using plane_maker = std::function<automation::object_ref(double z)>;

    port_planes(automation::object_ref base, plane_maker make_plane);

    const automation::object_ref& of(const port_body& body);

  private:
    automation::object_ref base_, upper_;
    plane_maker make_plane_;
};

}  // namespace kvt
