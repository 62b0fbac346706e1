// Pages on their way to a printer or into a PDF, each sheet with its foot: farm and KEL year of the page, the
// day it was made, and its number among all sheets.
#pragma once

#include <QSizeF>
#include <QString>
#include <QUrl>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "reports/report_page.h"

class QPagedPaintDevice;
class QPainter;
class QWidget;

namespace kel {

class paper_page;

/// A page that is to be printed. Without an origin its foot has only the day of the print and the number.
struct printed_page {
    QString html;
    QUrl folder;
    std::optional<page_origin> origin{};
};

/// The page that lies in a file. Throws file_error.
printed_page page_of_file(const std::string& path);
/// A page that no file holds; its pictures lie in `folder`.
printed_page page_of_lines(const page_lines& lines, const std::string& folder);
std::vector<printed_page> pages_of_files(const std::vector<std::string>& paths);

/// The two lines at the foot of a sheet, left and right.
struct sheet_foot {
    QString farm;
    QString number;
    QString year;
    QString day;
    bool operator==(const sheet_foot&) const = default;
};

class print_job {
  public:
    /// Lays the pages out for the device, which outlives the job. `today` stands on those that do not know
    /// their own day. Throws std::runtime_error if the paper has no room for text.
    print_job(const std::vector<printed_page>& pages, QPagedPaintDevice& device, date today);
    ~print_job();
    print_job(const print_job&) = delete;
    print_job& operator=(const print_job&) = delete;

    int sheets() const { return static_cast<int>(sheets_.size()); }
    bool lies_across(int sheet) const;
    sheet_foot foot(int sheet) const;
    /// Draws text and foot within the device's margins. The painter's device has the resolution of the job's.
    void draw(int sheet, QPainter& painter) const;
    /// Puts the sheets from `first` to `last` (from 0, both included) onto the device. False if the printer
    /// or file fails.
    bool print(int first, int last);

  private:
    struct numbered_sheet {
        std::size_t page;
        int sheet;
    };
    QSizeF room(bool across) const;
    void draw_foot(int sheet, QPainter& painter) const;

    QPagedPaintDevice& device_;
    bool upright_;  // as the person chose it; printing turns the device
    date today_;
    std::vector<std::unique_ptr<paper_page>> pages_;
    std::vector<std::optional<page_origin>> origins_;
    std::vector<numbered_sheet> sheets_;
};

/// The pages as the content of one PDF. Throws std::runtime_error when it cannot be made.
std::string pdf_of(const std::vector<printed_page>& pages, const QString& title, date today);
/// Asks for a printer and prints the pages there. Throws file_error when the printer fails.
void print_with_dialog(const std::vector<printed_page>& pages, date today, QWidget* parent);

}  // namespace kel
