#include "app/history/edit_history.hpp"

#include <utility>

namespace kvt {

void edit_history::begin(edited_state start) {
    steps_.clear();
    steps_.push_back({std::move(start)});
    position_ = 0;
    typed_ = nullptr;
}

bool edit_history::continues_typing(const edited_state& now) const {
    if (typed_ == nullptr) {
        return false;
    }
    for (const entry_field* field : differing_entries(*present().boxes, *now.boxes)) {
        if (field != typed_) {
            return false;
        }
    }
    return true;
}

void edit_history::note_typing(edited_state now) {
    if (continues_typing(now)) {
        if (is_same(steps_.at(position_ - 1).state, now)) {
            steps_.pop_back();
            --position_;
            typed_ = nullptr;
        } else {
            steps_.at(position_).state = std::move(now);
        }
        return;
    }
    const auto differing = differing_entries(*present().boxes, *now.boxes);
    note_command(std::move(now), nullptr);
    typed_ = differing.size() == 1 ? differing.front() : nullptr;
}

void edit_history::note_left_entry(edited_state now) {
    if (typed_ == nullptr) {
        note_command(std::move(now), nullptr);
        return;
    }
    steps_.at(position_).state = std::move(now);
    typed_ = nullptr;
}

void edit_history::note_command(edited_state now, const text_row* command) {
    typed_ = nullptr;
    if (is_same(present(), now)) {
        steps_.at(position_).state = std::move(now);
    } else {
        add(std::move(now), command);
    }
}

void edit_history::add(edited_state now, const text_row* command) {
    steps_.resize(position_ + 1);
    steps_.push_back({std::move(now), command});
    ++position_;
    if (steps_.size() > MAX_STEPS + 1) {
        steps_.pop_front();
        --position_;
    }
}

void edit_history::move_to(std::size_t index) {
    static_cast<void>(steps_.at(index));
    position_ = index;
    typed_ = nullptr;
}

}  // namespace kvt
