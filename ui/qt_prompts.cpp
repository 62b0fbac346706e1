#include "ui/qt_prompts.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

QMessageBox::Icon icon_of(message_kind kind) {
    switch (kind) {
        case message_kind::warning:
            return QMessageBox::Warning;
        case message_kind::information:
            return QMessageBox::Information;
        case message_kind::question:
            return QMessageBox::Question;
        case message_kind::stop:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttons_of(message_buttons buttons) {
    switch (buttons) {
        case message_buttons::ok:
            return QMessageBox::Ok;
        case message_buttons::yes_no:
            return QMessageBox::Yes | QMessageBox::No;
        case message_buttons::yes_no_cancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

answer answer_of(int pressed, message_buttons buttons) {
    if (pressed == QMessageBox::Yes) return answer::yes;
    if (pressed == QMessageBox::No) return answer::no;
    return buttons == message_buttons::ok ? answer::ok : answer::cancel;
}

// Neither a file name of ten thousand characters nor a list of a thousand fields may push the buttons off the
// screen.
QString readable(std::string_view text) {
    constexpr qsizetype longest = 2500;
    constexpr qsizetype most_lines = 24;
    QString shown = qt(text).replace("\r\n", "\n");
    const qsizetype lines = shown.count('\n') + 1;
    if (lines > most_lines)
        shown = shown.section('\n', 0, most_lines - 2) +
                QObject::tr("\n... and %1 more").arg(lines - most_lines + 1);
    if (shown.size() > longest) shown = shown.left(longest / 2) + " ... " + shown.right(longest / 2);
    return shown;
}

QLabel* new_line(const char* name, const std::string& text) {
    auto* line = new QLabel(readable(text));
    line->setObjectName(name);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    line->setHidden(text.empty());
    return line;
}

class list_dialog : public QDialog {
  public:
    explicit list_dialog(const titled_list& list) {
        setObjectName("CropBox");
        setWindowTitle(qt(program_title));
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new_line("Label1", list.heading));
        layout->addWidget(new_line("Label2", list.note));
        auto* rows = new QListWidget;
        rows->setObjectName("List1");
        rows->setWordWrap(true);
        rows->setAccessibleName(qt(list.heading));
        for (const std::string& row : list.rows)
            rows->addItem(qt(row));
        layout->addWidget(rows);
        auto* ok = new QPushButton(QObject::tr("OK"));
        ok->setObjectName("OKButton");
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        layout->addWidget(ok, 0, Qt::AlignRight);
        ok->setFocus();
        resize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 24);
    }
};

// A folder that is gone would leave its last part in the dialog as the name of a file.
QString shown_folder(const std::string& folder) {
    return QFileInfo(qt(folder)).isDir() ? qt(folder) : QDir::homePath();
}

}  // namespace

int shown_over_active_window(QDialog& box) {
    box.setWindowModality(Qt::ApplicationModal);
    if (const QWidget* active = QApplication::activeWindow()) {
        box.winId();  // only now is there a window to be placed
        box.windowHandle()->setTransientParent(active->windowHandle());
        box.move(active->frameGeometry().center() - QRect(QPoint(), box.sizeHint()).center());
    }
    return box.exec();
}

namespace {

std::string path_chosen_in(QFileDialog& dialog) {
    if (shown_over_active_window(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return from_qt(dialog.selectedFiles().front());
}

}  // namespace

answer qt_prompts::ask(const message& box) {
    // A box under the wait cursor would look stuck.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    QMessageBox shown;
    shown.setIcon(icon_of(box.kind));
    shown.setWindowTitle(qt(box.title.empty() ? program_title : std::string_view(box.title)));
    // What a farm is called must never be read as markup.
    shown.setTextFormat(Qt::PlainText);
    shown.setText(readable(box.text));
    shown.setStandardButtons(buttons_of(box.buttons));
    const int pressed = shown_over_active_window(shown);
    QApplication::restoreOverrideCursor();
    return answer_of(pressed, box.buttons);
}

void qt_prompts::show_list(const titled_list& list) {
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    list_dialog shown(list);
    shown_over_active_window(shown);
    QApplication::restoreOverrideCursor();
}

std::string qt_prompts::chosen_file(const file_request& request, bool save) {
    QFileDialog dialog(nullptr, qt(request.title), shown_folder(request.folder));
    if (request.filter.empty()) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        return path_chosen_in(dialog);
    }
    // "KEL database (*.kel)|*.kel": what is shown, then the pattern.
    const QStringList filter = qt(request.filter).split('|');
    dialog.setNameFilters({filter.front(), "All files (*)"});
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!offered_.isEmpty()) dialog.setSidebarUrls(dialog.sidebarUrls() + offered_);
    if (save) dialog.setDefaultSuffix(filter.back().section('.', -1));
    return path_chosen_in(dialog);
}

void qt_prompts::offer_folders(const QStringList& folders) {
    offered_.clear();
    for (const QString& folder : folders)
        if (QFileInfo(folder).isDir()) offered_.append(QUrl::fromLocalFile(folder));
}

std::string qt_prompts::file_to_open(const file_request& request) {
    return chosen_file(request, false);
}
std::string qt_prompts::file_to_save(const file_request& request) {
    return chosen_file(request, true);
}

}  // namespace kel
