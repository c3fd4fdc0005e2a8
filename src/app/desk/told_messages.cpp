#include "app/desk/told_messages.hpp"

#include <algorithm>
#include <utility>

namespace kvt {

bool told_messages::stood_already(std::string_view text) {
    told_by_this_command_.emplace_back(text);
    return std::ranges::find(told_, text) != told_.end();
}

void told_messages::command_ended(const entries& boxes, std::int16_t drawing_units) {
    if (boxes != boxes_ || drawing_units != drawing_units_) {
        told_.clear();
        boxes_ = boxes;
        drawing_units_ = drawing_units;
    }
    std::ranges::move(std::exchange(told_by_this_command_, {}), std::back_inserter(told_));
}

}  // namespace kvt
