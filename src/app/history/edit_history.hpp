// edit_history: the steps that can be undone and done again, as states of what was typed, ticked
// and chosen. It never touches the program.
#pragma once

#include "app/history/edited_state.hpp"

#include <cstddef>
#include <deque>

namespace kvt {

struct text_row;

struct edit_step {
    edited_state state;  ///< after the step
    /// The caption of the button that changed many entries at once; null for typing and the rest.
    const text_row* command = nullptr;
};

class edit_history {
  public:
    /// As many steps are kept behind the start; the oldest go.
    static constexpr std::size_t MAX_STEPS = 1000;

    /// Forgets everything: the program begins with this state.
    void begin(edited_state start);
    /// False before begin.
    bool has_begun() const { return !steps_.empty(); }

    /// An edit of one entry. Edits of the same entry one after the other are one step, and none
    /// when the text comes back to what it was.
    void note_typing(edited_state now);
    /// The handler of the entry that was typed into has run: what it did belongs to the typing,
    /// which is then over.
    void note_left_entry(edited_state now);
    /// A command has ended. No step when the user sees no difference.
    void note_command(edited_state now, const text_row* command);

    /// Step 0 is the start.
    std::size_t size() const { return steps_.size(); }
    const edit_step& step(std::size_t index) const { return steps_.at(index); }
    /// The step that the program stands behind.
    std::size_t position() const { return position_; }
    const edited_state& present() const { return steps_.at(position_).state; }
    bool can_undo() const { return position_ > 0; }
    bool can_redo() const { return position_ + 1 < steps_.size(); }
    /// The program stands behind another step now; throws std::out_of_range for one that is not
    /// there.
    void move_to(std::size_t index);

  private:
    void add(edited_state now, const text_row* command);
    /// No other entry has changed than the one that the present step is typed into.
    bool continues_typing(const edited_state& now) const;

    std::deque<edit_step> steps_;
    std::size_t position_ = 0;
    const entry_field* typed_ = nullptr;  ///< of the present step, while it goes on
};

}  // namespace kvt
