#include "ui/program.h"

#include <QApplication>
#include <QProcess>
#include <QWidget>
#include <algorithm>
#include <array>

#include "core/file_error.h"
#include "ui/kel_application.h"
#include "ui/screens/FullScreen.h"
#include "ui/screens/Scotland.h"
#include "ui/screens/Year_Picker.h"
#include "ui/screens/frmInorganic.h"
#include "ui/screens/frmKEL_front.h"
#include "ui/screens/frmKEL_splash.h"
#include "ui/screens/frmLand_new.h"
#include "ui/screens/frmProfile.h"
#include "ui/screens/frmReductions.h"
#include "ui/screens/frmStorage.h"
#include "ui/widgets/module_screen.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr std::string_view front_tag = "front";
constexpr std::string_view location_tag = "location";
constexpr std::string_view viewer_tag = "viewer";

constexpr std::array<std::string_view, 7> built_screens{"land",    "storage", "reduction", "inorg",
                                                        "profile", "splash",  "years"};

class waiting {
  public:
    waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~waiting() { QApplication::restoreOverrideCursor(); }
    waiting(const waiting&) = delete;
    waiting& operator=(const waiting&) = delete;
};

struct picker_tag {
    picker_module caller;
    std::string_view tag;
};
constexpr std::array<picker_tag, 4> picker_tags{{{picker_module::land, "land"},
                                                 {picker_module::storage, "storage"},
                                                 {picker_module::manure, "reduction"},
                                                 {picker_module::inorganic, "inorg"}}};

struct window_size {
    std::string_view tag;
    int width;
    int height;
};
// Sizes at first view; each fits a screen of 1280 x 800.
constexpr std::array<window_size, 8> first_sizes{{{"front", 900, 620},
                                                  {"profile", 1000, 700},
                                                  {"location", 1000, 760},
                                                  {"land", 1220, 720},
                                                  {"storage", 1260, 760},
                                                  {"reduction", 1250, 720},
                                                  {"inorg", 1220, 720},
                                                  {"viewer", 1040, 740}}};

}  // namespace

program::program(const installation& places, prompts& person, std::function<date()> today)
    : person_(person),
      desk_{state_, *this, std::move(today), KEL_DEVELOPER_NAME},
      profile_(state_, person_),
      front_(state_, person_, profile_, *this, desk_),
      years_(state_, person_, profile_, [this](picker_module caller) { reload(caller); }) {
    state_.places = places;
}

program::~program() = default;

void program::start(const std::string& assessment) {
    made(front_tag);
    front_.start_up();
    try {
        if (!assessment.empty()) years_.open_file(assessment);
    } catch (const file_error& failure) {
        person_.tell(stop_box(failure));
    }
    show_screen(front_tag);
}

QWidget* program::screen(std::string_view tag) const {
    const auto found = screens_.find(tag);
    return found == screens_.end() ? nullptr : found->second.get();
}

module_screen* program::make_module(std::string_view tag) {
    if (tag == "land") return new frmLand_new(state_, person_, desk_);
    if (tag == "storage") return new frmStorage(state_, person_, desk_);
    if (tag == "reduction") return new frmReductions(state_, person_, desk_);
    if (tag == "inorg") return new frmInorganic(state_, person_, desk_);
    return nullptr;
}

// A module that was loaded hidden shows what it loaded then, but never one file's rows over another file.
void program::load_if_other_file(module_screen& module, std::string_view tag) {
    if (!module.loaded_file().empty() && module.loaded_file() != state_.assess_file) load_anew(module, tag);
    module.set_loaded_file(state_.assess_file);
}

// A module that cannot load the assessment now open must not stay with the rows of the one before.
void program::load_anew(module_screen& module, std::string_view tag) {
    try {
        module.reload_all();
        module.set_loaded_file(state_.assess_file);
    } catch (...) {
        leave(tag, front_tag);
        throw;
    }
}

QWidget* program::make_profile() {
    auto* profile = new frmProfile(profile_, desk_, state_);
    connect(profile, &frmProfile::left, this, [this, profile] {
        show_screen(front_tag);
        profile->hide();
        // Cancel reads the store back only after this.
        QMetaObject::invokeMethod(
            this, [this] { refresh_front(); }, Qt::QueuedConnection);
    });
    connect(profile, &frmProfile::years_wanted, this, [this] { open("years"); });
    connect(profile, &frmProfile::location_wanted, this, [this, profile] {
        open(location_tag);
        profile->hide();
    });
    return profile;
}

QWidget* program::make(std::string_view tag) {
    const auto leaving_to = [this](auto* screen, auto left, std::string_view from, std::string_view to) {
        // Queued: the screen that says it is left must not be deleted under its own feet.
        connect(
            screen, left, this, [this, from, to] { leave(from, to); }, Qt::QueuedConnection);
    };
    if (tag == front_tag) {
        auto* front = new frmKEL_front(front_, state_, *this);
        connect(front, &frmKEL_front::close_pressed, this, [this] { front_.close_window(); });
        return front;
    }
    if (tag == "profile") return make_profile();
    if (tag == location_tag) {
        auto* map = new Scotland(state_, person_, profile_);
        leaving_to(map, &Scotland::closed, location_tag, "profile");
        return map;
    }
    if (module_screen* module = make_module(tag)) {
        connect(
            module, &module_screen::left, this,
            [this, module, left = std::string(tag)] { leave(left, module->back_tag()); },
            Qt::QueuedConnection);
        connect(module, &module_screen::years_wanted, this, [this] { open("years"); });
        return module;
    }
    if (tag == "years") {
        auto* years = new Year_Picker(years_);
        leaving_to(years, &Year_Picker::closed, "years", {});
        connect(years, &Year_Picker::changed, this, [this] {
            load_modules_in_view();
            refresh_front();
        });
        return years;
    }
    if (tag == "splash") {
        auto* splash = new frmKEL_splash;
        connect(splash, &frmKEL_splash::page_wanted, this,
                [this](const QString& address) { front_.show_partner(from_qt(address)); });
        return splash;
    }
    auto* viewer = new FullScreen(state_, person_, report_folder_);
    connect(
        viewer, &FullScreen::closed, this, [this] { close_viewer(); }, Qt::QueuedConnection);
    return viewer;
}

QWidget* program::made(std::string_view tag) {
    if (QWidget* there = screen(tag)) return there;
    QWidget* widget = make(tag);
    screens_[std::string(tag)].reset(widget);
    const auto kept = sizes_.find(tag);
    const auto size = std::find_if(first_sizes.begin(), first_sizes.end(),
                                   [&](const window_size& s) { return s.tag == tag; });
    if (kept != sizes_.end())
        widget->restoreGeometry(kept->second);
    else if (size != first_sizes.end())
        widget->resize(size->width, size->height);
    return widget;
}

void program::show_screen(std::string_view tag) {
    QWidget* widget = made(tag);
    widget->show();
    widget->raise();
    widget->activateWindow();
}

void program::leave(std::string_view tag, std::string_view back_tag) {
    if (!back_tag.empty()) show_screen(back_tag);
    const auto found = screens_.find(tag);
    if (found == screens_.end()) return;
    sizes_[found->first] = found->second->saveGeometry();
    found->second.release()->deleteLater();
    screens_.erase(found);
    refresh_front();
    if (tag == "years") load_modules_in_view();
}

// The years dialog may have opened another assessment under a module, also by a Browse that was then
// cancelled.
void program::load_modules_in_view() {
    for (const picker_tag& entry : picker_tags) {
        auto* module = static_cast<module_screen*>(screen(entry.tag));
        if (module && module->isVisible()) load_if_other_file(*module, entry.tag);
    }
}

void program::open(std::string_view tag) {
    const bool there = screen(tag) != nullptr;
    {
        const waiting busy;
        made(tag);
        if (auto* module = qobject_cast<module_screen*>(screen(tag))) load_if_other_file(*module, tag);
    }
    if (tag == "years" && !(there && screen(tag)->isVisible()))
        static_cast<Year_Picker*>(screen(tag))->open();
    show_screen(tag);
}

bool program::exists(std::string_view tag) const {
    return std::find(built_screens.begin(), built_screens.end(), tag) != built_screens.end();
}

bool program::start_updater(const std::string& path) {
    return QProcess::startDetached(qt(path), {});
}

void program::end() {
    for (const auto& [tag, widget] : screens_)
        widget->hide();
    emit ended();
}

void program::wait_cursor(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void program::hide_screen(std::string_view tag) {
    made(tag)->hide();
    if (auto* module = qobject_cast<module_screen*>(screen(tag)))
        if (module->loaded_file().empty()) module->set_loaded_file(state_.assess_file);
}

void program::show(const viewer_request& request) {
    show_screen(viewer_tag);
    static_cast<FullScreen*>(screen(viewer_tag))->show_page(request);
}

void program::close_viewer() {
    leave(viewer_tag, screen(state_.viewer_back) ? std::string_view(state_.viewer_back) : front_tag);
}

void program::reload(picker_module caller) {
    const auto entry = std::find_if(picker_tags.begin(), picker_tags.end(),
                                    [&](const picker_tag& p) { return p.caller == caller; });
    if (entry == picker_tags.end()) return;
    if (auto* module = static_cast<module_screen*>(screen(entry->tag))) load_anew(*module, entry->tag);
}

void program::refresh_front() {
    if (auto* front = static_cast<frmKEL_front*>(screen(front_tag))) front->refresh();
    if (auto* profile = static_cast<frmProfile*>(screen("profile"))) profile->refresh();
}

}  // namespace kel
