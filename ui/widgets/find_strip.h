// Finds a row in a grid by what is typed, over the grid's headings: Enter and Shift+Enter go on to the next
// and the previous one, Esc goes back to the grid. The first column, that of the names, is asked first; where
// it has nothing like it, the other columns are.
#pragma once

#include <QFrame>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;

namespace kel {

class grid_view;

class find_strip : public QFrame {
    Q_OBJECT

  public:
    explicit find_strip(grid_view& grid);

    /// Shows it, ready to be typed into.
    void open();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct place {
        int shown_row;
        int column;
    };
    std::vector<place> places() const;
    void go_on(int by);
    void leave();
    void tell(const QString& text);

    grid_view& grid_;
    QLineEdit* text_;
    QLabel* told_;
};

}  // namespace kel
