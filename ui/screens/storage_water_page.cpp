#include "ui/screens/storage_water_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <functional>

#include "ui/screens/frmStorage.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// In characters.
constexpr int form_width = 126;
constexpr int box_width = 23;

void show_text(QLineEdit* box, const std::string& text) {
    const QSignalBlocker quiet(box);
    if (box->text() != qt(text)) box->setText(qt(text));
}

}  // namespace

storage_water_page::storage_water_page(frmStorage& screen, dirty_water_page& page)
    : QWidget(&screen), page_(page) {
    setObjectName("fraStorage3_water");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(12);
    layout->addLayout(form_choice(screen));
    told_ = screen.new_text("lblStorage3_water", this);
    layout->addWidget(form());
    layout->addStretch(1);
}

QLayout* storage_water_page::form_choice(frmStorage& screen) {
    auto* row = new QHBoxLayout;
    estimate_ = screen.add_command(row, tr("&Estimate dirty water production"), "cmdStorage3_water_cows",
                                   [this] { show_form(dirty_water_form::estimate); });
    actual_ = screen.add_command(row, tr("Enter &actual dirty water production"), "cmdStorage3_water_actual",
                                 [this] { show_form(dirty_water_form::actual); });
    for (QPushButton* button : {estimate_, actual_})
        button->setCheckable(true);
    row->addSpacing(24);
    auto* last_year =
        screen.add_command(row, tr("Use &last year's figures"), "cmdStorage3_water_lastyear", [this] {
            page_.take_last_year();
            refresh();
        });
    last_year->setToolTip(tr("Takes the dirty water figures of the assessment of the year before"));
    row->addStretch();
    return row;
}

QWidget* storage_water_page::form() {
    frame_ = new QGroupBox(this);
    frame_->setObjectName("fraStorage3_dirty_water");
    frame_->setMaximumWidth(characters_px(*frame_, form_width));
    auto* layout = new QVBoxLayout(frame_);
    layout->addWidget(told_);
    layout->addSpacing(8);
    lines_ = new QFormLayout;
    cows_box_ =
        add_box(tr("Average number of &dairy cows:"), "txtStorage3_water_cows", &dirty_water_page::set_cows);
    pens_box_ = add_box(tr("&Pig pens cleaned per month (average):"), "txtStorage3_water_pigs",
                        &dirty_water_page::set_pig_pens);
    actual_box_ = add_box(tr("Dirty &water production (cubic m/month):"), "txtStorage3_water_actual",
                          &dirty_water_page::set_actual);
    layout->addLayout(lines_);
    return frame_;
}

QLineEdit* storage_water_page::add_box(const QString& caption, const char* name,
                                       void (dirty_water_page::*set)(const std::string&)) {
    QLineEdit* box = new_number_box(name, this);
    box->setFixedWidth(characters_px(*box, box_width));
    box->setAccessibleName(QString(caption).remove('&'));
    connect(box, &QLineEdit::textChanged, this,
            [this, set](const QString& text) { std::invoke(set, page_, from_qt(text)); });
    connect(box, &QLineEdit::returnPressed, this, &storage_water_page::confirmed);
    lines_->addRow(caption, box);
    return box;
}

void storage_water_page::show_form(dirty_water_form form) {
    page_.show_form(form);
    refresh();
    take_focus();
}

void storage_water_page::refresh() {
    const bool estimate = page_.form() == dirty_water_form::estimate;
    estimate_->setChecked(estimate);
    actual_->setChecked(!estimate);
    frame_->setTitle(estimate ? tr("Estimated dirty water") : tr("Actual dirty water"));
    told_->setText(qt(page_.instruction()));
    lines_->setRowVisible(cows_box_, estimate);
    lines_->setRowVisible(pens_box_, estimate);
    lines_->setRowVisible(actual_box_, !estimate);
    show_text(cows_box_, page_.answers().cows);
    show_text(pens_box_, page_.answers().pig_pens);
    show_text(actual_box_, page_.answers().actual);
}

void storage_water_page::take_focus() {
    (page_.form() == dirty_water_form::estimate ? cows_box_ : actual_box_)->setFocus();
}

}  // namespace kel
