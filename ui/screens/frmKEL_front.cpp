#include "ui/screens/frmKEL_front.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "ui/widgets/giving_area.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/verdict_label.h"

namespace kel {

namespace {

using front = assessments_module;

// One command of the screen: its button, its menu entry or both; `needs` is the screen it opens, without
// which the command is shown disabled.
struct command {
    const char* name;
    const char* button;
    const char* menu;
    const char* entry;
    std::optional<screen_id> needs;
    const char* tip;
    void (*action)(front&);
};

// A command of the module as a plain function, for the table.
template <void (front::*Operation)()>
void run(front& module) {
    (module.*Operation)();
}

constexpr const char* open_tip = "Open assessments and/or select a year";
constexpr const char* reports_tip =
    "View the last reports generated (note may not relate to current farm if last report was produced for "
    "another farm)";

constexpr std::nullopt_t none = std::nullopt;

// clang-format off
constexpr auto commands = std::to_array<command>({
    // name        button caption                                          menu            menu entry                                    needs                 tool tip     action
    {"new",        "&New Farm",                                            "&File",        "Create &New Farm Assessment",                none,                 nullptr,     run<&front::new_farm>},
    {"open",       "&Open Assessments",                                    "&File",        "&Open Farm Assessment",                      screen_id::years,     open_tip,    run<&front::open_assessments>},
    {"edit",       "&Edit Farm Profile",                                   "&File",        "&Edit/View Farm Profile",                    none,                 nullptr,     run<&front::edit_profile>},
    {"save_as",    nullptr,                                                "&File",        "&Save Farm Assessment As...",                none,                 nullptr,     run<&front::save_as>},
    {"print_all",  nullptr,                                                "&File",        "&Print all reports...",                      none,                 nullptr,     run<&front::print_all_reports>},
    {"farms",      nullptr,                                                "&File",        "&Check a folder of farms...",                screen_id::farms,     nullptr,     run<&front::check_farms>},
    {"exit",       "E&xit",                                                "&File",        "E&xit",                                      none,                 nullptr,     run<&front::exit>},
    {"land",       "Step &1. Land available for spreading?",               "&Assessments", "&Land available for spreading?",             screen_id::land,      nullptr,     run<&front::step1>},
    {"storage",    "Step &2. Enough slurry storage && closed periods?",    "&Assessments", "Enough &slurry storage && closed periods?",  screen_id::storage,   nullptr,     run<&front::step2>},
    {"manure",     "Step &3. Slurry && manure applications?",              "&Assessments", "Slurry && &manure applications?",            screen_id::manure,    nullptr,     run<&front::step3>},
    {"inorganic",  "Step &4. Inorganic N applications",                    "&Assessments", "&Inorganic N applications",                  screen_id::inorganic, nullptr,     run<&front::step4>},
    {"crops",      "Nitrogen Requirement of &Crops",                       "&Assessments", "&Crops: assessment of N requirement",        screen_id::crops,     nullptr,     run<&front::crops>},
    {"grassland",  "Nitrogen Requirement of &Grassland",                   "&Assessments", "&Grassland: assessment of N requirement",    screen_id::grass,     nullptr,     run<&front::grassland>},
    {"composting", "In Field Composting of &Vegetable Residues",           "&Assessments", "In field &composting of vegetable residues", screen_id::straw,     nullptr,     run<&front::composting>},
    {"record",     "Field &Record",                                        "&Assessments", "Field &Record",                              screen_id::record,    nullptr,     run<&front::field_record>},
    {"standing",   nullptr,                                                "Overv&iew",    "&Where the farm stands",                     none,                 nullptr,     run<&front::show_standing>},
    {"calendar",   nullptr,                                                "Overv&iew",    "&Season calendar",                           screen_id::calendar,  nullptr,     run<&front::season_calendar>},
    {"sheets",     nullptr,                                                "Overv&iew",    "&Blank sheets...",                           screen_id::sheets,    nullptr,     run<&front::blank_sheets>},
    {"show_me",    "Show &Me",                                             "&Help",        "&Show Me",                                   none,                 nullptr,     run<&front::show_me>},
    {"guidelines", nullptr,                                                "&Help",        "KEL &guidelines",                            none,                 nullptr,     run<&front::guidelines>},
    {"update",     nullptr,                                                "&Help",        "Update facility",                            none,                 nullptr,     run<&front::update>},
    {"about",      nullptr,                                                "&Help",        "About this software",                        none,                 nullptr,     run<&front::about>},
    {"whats_this", "&What's this?",                                        nullptr,        nullptr,                                      none,                 nullptr,     run<&front::whats_this>},
    {"reports",    "View Re&ports",                                        nullptr,        nullptr,                                      none,                 reports_tip, run<&front::view_reports>},
});
// clang-format on

// The steps whose verdict stands beside their command.
struct judged_command {
    std::string_view name;
    farm_step step;
};
constexpr auto judged = std::to_array<judged_command>({
    {"edit", farm_step::profile},
    {"land", farm_step::land},
    {"storage", farm_step::storage},
    {"manure", farm_step::manure},
    {"inorganic", farm_step::inorganic},
    {"crops", farm_step::crops},
    {"grassland", farm_step::grass},
    {"composting", farm_step::composting},
    {"record", farm_step::record},
});

std::optional<farm_step> step_of(std::string_view name) {
    const auto found = std::ranges::find(judged, name, &judged_command::name);
    return found == judged.end() ? std::nullopt : std::optional(found->step);
}

verdict_label::mark mark_of(const step_standing& step) {
    switch (step.worst) {
        case severity::wrong:
            return verdict_label::mark::wrong;
        case severity::attention:
            return verdict_label::mark::look;
        case severity::not_done:
            return verdict_label::mark::open;
        case severity::fine:
            break;
    }
    return step.done ? verdict_label::mark::done : verdict_label::mark::open;
}

struct button_group {
    const char* title;
    std::array<const char*, 5> names;
};

constexpr std::array<button_group, 4> groups{
    {{"Farm", {"new", "open", "edit"}},
     {"Assessments", {"land", "storage", "manure", "inorganic"}},
     {"Nitrogen requirement and records", {"crops", "grassland", "composting", "record"}},
     {"Reports and help", {"reports", "show_me", "whats_this", "exit"}}}};

constexpr int picture_px = 64;
constexpr int button_height_px = 40;

}  // namespace

frmKEL_front::frmKEL_front(assessments_module& module, farm_files_module& files,
                           const application_state& state, const screens& built, standing_module& overview)
    : module_(module), files_(files), state_(state), built_(built), overview_(overview) {
    setObjectName("frmKEL_front");
    add_menus();
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(18, 14, 18, 18);
    layout->setSpacing(14);
    layout->addWidget(header());
    layout->addWidget(new giving_area(buttons(), "fraFront", centre), 1);
    // A message of the bar itself would go with the next menu.
    saved_ = new QLabel(this);
    saved_->setObjectName("lblFront_saved");
    saved_->setTextFormat(Qt::PlainText);
    saved_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    // As high without a text: nothing moves when something is first said.
    saved_->setMinimumHeight(saved_->fontMetrics().height());
    statusBar()->addWidget(saved_, 1);
    setCentralWidget(centre);
    refresh();
}

QWidget* frmKEL_front::header() {
    auto* panel = new QWidget(this);
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    auto* picture = new QLabel(panel);
    picture->setPixmap(windowIcon().pixmap(picture_px, picture_px));
    layout->addWidget(picture);
    auto* texts = new QVBoxLayout;
    farm_ = new QLabel(panel);
    farm_->setObjectName("lblFront_farm");
    farm_->setTextFormat(Qt::PlainText);
    QFont large = farm_->font();
    large.setPointSize(large.pointSize() + 4);
    large.setBold(true);
    farm_->setFont(large);
    file_ = new QLabel(panel);
    file_->setObjectName("lblFront_file");
    file_->setTextFormat(Qt::PlainText);
    file_->setWordWrap(true);
    texts->addStretch();
    texts->addWidget(farm_);
    texts->addWidget(file_);
    texts->addStretch();
    layout->addLayout(texts, 1);
    return panel;
}

QPushButton* frmKEL_front::button(const char* name) {
    const auto& c = *std::find_if(commands.begin(), commands.end(),
                                  [&](const command& x) { return std::string_view(x.name) == name; });
    auto* made = new QPushButton(tr(c.button), this);
    made->setObjectName(QString("cmdFront_") + c.name);
    made->setMinimumHeight(button_height_px);
    const bool built = !c.needs || built_.exists(*c.needs);
    made->setEnabled(built);
    made->setToolTip(built ? tr(c.tip ? c.tip : "") : tr("Not part of this version"));
    connect(made, &QPushButton::clicked, this, [this, action = c.action] {
        action(module_);
        refresh();
    });
    return made;
}

// A command without a verdict takes the width of both.
void frmKEL_front::add_command(QGridLayout& rows, const char* name) {
    const int row = rows.rowCount();
    const auto step = step_of(name);
    rows.addWidget(button(name), row, 0, 1, step ? 1 : 2);
    if (!step) return;
    auto* verdict = new verdict_label(this);
    verdict->setObjectName(QString("lblFront_") + name);
    rows.addWidget(verdict, row, 1);
    verdicts_[*step] = verdict;
}

QWidget* frmKEL_front::buttons() {
    auto* panel = new QWidget(this);
    auto* layout = new QGridLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    int place = 0;
    for (const button_group& group : groups) {
        auto* box = new QGroupBox(tr(group.title), panel);
        auto* rows = new QGridLayout(box);
        rows->setVerticalSpacing(8);
        rows->setHorizontalSpacing(12);
        rows->setColumnStretch(0, 1);
        rows->setColumnStretch(1, 1);
        for (const char* name : group.names)
            if (name) add_command(*rows, name);
        rows->setRowStretch(rows->rowCount(), 1);
        layout->addWidget(box, place / 2, place % 2);
        ++place;
    }
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return panel;
}

void frmKEL_front::add_menus() {
    QMenu* menu = nullptr;
    for (const command& c : commands) {
        if (!c.entry) continue;
        if (!menu || menu->title() != c.menu) menu = menuBar()->addMenu(c.menu);
        if (std::string_view(c.name) == "exit") add_farm_files(*menu);
        QAction* action = menu->addAction(c.entry);
        action->setObjectName(QString("mnuFront_") + c.name);
        action->setEnabled(!c.needs || built_.exists(*c.needs));
        connect(action, &QAction::triggered, this, [this, act = c.action] {
            act(module_);
            refresh();
        });
    }
}

void frmKEL_front::add_farm_files(QMenu& menu) {
    menu.addSeparator();
    recent_ = menu.addMenu(tr("&Recent assessments"));
    recent_->setObjectName("mnuFront_recent");
    connect(&menu, &QMenu::aboutToShow, this, &frmKEL_front::list_recent);
    const auto add = [&](const QString& entry, const char* name, void (farm_files_module::*act)()) {
        QAction* action =
            menu.addAction(entry, this, [this, act] { go_elsewhere([&] { std::invoke(act, files_); }); });
        action->setObjectName(name);
    };
    add(tr("Open the &folder"), "mnuFront_folder", &farm_files_module::open_folder);
    menu.addSeparator();
    add(tr("Res&tore an earlier copy..."), "mnuFront_restore", &farm_files_module::restore);
    add(tr("Open the folder of ear&lier copies"), "mnuFront_copies", &farm_files_module::open_copies_folder);
    menu.addSeparator();
}

// A failure, too, may come when other rows already stand behind the screens.
void frmKEL_front::go_elsewhere(const std::function<void()>& action) {
    try {
        action();
    } catch (...) {
        emit files_changed();
        throw;
    }
    emit files_changed();
}

void frmKEL_front::list_recent() {
    recent_->clear();
    for (const recent_assessment& one : files_.recent()) {
        const QString year =
            one.year_start ? tr(", KEL year from %1").arg(qt(short_date_text(*one.year_start))) : QString();
        QString entry = qt(one.farm).simplified() + year + "   " + qt(one.path);
        const int longest = recent_->fontMetrics().averageCharWidth() * 110;
        entry = recent_->fontMetrics().elidedText(entry, Qt::ElideMiddle, longest);
        recent_->addAction(entry.replace('&', "&&"), this, [this, path = one.path] {
            bool linked = true;
            go_elsewhere([&] { linked = files_.open_recent(path); });
            if (!linked) emit years_wanted();
        });
    }
    recent_->setEnabled(!recent_->isEmpty());
}

void frmKEL_front::refresh() {
    files_.note_open();
    setWindowTitle(qt(module_.title()));
    const bool open = !state_.assess_file.empty();
    const QString farm = qt(module_.farm_name());
    // A name of any length must not widen the window.
    farm_->setText(open ? farm_->fontMetrics().elidedText(farm, Qt::ElideRight, 640)
                        : tr("No assessment is open"));
    farm_->setToolTip(open && farm.size() < 500 ? plain_tip(farm) : QString());
    QString told = tr("Create a new farm, or open an assessment.");
    if (open) {
        told = state_.kel_year_start
                   ? tr("KEL year from %1   ").arg(qt(long_date_text(*state_.kel_year_start)))
                   : "";
        told += qt(state_.assess_file);
    }
    file_->setText(told);
    // Of what was saved without a screen that has a foot of its own: Save As, a new year, a store.
    if (const std::string trouble = state_.copies->take_trouble(); !trouble.empty()) say(qt(trouble));
    verdicts_due_ = true;
    show_verdicts();
    update();
}

// The window comes to view first: a large farm takes its time.
void frmKEL_front::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (std::exchange(verdicts_due_, false))
        QMetaObject::invokeMethod(this, &frmKEL_front::bring_verdicts_up_to_date, Qt::QueuedConnection);
}

void frmKEL_front::bring_verdicts_up_to_date() {
    overview_.bring_up_to_date();
    show_verdicts();
}

// Verdicts on another assessment than the one now open are none.
void frmKEL_front::show_verdicts() {
    const auto& farm = overview_.standing();
    const bool known = farm && farm->files.current == state_.assess_file;
    for (const auto& [step, label] : verdicts_)
        label->show_verdict(verdict_label::mark::none, {});
    if (!known) return;
    for (const step_standing& step : farm->steps)
        verdicts_.at(step.step)->show_verdict(mark_of(step), qt(step.verdict), qt(step.next));
    if (!farm->trouble.empty())
        verdicts_.at(farm_step::profile)
            ->show_verdict(verdict_label::mark::wrong,
                           tr("The assessment cannot be judged: %1").arg(qt(farm->trouble)));
}

void frmKEL_front::say(const QString& text) {
    saved_->setText(text);
    saved_->setToolTip(text.isEmpty() ? QString() : plain_tip(text));
}

void frmKEL_front::showEvent(QShowEvent* event) {
    refresh();
    QMainWindow::showEvent(event);
}

void frmKEL_front::closeEvent(QCloseEvent* event) {
    // What follows, the store and the end of the process, is not the window's business.
    event->ignore();
    emit close_pressed();
}

}  // namespace kel
