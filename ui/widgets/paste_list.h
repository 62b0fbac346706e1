// What was said of the cells of a paste, those that were not taken first. It stands beside its table; the
// entry chosen in it leads to its cell.
#pragma once

#include <QDialog>
#include <vector>

#include "core/block_entry.h"

namespace kel {

class grid_view;

class paste_list : public QDialog {
    Q_OBJECT

  public:
    paste_list(grid_view& grid, std::vector<pasted_note> notes, QWidget* parent);

  private:
    QString line_of(const pasted_note& note) const;
    void lead_to(int entry);

    grid_view& grid_;
    std::vector<pasted_note> notes_;
};

}  // namespace kel
