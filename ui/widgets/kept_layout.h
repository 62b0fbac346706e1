// What a person has made of windows and tables, kept between runs in a file of its own: sizes and places of
// the windows, widths of columns, how large the tables are shown. It is a comfort and nothing more: a file
// that is missing or damaged is as good as none, and one that cannot be written is let be.
#pragma once

#include <QJsonObject>
#include <QList>
#include <QRect>
#include <QString>
#include <string>

class QWidget;

namespace kel {

/// Where a window goes that wants to stand there, on screens with this room: as it is if its title can be
/// reached, else in the middle of the first one; never larger than its screen, never over its edge.
QRect corrected_place(const QRect& wanted, const QList<QRect>& screens);
/// No larger than the screen it is on, title bar included, and within it.
void keep_on_screen(QWidget& window);

class kept_layout {
  public:
    /// Reads the file.
    explicit kept_layout(std::string file);

    /// Remembers the window under this name, and the tables in it under theirs.
    void keep(const QString& name, const QWidget& window);
    /// Puts both back; false: the window is not known.
    bool put_back(const QString& name, QWidget& window) const;
    /// If anything has changed since it was read.
    void write();

  private:
    void put_back_tables(QWidget& window) const;

    std::string file_;
    QJsonObject kept_;
    QJsonObject written_;
};

}  // namespace kel
