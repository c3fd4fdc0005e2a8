#include "views/exact/exact_table.hpp"

#include "base/decimal_mark.hpp"
#include "base/number_text.hpp"
#include "core/capacity_unit.hpp"
#include "core/failure_text.hpp"
#include "performance/perf_units.hpp"
#include "performance/result_quantities.hpp"
#include "views/charts/axis_marks.hpp"
#include "views/exact/exact_units.hpp"
#include "views/tables/result_tables.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

namespace kvt {

namespace {

constexpr int PERCENT_DECIMALS = 2;
constexpr int SMALL_DECIMALS = 4;
constexpr int OIL_SPEED_DECIMALS = 3;
constexpr std::size_t TOP = GRID_SIZE - 1;
constexpr std::size_t SHOWN_HARMONICS = 3;

constexpr std::array CONTROLS = {exact_control{"Form1", "capacity", "displacement"},
                                 exact_control{"Form1", "max_chamb_vol", "max_chamber"},
                                 exact_control{"Form1", "min_chamb_vol", "min_chamber"},
                                 exact_control{"perf_res", "max_speed", "max_speed"},
                                 exact_control{"perf_res", "max_cutter_inner", "max_cutter"}};

/// A factor and a unit.
struct shown_unit {
    double factor;
    std::string text;
};

std::string text_named(std::string_view name, std::int16_t language) {
    return std::string(form_text("exact_figures", name, language));
}

double largest_stress_at(const perf_results& results, std::size_t pressure) {
    const perf_array& stress = results.hertz_stress[TOP][pressure];
    double largest = 0.0;
    for (std::size_t angle = 1; angle <= CONTACT_ANGLE_LAST; ++angle) {
        largest = std::max(largest, stress[angle]);
    }
    return largest;
}

/// Adds the rows; what it is asked for stands behind it.
class row_writer {
  public:
    row_writer(const exact_source& source, const exact_results& exact, const exact_manner& manner)
        : source_(source), exact_(exact), manner_(manner) {}

    std::vector<exact_row> rows() && { return std::move(rows_); }

    void begin(exact_part part, std::string_view section) {
        part_ = part;
        section_ = text_named(section, manner_.language);
    }

    /// A figure with the product's beside it, where it has one and its stage has run.
    void add(std::string_view name, std::optional<double> product, double exact,
             const shown_unit& unit) {
        exact_row& row = add_row(name, name);
        if (product) {
            row.product = with_unit(*product, unit);
        }
        if (!exact_.has(part_)) {
            return;
        }
        row.exact = with_unit(exact, unit);
        if (product && exact != 0.0) {
            const double percent = 100.0 * (*product - exact) / exact;
            row.difference = signed_percent(percent);
            row.differs = std::abs(percent) > EXACT_TOLERANCE_PERCENT;
        }
    }

    /// A figure at a point of the grid: "Flow, 3000 rpm, 5 bar".
    void add_at(std::string_view name, std::size_t speed, std::size_t pressure,
                std::optional<double> product, double exact, const shown_unit& unit) {
        add(name, product, exact, unit);
        rows_.back().name += "_" + number_text(static_cast<double>(speed)) +
                             number_text(static_cast<double>(pressure));
        rows_.back().quantity +=
            ", " + speed_text(source_.results.speed_rpm[speed]) + ", " + pressure_text(pressure);
    }

    void add_text(std::string_view name, const std::string& text) {
        exact_row& row = add_row(name, name);
        if (exact_.has(part_)) {
            row.exact = text;
        }
    }

    void explain(std::string_view why) {
        rows_.back().why =
            row_text(*find_text(text_kind::tooltip, "exact_figures", why), manner_.language);
    }

    std::string spans_text(const std::vector<life_span>& spans, double life) const {
        if (spans.empty()) {
            return text_named("none", manner_.language);
        }
        std::string text;
        for (const life_span& span : spans) {
            if (span.to - span.from >= life) {
                return text_named("always", manner_.language);
            }
            text += (text.empty() ? "" : "; ") + angle_text(span.from) + " – " +
                    angle_text(std::fmod(span.to, life));
        }
        return text;
    }

    /// At both ends of the range of speeds.
    std::string speed_range_text(const port_speed& speed) const {
        const bool has_range = source_.has_performance;
        const double low = has_range ? source_.inputs.speed_lo : RPM_WITHOUT_RANGE;
        const double high = has_range ? source_.inputs.speed_hi : RPM_WITHOUT_RANGE;
        const std::string first = oil_speed_text(speed, low);
        return low == high ? first : first + "; " + oil_speed_text(speed, high);
    }

    /// A number that rounding leaves beside 0.
    std::string small_text(double value, const shown_unit& unit) const {
        return rounded(value * unit.factor, SMALL_DECIMALS) + " " + unit.text;
    }

    std::string harmonics_text(const flow_figures& flow) const {
        std::string text;
        for (std::size_t i = 0; i < SHOWN_HARMONICS; ++i) {
            const double order = static_cast<double>(i + 1) * (source_.design.numlobes - 1.0);
            text += (i == 0 ? "" : "; ") + number_text(order) + ": " +
                    rounded(100.0 * flow.harmonics[i], PERCENT_DECIMALS) + " %";
        }
        return text;
    }

    shown_unit capacity_unit() const {
        const kvt::capacity_unit* unit = find_capacity_unit(manner_.capacity_unit);
        return {1.0 / cc_in_capacity_unit(manner_.capacity_unit),
                unit == nullptr ? "" : std::string(unit->list_text)};
    }
    shown_unit length() const {
        return {manner_.unit.from_mm(1.0),
                std::string(message_text(manner_.unit.short_name, manner_.language))};
    }
    shown_unit rpm() const {
        return {1.0, std::string(message_text(message::unit_rpm, manner_.language))};
    }
    /// The unit in which the charts show a result.
    shown_unit chart_unit(std::string_view result, std::string_view metric,
                          std::string_view imperial) const {
        return {shown_value(1.0, *result_at(result_place::chart, result)->use, manner_.unit.system),
                std::string(manner_.unit.system == unit_system::metric ? metric : imperial)};
    }

  private:
    exact_row& add_row(std::string_view name, std::string_view texts) {
        exact_row row;
        row.name = name;
        row.quantity = text_named(texts, manner_.language);
        row.section = section_;
        if (!exact_.has(part_)) {
            row.exact = exact_.state_of(part_) == part_state::waiting
                            ? text_named("waiting", manner_.language)
                            : missing_reason(part_, exact_, manner_.language);
        }
        rows_.push_back(std::move(row));
        explain(texts);
        return rows_.back();
    }

    std::string signed_percent(double percent) const {
        const std::string text = rounded(percent, PERCENT_DECIMALS);
        return percent > 0.0 && text != "0" ? "+" + text : text;
    }
    std::string rounded(double value, int decimals) const {
        return with_decimal_mark(rounded_text(value, decimals), manner_.decimal_mark);
    }
    std::string with_unit(double value, const shown_unit& unit) const {
        const std::string number = cell_text(value * unit.factor, manner_.decimal_mark);
        return unit.text.empty() ? number : number + " " + unit.text;
    }
    std::string angle_text(double radians) const {
        return rounded(radians * DEGREES_PER_RADIAN, ANGLE_DECIMALS) + "°";
    }
    std::string speed_text(double rpm_value) const { return with_unit(rpm_value, rpm()); }
    std::string pressure_text(std::size_t pressure) const {
        const bool is_metric = manner_.unit.system == unit_system::metric;
        const double shown =
            shown_value(source_.results.press_pa[pressure],
                        *result_at(result_place::chart, "press_pa")->use, manner_.unit.system);
        return with_unit(shown, {1.0, is_metric ? "bar" : "psi"});
    }
    std::string oil_speed_text(const port_speed& speed, double rpm_value) const {
        const oil_speed_unit unit = oil_speed_unit_of(manner_.unit.system);
        const double mm_a_second = speed.speed * rpm_value * RADIANS_A_SECOND_PER_RPM;
        return rounded(mm_a_second / unit.mm, OIL_SPEED_DECIMALS) + " " + std::string(unit.text) +
               ", " + speed_text(rpm_value);
    }

    const exact_source& source_;
    const exact_results& exact_;
    const exact_manner& manner_;
    std::vector<exact_row> rows_;
    exact_part part_ = exact_part::rotors;
    std::string section_;
};

const shown_unit MM3 = {1.0, "mm³"};
const shown_unit PERCENT_OF_RATIO = {100.0, "%"};
const shown_unit PLAIN = {1.0, ""};

std::optional<double> if_there(bool is_there, double value) {
    return is_there ? std::optional(value) : std::nullopt;
}

void add_rotors(const exact_source& source, const exact_rotors& exact, row_writer& rows) {
    rows.begin(exact_part::rotors, "guide_volume");
    const auto product = [&](double value) { return if_there(source.has_rotors, value); };
    rows.add("displacement", product(source.capacity_cc), exact.swept_cc, rows.capacity_unit());
    rows.add("max_chamber", product(source.max_chamber_volume), exact.chamber.largest, MM3);
    rows.add("min_chamber", product(source.min_chamber_volume), exact.chamber.least, MM3);
    rows.add("dead_volume", {}, exact.chamber.dead, MM3);
    rows.add("irregularity", {}, exact.flow.irregularity, PERCENT_OF_RATIO);
    rows.add("pulses", {}, exact.flow.pulses, PLAIN);
    rows.add_text("harmonics", rows.harmonics_text(exact.flow));
}

void add_gaps(const exact_source& source, const exact_results& exact, row_writer& rows) {
    rows.begin(exact_part::gap, "guide_gaps");
    rows.add("least_gap", if_there(source.has_rotors, source.design.clearn_half), exact.gap.least,
             rows.length());
    rows.begin(exact_part::rotors, "guide_gaps");
    rows.add("max_cutter", if_there(source.has_performance, -2.0 * source.results.cutter_r),
             exact.rotors.cutter, rows.length());
}

/// The spans of a life in which the groove is open, in steps of the life.
std::vector<life_span> groove_spans(const port_timing& timing, double life) {
    std::vector<life_span> spans;
    const double step = timing.life.empty() ? 0.0 : life / static_cast<double>(timing.life.size());
    for (const chamber_opening& opening : timing.life) {
        if (opening.groove <= 0.0) {
            continue;
        }
        if (spans.empty() || opening.place - spans.back().to > step / 2.0) {
            spans.push_back({opening.place, opening.place, 0.0});
        }
        spans.back().to = opening.place + step;
    }
    return spans;
}

void add_timing(const exact_source& source, const port_timing& timing, row_writer& rows) {
    rows.begin(exact_part::timing, "guide_timing");
    const double N = source.design.numlobes;
    const double life = 2.0 * std::numbers::pi * N / (N - 1.0);
    rows.add_text("inlet_open", rows.spans_text(timing.inlet_open, life));
    rows.add_text("outlet_open", rows.spans_text(timing.outlet_open, life));
    if (source.has_ports && ends_at_180(source.ports)) {
        rows.explain("ends_at_180");
    }
    if (source.which.has_groove) {
        rows.add_text("groove_open", rows.spans_text(groove_spans(timing, life), life));
    }
    rows.add_text("both_open", rows.spans_text(timing.both_open, life));
    rows.add_text("trapped", rows.spans_text(timing.trapped, life));
    rows.add_text("trapped_change", rows.small_text(timing.trapped_change, MM3));
    rows.add_text("inlet_speed", rows.speed_range_text(timing.inlet_speed));
    rows.add_text("outlet_speed", rows.speed_range_text(timing.outlet_speed));
    rows.add_text("inlet_chamber_speed", rows.speed_range_text(timing.inlet_chamber_speed));
    rows.add_text("outlet_chamber_speed", rows.speed_range_text(timing.outlet_chamber_speed));
}

/// Flow and efficiency at both ends of the speeds, at the highest pressure.
void add_flows(const exact_source& source, const exact_flow& flow, row_writer& rows) {
    const shown_unit litres = rows.chart_unit("flow_m3s", "Lit/min", "USGall/min");
    for (const std::size_t speed : {std::size_t{0}, TOP}) {
        rows.add_at("flow", speed, TOP, source.results.flow_m3s[speed][TOP],
                    flow.flow_m3s[speed][TOP], litres);
        if (ends_at_180(source.ports)) {
            rows.explain("ends_at_180");
        }
        rows.add_at("vol_eff", speed, TOP, source.results.vol_eff[speed][TOP],
                    flow.vol_eff[speed][TOP], PERCENT_OF_RATIO);
    }
}

void add_contacts(const exact_source& source, const exact_performance& exact, row_writer& rows) {
    const shown_unit stress = rows.chart_unit("hertz_stress", "MPa", "Ksi");
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        rows.add_at("contact", TOP, j, largest_stress_at(source.results, j),
                    exact.contact[j].pressure, stress);
    }
}

void add_performance(const exact_source& source, const exact_performance& exact, row_writer& rows) {
    rows.begin(exact_part::performance, "guide_performance");
    rows.add("max_speed", if_there(source.has_performance, source.results.max_speed_rpm),
             exact.max_speed_rpm, rows.rpm());
    if (source.has_performance) {
        add_flows(source, exact.flow, rows);
        add_contacts(source, exact, rows);
    } else {
        for (const std::string_view name : {"flow", "vol_eff", "contact"}) {
            rows.add_text(name, {});
        }
    }
}

message missing_stage(exact_part part) {
    switch (part) {
        case exact_part::rotors:
        case exact_part::curves:
        case exact_part::gap:
            return message::no_profiles_yet;
        case exact_part::timing:
            return message::no_ports_yet;
        case exact_part::performance:
            break;
    }
    return message::no_performance_yet;
}

}  // namespace

std::vector<exact_row> exact_rows(const exact_source& source, const exact_results& exact,
                                  const exact_manner& manner) {
    row_writer rows(source, exact, manner);
    add_rotors(source, exact.rotors, rows);
    add_gaps(source, exact, rows);
    add_timing(source, exact.timing, rows);
    add_performance(source, exact.performance, rows);
    return std::move(rows).rows();
}

std::span<const exact_control> exact_controls() {
    return CONTROLS;
}

std::string missing_reason(exact_part part, const exact_results& exact, std::int16_t language) {
    switch (exact.state_of(part)) {
        case part_state::not_calculated:
            return std::string(message_text(missing_stage(part), language));
        case part_state::failed:
            return text_named("failed", language) + " (" +
                   failure_text(*exact.failure_of(part), language) + ")";
        case part_state::waiting:
        case part_state::there:
            break;
    }
    return {};
}

bool ends_at_180(const port_params& ports) {
    return ports.outlet.corners[END_INNER].angle_deg == 0.0 &&
           ports.outlet.corners[END_OUTER].angle_deg == 0.0;
}

}  // namespace kvt
