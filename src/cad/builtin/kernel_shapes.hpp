// kernel_shapes: what stands behind the values of solid_modeller.hpp. For the sources of this
// folder alone: it brings in the kernel's headers.
// Source: docs/formulas/solid_models.md, "Built-in solids".
#pragma once

#include "cad/builtin/solid_modeller.hpp"

#include <Standard_Failure.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kvt::builtin {

/// Throws automation_error AUTOMATION_FAILED.
[[noreturn]] void refuse(const std::string& why);

/// The result of a function that calls the kernel, whose own failures become refusals.
template <typename function>
auto through_kernel(function&& call) {
    try {
        return call();
    } catch (const Standard_Failure& failure) {
        refuse(failure.GetMessageString());
    }
}

/// A value that is worked out when it is first asked for.
template <typename value>
class worked_out {
  public:
    explicit worked_out(std::function<value()> work) : work_(std::move(work)) {}

    const value& get() const {
        if (!result_) {
            result_ = work_();
        }
        return *result_;
    }

  private:
    std::function<value()> work_;
    mutable std::optional<value> result_;
};

struct wire_shape {
    explicit wire_shape(std::function<TopoDS_Wire()> make);
    wire_shape(const wire_shape&) = delete;
    wire_shape& operator=(const wire_shape&) = delete;

    worked_out<TopoDS_Wire> kernel;
    worked_out<bool> is_closed;
    worked_out<std::vector<point2>> sampled;
};

struct face_shape {
    TopoDS_Face kernel;
};

/// The upper face of a body, and where it lies.
struct body_measures {
    std::vector<std::vector<point2>> contours;
    double contour_area = 0.0;
    double lower = 0.0, upper = 0.0;
};

struct body_shape {
    explicit body_shape(TopoDS_Shape solid);
    body_shape(const body_shape&) = delete;
    body_shape& operator=(const body_shape&) = delete;

    /// One solid, or a compound where a Boolean left several.
    TopoDS_Shape kernel;
    worked_out<body_measures> measures;
};

/// Throws when the shape has no solid.
body body_of(const TopoDS_Shape& shape);

}  // namespace kvt::builtin
