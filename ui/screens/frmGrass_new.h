// The grassland screen: two opening questions, the site table with its results, and the stocking route, each
// a page. What stands above the pages is shared.
#pragma once

#include "grass/grass_module.h"
#include "ui/widgets/module_screen.h"

class QBoxLayout;
class QLabel;
class QStackedWidget;

namespace kel {

class grass_results_page;
class grass_silage_page;
class grass_site_page;
class grass_stock_page;
class question_page;

class frmGrass_new : public module_screen {
    Q_OBJECT

  public:
    /// Loads the module. Throws file_error.
    frmGrass_new(application_state& state, prompts& person, report_desk& desk, screens& shown);

    void reload() override;

    // The pages build their controls with these.
    using module_screen::add_boxes;
    using module_screen::add_command;
    using module_screen::disable_meanwhile;
    using module_screen::new_text;

    /// The command that closes the module, at the end of a page's row.
    void add_close(QBoxLayout* row, const QString& name);
    /// A command after which the page that the module has turned to is shown.
    QPushButton* add_step(QBoxLayout* row, const QString& caption, const QString& name,
                          std::function<void()> action);
    /// A command of the same kind that saves.
    QPushButton* add_save_step(QBoxLayout* row, const QString& name, std::function<bool()> save);
    /// Saves on the way to another page.
    QPushButton* add_saving_step(QBoxLayout* row, const QString& name, std::function<bool()> save);
    void open_assessments();
    void report() { module_.report(desk_); }
    /// Shows the page that the module has turned to.
    void show_page();

  protected:
    bool may_close() override;
    void refresh() override;

  private:
    question_page* new_question(const char* name, std::string_view question,
                                const std::vector<std::string>& choices);
    void add_questions();
    void and_show_page(const std::function<void()>& step);
    std::function<bool()> showing_page(std::function<bool()> save);
    void confirm_rain();
    void confirm_altitude();
    void focus_page();

    grass_module module_;
    application_state& state_;
    report_desk& desk_;
    QLabel* instruction_;
    QStackedWidget* pages_;
    question_page* rain_;
    question_page* altitude_;
    grass_site_page* site_;
    grass_results_page* results_;
    grass_stock_page* stock_;
    grass_silage_page* silage_;
};

}  // namespace kel
