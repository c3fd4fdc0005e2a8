#include "ui/MDIForm1.hpp"

#include "app/exit_program.hpp"
#include "ui/Aboutform.hpp"
#include "ui/Form1.hpp"
#include "ui/Perffrm.hpp"
#include "ui/drawn_icons.hpp"
#include "ui/loaded_form.hpp"
#include "ui/portdes.hpp"
#include "ui/qt_text.hpp"
#include "ui/select_graphs.hpp"
#include "ui/viewwinfrm.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QStatusBar>

namespace kvt {

namespace {

/// Lightness below which a palette counts as dark, 0 .. 255.
constexpr int DARK_BELOW = 128;

}  // namespace

MDIForm1::MDIForm1(form_context context) : context_(context), area_(new QMdiArea), menu_(nullptr) {
    setObjectName("MDIForm1");
    setWindowIcon(program_icon());
    setCentralWidget(area_);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    colour_background();
    menu_ = new main_menu(context, *this);
    connect(findChild<QAction*>("mnuhelpabout"), &QAction::triggered, this, &MDIForm1::show_about);
    statusBar()->setObjectName("status_bar");
    auto* design = new Form1(context);
    connect(design, &Form1::exit_asked, this, &MDIForm1::ask_exit);
    add_form(new viewwinfrm(context), true);
    add_form(new Perffrm(context), true);
    add_form(new portdes(context), true);
    add_form(new select_graphs(context), true);
    add_form(design, true);
    connect(&context.runner, &command_runner::finished, this, &MDIForm1::refresh);
    refresh();
}

void MDIForm1::add_form(mdi_form* form, bool is_shown) {
    area_->addSubWindow(form, form->windowFlags());
    form->setVisible(is_shown);
    forms_.append(form);
}

void MDIForm1::load_child(std::string_view form) {
    loaded_form* made = load_form(form, context_);
    if (made == nullptr) {
        return;
    }
    add_form(made, false);
    made->refresh();
    QRect place(QPoint(0, 0), made->start_size().boundedTo(area_->size()));
    place.moveCenter(area_->rect().center());
    made->setGeometry(place);
}

void MDIForm1::refresh() {
    setWindowTitle(qt_text(context_.kavetta.labels.title));
    menu_->refresh();
    forms_.removeAll(nullptr);
    for (const QPointer<mdi_form>& form : forms_) {
        form->refresh();
    }
}

void MDIForm1::show_layout() {
    const window_rectangles& layout = context_.kavetta.window_rectangles;
    for (const window_rectangle_field& field : window_rectangle_fields()) {
        if (auto* form = findChild<mdi_form*>(qt_text(field.name))) {
            form->place(layout.*field.member);
        }
    }
    if (layout.main_window_maximised) {
        showMaximized();
    } else {
        show();
    }
    area_->setActiveSubWindow(findChild<Form1*>());
}

void MDIForm1::closeEvent(QCloseEvent* event) {
    if (context_.runner.has_ended()) {
        event->accept();
        return;
    }
    event->ignore();
    ask_exit();
}

void MDIForm1::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        colour_background();
    }
}

void MDIForm1::ask_exit() {
    context_.runner.run(exit_program);
}

void MDIForm1::show_about() {
    context_.runner.act([this](program& kavetta, user&) {
        Aboutform about(kavetta, this);
        about.exec();
    });
}

/// A quiet ground for the windows, in a light and in a dark theme.
void MDIForm1::colour_background() {
    const QColor window = palette().color(QPalette::Window);
    const bool is_dark = window.lightness() < DARK_BELOW;
    area_->setBackground(is_dark ? window.darker(150) : window.darker(112));
}

}  // namespace kvt
