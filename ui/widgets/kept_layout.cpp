#include "ui/widgets/kept_layout.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "core/file_error.h"
#include "core/whole_file.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

constexpr qint64 most_bytes = 1'000'000;
constexpr int title_bar_px = 32;
constexpr int largest_px = 100'000;
constexpr QLatin1StringView windows("windows");
constexpr QLatin1StringView tables("tables");

QJsonObject read(const std::string& file) {
    QFile kept(qt(file));
    if (!kept.open(QFile::ReadOnly) || kept.size() > most_bytes) return {};
    return QJsonDocument::fromJson(kept.readAll()).object();
}

QList<QRect> rooms() {
    QList<QRect> found;
    for (const QScreen* screen : QGuiApplication::screens())
        found.append(screen->availableGeometry());
    return found;
}

void put_member(QJsonObject& into, QLatin1StringView group, const QString& name, const QJsonObject& value) {
    QJsonObject members = into.value(group).toObject();
    members[name] = value;
    into[group] = members;
}

QJsonObject table_of(const grid_view& grid) {
    QJsonObject columns;
    for (const auto& [column, characters] : grid.widths().own())
        columns[QString::number(column)] = characters;
    return {{"zoom", grid.widths().zoom_percent()}, {"columns", columns}};
}

}  // namespace

QRect corrected_place(const QRect& wanted, const QList<QRect>& screens) {
    if (screens.isEmpty()) return wanted;
    const QRect title(wanted.topLeft(), QSize(wanted.width(), title_bar_px));
    const auto reached = [&](const QRect& screen) {
        const QSize seen = screen.intersected(title).size();
        return seen.isValid() ? seen.width() * seen.height() : 0;
    };
    const QRect& screen = *std::ranges::max_element(
        screens, [&](const QRect& a, const QRect& b) { return reached(a) < reached(b); });
    QRect place(wanted.topLeft(), wanted.size().boundedTo(screen.size() - QSize(0, title_bar_px)));
    if (reached(screen) == 0) place.moveCenter(screen.center());
    place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), screen.top(),
                             std::max(screen.top(), screen.bottom() + 1 - place.height() - title_bar_px)));
    return place;
}

void keep_on_screen(QWidget& window) {
    const QScreen* screen = window.screen();
    if (!screen || window.isMaximized() || window.isFullScreen()) return;
    const QRect now(window.pos(), window.size());
    const QRect place = corrected_place(now, {screen->availableGeometry()});
    if (place.size() != now.size()) window.resize(place.size());
    if (place.topLeft() != now.topLeft()) window.move(place.topLeft());
}

kept_layout::kept_layout(std::string file) : file_(std::move(file)), kept_(read(file_)), written_(kept_) {}

void kept_layout::keep(const QString& name, const QWidget& window) {
    const QRect place = window.isMaximized() ? window.normalGeometry() : QRect(window.pos(), window.size());
    put_member(kept_, windows, name,
               {{"x", place.x()},
                {"y", place.y()},
                {"width", place.width()},
                {"height", place.height()},
                {"maximized", window.isMaximized()}});
    for (const auto* grid : window.findChildren<grid_view*>()) {
        const QJsonObject table = table_of(*grid);
        if (grid->widths().zoom_percent() != 100 || !table["columns"].toObject().isEmpty() ||
            kept_.value(tables).toObject().contains(grid->objectName()))
            put_member(kept_, tables, grid->objectName(), table);
    }
}

bool kept_layout::put_back(const QString& name, QWidget& window) const {
    put_back_tables(window);
    const QJsonObject place = kept_[windows].toObject()[name].toObject();
    const auto number = [&](const char* what) {
        return std::clamp(place[what].toInt(), -largest_px, largest_px);
    };
    const QRect wanted(number("x"), number("y"), number("width"), number("height"));
    if (wanted.width() <= 0 || wanted.height() <= 0) return false;
    const QRect there = corrected_place(wanted, rooms());
    window.resize(there.size());
    window.move(there.topLeft());
    if (place["maximized"].toBool()) window.setWindowState(window.windowState() | Qt::WindowMaximized);
    return true;
}

void kept_layout::put_back_tables(QWidget& window) const {
    const QJsonObject known = kept_[tables].toObject();
    for (auto* grid : window.findChildren<grid_view*>()) {
        if (!known.contains(grid->objectName())) continue;
        const QJsonObject table = known[grid->objectName()].toObject();
        grid->widths().set_zoom(table["zoom"].toInt(100));
        grid_widths::own_widths widths;
        const QJsonObject columns = table["columns"].toObject();
        for (auto column = columns.begin(); column != columns.end(); ++column) {
            bool is_number = false;
            const int number = column.key().toInt(&is_number);
            if (is_number) widths[number] = column.value().toDouble();
        }
        grid->widths().take_own(widths);
    }
}

void kept_layout::write() {
    if (kept_ == written_) return;
    try {
        write_whole_file(file_, QJsonDocument(kept_).toJson().toStdString(), "the sizes of the windows");
        written_ = kept_;
    } catch (const file_error&) {
        // Next time the windows stand as they did before.
        return;
    }
}

}  // namespace kel
