#include "ui/widgets/why_page.h"

#include <QCoreApplication>
#include <array>

#include "ui/widgets/qt_text.h"

namespace kel {

namespace {

using kind = explanation_line::kind;

struct section {
    kind what;
    const char* heading;
};
constexpr std::array<section, 4> sections{{
    {kind::rule, QT_TRANSLATE_NOOP("why", "What holds here")},
    {kind::input, QT_TRANSLATE_NOOP("why", "What went in")},
    {kind::step, QT_TRANSLATE_NOOP("why", "How it was worked out")},
    {kind::source, QT_TRANSLATE_NOOP("why", "Where the fixed figures come from")},
}};

QString escaped(std::string_view text) {
    return qt(text).toHtmlEscaped();
}

QString paragraph(const QString& content, int indent_px = 0) {
    return QString("<p style=\"margin:0px 0px 4px %1px\">%2</p>").arg(indent_px).arg(content);
}

QString heading(const QString& text) {
    return QString("<p style=\"margin:8px 0px 2px 0px\"><b>%1</b></p>").arg(text);
}

QString subject_line(const std::string& subject) {
    return QString("<p style=\"margin:0px 0px 6px 0px; font-size:large\"><b>%1</b></p>")
        .arg(escaped(subject));
}

QString lines_of(const explanation& why, const section& part) {
    constexpr int indent_px = 12;
    QString lines;
    for (const explanation_line& line : why.lines())
        if (line.what == part.what) lines += paragraph(escaped(line.text), indent_px);
    return lines.isEmpty() ? lines : heading(QCoreApplication::translate("why", part.heading)) + lines;
}

}  // namespace

QString why_page(const explanation& why, std::string_view shown) {
    QString page = subject_line(why.subject());
    for (const section& part : sections)
        page += lines_of(why, part);
    page += "<hr>" + paragraph("<b>" + escaped(why.last_line()) + "</b>");
    const std::string stale = stale_note(why, shown);
    return stale.empty() ? page : page + paragraph("<i>" + escaped(stale) + "</i>");
}

QString why_page(const std::string& subject, const QString& sentence) {
    return (subject.empty() ? QString() : subject_line(subject)) + paragraph(sentence.toHtmlEscaped());
}

}  // namespace kel
