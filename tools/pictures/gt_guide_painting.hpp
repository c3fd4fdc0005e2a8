// gt_guide_painting: the five pictures of GT_form.
#pragma once

#include <QImage>

namespace kvt {

inline constexpr int GT_GUIDE_SCREENS = 5;

/// The picture of a screen, 1 .. 5, that many pixels wide: its heading, a sketch and two lines of
/// the rows screen_N, screen_N_a, screen_N_b of GT_form.
QImage paint_gt_guide(int screen, int width);

}  // namespace kvt
