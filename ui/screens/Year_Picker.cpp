#include "ui/screens/Year_Picker.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

#include "profile/farm_profile.h"
#include "shell/years_messages.h"
#include "ui/widgets/giving_area.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

struct row_text {
    const char* caption;
    const char* tip;
};

constexpr std::array<row_text, 3> row_texts{
    {{"Current Assessment:", "Open a current assessment for a farm"},
     {"Previous Year 1:", "Select a previous assessment (1 year ago)"},
     {"Previous Year 2:", "Select a previous assessment (2 years ago)"}}};

// In characters.
constexpr int instruction_width = 120;
constexpr int name_width = 36;
constexpr int path_width = 92;
constexpr int new_path_width = 70;
constexpr int window_edge_px = 40;  // that its frame may take of the screen

QLabel* text_label(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QPushButton* named_button(const QString& caption, const QString& name, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    return button;
}

year_option option_of(int row) {
    return static_cast<year_option>(row + 1);
}

// A path of any length keeps its beginning and its end in view.
void show_elided(QLabel* label, const std::string& text, int characters) {
    label->setText(
        label->fontMetrics().elidedText(qt(text), Qt::ElideMiddle, characters_px(*label, characters)));
    label->setToolTip(text.size() < 1000 ? plain_tip(qt(text)) : QString());
}

}  // namespace

Year_Picker::Year_Picker(years_module& module) : module_(module) {
    setObjectName("Year_Picker");
    setWindowTitle(tr("Open Assessments / Year Selection"));
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(12);
    layout->addWidget(rows_panel());
    no_link_ = new QCheckBox(tr("Do not prompt to check for &linked file"), this);
    no_link_->setObjectName("chkYear_nolink");
    no_related_ = new QCheckBox(tr("Do not prompt to complete &related assessments"), this);
    no_related_->setObjectName("chkYear_norelated");
    layout->addWidget(no_link_);
    layout->addWidget(no_related_);
    auto* buttons = new QHBoxLayout;
    auto* create = named_button(tr("Create a &new assesment year for this farm"), "cmdYear_new", this);
    auto* ok_button = named_button(tr("&OK"), "cmdYear_ok", this);
    auto* cancel_button = named_button(tr("&Cancel"), "cmdYear_cancel", this);
    ok_button->setDefault(true);
    buttons->addWidget(create);
    buttons->addStretch();
    buttons->addWidget(ok_button);
    buttons->addWidget(cancel_button);
    layout->addLayout(buttons);
    layout->addWidget(create_panel());
    layout->addStretch();
    area_ = new giving_area(content, "fraYear", this);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(area_);
    connect(create, &QPushButton::clicked, this, [this] {
        module_.open_create();
        refresh_create();
    });
    connect(ok_button, &QPushButton::clicked, this, &Year_Picker::ok);
    connect(cancel_button, &QPushButton::clicked, this, &Year_Picker::cancel);
    connect(no_link_, &QCheckBox::toggled, this, [this](bool on) { module_.do_not_check_link = on; });
    connect(no_related_, &QCheckBox::toggled, this, [this](bool on) { module_.do_not_check_related = on; });
}

QWidget* Year_Picker::rows_panel() {
    auto* panel = new QGroupBox(tr("Assessments of the farm"), this);
    auto* grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(14);
    const std::array<QString, 4> headings{tr("Work on"), tr("Farm"), tr("File"), tr("Year starts")};
    for (int c = 0; c < 4; ++c) {
        auto* heading = new QLabel(headings[static_cast<std::size_t>(c)], panel);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        grid->addWidget(heading, 0, c);
    }
    for (int row = 0; row < 3; ++row)
        add_row(grid, row);
    grid->setColumnMinimumWidth(1, characters_px(*panel, name_width));
    grid->setColumnMinimumWidth(2, characters_px(*panel, name_width));
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    return panel;
}

void Year_Picker::add_row(QGridLayout* layout, int row) {
    const auto& texts = row_texts[static_cast<std::size_t>(row)];
    row_widgets& w = rows_[static_cast<std::size_t>(row)];
    const QString number = QString::number(row + 1);
    w.option = new QRadioButton(tr(texts.caption), this);
    w.option->setObjectName("optYear_" + number);
    w.option->installEventFilter(this);
    w.farm = text_label("lblYear_farm" + number, this);
    w.file = text_label("lblYear_file" + number, this);
    w.year = text_label("lblYear_year" + number, this);
    w.path = text_label("lblYear_path" + number, this);
    auto* browse_button = named_button(tr("Browse ..."), "cmdYear_browse" + number, this);
    browse_button->setToolTip(tr(texts.tip));
    const int line = row * 2 + 1;
    layout->addWidget(w.option, line, 0);
    layout->addWidget(w.farm, line, 1);
    layout->addWidget(w.file, line, 2);
    layout->addWidget(w.year, line, 3);
    layout->addWidget(browse_button, line, 4);
    layout->addWidget(w.path, line + 1, 1, 1, 4);
    connect(w.option, &QRadioButton::clicked, this, [this, row] {
        module_.click_option(option_of(row));
        refresh();
    });
    connect(browse_button, &QPushButton::clicked, this, [this, row] { browse(row); });
}

QWidget* Year_Picker::create_panel() {
    create_frame_ = new QGroupBox(tr("New assessment year"), this);
    create_frame_->setObjectName("fraYear_create");
    auto* layout = new QGridLayout(create_frame_);
    auto* told = new QLabel(qt(years_messages::create_instruction), create_frame_);
    told->setWordWrap(true);
    told->setMinimumWidth(characters_px(*told, instruction_width));
    layout->addWidget(told, 0, 0, 1, 4);
    new_date_ = text_label("lblYear_newdate", create_frame_);
    new_year_ = new QComboBox(create_frame_);
    new_year_->setObjectName("cboYear_new");
    new_year_->setAccessibleName(tr("Start of the new year"));
    for (const std::string& choice : year_choices())
        new_year_->addItem(qt(choice));
    new_year_->hide();
    auto* change = named_button(tr("Chan&ge ..."), "cmdYear_change", create_frame_);
    new_path_ = text_label("lblYear_newpath", create_frame_);
    auto* browse_button = named_button(tr("&Browse ..."), "cmdYear_browse_new", create_frame_);
    auto* create = named_button(tr("Crea&te"), "cmdYear_create", create_frame_);
    auto* close_button = named_button(tr("Close"), "cmdYear_create_cancel", create_frame_);
    layout->addWidget(new QLabel(tr("Start of the year:"), create_frame_), 1, 0);
    layout->addWidget(new_date_, 1, 1);
    layout->addWidget(new_year_, 1, 2);
    layout->addWidget(change, 1, 3);
    layout->addWidget(new QLabel(tr("File:"), create_frame_), 2, 0);
    layout->addWidget(new_path_, 2, 1, 1, 2);
    layout->addWidget(browse_button, 2, 3);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(create);
    row->addWidget(close_button);
    layout->addLayout(row, 3, 0, 1, 4);
    layout->setColumnStretch(1, 1);
    connect(change, &QPushButton::clicked, this, [this] {
        new_year_->show();
        new_year_->setFocus();
        new_year_->showPopup();
    });
    connect(new_year_, &QComboBox::activated, this, [this] {
        module_.change_date(from_qt(new_year_->currentText()));
        refresh_create();
    });
    connect(browse_button, &QPushButton::clicked, this, [this] {
        module_.browse_new_file();
        refresh_create();
    });
    connect(create, &QPushButton::clicked, this, [this] {
        module_.create();
        refresh();
        emit changed();
    });
    connect(close_button, &QPushButton::clicked, this, [this] {
        module_.close_create();
        refresh_create();
    });
    return create_frame_;
}

void Year_Picker::open() {
    module_.open();
    leaving_ = false;
    refresh();
    rows_[0].option->setFocus();
}

void Year_Picker::browse(int row) {
    if (row == 0) module_.browse_current();
    if (row == 1) module_.browse_prev1();
    if (row == 2) module_.browse_prev2();
    refresh();
    emit changed();
}

void Year_Picker::refresh() {
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const year_row& shown = module_.rows()[at];
        const row_widgets& w = rows_[at];
        show_elided(w.farm, shown.farm_name, name_width);
        show_elided(w.file, shown.file_name, name_width);
        w.year->setText(qt(shown.year_text));
        show_elided(w.path, shown.trouble.empty() ? shown.path : shown.path + " - " + shown.trouble,
                    path_width);
        w.option->setChecked(module_.option() == option_of(i));
    }
    no_link_->setChecked(module_.do_not_check_link);
    no_related_->setChecked(module_.do_not_check_related);
    refresh_create();
}

void Year_Picker::refresh_create() {
    create_frame_->setVisible(module_.creating());
    if (module_.creating()) {
        new_date_->setText(qt(module_.new_date_text()));
        new_year_->setCurrentIndex(new_year_->findText(new_date_->text()));
        show_elided(new_path_, module_.new_path(), new_path_width);
    } else {
        new_year_->hide();
    }
    follow_content();
}

// The window follows the creation frame as it opens and closes, as far as the screen has room.
void Year_Picker::follow_content() {
    ensurePolished();
    area_->widget()->layout()->activate();
    area_->updateGeometry();
    layout()->activate();
    const QSize room = screen()->availableSize() - QSize(window_edge_px, window_edge_px);
    resize(sizeHint().boundedTo(room));
}

void Year_Picker::leave() {
    leaving_ = true;
    close();
}

void Year_Picker::ok() {
    if (module_.ok())
        leave();
    else
        refresh();
}

void Year_Picker::cancel() {
    leave();
    module_.cancel();
}

bool Year_Picker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) {
        for (int i = 0; i < 3; ++i)
            if (watched == rows_[static_cast<std::size_t>(i)].option) {
                if (module_.double_click_option(option_of(i)))
                    leave();
                else
                    refresh();
                return true;
            }
    }
    return QWidget::eventFilter(watched, event);
}

void Year_Picker::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return cancel();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return ok();
    QWidget::keyPressEvent(event);
}

void Year_Picker::showEvent(QShowEvent* event) {
    follow_content();
    QWidget::showEvent(event);
}

// The dialog can be left only by OK or Cancel; the close box cancels.
void Year_Picker::closeEvent(QCloseEvent* event) {
    if (!leaving_) {
        leaving_ = true;
        module_.cancel();
    }
    QWidget::closeEvent(event);
    emit closed();
}

}  // namespace kel
