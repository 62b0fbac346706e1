#include "ui/screens/frmGrass_new.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/entry.h"
#include "grass/grass_messages.h"
#include "grass/site_class.h"
#include "ui/screens/grass_results_page.h"
#include "ui/screens/grass_silage_page.h"
#include "ui/screens/grass_site_page.h"
#include "ui/screens/grass_stock_page.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/question_page.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = grass_messages;

frmGrass_new::frmGrass_new(application_state& state, prompts& person, report_desk& desk, screens& shown)
    : module_screen("frmGrass_new", qt(text::title)),
      module_(state, person, shown),
      state_(state),
      desk_(desk) {
    module_.grass_load_stuff();
    instruction_ = new_text("lblGrass_instruction", this);
    pages_ = new QStackedWidget(this);
    add_questions();
    pages_->addWidget(site_ = new grass_site_page(*this, module_));
    pages_->addWidget(results_ = new grass_results_page(*this, module_));
    pages_->addWidget(stock_ = new grass_stock_page(*this, module_));
    pages_->addWidget(silage_ = new grass_silage_page(*this, module_));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(instruction_);
    layout->addWidget(pages_, 1);
    use_history(module_.history());
    use_explanations(pages_,
                     explained_by(module_, {{"Grass_rain", "Rain from April to September"},
                                            {"Grass_altitude", "Altitude"},
                                            {"lblGrass_summary", "Livestock fed by grazing and silage"}}));
    show_page();
}

question_page* frmGrass_new::new_question(const char* name, std::string_view question,
                                          const std::vector<std::string>& choices) {
    auto* page = new question_page(name, qt(question), choices, this);
    pages_->addWidget(page);
    return page;
}

void frmGrass_new::add_questions() {
    rain_ = new_question("Grass_rain", text::rain_question, choices_of(rain_levels(), &rain_level::answer));
    add_command(rain_->command_row(), tr("E&nter"), "cmdGrass_rain_enter", [this] { confirm_rain(); });
    rain_->command_row()->addStretch();
    add_close(rain_->command_row(), "cmdGrass_rain_cancel");
    connect(rain_, &question_page::confirmed, this, [this] { confirm_rain(); });
    altitude_ = new_question("Grass_altitude", text::altitude_question,
                             choices_of(altitude_levels(), &altitude_level::answer));
    add_command(altitude_->command_row(), tr("E&nter"), "cmdGrass_altitude_enter",
                [this] { confirm_altitude(); });
    add_step(altitude_->command_row(), tr("&Back"), "cmdGrass_altitude_back", [this] { module_.back(); });
    altitude_->command_row()->addStretch();
    add_close(altitude_->command_row(), "cmdGrass_altitude_cancel");
    connect(altitude_, &question_page::confirmed, this, [this] { confirm_altitude(); });
}

void frmGrass_new::add_close(QBoxLayout* row, const QString& name) {
    add_command(row, tr("Close &Module"), name, [this] { close(); });
}

QPushButton* frmGrass_new::add_step(QBoxLayout* row, const QString& caption, const QString& name,
                                    std::function<void()> action) {
    return add_command(row, caption, name, [this, run = std::move(action)] { and_show_page(run); });
}

std::function<bool()> frmGrass_new::showing_page(std::function<bool()> save) {
    return [this, run = std::move(save)] {
        bool saved = false;
        and_show_page([&] { saved = run(); });
        return saved;
    };
}

QPushButton* frmGrass_new::add_save_step(QBoxLayout* row, const QString& name, std::function<bool()> save) {
    return add_save(row, tr("&Save"), name, showing_page(std::move(save)));
}

QPushButton* frmGrass_new::add_saving_step(QBoxLayout* row, const QString& name, std::function<bool()> save) {
    return add_command(row, tr("C&ontinue"), name,
                       [this, run = showing_page(std::move(save))] { run_save(run); });
}

// A step that failed may have turned the page, too.
void frmGrass_new::and_show_page(const std::function<void()>& step) {
    try {
        step();
    } catch (...) {
        show_page();
        throw;
    }
    show_page();
}

bool frmGrass_new::may_close() {
    try {
        return module_.close();
    } catch (...) {
        show_page();
        throw;
    }
}

void frmGrass_new::open_assessments() {
    state_.picker_caller = picker_module::grass;
    emit years_wanted();
}

void frmGrass_new::confirm_rain() {
    if (module_.confirm_rain(rain_->answer())) show_page();
}

void frmGrass_new::confirm_altitude() {
    if (module_.confirm_altitude(altitude_->answer())) show_page();
}

void frmGrass_new::refresh() {
    instruction_->setText(qt(module_.instruction()));
    switch (module_.page()) {
        case grass_page::rain:
            return rain_->set_answer(module_.rain_answer());
        case grass_page::altitude:
            return altitude_->set_answer(module_.altitude_answer());
        case grass_page::site:
            return site_->refresh();
        case grass_page::results:
            return results_->refresh();
        case grass_page::stock:
            return stock_->refresh();
        case grass_page::silage:
            return silage_->refresh();
    }
}

void frmGrass_new::show_page() {
    refresh();
    pages_->setCurrentIndex(static_cast<int>(module_.page()));
    focus_page();
}

void frmGrass_new::focus_page() {
    switch (module_.page()) {
        case grass_page::rain:
            return rain_->take_focus();
        case grass_page::altitude:
            return altitude_->take_focus();
        case grass_page::site:
            return site_->take_focus();
        case grass_page::results:
            return results_->take_focus();
        case grass_page::stock:
            return stock_->take_focus();
        case grass_page::silage:
            return silage_->take_focus();
    }
}

// The tables of the pages behind change with the one in view.
void frmGrass_new::reload() {
    module_.grass_load_stuff();
    site_->refresh();
    stock_->refresh();
    silage_->refresh();
    show_page();
}

}  // namespace kel
