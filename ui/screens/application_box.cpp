#include "ui/screens/application_box.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <QVBoxLayout>

#include "inorganic/application_rules.h"
#include "inorganic/inorganic_messages.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace text = inorganic_messages;

namespace {

constexpr int dialog_width_px = 740;
constexpr int boxes_width_px = 370;

}  // namespace

// A calendar that can be without a date, which the toolkit's own cannot: it then draws none as chosen.
class day_calendar : public QCalendarWidget {
  public:
    explicit day_calendar(QWidget* parent) : QCalendarWidget(parent) {
        setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
        setFirstDayOfWeek(Qt::Monday);
        setVerticalHeaderFormat(NoVerticalHeader);
        setDateEditEnabled(false);
    }

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

application_box::application_box(const QString& name, grid_view& grid, QWidget* parent)
    : entry_box(name, grid, parent), name_(name), type_(use_text_box()) {
    setFixedWidth(dialog_width_px);
    // The editor of the entry box becomes the first of the four boxes; the frame keeps its row.
    auto* frame = qobject_cast<QGridLayout*>(layout());
    int row = 0, column = 0, rows = 0, columns = 0;
    frame->getItemPosition(frame->indexOf(type_), &row, &column, &rows, &columns);
    frame->removeWidget(type_);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(18);
    sides->addWidget(calendar_side(), 1);
    sides->addWidget(boxes_side());
    frame->addLayout(sides, row, column, rows, columns);
    setTabOrder(calendar_->days(), type_);
    setTabOrder(type_, amount_);
    setTabOrder(amount_, content_);
    setTabOrder(content_, comments_);
    setTabOrder(comments_, findChild<QPushButton*>("cmd" + name + "_enter"));
    on_enter([this] { return enter(); });
}

QLabel* application_box::label_for(std::string_view text, QWidget* box) {
    auto* label = new QLabel(qt(text), this);
    label->setObjectName(box->objectName().replace(0, 3, "lbl"));
    label->setBuddy(box);
    box->setAccessibleName(label->text());
    return label;
}

QWidget* application_box::calendar_side() {
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
    layout->addWidget(calendar_, 1);
    return side;
}

QWidget* application_box::boxes_side() {
    auto* side = new QWidget(this);
    side->setFixedWidth(boxes_width_px);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    amount_ = new_number_box("txt" + name_ + "_amount", side);
    content_ = new_number_box("txt" + name_ + "_content", side);
    comments_ = new QLineEdit(side);
    comments_->setObjectName("txt" + name_ + "_comments");
    comments_->installEventFilter(this);
    const auto add = [&](std::string_view label, QLineEdit* box) {
        layout->addWidget(label_for(label, box));
        layout->addWidget(box);
    };
    type_->setObjectName("txt" + name_ + "_type");
    add(text::type_label, type_);
    add(text::amount_label, amount_);
    add(text::content_label, content_);
    add(text::comments_label, comments_);
    layout->addStretch();
    limit_content();
    return side;
}

void application_box::limit_content() {
    const auto set_content = [this](std::optional<std::string_view> limit) {
        if (limit) content_->setText(qt(*limit));
    };
    connect(amount_, &QLineEdit::textChanged, this,
            [=](const QString& typed) { set_content(content_after_amount(from_qt(typed))); });
    connect(content_, &QLineEdit::textChanged, this,
            [=](const QString& typed) { set_content(content_after_content(from_qt(typed))); });
}

void application_box::set_year(int year) {
    calendar_->rest_on(QDate(year, 1, 1), false);
    show_day(std::nullopt);
}

void application_box::show_day(std::optional<date> day) {
    day_ = day;
    if (day)
        calendar_->rest_on(to_qt(*day), true);
    else
        calendar_->rest_unchosen();
    day_text_->setText(day ? qt(long_date_text(*day)) : tr("(none selected)"));
}

void application_box::open_application(const fertiliser_application& shown, application_part focus) {
    show_day(shown.day);
    amount_->setText(qt(shown.amount));
    content_->setText(qt(shown.content));
    comments_->setText(qt(shown.comments));
    open(qt(text::application_caption), {}, qt(shown.type));
    type_->setAccessibleName(qt(text::type_label));
    box_of(focus)->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(box_of(focus))) line->selectAll();
}

QWidget* application_box::box_of(application_part part) const {
    switch (part) {
        case application_part::type:
            return type_;
        case application_part::amount:
            return amount_;
        case application_part::content:
            return content_;
        case application_part::comments:
            return comments_;
        case application_part::day:
        case application_part::none:
            break;
    }
    return calendar_->days();
}

// Until the rules have answered the old date stands, also when the file cannot be read.
void application_box::pick(date picked) {
    if (picking_) return;
    picking_ = true;
    const auto settle = qScopeGuard([this] {
        picking_ = false;
        show_day(day_);
    });
    const date_pick result = pick_(picked);
    day_ = result.day;
    if (result.comments) comments_->setText(qt(*result.comments));
}

void application_box::pick_moved_day() {
    const auto* focused = window()->focusWidget();
    const bool cancels = focused && focused->objectName() == "cmd" + name_ + "_cancel";
    if (isVisible() && calendar_->moved() && !cancels) pick(from_qt(calendar_->selectedDate()));
}

bool application_box::eventFilter(QObject* watched, QEvent* event) {
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
    } else if (watched == calendar_->days() && event->type() == QEvent::FocusOut && !picking_) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            QTimer::singleShot(0, this, [this] { pick_moved_day(); });
    }
    return entry_box::eventFilter(watched, event);
}

fertiliser_application application_box::entered() const {
    return {day_, from_qt(type_->text()), from_qt(amount_->text()), from_qt(content_->text()),
            from_qt(comments_->text())};
}

bool application_box::enter() {
    if (calendar_->moved()) {
        const std::string comments = from_qt(comments_->text());
        const date moved_to = from_qt(calendar_->selectedDate());
        pick(moved_to);
        if (day_ != moved_to || from_qt(comments_->text()) != comments) return false;
    }
    QWidget* focused = focusWidget();
    const application_entry result = enter_application_(entered());
    if (result.closes) return true;
    QWidget* next = result.focus == application_part::none ? focused : box_of(result.focus);
    // The entry box puts the focus into its own editor when it stays.
    if (next) QTimer::singleShot(0, next, [next] { next->setFocus(); });
    return false;
}

}  // namespace kel
