#include "ui/parts/example_picture.hpp"

#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "app/stages/silent_user.hpp"
#include "base/run_time_error.hpp"
#include "core/form_table.hpp"
#include "ui/parts/design_painting.hpp"
#include "views/sight/sight_palette.hpp"

#include <QPainter>

#include <cstdint>

namespace kvt {

namespace {

/// False without a design to be drawn.
bool draw_design(program& kavetta, const std::string& path) {
    silent_user nobody;
    try {
        load_entries(kavetta, nobody, path);
        return calculate_open_design(kavetta, nobody, calc_stage::ports).end == batch_end::ok;
    } catch (const run_time_error&) {
        return false;
    }
}

}  // namespace

QPixmap example_picture(const std::string& path, int side, double pixel_ratio) {
    program kavetta;
    kavetta.view_state.view_size = static_cast<std::int16_t>(side * TWIPS_PER_PIXEL);
    if (!draw_design(kavetta, path)) {
        return {};
    }
    QPixmap picture(QSize(side, side) * pixel_ratio);
    picture.setDevicePixelRatio(pixel_ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    design_painting(kavetta.design_view).paint(painter, sight_palette_on(false));
    return picture;
}

}  // namespace kvt
