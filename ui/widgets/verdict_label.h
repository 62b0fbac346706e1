// A verdict in a place that never changes its size: a mark that is told apart by its shape, and as many lines
// of the sentence as fit. What is cut off stands in the tool tip.
#pragma once

#include <QString>
#include <QWidget>

namespace kel {

class verdict_label : public QWidget {
    Q_OBJECT

  public:
    enum class mark { none, done, open, look, wrong };

    explicit verdict_label(QWidget* parent = nullptr);

    /// `more` follows the sentence in the tool tip.
    void show_verdict(mark shape, const QString& sentence, const QString& more = {});
    const QString& sentence() const { return sentence_; }
    mark shape() const { return shape_; }

    QSize sizeHint() const override;
    /// A narrow window cuts the sentence, not the buttons.
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int mark_size() const;
    void paint_mark(QPainter& painter) const;
    void paint_sentence(QPainter& painter) const;

    mark shape_ = mark::none;
    QString sentence_;
};

}  // namespace kel
