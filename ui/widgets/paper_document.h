// A page as a document for paper: no text below nine points, words and figures whole, pictures no wider than
// the paper.
#pragma once

#include <QHash>
#include <QImage>
#include <QTextDocument>
#include <QUrl>

namespace kel {

inline constexpr double smallest_text_pt = 9;

class paper_document : public QTextDocument {
    Q_OBJECT

  public:
    /// `folder` is where the page lies: a folder with a slash at its end, or the page's own address.
    paper_document(const QString& html, const QUrl& folder);

    /// Lays it out as it will be on the device, `width_px` of the device wide. Returns the width that it
    /// takes, which is larger if a table does not fit. The device outlives the document.
    double lay_out(QPaintDevice* device, double width_px);
    /// Lets words without a blank break, for a table that fits no paper otherwise. To be laid out again.
    void break_long_words();
    /// Columns of the widest table; 0 without one.
    int most_columns() const;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void set_tables();
    void raise_small_text();
    void fit_pictures(double width_px, double dpi);

    QHash<QUrl, QImage> pictures_;
};

}  // namespace kel
