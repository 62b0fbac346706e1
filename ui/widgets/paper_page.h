// A page laid out on sheets of paper: no row of a table is parted, its headings are repeated on every sheet,
// a heading stays with what it heads. Wide tables lay the paper across.
#pragma once

#include <QSizeF>
#include <QString>
#include <QUrl>
#include <memory>
#include <vector>

#include "ui/widgets/paper_document.h"
#include "ui/widgets/paper_strips.h"

class QPaintDevice;
class QPainter;

namespace kel {

/// The room for text on one sheet of the device, in its pixels.
struct paper_room {
    QSizeF upright;
    QSizeF across;
};

class paper_page {
  public:
    /// The device outlives the page. `html` is the page's text, `folder` where it lies.
    paper_page(const QString& html, const QUrl& folder, QPaintDevice* device, const paper_room& room);

    bool lies_across() const { return across_; }
    int sheets() const { return static_cast<int>(sheets_.size()); }
    /// Draws a sheet's text from the painter's origin on.
    void draw(int sheet, QPainter& painter) const;

  private:
    /// A piece of the document, from top to bottom of its own pixels, and where it lies on the sheet.
    struct piece {
        double top;
        double bottom;
        double at;
    };
    using pieces = std::vector<piece>;
    struct filling;

    void lay_out(QPaintDevice* device, const paper_room& room);
    void fill_sheets();

    std::unique_ptr<paper_document> document_;
    std::vector<pieces> sheets_;
    QSizeF room_;
    bool across_ = false;
};

}  // namespace kel
