#include "ui/screens/frmCalendar.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "standing/season_messages.h"
#include "standing/season_report.h"
#include "standing/season_texts.h"
#include "ui/screens/season_legend.h"
#include "ui/screens/season_view.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr int lines_of_a_day = 3;

QString joined(const std::vector<std::string>& notes) {
    QStringList lines;
    for (const std::string& note : notes)
        lines << qt(note);
    return lines.join(' ');
}

}  // namespace

frmCalendar::frmCalendar(application_state& state, prompts& /*person*/, report_desk& desk)
    : module_screen("frmCalendar", qt(season_messages::calendar_title)),
      state_(state),
      desk_(desk),
      season_(season_of(state)),
      table_(season_table(season_)) {
    auto* layout = new QVBoxLayout(this);
    notes_ = new_text("lblCalendar_notes", this);
    pages_ = new QStackedWidget(this);
    view_ = new season_view(this);
    pages_->addWidget(view_);
    day_ = new_text("lblCalendar_day", this);
    // The lines of the longest day have their room always, so that nothing moves.
    day_->setMinimumHeight(lines_of_a_day * day_->fontMetrics().lineSpacing());
    day_->setAlignment(Qt::AlignTop);
    layout->addWidget(notes_);
    layout->addWidget(pages_, 1);
    layout->addWidget(day_);
    layout->addWidget(new season_legend(this));
    layout->addLayout(commands());
    add_zoom_keys();
    connect(view_, &season_view::place_changed, this, &frmCalendar::tell);
    refresh();
    view_->setFocus();
}

QLayout* frmCalendar::commands() {
    auto* row = new QHBoxLayout;
    auto* table = new QPushButton(tr("As a &table"), this);
    table->setObjectName("cmdCalendar_table");
    table->setCheckable(true);
    table->setToolTip(tr("The same calendar in words, for reading and copying"));
    connect(table, &QPushButton::toggled, this, &frmCalendar::show_table);
    row->addWidget(table);
    add_command(row, tr("&Generate Report"), "cmdCalendar_report", [this] {
        generate_report(desk_, season_report_file, season_report(season_), screen_id::calendar,
                        screen_id::calendar);
    });
    row->addStretch();
    const auto zoom_button = [&](const QString& caption, const QString& name, const QString& words,
                                 int steps) {
        QPushButton* button = add_command(row, caption, name, [this, steps] { zoom(steps); });
        button->setAccessibleName(words);
        button->setToolTip(words);
    };
    zoom_button(tr("A-"), "cmdCalendar_smaller", tr("Smaller (Ctrl+-)"), -1);
    zoom_button(tr("A+"), "cmdCalendar_larger", tr("Larger (Ctrl++)"), 1);
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdCalendar_close", [this] { close(); });
    return row;
}

void frmCalendar::add_zoom_keys() {
    const auto key = [this](const QKeySequence& keys, int steps) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, steps] { zoom(steps); });
    };
    key(Qt::CTRL | Qt::Key_Plus, 1);
    key(Qt::CTRL | Qt::Key_Equal, 1);
    key(Qt::CTRL | Qt::Key_Minus, -1);
    key(Qt::CTRL | Qt::Key_0, 0);
}

void frmCalendar::zoom(int steps) {
    if (grid_ && grid_->isVisible())
        grid_->widths().zoom(steps);
    else
        view_->zoom(steps);
}

void frmCalendar::show_table(bool wanted) {
    if (wanted && !grid_) {
        grid_ = new grid_view(table_, "MSFlexGridCalendar", this);
        grid_->setAccessibleName(qt(season_messages::calendar_title));
        grid_->wrap_column(season_column::details);
        pages_->addWidget(grid_);
    }
    if (wanted) grid_->refresh();
    pages_->setCurrentWidget(wanted ? static_cast<QWidget*>(grid_) : view_);
    pages_->currentWidget()->setFocus();
    day_->setVisible(!wanted);
}

void frmCalendar::tell(const season_place& place) {
    const bool there = season_.missing.empty() && !season_.fields.empty();
    const QString words = there
                              ? qt(day_text(season_.fields[static_cast<std::size_t>(place.field)], place.day))
                              : qt(season_.missing);
    day_->setText(words);
    view_->setAccessibleDescription(words);
}

void frmCalendar::reload() {
    season_ = season_of(state_);
    refresh();
}

void frmCalendar::refresh() {
    table_ = season_table(season_);
    view_->show_season(season_);
    notes_->setText(joined(season_.notes));
    notes_->setVisible(!season_.notes.empty());
    if (grid_) grid_->refresh();
}

}  // namespace kel
