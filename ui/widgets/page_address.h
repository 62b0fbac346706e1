// Which file a page means by an address in it.
#pragma once

#include <QUrl>

namespace kel {

/// The file behind the address of a picture or a link on the page at `page`; empty for whatever is no plain
/// file: report text is not escaped, so a page may ask for anything.
QUrl file_of_page(const QUrl& page, const QUrl& name);

}  // namespace kel
