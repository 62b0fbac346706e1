#include "ui/widgets/page_address.h"

#include <QFileInfo>

namespace kel {

namespace {

// The tag of an icon in the field record is not closed, so that what fills its cell follows the address.
QUrl address_alone(const QUrl& name) {
    const QString path = name.path(QUrl::FullyDecoded);
    const auto end = path.indexOf(QChar::Nbsp);
    if (end < 0) return name;
    QUrl alone = name;
    alone.setPath(path.left(end));
    return alone;
}

}  // namespace

QUrl file_of_page(const QUrl& page, const QUrl& name) {
    const QUrl url = page.resolved(address_alone(name));
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile() ? url : QUrl();
}

}  // namespace kel
