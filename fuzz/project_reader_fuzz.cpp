// Fuzz target: the project reader and the readings of a number end in a value or in a
// run_time_error for any bytes.
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/project_file.hpp"
#include "require.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

namespace {

/// What has been read is written in full, and reading that gives the same design and the same bytes
/// again.
void check_project(std::string_view bytes) {
    std::string name;
    project_record record;
    try {
        record = read_project(bytes, name);
    } catch (const run_time_error& error) {
        require(error.kind() == failure::input_past_end || error.kind() == failure::type_mismatch ||
                    error.kind() == failure::overflow,
                "a project fails only at its end or at an integer line");
        return;
    }
    require(name == record.project_name, "the name is that of line 2");
    const std::string written = write_project(record);
    const project_record again = read_project(written, name);
    require(again.boxes == record.boxes, "the boxes survive");
    require(again.capacity_unit == record.capacity_unit, "the capacity unit survives");
    require(again.project_name == record.project_name && again.units == record.units,
            "name and units survive");
    require(write_project(again) == written, "saving again gives the same bytes");
}

/// The text of a number is read as that number to 15 digits. From 1e-290 on a double has 15 digits,
/// and up to 1e308 rounding to them stays in the range.
void check_text_of(double value) {
    const std::string text = number_text(value);
    const double size = std::abs(value);
    if (size < 1e-290 || size > 1e308) {
        return;
    }
    require(number_text(number_of_text(text)) == text, "the text of a number reads as itself");
    require(std::abs(val(text) - value) <= 5.2e-15 * size, "the text holds 15 digits");
}

void check_val(std::string_view text) {
    try {
        const double value = val(text);
        require(std::isfinite(value), "val is finite");
        check_text_of(value);
    } catch (const run_time_error& error) {
        require(error.kind() == failure::overflow, "val fails only by overflow");
    }
}

void check_number_of_text(std::string_view text) {
    try {
        const double value = number_of_text(text);
        require(value == val(text), "a whole-text number is what val reads");
    } catch (const run_time_error& error) {
        require(error.kind() == failure::type_mismatch || error.kind() == failure::overflow,
                "a text that is no number is a type mismatch");
    }
}

}  // namespace

}  // namespace kvt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    kvt::check_project(bytes);
    kvt::check_val(bytes);
    kvt::check_number_of_text(bytes);
    return 0;
}
