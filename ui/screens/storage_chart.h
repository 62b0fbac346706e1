// The chart of the stores: how full they are at the end of each month, in percent. On the screen it wears the
// desktop's colours; the picture for the report is always drawn on white.
#pragma once

#include <QtCharts/QChartView>
#include <string>

#include "storage/storage_balance.h"

class QBarCategoryAxis;
class QLineSeries;
class QScatterSeries;
class QValueAxis;

namespace kel {

class storage_chart : public QChartView {
    Q_OBJECT

  public:
    explicit storage_chart(QWidget* parent = nullptr);

    /// Moves the twelve points to these figures.
    void show_percents(const monthly_values& percents, const percent_axis& axis);
    /// Writes the chart as a picture, a bitmap. Throws file_error.
    void save_picture(const std::string& path) const;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void add_lines();
    void add_axes();
    void set_colours(const QPalette& palette);
    void tell_above_top();
    void describe();
    void tell_point(const QPointF& point, bool entered);

    QLineSeries* line_;
    QScatterSeries* marks_;
    QLineSeries* full_;  // the stores' capacity
    QBarCategoryAxis* months_;
    QValueAxis* scale_;
    monthly_values percents_{};
    percent_axis axis_;
};

}  // namespace kel
