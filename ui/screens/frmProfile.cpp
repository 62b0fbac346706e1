#include "ui/screens/frmProfile.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <functional>

#include "profile/profile_messages.h"
#include "ui/widgets/box_set.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/line_editor.h"
#include "ui/widgets/number_hint.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

QLineEdit* named_edit(const char* name, QWidget* parent) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    return edit;
}

void show_text(QLineEdit* edit, const std::string& text) {
    if (edit->text() != qt(text)) edit->setText(qt(text));
}

}  // namespace

frmProfile::frmProfile(profile_module& module, report_desk& desk, application_state& state)
    : module_screen("frmProfile", tr("Farm Profile")), module_(module), desk_(desk), state_(state) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(farm_entries());
    grid_ = new grid_view(module_.fields(), "MSFlexGridFields", this);
    grid_->setAccessibleName(tr("Fields"));
    layout->addWidget(field_entries());
    layout->addWidget(grid_, 1);
    layout->addLayout(main_buttons());
    setTabOrder(create_, grid_);
    add_entry_boxes();
    use_history(module_.history());
    refresh();
}

// The texts go to the module as they are typed, so that nothing on the screen can differ from what is saved.
QWidget* frmProfile::farm_entries() {
    auto* panel = new QWidget(this);
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* columns = new QHBoxLayout(panel);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(24);
    name_ = named_edit("txtName", panel);
    location_ = named_edit("txtLocation", panel);
    location_->setReadOnly(true);
    location_->setPlaceholderText(tr("Click to choose the place on the map"));
    location_->installEventFilter(this);
    area_ = new_number_box("txtArea", panel);
    kel_area_ = named_edit("Text2", panel);
    new number_hint(*kel_area_);
    auto* left = new QFormLayout;
    left->addRow(tr("Na&me:"), name_);
    left->addRow(tr("Loc&ation:"), location_);
    left->addRow(tr("&Total area of the farm (ha):"), area_);
    left->addRow(tr("&KEL area of the farm (ha):"), kel_area_);
    columns->addLayout(left, 3);

    year_frame_ = new QGroupBox(tr("Year"), panel);
    year_frame_->setObjectName("fraProfile_year");
    auto* year_layout = new QVBoxLayout(year_frame_);
    auto* year_caption =
        new QLabel(tr("Select the date at which the KEL &year to be assessed comences:"), year_frame_);
    year_caption->setWordWrap(true);
    year_ = new QComboBox(year_frame_);
    year_->setObjectName("cboAssess_year");
    for (const std::string& choice : year_choices())
        year_->addItem(qt(choice));
    year_caption->setBuddy(year_);
    year_layout->addWidget(year_caption);
    year_layout->addWidget(year_);
    year_layout->addStretch();
    columns->addWidget(year_frame_, 2);

    take_text(name_, &profile_module::set_name);
    take_text(area_, &profile_module::set_total_area);
    take_text(kel_area_, &profile_module::set_kel_area);
    connect(year_, &QComboBox::currentTextChanged, this, [this](const QString& t) {
        module_.set_year(from_qt(t));
        mark_unsaved();
    });
    return panel;
}

void frmProfile::take_text(QLineEdit* edit, void (profile_module::*set)(std::string)) {
    connect(edit, &QLineEdit::textChanged, this, [this, set](const QString& text) {
        std::invoke(set, module_, from_qt(text));
        mark_unsaved();
    });
}

QWidget* frmProfile::field_entries() {
    auto* panel = new QWidget(this);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    count_ = new_whole_number_box("Text1", panel);
    count_->setFixedWidth(characters_px(*count_, 15));
    auto* caption = new QLabel(tr("Num&ber of fields:"), panel);
    caption->setBuddy(count_);
    row->addWidget(caption);
    row->addWidget(count_);
    create_ = add_command(row, {}, "Command1", [this] { and_refresh([this] { module_.create_fields(); }); });
    row->addStretch();
    const auto clipboard = [] { return from_qt(QApplication::clipboard()->text()); };
    add_command(row, tr("&Paste from Excel (names and sizes)"), "Command3", [this, clipboard] {
        and_refresh([&] { module_.paste_names_and_sizes(clipboard()); });
    })->setToolTip(tr("Field names and areas copied from two columns of a spreadsheet"));
    add_command(row, tr("Paste from E&xcel (names only)"), "Command2", [this, clipboard] {
        and_refresh([&] { module_.paste_names(clipboard()); });
    })->setToolTip(tr("Field names copied from one column of a spreadsheet"));
    disable_meanwhile(count_);
    take_text(count_, &profile_module::set_field_count);
    connect(count_, &QLineEdit::textChanged, this,
            [this] { create_->setText(qt(module_.create_caption())); });
    connect(count_, &QLineEdit::returnPressed, this,
            [this] { and_refresh([this] { module_.create_fields(); }); });
    return panel;
}

QLayout* frmProfile::main_buttons() {
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Generate Report"), "cmdReport", [this] { module_.report(desk_); });
    add_command(row, tr("&Open Assessments"), "cmdProfile_open", [this] {
        state_.picker_caller = picker_module::profile;
        emit years_wanted();
    });
    add_import(row, *grid_, "Profile_import",
               [this](import_mode mode) { return module_.import_records(mode); });
    row->addStretch();
    add_command(row, tr("&Cancel"), "cmdProfile_cancel", [this] { cancel(); });
    add_save(row, tr("&Set Profile"), "cmdProfile_set", [this] { return set_profile(); });
    return row;
}

void frmProfile::add_entry_boxes() {
    using module = profile_module;
    // The rows of the selection are those of the box; what is pasted is for its own row.
    const auto in_rows = [this](grid_cell at, const auto& enter) {
        outcome last;
        for (const int row : grid_->locked() ? grid_->selected_rows() : std::vector{at.row})
            last = enter(row);
        return last;
    };
    const auto enter_area = [this, in_rows](grid_cell at, const box_entry& typed) {
        return in_rows(at, [&](int row) { return module_.enter_area(row, row, at.column, typed.text()); });
    };
    const auto enter_soil = [this, in_rows](grid_cell at, const box_entry& typed) {
        return in_rows(at, [&](int row) { return module_.enter_soil(row, row, typed.text()); });
    };
    // Its last argument but one only says how many there are.
    const auto click = [this](int row, int column) {
        const int rows = static_cast<int>(grid_->selected_rows().size());
        return module_.click(row, row + rows - 1, column);
    };
    const std::vector buttons{clear_button(runs(module_, &module::clear_cell)),
                              erase_button(runs(module_, &module::erase_row))};
    // clang-format off
    add_boxes(*grid_, click, {
        {profile_box::name, "Profile_fname", runs(module_, &module::enter_name), buttons},
        {profile_box::area, "Profile_farea", enter_area, buttons},
        {profile_box::soil, "Profile_soil", enter_soil, buttons},
    });
    // clang-format on
}

template <class Work>
void frmProfile::and_refresh(Work work) {
    work();
    record_changes();
    refresh();
}

void frmProfile::refresh() {
    const farm_details& farm = module_.farm();
    show_text(name_, farm.name);
    show_text(location_, farm.location);
    show_text(area_, farm.total_area);
    show_text(kel_area_, farm.kel_area);
    show_text(count_, farm.field_count);
    create_->setText(qt(module_.create_caption()));
    const QString year = qt(farm.year);
    // A file may start its year on a day that the list does not offer.
    // It stands in the list only as long as that file is shown.
    const QSignalBlocker quiet(year_);
    while (year_->count() > static_cast<int>(year_choices().size()))
        year_->removeItem(year_->count() - 1);
    if (!year.isEmpty() && year_->findText(year) < 0) year_->addItem(year);
    year_->setCurrentIndex(year_->findText(year));
    year_frame_->setEnabled(module_.year_list_enabled());
    grid_->refresh();
    mark_unsaved();
}

bool frmProfile::set_profile() {
    const set_profile_result result = module_.set_profile();
    refresh();
    if (result == set_profile_result::refused_focus_kel_area) kel_area_->setFocus();
    if (result == set_profile_result::refused_focus_farm_area) area_->setFocus();
    if (result != set_profile_result::saved) return false;
    emit left();
    return true;
}

void frmProfile::cancel() {
    // The assessments screen comes back even if the last assessment cannot be read any more.
    const auto back = qScopeGuard([this] { emit left(); });
    module_.reopen();
}

bool frmProfile::eventFilter(QObject* watched, QEvent* event) {
    if (watched == location_) {
        const bool clicked = event->type() == QEvent::MouseButtonPress;
        const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
        const bool typed = key && (!key->text().isEmpty()) && key->key() != Qt::Key_Tab &&
                           key->key() != Qt::Key_Backtab && key->key() != Qt::Key_Escape;
        if (clicked || typed) {
            emit location_wanted();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmProfile::showEvent(QShowEvent* event) {
    refresh();
    if (module_.farm().name.empty()) name_->setFocus();
    QWidget::showEvent(event);
}

void frmProfile::closeEvent(QCloseEvent* event) {
    event->accept();
    cancel();
}

}  // namespace kel
