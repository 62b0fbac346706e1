#include "ui/screens/FullScreen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "core/whole_file.h"
#include "reports/contents_page.h"
#include "reports/printed_reports.h"
#include "reports/viewer_rules.h"
#include "ui/widgets/page_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

// What the viewer shows: a report and their list, the guides, a topic of the help, or a web address.
QString kind_of(const viewer_request& request) {
    if (request.caption == "Save") return QObject::tr("Reports");
    if (request.caption == "Contents")
        return request.mode == 1 ? QObject::tr("Show Me") : QObject::tr("Reports");
    return request.page.starts_with("http") ? QObject::tr("Web page") : QObject::tr("Help");
}

std::string documents_folder() {
    return from_qt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

}  // namespace

FullScreen::FullScreen(application_state& state, prompts& person, std::string& report_folder,
                       std::function<date()> today)
    : state_(state),
      person_(person),
      report_folder_(report_folder),
      today_(std::move(today)),
      page_(new page_view(this)) {
    setObjectName("FullScreen");
    page_->setObjectName("WebBrowser1");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(page_, 1);
    layout->addLayout(button_row());
    add_keys();
    connect(page_, &QTextBrowser::sourceChanged, this, &FullScreen::refresh);
    refresh();
}

QPushButton* FullScreen::new_button(const QString& caption, const QString& name, const QString& tip) {
    auto* made = new QPushButton(caption, this);
    made->setObjectName(name);
    made->setToolTip(tip);
    return made;
}

QLayout* FullScreen::button_row() {
    auto* print = new_button(tr("&Print"), "Command7", tr("Print this page (Ctrl+P)"));
    third_ = new_button({}, "Command8", {});
    pdf_ = new_button({}, "cmdViewer_pdf", {});
    all_ = new_button(tr("Print &all reports"), "cmdViewer_print_all",
                      tr("Print every report of the open assessment in one go"));
    auto* smaller = new_button(tr("A-"), "cmdViewer_smaller", tr("Smaller text (Ctrl+-)"));
    auto* larger =
        new_button(tr("A+"), "cmdViewer_larger", tr("Larger text (Ctrl++); Ctrl+0 for the usual size"));
    smaller->setAccessibleName(tr("Smaller text"));
    larger->setAccessibleName(tr("Larger text"));
    auto* close = new_button(tr("C&lose"), "Command1", tr("Return to the screen that opened this page"));
    connect(print, &QPushButton::clicked, this, &FullScreen::print_page);
    connect(third_, &QPushButton::clicked, this, &FullScreen::third_button);
    connect(pdf_, &QPushButton::clicked, this, &FullScreen::save_pdf);
    connect(all_, &QPushButton::clicked, this, &FullScreen::print_all);
    connect(smaller, &QPushButton::clicked, this, [this] { page_->zoom(-1); });
    connect(larger, &QPushButton::clicked, this, [this] { page_->zoom(1); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* row = new QHBoxLayout;
    QWidget* before = page_;
    for (QPushButton* button : {print, third_, pdf_, all_, smaller, larger, close}) {
        if (button == smaller || button == close) row->addStretch();
        row->addWidget(button);
        setTabOrder(before, button);
        before = button;
    }
    return row;
}

void FullScreen::add_keys() {
    const auto key = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    key(Qt::Key_Escape, [this] { close(); });
    key(QKeySequence::Print, [this] { print_page(); });
    for (const auto plus : {Qt::Key_Plus, Qt::Key_Equal})
        key(Qt::CTRL | plus, [this] { page_->zoom(1); });
    key(Qt::CTRL | Qt::Key_Minus, [this] { page_->zoom(-1); });
    key(Qt::CTRL | Qt::Key_0, [this] { page_->zoom(0); });
}

void FullScreen::show_page(const viewer_request& request) {
    caption_ = request.caption;
    mode_ = request.mode;
    kind_ = kind_of(request);
    // The caption's first letter is its key.
    third_->setText("&" + qt(caption_));
    third_->setToolTip(caption_ == "Save" ? tr("Save the report as a file") : QString());
    page_->navigate(qt(request.page));
    refresh();
    page_->setFocus();
}

void FullScreen::refresh() {
    const QString topic = page_->documentTitle();
    setWindowTitle(tr("KEL Calculator: %1").arg(kind_) + (topic.isEmpty() ? "" : " - " + topic));
    all_->setVisible(caption_ == "Contents" && mode_ == 0);
    pdf_->setText(shows_list() ? tr("Save all as P&DF") : tr("Save as P&DF"));
    pdf_->setToolTip(shows_list() ? tr("Save every report of the open assessment as one PDF")
                                  : tr("Save this page as a PDF"));
}

bool FullScreen::shows_list() const {
    return page_->source().toLocalFile() == qt(state_.places.report(contents_file));
}

printed_page FullScreen::shown_page() const {
    if (page_->source().isLocalFile()) return page_of_file(from_qt(page_->source().toLocalFile()));
    return {.html = page_->toHtml(), .folder = {}};
}

void FullScreen::print_page() {
    print_with_dialog({shown_page()}, today_(), this);
}

void FullScreen::print_all() {
    const auto reports = reports_to_print(state_, person_);
    if (!reports.empty()) print_with_dialog(pages_of_files(reports), today_(), this);
}

void FullScreen::save_pdf() {
    std::vector<printed_page> pages;
    if (shows_list())
        pages = pages_of_files(reports_to_print(state_, person_));
    else
        pages.push_back(shown_page());
    if (pages.empty()) return;
    const std::string file = choose_pdf(state_, person_, report_folder_, documents_folder());
    if (!file.empty()) write_whole_file(file, pdf_of(pages, windowTitle(), today_()), "the PDF");
}

void FullScreen::third_button() {
    const auto button = third_button_of(caption_, mode_, state_.places);
    switch (button.action) {
        case third_button_action::back:
            page_->backward();
            break;
        case third_button_action::contents:
            page_->navigate(qt(button.page));
            break;
        case third_button_action::save:
            save_report(state_, person_, report_folder_, documents_folder());
            break;
    }
}

void FullScreen::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

}  // namespace kel
