#include "app/trial/entry_limits.hpp"

#include "app/trial/design_trial.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "base/stepped_number.hpp"
#include "core/entry_numbers.hpp"
#include "core/text_table.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

constexpr int NEAR_STEPS = 64;
/// Half of what is promised, of the size of the end.
constexpr double END_WIDTH = 5e-8;
/// The size of an end next to 0; of an angle a degree.
constexpr double SMALLEST_END = 1e-6;
constexpr double SMALLEST_ANGLE_DEG = 1.0;
/// What holds this near to an end, of the end, holds at it.
constexpr double JUST = 1e-6;
constexpr int MOST_SLIVERS = 8;
/// An accepted number this near to 0, of the number inside, goes down to 0.
constexpr double NEXT_TO_ZERO = 1e-6;
constexpr double FARTHEST = 1000.0;
constexpr double FULL_TURN_DEG = 360.0;
constexpr double SMALLEST_WHOLE_RANGE = 100.0;
constexpr int SIGNIFICANT_DIGITS = 3;
constexpr int MOST_DECIMALS = 9;

/// The search was given up between two trials.
struct given_up {};

struct probe {
    bool accepted = false;
    std::string message;
};

/// The correction of a root radius only informs.
bool only_informs(std::string_view told, std::int16_t language) {
    return told.starts_with(message_text(message::maximum_root_radius, language)) ||
           told.starts_with(message_text(message::minimum_root_radius, language));
}

/// The first message that refuses; empty when nothing was told.
std::string refusal_of(const design_trial& trial) {
    for (const std::string& told : trial.messages) {
        if (!only_informs(told, trial.tried.app_state.language)) {
            return told;
        }
    }
    return {};
}

class limit_search {
  public:
    limit_search(const program& kavetta, const entry_field& entry, calc_stage last,
                 const std::atomic<bool>* is_given_up)
        : base_(kavetta),
          entry_(entry),
          kind_(number_kind_of(entry.name)),
          last_(last),
          is_given_up_(is_given_up) {}

    std::optional<entry_limits> find() const;

  private:
    bool is_whole() const { return kind_ == number_kind::whole; }
    double lower_bound() const {
        return kind_ == number_kind::angle ? -FULL_TURN_DEG : is_whole() ? 1.0 : 0.0;
    }
    double upper_bound(double inside) const;
    double first_step(double number) const;

    design_trial run(const std::string& typed) const;
    bool accepts(const std::string& typed) const { return run(typed).accepted; }
    probe try_number(double number) const;

    std::optional<entry_limits> find_near(double present) const;
    std::optional<entry_limit> lowest_from(double inside) const;
    std::optional<entry_limit> highest_from(double inside) const;
    std::optional<entry_limit> expand(double inside, double bound) const;
    double next_to(double end, double direction) const;
    entry_limit end_between(double accepted, double refused, std::string message) const;
    entry_limit bisect(double accepted, double refused, std::string message) const;

    double size_of(double end) const;
    double end_width(double accepted, double refused) const;
    int first_decimals(double inside) const;
    bool show_rounded(entry_limit& limit, double inside, int decimals) const;
    void show(entry_limit& limit, double inside) const;

    const program& base_;
    const entry_field& entry_;
    number_kind kind_;
    calc_stage last_;
    const std::atomic<bool>* is_given_up_;
};

double limit_search::upper_bound(double inside) const {
    switch (kind_) {
        case number_kind::angle:
            return FULL_TURN_DEG;
        case number_kind::whole:
            return inside + SMALLEST_WHOLE_RANGE;
        case number_kind::length:
        case number_kind::plain:
            break;
    }
    return inside == 0.0 ? FARTHEST : std::abs(inside) * FARTHEST;
}

/// 1/64 of the number; of one degree, or of one unit, where that says nothing.
double limit_search::first_step(double number) const {
    if (is_whole()) {
        return 1.0;
    }
    const double least = kind_ == number_kind::angle ? NEAR_STEPS : 1.0;
    const bool says_nothing = number == 0.0 || kind_ == number_kind::angle;
    return (says_nothing ? std::max(std::abs(number), least) : std::abs(number)) / NEAR_STEPS;
}

design_trial limit_search::run(const std::string& typed) const {
    if (is_given_up_ != nullptr && *is_given_up_) {
        throw given_up();
    }
    return try_design(base_, typed_entry{std::string(entry_.name), typed}, last_);
}

probe limit_search::try_number(double number) const {
    const design_trial trial = run(number_text(number));
    return {trial.accepted, trial.accepted ? std::string() : refusal_of(trial)};
}

double limit_search::size_of(double end) const {
    const double least = kind_ == number_kind::angle ? SMALLEST_ANGLE_DEG : SMALLEST_END;
    return std::max(std::abs(end), least);
}

double limit_search::end_width(double accepted, double refused) const {
    return is_whole() ? 1.0 : END_WIDTH * std::min(size_of(accepted), size_of(refused));
}

/// From an accepted number and a refused one to two that are next to each other.
entry_limit limit_search::bisect(double accepted, double refused, std::string message) const {
    while (std::abs(refused - accepted) > end_width(accepted, refused)) {
        double middle = (accepted + refused) / 2.0;
        middle = is_whole() ? std::floor(middle) : middle;
        probe tried = try_number(middle);
        if (tried.accepted) {
            accepted = middle;
        } else {
            refused = middle;
            message = std::move(tried.message);
        }
    }
    return {accepted, refused, std::move(message), {}};
}

/// A number a little beyond an end, or a little before it.
double limit_search::next_to(double end, double direction) const {
    return end + direction * JUST * size_of(end);
}

/// The end between two numbers. One that belongs to a sliver of accepted numbers is none: the end
/// is looked for before it.
entry_limit limit_search::end_between(double accepted, double refused, std::string message) const {
    const double inward = refused < accepted ? 1.0 : -1.0;
    entry_limit end = bisect(accepted, refused, std::move(message));
    for (int count = 0; count < MOST_SLIVERS && !is_whole(); ++count) {
        const double before = next_to(end.accepted, inward);
        if ((before - accepted) * inward >= 0.0) {
            break;
        }
        probe tried = try_number(before);
        if (tried.accepted) {
            break;
        }
        end = bisect(accepted, before, std::move(tried.message));
    }
    return end;
}

/// Steps that double, towards a bound on either side. A sliver of refused numbers, e.g. one for
/// which a formula divides by zero, is no end.
std::optional<entry_limit> limit_search::expand(double inside, double bound) const {
    const double direction = bound < inside ? -1.0 : 1.0;
    double accepted = inside;
    double step = first_step(inside);
    for (int slivers = 0; (bound - accepted) * direction > 0.0;) {
        const double next = accepted + direction * step;
        const double number = direction < 0.0 ? std::max(next, bound) : std::min(next, bound);
        probe tried = try_number(number);
        if (!tried.accepted) {
            const entry_limit end = end_between(accepted, number, std::move(tried.message));
            const double beyond = next_to(end.accepted, direction);
            if (is_whole() || slivers++ == MOST_SLIVERS || !try_number(beyond).accepted) {
                return end;
            }
            accepted = beyond;
            step = first_step(inside);
            continue;
        }
        accepted = number;
        step *= is_whole() ? 1.0 : 2.0;
    }
    return std::nullopt;
}

/// A negative length that the program takes has no lowest one.
std::optional<entry_limit> limit_search::lowest_from(double inside) const {
    if (kind_ == number_kind::angle || is_whole()) {
        return expand(inside, lower_bound());
    }
    return inside > 0.0 ? expand(inside, inside * NEXT_TO_ZERO) : std::nullopt;
}

std::optional<entry_limit> limit_search::highest_from(double inside) const {
    return expand(inside, upper_bound(inside));
}

/// The accepted number nearest to a refused one, and the interval round it.
std::optional<entry_limits> limit_search::find_near(double present) const {
    const double step = first_step(present);
    for (int count = 1; count <= NEAR_STEPS; ++count) {
        for (const double direction : {-1.0, 1.0}) {
            const double number = present + direction * step * count;
            if (number < lower_bound() || !try_number(number).accepted) {
                continue;
            }
            const double before = number - direction * step;
            entry_limits limits;
            limits.inside = number;
            limits.is_above_present = direction > 0.0;
            (direction > 0.0 ? limits.lowest : limits.highest) =
                end_between(number, before, try_number(before).message);
            (direction > 0.0 ? limits.highest : limits.lowest) =
                direction > 0.0 ? highest_from(number) : lowest_from(number);
            return limits;
        }
    }
    return std::nullopt;
}

/// As many decimals as are typed, and enough for three significant digits.
int limit_search::first_decimals(double inside) const {
    if (is_whole()) {
        return 0;
    }
    const int typed = decimals_of(base_.entries.*entry_.member).value_or(0);
    const double size = inside == 0.0 ? 1.0 : std::abs(inside);
    const int of_size = SIGNIFICANT_DIGITS - 1 - static_cast<int>(std::floor(std::log10(size)));
    return std::clamp(std::max(typed, of_size), 0, MOST_DECIMALS);
}

/// A number between the two ends that is accepted is the end itself; else it is rounded towards the
/// number inside.
bool limit_search::show_rounded(entry_limit& limit, double inside, int decimals) const {
    const bool is_lowest = limit.refused < limit.accepted;
    const double scale = std::pow(10.0, decimals);
    const double scaled = limit.accepted * scale;
    const double nearest = std::round(scaled) / scale;
    const double outward = is_lowest ? -1.0 : 1.0;
    const bool is_between = (nearest - limit.accepted) * (nearest - limit.refused) < 0.0;
    limit.shown = number_text(nearest);
    if (is_between && accepts(limit.shown) && !try_number(next_to(nearest, outward)).accepted) {
        limit.accepted = nearest;
        return true;
    }
    const double inward = (is_lowest ? std::ceil(scaled) : std::floor(scaled)) / scale;
    limit.shown = number_text(inward);
    return (is_lowest ? inward <= inside : inward >= inside) && accepts(limit.shown);
}

/// One more decimal as long as the rounded number is not accepted.
void limit_search::show(entry_limit& limit, double inside) const {
    for (int decimals = first_decimals(inside); decimals <= MOST_DECIMALS; ++decimals) {
        if (show_rounded(limit, inside, decimals)) {
            return;
        }
    }
    limit.shown = number_text(limit.accepted);
}

std::optional<entry_limits> limit_search::find() const {
    const std::string& typed = base_.entries.*entry_.member;
    const design_trial present = run(typed);
    // An empty box holds what the program fills in.
    const entries& read = typed.empty() && present.accepted ? present.tried.entries : base_.entries;
    const double number = val(commas_to_points(read.*entry_.member));
    std::optional<entry_limits> limits;
    if (present.accepted) {
        limits = entry_limits{number, true, lowest_from(number), highest_from(number)};
    } else {
        limits = find_near(number);
    }
    for (const auto end : {&entry_limits::lowest, &entry_limits::highest}) {
        if (limits && (*limits).*end) {
            show(*((*limits).*end), limits->inside);
        }
    }
    return limits;
}

}  // namespace

const entry_limit* entry_limits::nearest() const {
    if (is_present_accepted) {
        return nullptr;
    }
    return &*(is_above_present ? lowest : highest);
}

std::optional<calc_stage> reading_stage(const entry_field& entry) {
    // The required volume is for the Design assist alone.
    if (entry.kind != entry_kind::text || entry.name == "volumereqd") {
        return std::nullopt;
    }
    if (entry.form == "Form1") {
        return calc_stage::profiles;
    }
    if (entry.form == "portdes") {
        return calc_stage::ports;
    }
    return entry.form == "Perffrm" ? std::optional(calc_stage::performance) : std::nullopt;
}

std::optional<entry_limits> find_limits(const program& kavetta, const entry_field& entry,
                                        calc_stage last, const std::atomic<bool>* is_given_up) {
    const std::optional<calc_stage> first = reading_stage(entry);
    if (!first || *first > last) {
        return std::nullopt;
    }
    try {
        return limit_search(kavetta, entry, last, is_given_up).find();
    } catch (const given_up&) {
        return std::nullopt;
    } catch (const run_time_error&) {
        return std::nullopt;  // a number too large to be read, or a thousand times too large
    }
}

}  // namespace kvt
