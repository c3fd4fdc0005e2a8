// design_popup: the menu of the Design view: what it shows, and its picture.
#pragma once

#include "core/sight_ticks.hpp"

#include <QMenu>

#include <cstdint>

namespace kvt {

class design_popup : public QMenu {
    Q_OBJECT

  public:
    /// The ticks of sight_tick_rows, then popupcopy and popupsave, with their captions in a
    /// language. Ctrl+C copies while the picture has the focus.
    design_popup(std::int16_t language, QWidget* picture);

    void show_ticks(const sight_ticks& ticks);

  signals:
    void ticked(const kvt::sight_tick_row& row, bool on);
    void copy_asked();
    void save_asked();

  private:
    QAction* add(const char* name, std::int16_t language);
};

}  // namespace kvt
