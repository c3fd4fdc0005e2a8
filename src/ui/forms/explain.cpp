#include "ui/forms/explain.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "ui/parts/accessible_role.hpp"
#include "ui/parts/picture_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QPainter>
#include <QPixmap>

namespace kvt {

namespace {

/// Largest size of the picture when its window appears, pixels.
constexpr QSize LARGEST_START(900, 640);

/// Paints a picture as large as fits, its sides in proportion, on the white of its own ground.
class picture_sheet : public QWidget {
  public:
    explicit picture_sheet(QPixmap picture) : picture_(std::move(picture)) {
        setObjectName("Image1");
        set_accessible_role(*this, QAccessible::Graphic);
    }

    QSize sizeHint() const override {
        const QSize size = picture_.size();
        return size.width() > LARGEST_START.width() || size.height() > LARGEST_START.height()
                   ? size.scaled(LARGEST_START, Qt::KeepAspectRatio)
                   : size;
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QRect area(QPoint(0, 0), picture_.size().scaled(size(), Qt::KeepAspectRatio));
        area.moveCenter(rect().center());
        painter.drawPixmap(area, picture_);
    }

  private:
    QPixmap picture_;
};

}  // namespace

explanation_form::explanation_form(explanation_window window, form_context context)
    : loaded_form(form_of(window).data(), context), window_(window) {
    auto* sheet = new picture_sheet(picture_of_file(load_explanation(context.kavetta, window)));
    bind(sheet, false);
}

/// The picture is in the language of its load, what is said of it in that of the captions.
void explanation_form::refresh() {
    loaded_form::refresh();
    const char* text =
        window_ == explanation_window::gerotor ? "rotors_explained" : "ports_explained";
    auto* sheet = findChild<QWidget*>("Image1");
    sheet->setAccessibleName(windowTitle());
    sheet->setAccessibleDescription(
        qt_text(form_text("spoken", text, context_.kavetta.app_state.language)));
}

void explanation_form::unload() {
    unload_explanation(context_.kavetta, window_);
}

}  // namespace kvt
