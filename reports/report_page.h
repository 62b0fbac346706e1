// The page frame of every report and the few pieces its body is built from. Reports are plain HTML files
// without quotation marks in attributes; text goes through as it stands.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/dates.h"
#include "core/text_grid.h"
#include "reports/page_origin.h"

namespace kel {

using page_lines = std::vector<std::string>;

/// Pieces of a body: a centred heading, a section heading, a paragraph.
page_lines report_heading(std::string_view text);
page_lines report_section(std::string_view text);
page_lines report_paragraph(std::string_view text);
/// A list of points; nothing for an empty one.
page_lines report_list(const std::vector<std::string>& points);

struct report_cell {
    std::string text;
    int columns = 1;
    int rows = 1;
    std::string width{};  // "15%"; empty: as the browser lays it out
    std::string align{};  // "left", "center", "right"; empty: left for values, centred for headings
    std::string shade{};  // ground of a value, "#d0d0d0"; empty: the paper's
};

/// A bordered table of full width. Its heading rows stand above its rows and are repeated on every printed
/// page.
class report_table {
  public:
    void add_heading_row(const std::vector<report_cell>& cells);
    void add_heading_row(const std::vector<std::string>& texts);
    void add_row(const std::vector<report_cell>& cells);
    void add_row(const std::vector<std::string>& texts);
    /// These columns of the grid's first `rows` rows.
    void add_grid(const text_grid& grid, int rows, const std::vector<int>& columns);
    page_lines lines() const&;
    page_lines lines() &&;

  private:
    page_lines headings_;
    page_lines rows_;
};

/// A table of two columns: what it is, and its figure or text.
page_lines label_table(const std::vector<std::pair<std::string, std::string>>& rows);

/// Joins pieces in order.
void append(page_lines& body, page_lines piece);

/// Head, body and foot as one page; `today` and the developer's name stand in the foot. A page with an origin
/// names it where it is printed.
page_lines framed_page(page_lines body, date today, std::string_view developer,
                       const std::optional<page_origin>& origin = {});

/// Writes the page in place of the file of that name. Throws file_error for a folder that cannot be written
/// or a full disc; the old page then stays.
void write_page(const std::string& path, const page_lines& page);

}  // namespace kel
