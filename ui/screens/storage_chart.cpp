#include "ui/screens/storage_chart.h"

#include <QBuffer>
#include <QEvent>
#include <QGraphicsLayout>
#include <QPalette>
#include <QToolTip>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <cmath>

#include "core/whole_file.h"
#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

const QStringList month_labels{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

constexpr double full_percent = 100;
constexpr int least_lines = 11;  // of its height
// A store of a few litres must not send the line into figures that the drawing cannot hold.
constexpr float highest_drawn = 10000;
constexpr QSize picture_px{720, 340};
// The report shows the picture in that size; on paper it has so many dots to each of these.
constexpr int picture_dots = 3;
constexpr int dots_per_m = 3780;  // 96 an inch

// Blue and vermilion stay apart in print and for most colour-blind eyes; the lighter pair is for dark themes.
struct line_colours {
    QRgb level;
    QRgb full;
};
constexpr line_colours on_light{0xff1f5f99, 0xffb03a1e};
constexpr line_colours on_dark{0xff7fb8ea, 0xffff9a7a};

QPalette paper() {
    QPalette white(Qt::white);
    white.setColor(QPalette::Base, Qt::white);
    white.setColor(QPalette::Text, Qt::black);
    return white;
}

// The smallest round height, in percent, that the figures fit under and that the divisions cut into whole
// numbers.
double automatic_maximum(const monthly_values& percents, int divisions) {
    const double largest = *std::max_element(percents.begin(), percents.end());
    for (const int step : {1, 2, 5, 10})
        if (step * divisions >= largest) return step * divisions;
    return std::ceil(largest / divisions) * divisions;
}

QColor mixed(const QColor& a, const QColor& b) {
    return {(a.red() + 3 * b.red()) / 4, (a.green() + 3 * b.green()) / 4, (a.blue() + 3 * b.blue()) / 4};
}

}  // namespace

storage_chart::storage_chart(QWidget* parent)
    : QChartView(parent),
      line_(new QLineSeries),
      marks_(new QScatterSeries),
      full_(new QLineSeries),
      months_(new QBarCategoryAxis),
      scale_(new QValueAxis) {
    setObjectName("MSChartStorage");
    setAccessibleName(tr("Percent full at month end"));
    setFocusPolicy(Qt::NoFocus);
    setRenderHint(QPainter::Antialiasing);
    setFrameStyle(QFrame::NoFrame);
    setMinimumHeight(std::max(150, least_lines * fontMetrics().lineSpacing()));
    chart()->legend()->hide();
    chart()->setMargins({4, 4, 12, 4});
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    chart()->setBackgroundRoundness(0);
    add_lines();
    add_axes();
    set_colours(palette());
    show_percents({}, {});
}

void storage_chart::add_lines() {
    for (int m = 0; m < 12; ++m) {
        line_->append(m, 0);
        marks_->append(m, 0);
    }
    full_->append(-0.5, full_percent);
    full_->append(11.5, full_percent);
    marks_->setMarkerSize(8);
    connect(marks_, &QScatterSeries::hovered, this, &storage_chart::tell_point);
    for (QXYSeries* series :
         {static_cast<QXYSeries*>(full_), static_cast<QXYSeries*>(line_), static_cast<QXYSeries*>(marks_)})
        chart()->addSeries(series);
}

void storage_chart::add_axes() {
    months_->append(month_labels);
    scale_->setLabelFormat("%.0f");
    scale_->setTruncateLabels(false);
    scale_->setTitleText(tr("% full at month end"));
    chart()->addAxis(months_, Qt::AlignBottom);
    chart()->addAxis(scale_, Qt::AlignLeft);
    for (QAbstractSeries* series : chart()->series()) {
        series->attachAxis(months_);
        series->attachAxis(scale_);
    }
    QFont plain = scale_->titleFont();
    plain.setBold(false);
    scale_->setTitleFont(plain);
}

void storage_chart::set_colours(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const QColor grid = mixed(ink, ground);
    const line_colours lines = ground.lightness() > 127 ? on_light : on_dark;
    setBackgroundBrush(ground);
    chart()->setBackgroundBrush(ground);
    chart()->setTitleBrush(ink);
    for (QAbstractAxis* axis : chart()->axes()) {
        axis->setLabelsBrush(ink);
        axis->setTitleBrush(ink);
        axis->setLinePen(QPen(ink, 1));
        axis->setGridLinePen(QPen(grid, 1));
    }
    months_->setGridLineVisible(false);
    line_->setPen(QPen(QColor(lines.level), 2));
    marks_->setBrush(QColor(lines.level));
    marks_->setPen(QPen(ground, 1));
    full_->setPen(QPen(QColor(lines.full), 1.5, Qt::DashLine));
}

void storage_chart::show_percents(const monthly_values& percents, const percent_axis& axis) {
    percents_ = percents;
    axis_ = axis;
    QList<QPointF> points;
    for (std::size_t m = 0; m < percents.size(); ++m)
        points << QPointF(static_cast<double>(m), std::min(percents[m], highest_drawn));
    line_->replace(points);
    marks_->replace(points);
    scale_->setTickCount(axis.divisions + 1);
    scale_->setRange(0, axis.maximum ? *axis.maximum : automatic_maximum(percents, axis.divisions));
    tell_above_top();
    describe();
}

// The line leaves the drawing there, and would else look as if it ended at the top.
void storage_chart::tell_above_top() {
    const double top = std::min<double>(scale_->max(), highest_drawn);
    const auto highest = std::ranges::max_element(percents_);
    const auto above = std::ranges::count_if(percents_, [top](float percent) { return percent > top; });
    QString told;
    if (above > 0) {
        const QString figure =
            tr("%1 with %2 %").arg(month_labels[highest - percents_.begin()]).arg(*highest, 0, 'f', 1);
        told = above == 1
                   ? tr("Above the top of the chart: %1").arg(figure)
                   : tr("%1 months are above the top of the chart, the highest %2").arg(above).arg(figure);
    }
    chart()->setTitle(told);
}

void storage_chart::describe() {
    QStringList figures;
    if (!chart()->title().isEmpty()) figures << chart()->title();
    for (std::size_t m = 0; m < percents_.size(); ++m)
        figures
            << QString("%1 %2 %").arg(month_labels[static_cast<qsizetype>(m)]).arg(percents_[m], 0, 'f', 1);
    setAccessibleDescription(figures.join(", "));
}

void storage_chart::tell_point(const QPointF& point, bool entered) {
    if (!entered) return QToolTip::hideText();
    const auto month = static_cast<qsizetype>(std::lround(point.x()));
    QToolTip::showText(
        QCursor::pos(),
        tr("%1: %2 %").arg(month_labels[month]).arg(percents_[static_cast<std::size_t>(month)], 0, 'f', 1),
        this);
}

void storage_chart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) set_colours(palette());
}

void storage_chart::save_picture(const std::string& path) const {
    storage_chart print;
    print.set_colours(paper());
    print.show_percents(percents_, axis_);
    print.resize(picture_px);
    QImage picture(picture_px * picture_dots, QImage::Format_RGB32);
    picture.setDevicePixelRatio(picture_dots);
    print.QWidget::render(&picture);
    picture.setDotsPerMeterX(dots_per_m * picture_dots);
    picture.setDotsPerMeterY(dots_per_m * picture_dots);
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "BMP");
    write_whole_file(path, {file.constData(), static_cast<std::size_t>(file.size())}, "the chart");
}

}  // namespace kel
