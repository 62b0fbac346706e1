#include "ui/screens/frmKEL_splash.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

namespace kel {

namespace {

struct partner {
    const char* name;
    const char* caption;
    const char* address;
};

// The web pages behind the logos are settings of the build.
constexpr std::array<partner, 3> partners{{{"imgSplash_logo1", "Rules\nand guidance", KEL_PARTNER_RULES},
                                           {"imgSplash_logo2", "Climate\nfigures", KEL_PARTNER_CLIMATE},
                                           {"imgSplash_logo3", "Place\nnames", KEL_PARTNER_PLACES}}};

}  // namespace

frmKEL_splash::frmKEL_splash(QWidget* parent) : QWidget(parent, Qt::Dialog) {
    setObjectName("frmKEL_splash");
    setWindowTitle(tr("About this software"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->setContentsMargins(24, 20, 24, 16);
    auto* picture = new QLabel(this);
    picture->setPixmap(windowIcon().pixmap(96, 96));
    picture->setAlignment(Qt::AlignCenter);
    auto* name = new QLabel(tr("KEL Calculator"), this);
    QFont large = name->font();
    large.setPointSize(large.pointSize() + 6);
    large.setBold(true);
    name->setFont(large);
    name->setAlignment(Qt::AlignCenter);
    auto* version = new QLabel(tr("Version %1").arg(KEL_VERSION), this);
    version->setObjectName("lblVersion");
    version->setAlignment(Qt::AlignCenter);
    auto* terms = new QLabel(tr("Free software under the GNU General Public License, version 3 or later.\n"
                                "It comes without any warranty; the official rules govern."),
                             this);
    terms->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    layout->addWidget(name);
    layout->addWidget(version);
    layout->addWidget(terms);
    auto* logos = new QHBoxLayout;
    for (const partner& p : partners) {
        auto* logo = new QPushButton(tr(p.caption), this);
        logo->setObjectName(p.name);
        logo->setToolTip(tr("Opens %1").arg(p.address));
        logo->setMinimumHeight(52);
        connect(logo, &QPushButton::clicked, this, [this, &p] { emit page_wanted(p.address); });
        logos->addWidget(logo);
    }
    layout->addLayout(logos);
    auto* close_button = new QPushButton(tr("&Close"), this);
    close_button->setObjectName("cmdSplash_close");
    close_button->setDefault(true);
    connect(close_button, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(close_button, 0, Qt::AlignRight);
    close_button->setFocus();
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmKEL_splash::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmKEL_splash::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

}  // namespace kel
