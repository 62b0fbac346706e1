#include "ui/screens/Field_Record.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>

#include "record/record_grid.h"
#include "record/record_messages.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/warning_table.h"
#include "ui/widgets/why_panel.h"

namespace kel {

namespace text = record_messages;

namespace {

QString documents_folder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

}  // namespace

Field_Record::Field_Record(application_state& state, prompts& person, report_desk& desk)
    : module_screen("Field_Record", qt(text::title)), module_(state, person), state_(state), desk_(desk) {
    module_.record_load_stuff();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head());
    record_ = new grid_view(module_.record(), "MSFlexGrid1", this);
    record_->setAccessibleName(qt(text::title));
    record_->wrap_column(record_column::comments);
    warnings_ = new warning_table("MSFlexGrid2", qt(text::warnings_heading), this);
    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(record_);
    parts->addWidget(warnings_);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    parts->setChildrenCollapsible(false);
    layout->addWidget(parts, 1);
    layout->addLayout(commands());
    add_explanations(parts);
    show_fields();
    connect(fields_, &QComboBox::currentTextChanged, this, &Field_Record::choose_field);
    fields_->setFocus();
}

QLayout* Field_Record::head() {
    auto* row = new QHBoxLayout;
    fields_ = new QComboBox(this);
    fields_->setObjectName("Combo1");
    fields_->setMinimumContentsLength(24);
    fields_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* label = new QLabel(qt(text::field_label), this);
    label->setBuddy(fields_);
    row->addWidget(label);
    row->addWidget(fields_);
    row->addStretch();
    auto* copy = add_command(row, tr("&Copy"), "cmdRecord_copy",
                             [this] { QGuiApplication::clipboard()->setText(qt(module_.copied_text())); });
    copy->setToolTip(qt(text::copy_tip));
    return row;
}

QLayout* Field_Record::commands() {
    auto* row = new QHBoxLayout;
    add_command(row, tr("&Generate Report"), "cmdReport", [this] {
        module_.report(desk_);
        refresh();
    });
    add_command(row, tr("&Export to CSV (Excel)"), "cmdRecord_csv",
                [this] { module_.export_csv(from_qt(documents_folder())); });
    add_command(row, tr("&Open Assessments"), "cmdRecord_open", [this] {
        state_.picker_caller = picker_module::record;
        emit years_wanted();
    });
    row->addStretch();
    add_command(row, tr("Close &Module"), "cmdRecord_close", [this] { close(); });
    return row;
}

// The warnings are no grid of the module's: the panel tells of the one that a person is on.
void Field_Record::add_explanations(QWidget* tables) {
    why_source source = explained_by(module_, {{"MSFlexGrid2", "The current warning"}});
    source.result = [this](std::string_view) {
        const auto row = static_cast<std::size_t>(std::max(0, warnings_->currentRow()));
        return module_.why(module_.warnings(), row, record_warning_column::text);
    };
    use_explanations(tables, std::move(source));
    why_ = findChild<why_panel*>();
    warnings_->setContextMenuPolicy(Qt::ActionsContextMenu);
    warnings_->addAction(findChild<QAction*>("mnuModule_why"));
    connect(warnings_, &QTableWidget::currentCellChanged, why_, [this] {
        if (warnings_->hasFocus()) why_->choose_result(warnings_->objectName());
        why_->refresh_soon();
    });
}

// At once, so that the next command finds the field that the list shows. A failure waits, since it must not
// be thrown through the list; the field before then stands in the list again.
void Field_Record::choose_field(const QString& field) {
    try {
        module_.select_field(from_qt(field));
        refresh();
    } catch (...) {
        const auto told_later = [this, failure = std::current_exception()] {
            show_fields();
            std::rethrow_exception(failure);
        };
        QMetaObject::invokeMethod(this, told_later, Qt::QueuedConnection);
    }
}

void Field_Record::show_fields() {
    const QSignalBlocker quiet(fields_);
    fields_->clear();
    for (const std::string& name : module_.field_names())
        fields_->addItem(qt(name));
    fields_->setCurrentText(qt(module_.field()));
    refresh();
}

void Field_Record::show_warnings() {
    const text_grid& warnings = module_.warnings();
    warnings_->clear_warnings();
    for (int row = 0; row < warnings.row_count(); ++row) {
        const std::string& icon = warnings.cell(row, record_warning_column::icon_path);
        warnings_->add_warning(qt(join_path(state_.places.program_folder, icon)),
                               qt(warnings.cell(row, record_warning_column::icon)),
                               qt(warnings.cell(row, record_warning_column::text)));
    }
}

void Field_Record::refresh() {
    record_->refresh();
    record_->fit_column(record_column::manure);
    show_warnings();
    why_->refresh_soon();
}

void Field_Record::reload() {
    module_.record_load_stuff();
    show_fields();
}

}  // namespace kel
