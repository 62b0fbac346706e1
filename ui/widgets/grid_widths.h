// How wide the columns of a grid are, how high its rows and headings. Columns are laid out in characters of
// the font; whoever drags the edge of a heading makes a column his own, and it is then left as it is.
// Ctrl+plus and minus make all of it larger and smaller.
#pragma once

#include <QObject>
#include <QString>
#include <map>
#include <set>

class QTableView;

namespace kel {

class grid_model;

class grid_widths : public QObject {
    Q_OBJECT

  public:
    /// For this view of the model from now on.
    grid_widths(QTableView& view, const grid_model& model);

    // What grid_view says of them.
    void narrow(int column, const QString& widest);
    void fit(int column);
    bool fits(int column, const QString& text) const;
    void wrap(int column);

    void lay_out_rows();
    /// One column takes the width that the others leave.
    void fill_room();

    /// Steps of a tenth; 0: back to the usual size.
    void zoom(int steps);
    int zoom_percent() const { return zoom_percent_; }
    void set_zoom(int percent);

    /// The columns that a person has made his own, with their widths in characters.
    using own_widths = std::map<int, double>;
    own_widths own() const;
    /// Columns that the table lacks are passed over.
    void take_own(const own_widths& widths);

  signals:
    void zoomed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void lay_out_columns();
    void lay_out_headings();
    int laid_out(int column) const;
    QString heading(int column) const;
    void resized(int column);

    QTableView& view_;
    const grid_model& model_;
    std::set<int> own_;
    bool dragging_ = false;
    int wrapped_ = -1;  // none
    int zoom_percent_ = 100;
};

}  // namespace kel
