// stand_in: a CAD package in a test. It has the members that its pages tell, takes nothing else,
// and builds the solids that the calls describe.
#pragma once

#include "automation/host.hpp"
#include "automation/table_object.hpp"
#include "cad/point_arguments.hpp"
#include "geometry/point2.hpp"
#include "support/cad/solids.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

using automation::argument;
using automation::object_argument;
using automation::object_put;
using automation::real;
using automation::refuse;
using automation::table_object;
using automation::truth;
using automation::whole;

/// A curve of a sketch: a spline's points, which count as its polygon, or a circle.
struct sketch_curve {
    std::vector<point2> points;
    bool is_closed = false;
    point2 centre = {};
    double radius = 0.0;

    flat_region region() const;
};
/// The region of nested curves. Refuses open ones.
flat_region region_of(const std::vector<sketch_curve>& curves);

/// A package after a routine: what it holds, in its own unit.
class cad_stand_in : public automation::host {
  public:
    cad_stand_in(std::string class_name, double mm_per_unit);

    automation::object_ref running(std::string_view class_name) override;
    automation::object_ref create(std::string_view class_name) override;

    /// The solids in order of birth, for points in mm.
    virtual std::vector<solid> bodies() const = 0;
    /// The points of the curves that became no solid, mm.
    virtual std::vector<std::vector<point2>> curves() const = 0;
    /// What was left switched on, open or selected.
    virtual std::vector<std::string> left_on() const = 0;

    double mm_per_unit() const { return mm_per_unit_; }

  protected:
    automation::table_ref application = std::make_shared<table_object>();
    bool is_visible = false;

    solid in_mm(solid own) const;
    std::vector<point2> in_mm(std::vector<point2> points) const;

  private:
    std::string class_name_;
    double mm_per_unit_;
};

}  // namespace kvt
