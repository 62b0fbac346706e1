#include "ui/screens/FullScreen.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "reports/viewer_rules.h"
#include "ui/widgets/page_view.h"
#include "ui/widgets/print_page.h"
#include "ui/widgets/qt_text.h"

namespace kel {

FullScreen::FullScreen(application_state& state, prompts& person, std::string& report_folder)
    : state_(state), person_(person), report_folder_(report_folder), page_(new page_view(this)) {
    setObjectName("FullScreen");
    setWindowTitle(tr("KEL Calculator: Reports"));
    page_->setObjectName("WebBrowser1");
    const auto button = [this](const QString& caption, const QString& name, const QString& tip) {
        auto* made = new QPushButton(caption, this);
        made->setObjectName(name);
        made->setToolTip(tip);
        return made;
    };
    auto* print = button(tr("&Print"), "Command7", tr("Print this page"));
    third_ = button({}, "Command8", {});
    auto* close = button(tr("C&lose"), "Command1", tr("Return to the screen that opened this page"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(print);
    buttons->addWidget(third_);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(page_, 1);
    layout->addLayout(buttons);
    connect(print, &QPushButton::clicked, this, &FullScreen::print_page);
    connect(third_, &QPushButton::clicked, this, &FullScreen::third_button);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    setTabOrder(page_, print);
    setTabOrder(print, third_);
    setTabOrder(third_, close);
}

void FullScreen::show_page(const viewer_request& request) {
    caption_ = request.caption;
    mode_ = request.mode;
    // The caption's first letter is its key.
    third_->setText("&" + qt(caption_));
    third_->setToolTip(caption_ == "Save" ? tr("Save the report as a file") : QString());
    page_->navigate(qt(request.page));
    page_->setFocus();
}

void FullScreen::print_page() {
    print_document(*page_->document(), this);
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
            save_report(state_, person_, report_folder_,
                        from_qt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
            break;
    }
}

void FullScreen::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

}  // namespace kel
