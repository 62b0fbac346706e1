#include "ui/screens/application_form.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScopeGuard>
#include <QTimer>
#include <QVBoxLayout>

#include "inorganic/application_rules.h"
#include "inorganic/inorganic_messages.h"
#include "inorganic/inorganic_module.h"
#include "ui/widgets/date_editors.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = inorganic_messages;

namespace {

constexpr int boxes_width_px = 370;

}  // namespace

// A calendar that can be without a date, which the toolkit's own cannot: it then draws none as chosen.
class day_calendar : public QCalendarWidget {
  public:
    explicit day_calendar(QWidget* parent) : QCalendarWidget(parent) { set_up_calendar(*this); }

    QWidget* days() const { return findChild<QAbstractItemView*>(); }

    void rest_on(QDate day, bool chosen) {
        chosen_ = chosen;
        setSelectedDate(day);
        resting_ = selectedDate();  // a date from before the calendar's first is not taken
        setCurrentPage(resting_.year(), resting_.month());
        updateCells();
    }
    void rest_unchosen() { rest_on(resting_, false); }
    /// Whether keys or a click took it from the day on which it was put.
    bool moved() const { return selectedDate() != resting_; }

  protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate day) const override {
        const bool hides_choice = !chosen_ && !moved() && day == resting_;
        if (!hides_choice) return QCalendarWidget::paintCell(painter, rect, day);
        // The view has painted its selection by then.
        painter->fillRect(rect, palette().color(QPalette::Base));
        painter->setPen(palette().color(QPalette::Text));
        painter->drawText(rect, Qt::AlignCenter, QString::number(day.day()));
    }

  private:
    QDate resting_;
    bool chosen_ = false;
};

application_form::application_form(const QString& name, QWidget* parent) : entry_form(parent), name_(name) {
    auto* sides = new QHBoxLayout(this);
    sides->setContentsMargins(0, 0, 0, 0);
    sides->setSpacing(18);
    sides->addWidget(calendar_side(), 1);
    sides->addWidget(boxes_side());
}

QLabel* application_form::label_for(std::string_view text, QWidget* box) {
    auto* label = new QLabel(qt(text), this);
    label->setObjectName(box->objectName().replace(0, 3, "lbl"));
    label->setBuddy(box);
    box->setAccessibleName(label->text());
    return label;
}

QWidget* application_form::calendar_side() {
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    calendar_ = new day_calendar(side);
    calendar_->setObjectName("cal" + name_);
    calendar_->days()->installEventFilter(this);
    connect(calendar_, &QCalendarWidget::clicked, this, [this](QDate day) { pick(from_qt(day)); });
    auto* heading = new QHBoxLayout;
    heading->addWidget(label_for(text::date_label, calendar_));
    calendar_->days()->setAccessibleName(qt(text::date_label));
    day_text_ = new QLabel(side);
    day_text_->setObjectName("lbl" + name_ + "_day");
    heading->addWidget(day_text_, 1);
    layout->addLayout(heading);
    typed_ = new day_line(name_ + "_date", calendar_, side);
    typed_->line()->installEventFilter(this);
    layout->addWidget(typed_);
    layout->addWidget(calendar_, 1);
    return side;
}

QLineEdit* application_form::add_box(QLayout* layout, std::string_view label, QLineEdit* box) {
    layout->addWidget(label_for(label, box));
    layout->addWidget(box);
    return box;
}

QWidget* application_form::boxes_side() {
    auto* side = new QWidget(this);
    side->setFixedWidth(boxes_width_px);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    const QString stem = "txt" + name_;
    type_ = add_box(layout, text::type_label, new_text_box(stem + "_type", side));
    amount_ = add_box(layout, text::amount_label, new_number_box(stem + "_amount", side));
    content_ = add_box(layout, text::content_label, new_number_box(stem + "_content", side));
    comments_ = add_box(layout, text::comments_label, new_text_box(stem + "_comments", side));
    comments_->installEventFilter(this);
    layout->addStretch();
    limit_content();
    return side;
}

void application_form::limit_content() {
    const auto set_content = [this](std::optional<std::string_view> limit) {
        if (limit) content_->setText(qt(*limit));
    };
    connect(amount_, &QLineEdit::textChanged, this,
            [=](const QString& typed) { set_content(content_after_amount(from_qt(typed))); });
    connect(content_, &QLineEdit::textChanged, this,
            [=](const QString& typed) { set_content(content_after_content(from_qt(typed))); });
}

void application_form::set_year(int year) {
    calendar_->rest_on(QDate(year, 1, 1), false);
    show_day(std::nullopt);
}

void application_form::show_day(std::optional<date> day) {
    day_ = day;
    if (day)
        calendar_->rest_on(to_qt(*day), true);
    else
        calendar_->rest_unchosen();
    day_text_->setText(day ? qt(long_date_text(*day)) : tr("(none selected)"));
}

void application_form::show_opening(const opening& shown) {
    typed_->hide();
    for (std::size_t part = 0; part < shown.parts.size(); ++part)
        show_text(static_cast<int>(part), shown.parts[part].text);
    if (auto* line = qobject_cast<QLineEdit*>(focus_stop(shown.focus))) line->selectAll();
}

void application_form::show_text(int part, const std::string& text) {
    if (auto* line = qobject_cast<QLineEdit*>(focus_stop(part)))
        line->setText(qt(text));
    else
        show_day(parse_date(text));
}

box_entry application_form::entered() const {
    box_entry entry{{{.day = day_}}};
    for (const QLineEdit* line : {type_, amount_, content_, comments_})
        entry.parts.push_back({.text = from_qt(line->text())});
    return entry;
}

void application_form::take_key(int part, QKeyEvent& key) {
    if (part == application_part::day) return typed_->begin(key);
    QApplication::sendEvent(focus_stop(part), &key);
}

std::vector<QWidget*> application_form::part_controls() const {
    return {calendar_->days(), type_, amount_, content_, comments_};
}

// A date that is being typed stands before the calendar that shows it.
std::vector<QWidget*> application_form::stops() const {
    std::vector<QWidget*> controls = part_controls();
    if (!typed_->isHidden()) controls.insert(controls.begin(), typed_->line());
    return controls;
}

QWidget* application_form::focus_stop(int part) const {
    return part_controls().at(static_cast<std::size_t>(part));
}

// Until the rules have answered the old date stands, also when the file cannot be read.
void application_form::pick(date picked) {
    if (picking_) return;
    picking_ = true;
    const auto settle = qScopeGuard([this] {
        picking_ = false;
        typed_->hide();
        show_day(day_);
    });
    for (const auto& [part, text] : pick_(picked).changes)
        show_text(part, text);
}

void application_form::pick_moved_day() {
    const auto* focused = window()->focusWidget();
    const bool cancels = focused && focused->objectName() == "cmd" + name_ + "_cancel";
    if (isVisible() && calendar_->moved() && !cancels) pick(from_qt(calendar_->selectedDate()));
}

bool application_form::eventFilter(QObject* watched, QEvent* event) {
    if (watched == comments_ && event->type() == QEvent::FocusIn &&
        from_qt(comments_->text()) == text::closed_period_comment) {
        // The reason is typed behind the words that stand there, not over them.
        QTimer::singleShot(0, comments_, [this] { comments_->end(false); });
    } else if (watched == calendar_->days() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
            pick(from_qt(calendar_->selectedDate()));
            return true;
        }
    } else if ((watched == calendar_->days() || watched == typed_->line()) &&
               event->type() == QEvent::FocusOut && !picking_) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            QTimer::singleShot(0, this, [this] { pick_moved_day(); });
    }
    return entry_form::eventFilter(watched, event);
}

bool application_form::ready() {
    if (!typed_->ready()) return false;
    if (!calendar_->moved()) return true;
    const QString comments = comments_->text();
    const date moved_to = from_qt(calendar_->selectedDate());
    pick(moved_to);
    if (day_ == moved_to && comments_->text() == comments) return true;
    type_->setFocus();
    return false;
}

}  // namespace kel
