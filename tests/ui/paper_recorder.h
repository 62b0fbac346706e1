// A sheet of paper that remembers what was written on it: every run of text with its place and size.
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <string>
#include <vector>

#include "ui/widgets/print_job.h"
#include "ui/widgets/qt_text.h"

namespace kel::test {

struct written_text {
    std::string text;
    QPointF place;  // of its base line, from the sheet's upper left margin
    double size_pt;
};

class recording_engine : public QPaintEngine {
  public:
    recording_engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& place, const QPixmap& /*picture*/, const QRectF& /*part*/) override {
        pictures.push_back(painter()->combinedTransform().mapRect(place));
    }
    void drawImage(const QRectF& place, const QImage& /*picture*/, const QRectF& /*part*/,
                   Qt::ImageConversionFlags /*flags*/) override {
        pictures.push_back(painter()->combinedTransform().mapRect(place));
    }
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        // What lies outside of the clip is not seen.
        if (painter()->hasClipping() && !painter()->clipBoundingRect().contains(place)) return;
        if (item.text().trimmed().isEmpty()) return;
        texts.push_back({from_qt(item.text().trimmed()), painter()->combinedTransform().map(place),
                         item.font().pointSizeF()});
    }
    Type type() const override { return User; }

    std::vector<written_text> texts;
    std::vector<QRectF> pictures;
};

class recording_paper : public QPaintDevice {
  public:
    explicit recording_paper(int dots_per_inch) : dots_(dots_per_inch) {}
    QPaintEngine* paintEngine() const override { return &engine; }

    mutable recording_engine engine;

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return dots_;
            case PdmWidth:
            case PdmHeight:
                return dots_ * 12;
            case PdmDevicePixelRatio:
                return 1;
            default:
                return QPaintDevice::metric(metric);
        }
    }

  private:
    int dots_;
};

struct recorded_sheet {
    std::vector<written_text> texts;
    std::vector<QRectF> pictures;

    /// The runs that read so.
    std::vector<written_text> found(const std::string& text) const {
        std::vector<written_text> runs;
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(runs),
                     [&](const written_text& run) { return run.text == text; });
        return runs;
    }
    int count(const std::string& text) const { return static_cast<int>(found(text).size()); }
};

inline recorded_sheet recorded(const print_job& job, int sheet, int dots_per_inch) {
    const recording_paper paper(dots_per_inch);
    QPainter painter(const_cast<recording_paper*>(&paper));
    job.draw(sheet, painter);
    painter.end();
    return {paper.engine.texts, paper.engine.pictures};
}

}  // namespace kel::test
