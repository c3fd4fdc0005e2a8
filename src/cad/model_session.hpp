// model_session: one run of a routine that builds a model in a CAD package.
#pragma once

#include "automation/answer.hpp"
#include "automation/host.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"

#include <functional>
#include <string_view>

namespace kvt {

/// What the routines read. The rotors' dimensions come from the boxes (rotor_model_entries), those
/// of the porting from the records.
struct model_source {
    const design_params& design;
    const rotor_profiles& rotors;
    const port_params& ports;
    const entries& boxes;
    const length_unit& unit;  ///< of the design, and of a drawing that is made in its unit
};

struct model_session {
    automation::host& programs;
    const model_source& source;
    /// How far the run has come, 0 .. 100.
    std::function<void(int)> show_percent;

    /// Held after the run too: a package that was started by us may end with its last object.
    automation::object_ref application{};
    /// The solids of an assembly are being joined and cut: a failure is more likely one of the
    /// dimensions than of the package.
    bool works_on_solids = false;
};

/// Takes the running package, or starts it, as the session's application.
const automation::object_ref& open_application(model_session& session, std::string_view class_name);

/// Makes calls whose failure changes nothing, e.g. those that clear away what is left over.
void ignore_failure(const std::function<void()>& calls);

/// A setting of the package that is switched on while something is drawn, and off again even when
/// that fails.
class switched_setting {
  public:
    switched_setting(automation::object_ref of, std::string_view name, bool while_drawing);
    ~switched_setting();
    switched_setting(const switched_setting&) = delete;
    switched_setting& operator=(const switched_setting&) = delete;

    /// Puts it back now; a failure of that is thrown. The destructor does it silently, also once
    /// more where this failed.
    void put_back();

  private:
    automation::object_ref of_;
    std::string_view name_;
    bool while_drawing_;
    bool is_back_ = false;
};

/// A routine of a package: makes its calls one after the other and tells how far it is. Throws any
/// run_time_error, of the package or of the geometry.
using model_routine = void (*)(model_session& session);

}  // namespace kvt
