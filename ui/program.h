// The running program: the application state, the modules and their screens. It brings screens to view by
// their tags and is the viewer for the report generation; everything else is the modules' doing.
#pragma once

#include <QByteArray>
#include <QObject>
#include <map>
#include <memory>
#include <string>

#include "core/application_state.h"
#include "core/prompts.h"
#include "profile/profile_module.h"
#include "reports/report_viewer.h"
#include "shell/assessments_module.h"
#include "shell/screens.h"
#include "shell/years_module.h"

class QWidget;

namespace kel {

class module_screen;

class program : public QObject, public screens, public report_viewer {
    Q_OBJECT

  public:
    program(const installation& places, prompts& person, std::function<date()> today);
    ~program() override;

    /// Start-up in its order, then the assessments screen. A path opens that assessment, as the years dialog
    /// would.
    void start(const std::string& assessment = {});

    application_state& state() { return state_; }
    /// The screen of a tag, or null while it is not in being.
    QWidget* screen(std::string_view tag) const;

    void open(std::string_view tag) override;
    bool exists(std::string_view tag) const override;
    bool start_updater(const std::string& path) override;
    void end() override;

    void wait_cursor(bool on) override;
    void hide_screen(std::string_view tag) override;
    void show(const viewer_request& request) override;

  signals:
    void ended();

  private:
    module_screen* make_module(std::string_view tag);
    void load_if_other_file(module_screen& module, std::string_view tag);
    void load_modules_in_view();
    void load_anew(module_screen& module, std::string_view tag);
    QWidget* make_profile();
    QWidget* make(std::string_view tag);
    QWidget* made(std::string_view tag);
    /// Shows another screen and does away with this one; its size is kept for the next time.
    void leave(std::string_view tag, std::string_view back_tag);
    void show_screen(std::string_view tag);
    void close_viewer();
    void reload(picker_module caller);
    void refresh_front();

    application_state state_;
    prompts& person_;
    report_desk desk_;
    profile_module profile_;
    assessments_module front_;
    years_module years_;
    std::map<std::string, std::unique_ptr<QWidget>, std::less<>> screens_;
    std::map<std::string, QByteArray, std::less<>> sizes_;
    std::string report_folder_;  // of the viewer's last save
};

}  // namespace kel
