// The panel "Why?" beside the tables of a module. It follows the current cell of the table in use and tells
// why the figure there is what it is; results that stand outside the tables are chosen from its list. It
// never takes the focus by itself and asks nothing, so that an open entry box is left as it is.
#pragma once

#include <QFrame>
#include <QPointer>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/explanation.h"
#include "core/named_result.h"
#include "core/text_grid.h"

class QComboBox;

namespace kel {

class grid_view;
class why_text;

/// Where the accounts come from; rows count from 0 without the heading.
struct why_source {
    std::function<std::optional<explanation>(const text_grid& grid, std::size_t row, std::size_t column)>
        cell;
    std::function<std::optional<explanation>(std::string_view name)> result{};
    std::vector<named_result> results{};
};

/// The two `why` of a module, and the results of its screen outside the tables.
template <class Module>
why_source explained_by(const Module& module, std::vector<named_result> results = {}) {
    why_source source;
    source.cell = [&module](const text_grid& grid, std::size_t row, std::size_t column) {
        return module.why(grid, row, column);
    };
    if constexpr (requires { module.why(std::string_view()); })
        source.result = [&module](std::string_view name) { return module.why(name); };
    source.results = std::move(results);
    return source;
}
template <class Module>
why_source explained_by(const Module& module, std::span<const named_result> results) {
    return explained_by(module, std::vector<named_result>(results.begin(), results.end()));
}

class why_panel : public QFrame {
    Q_OBJECT

  public:
    /// Explains what stands on the screen.
    why_panel(why_source source, QWidget& screen);

    /// Shows the account of the current cell of this table from now on, also as it moves and changes.
    void follow(grid_view* grid);
    /// The result of that name in place of the cell. False: it is none of the list.
    bool choose_result(const QString& name);
    /// The current cell, where the panel has taken its place; not from under an open box.
    void keep_cell_in_view() const;
    /// Works the account out anew in the next turn of the event loop, if the panel is in view.
    void refresh_soon();
    /// Gives its text the focus, or gives it back to the table.
    void take_focus();
    void give_focus_back();
    bool has_focus() const;

    /// Steps of larger or smaller text.
    int zoom() const;
    void set_zoom(int steps);

  signals:
    void close_wanted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void add_head();
    void refresh();
    QString page() const;
    QString page_of_cell() const;
    QString page_of_result(const QString& name) const;
    grid_view* table_in_use() const;

    why_source source_;
    QWidget& screen_;
    QComboBox* choice_;
    why_text* text_;
    QPointer<grid_view> followed_;
    QPointer<QWidget> came_from_;
    bool pending_ = false;
};

}  // namespace kel
