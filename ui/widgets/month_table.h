// What the three tables of the plan have in common: twelve month columns as narrow as their entries allow,
// and rows that take no entries, set off from the others, whose label runs over the columns before the
// months. Totals have single precision's many digits; one that its column cannot show in full is drawn with
// fewer decimals; under the pointer the grid shows it in full.
#pragma once

#include <QString>
#include <QStyledItemDelegate>

namespace kel {

class grid_view;

class month_table : public QStyledItemDelegate {
    Q_OBJECT

  public:
    struct arrangement {
        int first_month;          // column of January
        int protected_at_top;     // rows
        int protected_at_bottom;  // rows; the last one is that of the totals
        QString widest;           // text that a month's cell may hold
    };
    /// Serves the grid from now on.
    month_table(grid_view& grid, const arrangement& arranged);

    /// Call it after each refresh of the grid: rows of labels may have moved.
    void refresh();

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    bool is_protected(int row) const;
    void span_label(int row);
    QString fitting_figure(const QModelIndex& index) const;

    grid_view& grid_;
    arrangement arranged_;
};

}  // namespace kel
