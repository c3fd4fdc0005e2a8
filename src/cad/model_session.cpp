#include "cad/model_session.hpp"

#include "automation/connect.hpp"
#include "automation/object.hpp"
#include "base/run_time_error.hpp"

#include <utility>

namespace kvt {

const automation::object_ref& open_application(model_session& session,
                                               std::string_view class_name) {
    session.application = automation::connect(session.programs, class_name);
    return session.application;
}

void ignore_failure(const std::function<void()>& calls) {
    try {
        calls();
    } catch (const run_time_error&) {  // what the calls were for is there or gone without them
        return;
    }
}

switched_setting::switched_setting(automation::object_ref of, std::string_view name,
                                   bool while_drawing)
    : of_(std::move(of)), name_(name), while_drawing_(while_drawing) {
    of_->put(name_, while_drawing_);
}

switched_setting::~switched_setting() {
    ignore_failure([this] { put_back(); });
}

void switched_setting::put_back() {
    if (!is_back_) {
        of_->put(name_, !while_drawing_);
        is_back_ = true;
    }
}

}  // namespace kvt
