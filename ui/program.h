// The running program: the application state, the modules and their screens. One table says which screens
// there are and how each is made; everything else is the modules' doing.
#pragma once

#include <QObject>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "core/application_state.h"
#include "core/file_stamp.h"
#include "core/paste_prompts.h"
#include "core/prompts.h"
#include "profile/profile_module.h"
#include "reports/report_viewer.h"
#include "shell/assessments_module.h"
#include "shell/desktop.h"
#include "shell/farm_files_module.h"
#include "shell/years_module.h"
#include "standing/standing_module.h"
#include "ui/widgets/kept_layout.h"
#include "ui/widgets/why_place.h"

class QWidget;

namespace kel {

class module_screen;

class program : public QObject, public desktop, public report_viewer {
    Q_OBJECT

  public:
    program(const installation& places, prompts& person, std::function<date()> today);
    ~program() override;

    /// Start-up in its order, then the assessments screen. A path opens that assessment, as the years dialog
    /// would.
    void start(const std::string& assessment = {});

    application_state& state() { return state_; }
    /// The screen, or null while it is not in being.
    QWidget* screen(screen_id id) const;
    /// The same by the text of the table; throws std::invalid_argument for one that the table lacks.
    QWidget* screen(std::string_view text) const;

    void open(screen_id id) override;
    void open_in_place_of(screen_id opener, screen_id id) override;
    bool exists(screen_id id) const override;
    bool in_view(screen_id id) const override;
    bool start_updater(const std::string& path) override;
    void print_pages(const std::vector<std::string>& pages) override;
    bool open_folder(const std::string& folder) override;
    std::optional<std::size_t> choose_copy(const std::vector<earlier_copy>& copies) override;
    bool has_unsaved() const override;
    void show_standing() override;
    void end() override;

    void wait_cursor(bool on) override;
    void hide_screen(screen_id id) override;
    void show(const viewer_request& request) override;

  signals:
    void ended();

  protected:
    /// F1 opens the topic of the screen in which it is pressed, or of the one that a dialog belongs to.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct screen_row;
    static std::span<const screen_row> screen_table();
    static const screen_row& row_of(screen_id id);

    /// Which rows a screen shows. Other ones have come to stand behind it when they are no longer equal.
    struct rows_key {
        int loads = 0;     // of the assessment
        std::string file;  // of last year's, or of another that the screen shows besides
        bool operator==(const rows_key&) const = default;
    };
    /// A screen in being and what it holds.
    struct standing {
        std::unique_ptr<QWidget> widget;
        rows_key rows;      // rows_behind as it was when they were loaded
        file_stamp file{};  // the same of the file
        bool seen = false;  // in view since: there may be work in it
        manure_opener opener{};
    };

    // The factories of the table.
    QWidget* make_front(screen_id id);
    QWidget* make_profile(screen_id id);
    QWidget* make_location(screen_id id);
    QWidget* make_years(screen_id id);
    QWidget* make_farms(screen_id id);
    QWidget* make_about(screen_id id);
    QWidget* make_viewer(screen_id id);
    template <class Screen>
    QWidget* make_module(screen_id id);
    QWidget* connected(screen_id id, module_screen* module);

    /// Goes the one way to another assessment, as a double click on its file does.
    void open_assessment(const std::string& path);
    QWidget* made(screen_id id);
    void show_screen(screen_id id);
    /// Shows the screen `back`, if one is named, and does away with this one; its size is kept for the next
    /// time.
    void leave(screen_id id, std::optional<screen_id> back);
    module_screen* module_of(screen_id id) const;
    rows_key rows_behind(screen_id id) const;
    /// Every screen in view shows the assessment that is now open, or goes. Called wherever a person can have
    /// opened another one.
    void follow_assessment();
    void follow_assessment(screen_id id);
    void load_anew(screen_id id);
    bool opens_topic(const QObject* pressed_in);
    void keep_layout(screen_id id);
    void open_years();
    bool gives_way(screen_id id);
    void close_viewer();
    void end_without_windows();
    void reload(picker_module caller);
    void refresh_front();
    void say_at_front(const QString& status);

    application_state state_;
    prompts& person_;
    paste_prompts modules_person_;  // what the modules speak to
    report_desk desk_;
    profile_module profile_;
    assessments_module front_;
    years_module years_;
    standing_module overview_;
    why_place why_place_;
    farm_files_module files_;
    std::map<screen_id, standing> screens_;
    kept_layout layout_;
    bool ended_ = false;
    std::string report_folder_;  // of the viewer's last save
};

}  // namespace kel
