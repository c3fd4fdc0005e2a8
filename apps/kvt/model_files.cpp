#include "kvt/model_files.hpp"

#include "base/fixed_number.hpp"
#include "base/path_text.hpp"
#include "core/text_table.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr int SUMMARY_DECIMALS = 3;

std::string number(double value) {
    return fixed_number(value, SUMMARY_DECIMALS);
}

std::string place(const point3& point) {
    return "(" + number(point.x) + ", " + number(point.y) + ", " + number(point.z) + ")";
}

}  // namespace

void write_model_files(model_store& store, const std::vector<model_body>& bodies,
                       const std::string& stem, const std::vector<std::string>& formats,
                       std::int16_t language, export_folder& folder) {
    const bool only_curves = std::ranges::all_of(bodies, &model_body::is_curve);
    for (const std::string& word : formats) {
        const solid_file_row& row = *std::ranges::find(SOLID_FILES, word, &solid_file_row::word);
        const std::string name = stem + std::string(row.ending);
        if (only_curves && !holds_curves(row.format)) {
            folder.note(name, form_text("kvt", "no_solid", language));
            continue;
        }
        folder.write_by(name, [&](const std::string& path) {
            store.save(path_of_utf8(path), row.format, numbers_of(bodies), std::nullopt);
        });
    }
}

std::string body_line(const model_body& body, std::int16_t language) {
    const auto text = [&](std::string_view name) {
        return std::string(form_text("kvt", name, language));
    };
    std::string line = body.name + ": ";
    if (!body.is_curve) {
        line += text("body_area") + " " + number(body.contour_area) + " mm^2, " +
                text("body_height") + " " + number(body.height) + " mm, " + text("body_volume") +
                " " + number(body.volume()) + " mm^3, ";
    }
    return line + text("body_from") + " " + place(body.box.lowest) + " " + text("body_to") + " " +
           place(body.box.highest) + " mm";
}

}  // namespace kvt
