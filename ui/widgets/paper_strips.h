// What a document laid out for paper is made of from top to bottom: lines of text, rows of tables, pictures.
// A sheet ends between two of them.
#pragma once

#include <QList>
#include <QTextDocument>

namespace kel {

/// A strip across the document, in its own pixels. Lines of a table's row are one strip.
struct paper_strip {
    double top = 0;
    double bottom = 0;
    /// Stands on one sheet with the one below it: a heading, the line above a table, the first rows of one.
    bool with_next = false;
    /// A rule between two parts; the edge of a sheet parts them as well.
    bool rule = false;
    /// The headings of its table, to be repeated where a sheet begins with this strip; equal without any.
    double headings_top = 0;
    double headings_bottom = 0;

    double height() const { return bottom - top; }
    double headings_height() const { return headings_bottom - headings_top; }
};

/// The strips of a document that has been laid out.
QList<paper_strip> strips_of(const QTextDocument& document);

/// The lowest place in the strip, no lower than `lowest`, at which no line of text is cut; `lowest` if there
/// is none. For a row that is higher than a sheet.
double place_to_cut(const QTextDocument& document, const paper_strip& strip, double lowest);

}  // namespace kel
