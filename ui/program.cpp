#include "ui/program.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QProcess>
#include <QUrl>
#include <QWidget>
#include <algorithm>
#include <array>
#include <stdexcept>
#include <type_traits>

#include "core/file_error.h"
#include "ui/help_topics.h"
#include "ui/kel_application.h"
#include "ui/qt_prompts.h"
#include "ui/screens/Field_Record.h"
#include "ui/screens/FullScreen.h"
#include "ui/screens/Scotland.h"
#include "ui/screens/Year_Picker.h"
#include "ui/screens/copies_dialog.h"
#include "ui/screens/frmCalendar.h"
#include "ui/screens/frmCrops_new.h"
#include "ui/screens/frmFarms.h"
#include "ui/screens/frmGrass_new.h"
#include "ui/screens/frmInorganic.h"
#include "ui/screens/frmKEL_front.h"
#include "ui/screens/frmKEL_splash.h"
#include "ui/screens/frmLand_new.h"
#include "ui/screens/frmProfile.h"
#include "ui/screens/frmReductions.h"
#include "ui/screens/frmSheets.h"
#include "ui/screens/frmStorage.h"
#include "ui/screens/frmStraw.h"
#include "ui/widgets/module_screen.h"
#include "ui/widgets/print_job.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// Beside the settings.
constexpr std::string_view layout_file = "kelwindows.json";

class waiting {
  public:
    waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~waiting() { QApplication::restoreOverrideCursor(); }
    waiting(const waiting&) = delete;
    waiting& operator=(const waiting&) = delete;
};

}  // namespace

struct program::screen_row {
    screen_id id;
    std::string_view text;  // by which files, tests and tools know it
    picker_module caller;   // what the years dialog knows it by
    int width;              // at first view; each fits a screen of 1280 x 800
    int height;             // 0: as large as what is in it
    QWidget* (program::*make)(screen_id);
};

// Every screen of the program. A new one is a row here.
std::span<const program::screen_row> program::screen_table() {
    // clang-format off
    static constexpr std::array<screen_row, 17> table{{
        // identity             text          years dialog              width height  made by
        {screen_id::front,      "front",      picker_module::front,      1200, 620,  &program::make_front},
        {screen_id::profile,    "profile",    picker_module::profile,    1000, 700,  &program::make_profile},
        {screen_id::location,   "location",   picker_module::front,      1000, 760,  &program::make_location},
        {screen_id::land,       "land",       picker_module::land,       1220, 720,  &program::make_module<frmLand_new>},
        {screen_id::storage,    "storage",    picker_module::storage,    1260, 760,  &program::make_module<frmStorage>},
        {screen_id::manure,     "reduction",  picker_module::manure,     1250, 720,  &program::make_module<frmReductions>},
        {screen_id::inorganic,  "inorg",      picker_module::inorganic,  1220, 720,  &program::make_module<frmInorganic>},
        {screen_id::crops,      "crop",       picker_module::crops,      1220, 720,  &program::make_module<frmCrops_new>},
        {screen_id::grass,      "grass",      picker_module::grass,      1220, 720,  &program::make_module<frmGrass_new>},
        {screen_id::straw,      "straw",      picker_module::straw,      1100, 680,  &program::make_module<frmStraw>},
        {screen_id::record,     "record",     picker_module::record,     1220, 720,  &program::make_module<Field_Record>},
        {screen_id::calendar,   "calendar",   picker_module::front,      1220, 720,  &program::make_module<frmCalendar>},
        {screen_id::sheets,     "sheets",     picker_module::front,       560, 240,  &program::make_module<frmSheets>},
        {screen_id::years,      "years",      picker_module::front,         0,   0,  &program::make_years},
        {screen_id::farms,      "farms",      picker_module::front,      1220, 640,  &program::make_farms},
        {screen_id::about,      "splash",     picker_module::front,         0,   0,  &program::make_about},
        {screen_id::viewer,     "viewer",     picker_module::front,      1040, 740,  &program::make_viewer},
    }};
    // clang-format on
    return table;
}

program::program(const installation& places, prompts& person, std::function<date()> today)
    : person_(person),
      modules_person_(person),
      desk_{state_, *this, std::move(today), KEL_DEVELOPER_NAME},
      profile_(state_, modules_person_),
      front_(state_, person_, profile_, *this, desk_),
      years_(state_, person_, profile_, [this](picker_module caller) { reload(caller); }),
      overview_(state_, desk_),
      files_(state_, person_, years_, *this),
      layout_(join_path(places.written_folder, layout_file)) {
    state_.places = places;
    state_.copies->keep_in(places.earlier_copies());
    qApp->installEventFilter(this);
}

program::~program() = default;

void program::start(const std::string& assessment) {
    made(screen_id::front);
    front_.start_up();
    show_screen(screen_id::front);
    if (!assessment.empty()) open_assessment(assessment);
}

void program::open_assessment(const std::string& path) {
    try {
        if (!years_.open_from_desktop(path)) open(screen_id::years);
    } catch (const file_error& failure) {
        person_.tell(stop_box(failure));
    }
    follow_assessment();
    refresh_front();
}

const program::screen_row& program::row_of(screen_id id) {
    for (const screen_row& row : screen_table())
        if (row.id == id) return row;
    throw std::invalid_argument("This version has no screen " + std::to_string(static_cast<int>(id)) + ".");
}

QWidget* program::screen(screen_id id) const {
    const auto found = screens_.find(id);
    return found == screens_.end() ? nullptr : found->second.widget.get();
}

QWidget* program::screen(std::string_view text) const {
    for (const screen_row& row : screen_table())
        if (row.text == text) return screen(row.id);
    throw std::invalid_argument("There is no screen \"" + std::string(text) + "\".");
}

module_screen* program::module_of(screen_id id) const {
    return qobject_cast<module_screen*>(screen(id));
}

program::rows_key program::rows_behind(screen_id id) const {
    switch (id) {
        // They show a working copy of their own, which is read anew at every opening.
        case screen_id::profile:
        case screen_id::location:
            return {profile_.loads(), {}};
        // Step 3 works on this year's or on last year's file, as its opener has it.
        case screen_id::manure:
            if (!for_previous_year(state_.manure_caller)) break;
            return {state_.assessment, "last year: " + state_.prev1_file};
        case screen_id::record:
        case screen_id::calendar:
            return {state_.assessment, state_.prev1_file};
        case screen_id::years:
            return {state_.assessment, state_.slot_current};
        default:
            break;
    }
    return {state_.assessment, {}};
}

void program::follow_assessment() {
    for (const screen_row& row : screen_table())
        if (screen(row.id) && screen(row.id)->isVisible()) follow_assessment(row.id);
}

// A hidden screen follows when it comes to view.
void program::follow_assessment(screen_id id) {
    const auto found = screens_.find(id);
    if (found == screens_.end() || found->second.rows == rows_behind(id)) return;
    if (id == screen_id::location) return leave(id, screen_id::profile);
    if (id == screen_id::years) return open_years();
    if (!module_of(id)) return;
    if (state_.assess_file.empty() && id != screen_id::profile) return leave(id, screen_id::front);
    load_anew(id);
}

// A module that cannot load the assessment now open must not stay with the rows of the one before.
void program::load_anew(screen_id id) {
    standing& screen = screens_.at(id);
    screen.rows = rows_behind(id);
    screen.file = stamp_of(state_.assess_file);
    screen.seen = screen.widget->isVisible();
    screen.opener = state_.manure_caller;
    try {
        module_of(id)->reload_all();
    } catch (...) {
        leave(id, screen_id::front);
        throw;
    }
}

QWidget* program::make_front(screen_id /*id*/) {
    auto* front = new frmKEL_front(front_, files_, state_, *this, overview_);
    connect(front, &frmKEL_front::files_changed, this, [this] {
        follow_assessment();
        refresh_front();
    });
    connect(front, &frmKEL_front::years_wanted, this, [this] { open(screen_id::years); });
    connect(front, &frmKEL_front::close_pressed, this, [this] { front_.close_window(); });
    return front;
}

QWidget* program::make_profile(screen_id id) {
    auto* profile = new frmProfile(profile_, desk_, state_);
    connect(profile, &frmProfile::location_wanted, this,
            [this] { open_in_place_of(screen_id::profile, screen_id::location); });
    return connected(id, profile);
}

// The screens that say they are left go in the next turn of the event loop: none is deleted under its own
// feet.
QWidget* program::make_location(screen_id /*id*/) {
    auto* map = new Scotland(state_, person_, profile_);
    connect(
        map, &Scotland::closed, this, [this] { leave(screen_id::location, screen_id::profile); },
        Qt::QueuedConnection);
    return map;
}

QWidget* program::connected(screen_id id, module_screen* module) {
    module->set_paste_port(modules_person_);
    module->share_why_place(why_place_);
    module->set_save_note([this] { return qt(state_.copies->take_trouble()); });
    connect(
        module, &module_screen::left, this, [this, id, module] { leave(id, module->closes_to()); },
        Qt::QueuedConnection);
    connect(module, &module_screen::help_wanted, this,
            [this, id](const std::string& topic) { front_.run_help(6, "TP", topic, id); });
    connect(module, &module_screen::years_wanted, this, [this] { open(screen_id::years); });
    // A save under a new name changes the file behind the rows, not the rows.
    connect(module, &module_screen::saved, this, [this, id] {
        screens_.at(id).rows = rows_behind(id);
        refresh_front();
    });
    return module;
}

template <class Screen>
QWidget* program::make_module(screen_id id) {
    if constexpr (std::is_constructible_v<Screen, application_state&, prompts&, report_desk&, screens&>)
        return connected(id, new Screen(state_, modules_person_, desk_, *this));
    else
        return connected(id, new Screen(state_, modules_person_, desk_));
}

QWidget* program::make_years(screen_id /*id*/) {
    auto* years = new Year_Picker(years_);
    connect(
        years, &Year_Picker::closed, this, [this] { leave(screen_id::years, std::nullopt); },
        Qt::QueuedConnection);
    connect(years, &Year_Picker::changed, this, [this] {
        screens_.at(screen_id::years).rows = rows_behind(screen_id::years);  // its own doing
        follow_assessment();
        refresh_front();
    });
    return years;
}

QWidget* program::make_farms(screen_id /*id*/) {
    auto* farms = new frmFarms(state_, person_, desk_.today);
    connect(
        farms, &frmFarms::closed, this, [this] { leave(screen_id::farms, std::nullopt); },
        Qt::QueuedConnection);
    connect(farms, &frmFarms::farm_wanted, this, [this](const std::string& path) {
        const auto follow = [this] {
            show_screen(screen_id::front);
            follow_assessment();
            refresh_front();
        };
        bool linked = true;
        try {
            linked = files_.open_recent(path);
        } catch (...) {
            follow();
            throw;
        }
        follow();
        if (!linked) open(screen_id::years);
    });
    return farms;
}

QWidget* program::make_about(screen_id /*id*/) {
    auto* about = new frmKEL_splash;
    connect(about, &frmKEL_splash::page_wanted, this,
            [this](const QString& address) { front_.show_partner(from_qt(address)); });
    connect(
        about, &frmKEL_splash::closed, this, [this] { leave(screen_id::about, std::nullopt); },
        Qt::QueuedConnection);
    return about;
}

QWidget* program::make_viewer(screen_id /*id*/) {
    auto* viewer = new FullScreen(state_, person_, report_folder_, desk_.today);
    connect(
        viewer, &FullScreen::closed, this, [this] { close_viewer(); }, Qt::QueuedConnection);
    return viewer;
}

QWidget* program::made(screen_id id) {
    if (QWidget* there = screen(id)) return there;
    const screen_row& row = row_of(id);
    standing made{nullptr, rows_behind(id), stamp_of(state_.assess_file), false, state_.manure_caller};
    made.widget.reset((this->*row.make)(id));
    QWidget* widget = made.widget.get();
    screens_[id] = std::move(made);
    if (!layout_.put_back(qt(row.text), *widget) && row.width > 0) widget->resize(row.width, row.height);
    return widget;
}

void program::show_screen(screen_id id) {
    const bool there = screen(id) != nullptr;
    follow_assessment(id);
    if (there && !screen(id)) return;  // it went with its assessment, and showed what follows
    QWidget* widget = made(id);
    screens_[id].seen = true;
    widget->show();
    keep_on_screen(*widget);
    widget->raise();
    widget->activateWindow();
}

void program::keep_layout(screen_id id) {
    if (screens_.at(id).seen) layout_.keep(qt(row_of(id).text), *screen(id));
}

// The screen goes first: one that cannot load what it leads back to must not stay because of that.
void program::leave(screen_id id, std::optional<screen_id> back) {
    const auto found = screens_.find(id);
    if (found != screens_.end()) {
        keep_layout(id);
        if (module_of(id)) say_at_front(module_of(id)->save_status());
        found->second.widget.release()->deleteLater();
        screens_.erase(found);
    }
    if (back) show_screen(*back);
    follow_assessment();
    refresh_front();
    end_without_windows();
}

// What was saved last is known as long as the screen that saved it, which mostly goes with it.
void program::say_at_front(const QString& status) {
    if (auto* front = static_cast<frmKEL_front*>(screen(screen_id::front))) front->say(status);
}

void program::open(screen_id id) {
    const bool there = screen(id) != nullptr;
    {
        const waiting busy;
        made(id);
        follow_assessment(id);
        // What was loaded hidden is shown as it was loaded, until somebody writes to its file.
        const standing& screen = screens_[id];
        if (module_of(id) && !screen.seen && screen.file != stamp_of(state_.assess_file)) load_anew(id);
    }
    if (id == screen_id::years && !(there && screen(id)->isVisible())) open_years();
    show_screen(id);
    follow_assessment();
}

void program::open_years() {
    static_cast<Year_Picker*>(screen(screen_id::years))->open();
    screens_.at(screen_id::years).rows = rows_behind(screen_id::years);
}

// What was typed into Step 3 for one year must not go unasked because the other one's rows are wanted.
bool program::gives_way(screen_id id) {
    if (id != screen_id::manure || !in_view(id)) return true;
    const manure_opener opener = screens_.at(id).opener;
    const bool same_year = for_previous_year(opener) == for_previous_year(state_.manure_caller);
    if (same_year || module_of(id)->may_close()) return true;
    state_.manure_caller = opener;
    return false;
}

void program::open_in_place_of(screen_id opener, screen_id id) {
    if (!gives_way(id)) return;
    open(id);
    if (screen(opener)) screen(opener)->hide();
}

bool program::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    return key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier && opens_topic(watched);
}

// A box that waits for its answer keeps everything else from being read.
bool program::opens_topic(const QObject* pressed_in) {
    if (QApplication::activeModalWidget()) return false;
    for (const QObject* at = pressed_in; at; at = at->parent())
        for (const auto& [id, screen] : screens_)
            if (screen.widget.get() == at) {
                // From a page the way back is the page's own.
                const screen_id back = id == screen_id::viewer ? state_.viewer_back : id;
                front_.run_help(6, "TP", help_topic_of(id), back);
                return true;
            }
    return false;
}

// Nothing is left that could be closed: the program must not run on unseen.
void program::end_without_windows() {
    const auto visible = [](const auto& entry) { return entry.second.widget->isVisible(); };
    if (!ended_ && std::none_of(screens_.begin(), screens_.end(), visible)) front_.close_window();
}

bool program::exists(screen_id id) const {
    const auto table = screen_table();
    return std::any_of(table.begin(), table.end(), [&](const screen_row& row) { return row.id == id; });
}

bool program::start_updater(const std::string& path) {
    return QProcess::startDetached(qt(path), {});
}

void program::print_pages(const std::vector<std::string>& pages) {
    print_with_dialog(pages_of_files(pages), desk_.today(), QApplication::activeWindow());
}

bool program::open_folder(const std::string& folder) {
    return QFileInfo(qt(folder)).isDir() && QDesktopServices::openUrl(QUrl::fromLocalFile(qt(folder)));
}

std::optional<std::size_t> program::choose_copy(const std::vector<earlier_copy>& copies) {
    copies_dialog list(copies);
    const bool chosen = shown_over_active_window(list) == QDialog::Accepted;
    return chosen ? list.chosen() : std::nullopt;
}

bool program::has_unsaved() const {
    return std::ranges::any_of(screen_table(), [this](const screen_row& row) {
        const auto* module = module_of(row.id);
        return module && module->unsaved();
    });
}

void program::show_standing() {
    const waiting busy;
    overview_.report();
}

void program::end() {
    ended_ = true;
    for (const auto& [id, screen] : screens_)
        keep_layout(id);
    layout_.write();
    for (const auto& [id, screen] : screens_)
        screen.widget->hide();
    emit ended();
}

bool program::in_view(screen_id id) const {
    return screen(id) && screen(id)->isVisible();
}

void program::wait_cursor(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void program::hide_screen(screen_id id) {
    made(id)->hide();
}

void program::show(const viewer_request& request) {
    show_screen(screen_id::viewer);
    static_cast<FullScreen*>(screen(screen_id::viewer))->show_page(request);
}

void program::close_viewer() {
    leave(screen_id::viewer, screen(state_.viewer_back) ? state_.viewer_back : screen_id::front);
}

void program::reload(picker_module caller) {
    for (const screen_row& row : screen_table())
        if (row.caller == caller && module_of(row.id)) return load_anew(row.id);
}

void program::refresh_front() {
    if (auto* front = static_cast<frmKEL_front*>(screen(screen_id::front))) front->refresh();
}

}  // namespace kel
