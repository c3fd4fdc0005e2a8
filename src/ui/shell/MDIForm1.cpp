#include "ui/shell/MDIForm1.hpp"

#include "app/desk/exit_program.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/written_results.hpp"
#include "app/program.hpp"
#include "app/trial/pinned_design.hpp"
#include "app/windows/close_forms.hpp"
#include "core/user.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form1.hpp"
#include "ui/forms/Form3.hpp"
#include "ui/forms/exact_figures.hpp"
#include "ui/forms/study_form.hpp"
#include "ui/forms/viewwinfrm.hpp"
#include "ui/parts/accessible_names.hpp"
#include "ui/parts/announcer.hpp"
#include "ui/parts/drawn_icons.hpp"
#include "ui/parts/entry_nudge.hpp"
#include "ui/parts/ink.hpp"
#include "ui/parts/pinned_label.hpp"
#include "ui/parts/trial_label.hpp"
#include "ui/shell/edit_menu.hpp"
#include "ui/shell/form_factory.hpp"
#include "ui/shell/limits_line.hpp"
#include "ui/shell/loaded_form.hpp"
#include "ui/shell/present_layout.hpp"
#include "ui/shell/preview.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"
#include "ui/shell/status_hints.hpp"
#include "ui/shell/window_menu.hpp"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMdiArea>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include <utility>

namespace kvt {

namespace {

/// The project file that is dragged, one alone; empty for anything else.
QString dragged_project(const QMimeData& data) {
    if (data.urls().size() != 1 || !data.urls().first().isLocalFile()) {
        return {};
    }
    const QString path = data.urls().first().toLocalFile();
    return path.endsWith(".KVT", Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MDIForm1::MDIForm1(form_context context) : context_(context), area_(new QMdiArea), menu_(nullptr) {
    setObjectName("MDIForm1");
    setWindowIcon(program_icon());
    setCentralWidget(area_);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    colour_background();
    setAcceptDrops(true);
    menu_ = new main_menu(context, *this);
    edits_ = new edit_menu(context, *this);
    windows_ = new window_menu(context, *this);
    statusBar()->setObjectName("status_bar");
    hints_ = new status_hints(context.kavetta, *statusBar());
    pinned_heading_ = new pinned_heading;
    statusBar()->addPermanentWidget(pinned_heading_);
    announcer_ = new announcer(statusBar());
    // The first form of the table comes last, on top of the others.
    const auto rows = fixed_child_rows();
    for (auto form = rows.rbegin(); form != rows.rend(); ++form) {
        add_form(make_form(form->name, context), true);
    }
    connect(findChild<Form1*>(), &Form1::exit_asked, this, &MDIForm1::ask_exit);
    connect(findChild<viewwinfrm*>(), &viewwinfrm::cursor_moved, hints_,
            &status_hints::show_cursor);
    connect_commands();
    // Behind the forms, which show their own tooltips after a command.
    limits_ = new limits_line(context, *statusBar());
    new entry_nudge(this);
    connect_announcements();
    preview_ = new preview(context, this);
    connect(preview_, &preview::changed, this, &MDIForm1::show_preview);
    refresh();
}

void MDIForm1::connect_commands() {
    const auto on_menu = [this](const char* entry, void (MDIForm1::*command)()) {
        connect(findChild<QAction*>(entry), &QAction::triggered, this, command);
    };
    on_menu("mnuscreensave", &MDIForm1::save_layout);
    on_menu("mnuscreenrestore", &MDIForm1::restore_layout);
    on_menu("mnuscreenfit", &MDIForm1::fit_layout);
    on_menu("mnuhelpabout", &MDIForm1::show_about);
    on_menu("mnudatacnc", &MDIForm1::show_cnc_output);
    connect(windows_, &window_menu::chosen, this, &MDIForm1::bring_to_front);
    connect(&context_.runner, &command_runner::starting, this, [this] {
        is_first_layout_ = false;
        statusBar()->clearMessage();  // it belongs to the command before
    });
    connect(&context_.runner, &command_runner::recorded, hints_, &status_hints::forget_records);
    connect(&context_.runner, &command_runner::finished, this, &MDIForm1::refresh);
    connect(&context_.runner, &command_runner::edited, hints_, &status_hints::refresh);
    connect(&context_.runner, &command_runner::edited, edits_, &edit_menu::refresh);
    connect(edits_, &edit_menu::history_asked, this, [this] { bring_to_front("history"); });
}

/// What a sighted user finds by a glance: new results, the line of the status bar, its hints.
void MDIForm1::connect_announcements() {
    connect(&context_.runner, &command_runner::finished, this,
            [this] { announcer_->announce(qt_text(news_.take(context_.kavetta))); });
    connect(statusBar(), &QStatusBar::messageChanged, announcer_, &announcer::announce);
    connect(hints_, &status_hints::told, announcer_, &announcer::announce);
    connect(limits_, &limits_line::told, announcer_, &announcer::announce);
}

void MDIForm1::add_form(mdi_form* form, bool is_shown) {
    area_->addSubWindow(form, form->windowFlags());
    form->setVisible(is_shown);
    forms_.append(form);
}

void MDIForm1::load_child(std::string_view form) {
    auto* made = qobject_cast<loaded_form*>(make_form(form, context_));
    if (made == nullptr) {
        return;
    }
    add_form(made, false);
    if (const auto* exact = qobject_cast<exact_figures*>(made)) {
        connect(exact, &exact_figures::chamber_shown, findChild<viewwinfrm*>(),
                &viewwinfrm::show_turned);
    }
    if (const auto* study = qobject_cast<study_form*>(made)) {
        connect(study, &study_form::design_pointed, findChild<viewwinfrm*>(),
                &viewwinfrm::show_pointed);
    }
    made->refresh();
    made->name_controls();
    made->setGeometry(made->start_place(area_->rect()));
}

void MDIForm1::refresh() {
    update_exact_record(context_.kavetta);
    setWindowTitle(qt_text(context_.kavetta.labels.title));
    menu_->refresh();
    edits_->refresh();
    windows_->refresh();
    hints_->refresh();
    give_accessible_names(context_.kavetta, "MDIForm1", *statusBar());
    forms_.removeAll(nullptr);
    for (const QPointer<mdi_form>& form : forms_) {
        form->refresh();
        form->name_controls();
    }
    show_preview();
    show_pinned();
}

/// The trial of the entries as they are being typed; a screen reader hears nothing of it.
void MDIForm1::show_preview() {
    const preview_state& trial = preview_->state();
    std::optional<trial_figures> figures;
    if (trial.figures().design != nullptr) {
        figures = {labels_of(*trial.figures().design, context_.kavetta.app_state),
                   trial.figures().is_pale};
    }
    findChild<viewwinfrm*>()->show_preview(trial);
    for (const QPointer<mdi_form>& form : forms_) {
        if (form != nullptr) {
            form->show_trial(figures ? &*figures : nullptr);
        }
    }
    hints_->show_trial_message(trial.messages());
}

void MDIForm1::show_pinned() {
    const program& kavetta = context_.kavetta;
    const bool showed_pinned = std::exchange(shows_pinned_, kavetta.pinned != nullptr);
    if (!showed_pinned && !shows_pinned_) {
        return;
    }
    std::optional<pinned_figures> pinned;
    if (shows_pinned_) {
        pinned = {labels_of(kavetta.pinned->design, kavetta.app_state), pinned_text(kavetta)};
    }
    pinned_heading_->show_heading(pinned ? &*pinned : nullptr);
    for (const QPointer<mdi_form>& form : forms_) {
        form->show_pinned(pinned ? &*pinned : nullptr);
    }
}

void MDIForm1::show_start(const start_layout& start) {
    place_children();
    is_first_layout_ = start.is_first;
    area_->installEventFilter(this);
    place_itself();
    const QString focused = start.focus.empty() ? QString("Form1") : qt_text(start.focus);
    area_->setActiveSubWindow(findChild<mdi_form*>(focused));
}

void MDIForm1::place_child(const form_row& form) {
    auto* child = findChild<mdi_form*>(qt_text(form.name));
    const auto& place = context_.kavetta.window_rectangles.of(form.name);
    if (child != nullptr && place) {
        child->place(child_place(*place));
    }
}

void MDIForm1::place_fixed_windows() {
    for (const form_row& form : fixed_child_rows()) {
        place_child(form);
    }
    // Once even when the size is the one that it had.
    findChild<viewwinfrm*>()->size_picture();
}

void MDIForm1::place_children() {
    place_fixed_windows();
    for (const form_row& form : form_rows().subspan(fixed_child_rows().size())) {
        place_child(form);
    }
}

void MDIForm1::place_itself() {
    const window_rectangles& layout = context_.kavetta.window_rectangles;
    if (layout.main_window_maximised) {
        showMaximized();
        return;
    }
    if (const auto& place = layout.of("MDIForm1")) {
        place_window(*this, *place);
    }
    show();
}

/// Shows a child window again, also one that was closed or minimised, and lets the user work in it.
void MDIForm1::bring_to_front(const QString& form) {
    context_.runner.act([name = utf8_text(form)](program& kavetta, user& person) {
        open_form(kavetta, name, person);
    });
    if (auto* child = findChild<mdi_form*>(form)) {
        if (child->isMinimized()) {
            child->showNormal();
        }
        area_->setActiveSubWindow(child);
    }
}

void MDIForm1::come_to_front(const QByteArray& token) {
    // Qt takes the token from there, once.
    qputenv("XDG_ACTIVATION_TOKEN", token);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    QApplication::alert(this);
}

void MDIForm1::save_layout() {
    context_.runner.act([this](program& kavetta, user& person) {
        kvt::save_layout(kavetta, person, present_layout(*this));
    });
}

void MDIForm1::restore_layout() {
    context_.runner.act([this](program& kavetta, user& person) {
        restore_default_layout(kavetta, person);
        place_children();
        place_itself();
    });
}

layout_room MDIForm1::room() const {
    const QSize size = area_->maximumViewportSize();
    return {static_cast<float>(size.height() * TWIPS_PER_PIXEL),
            static_cast<float>(size.width() * TWIPS_PER_PIXEL)};
}

void MDIForm1::fit_layout() {
    context_.runner.act([this](program& kavetta, user& person) {
        kvt::fit_layout(kavetta, person, room());
        place_fixed_windows();
    });
}

/// A window manager gives the window its size some time after the start.
void MDIForm1::place_first_layout() {
    if (is_first_layout_) {
        use_first_layout(context_.kavetta, room());
        place_fixed_windows();
    }
}

bool MDIForm1::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_ && event->type() == QEvent::Resize && is_first_layout_) {
        QMetaObject::invokeMethod(this, &MDIForm1::place_first_layout, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
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

void MDIForm1::dragEnterEvent(QDragEnterEvent* event) {
    if (!dragged_project(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

/// Opens the project as a path on the command line does.
void MDIForm1::dropEvent(QDropEvent* event) {
    const std::string path = native_path_text(dragged_project(*event->mimeData()));
    event->acceptProposedAction();
    context_.runner.act(
        [&path](program& kavetta, user& person) { open_project_file(kavetta, person, path); });
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

/// Whether there is something to write is a command of its own, so the entry in use is left first.
/// The dialog itself is none: its OK button starts one.
void MDIForm1::show_cnc_output() {
    bool opens = false;
    context_.runner.act(
        [&opens](program& kavetta, user& person) { opens = may_open_cnc_form(kavetta, person); });
    if (!opens || context_.runner.is_running() || context_.runner.has_ended()) {
        return;
    }
    Form3 form(context_, this);
    form.exec();
    activateWindow();  // some window managers give the focus to nobody after a box on the dialog
}

/// A quiet ground for the windows, in a light and in a dark theme.
void MDIForm1::colour_background() {
    const QColor window = palette().color(QPalette::Window);
    area_->setBackground(is_dark(palette()) ? window.darker(150) : window.darker(112));
}

}  // namespace kvt
