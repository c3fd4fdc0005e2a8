// chart_popup: graphpopupmenu, the menu of a chart window.
#pragma once

#include <QMenu>

#include <cstdint>

namespace kvt {

class chart_popup : public QMenu {
    Q_OBJECT

  public:
    /// The entries popupcopy, popupprint, popupsave, popupexport and popupclose, with their
    /// captions in the language of the chart. Their keys work in the whole window of the chart, or
    /// while the chart has the focus.
    chart_popup(std::int16_t language, QWidget* chart, Qt::ShortcutContext keys);

  signals:
    void copy_asked();
    void print_asked();
    void save_asked();
    void export_asked();
    void close_asked();

  private:
    using request = void (chart_popup::*)();

    void add(const char* name, const QKeySequence& keys, request asked, std::int16_t language);
    /// popupsave can be used when Copy has run in this chart and a picture is on the clipboard.
    void refresh_save();

    QAction* popupsave_ = nullptr;
    bool has_copied_ = false;
};

}  // namespace kvt
