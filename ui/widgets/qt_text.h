// Text across the toolkit's border: UTF-8 inside, QString outside.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kel {

inline QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
/// A tool tip that shows the text as it stands, also if it looks like markup.
inline QString plain_tip(const QString& text) {
    return text.isEmpty() ? text : "<p>" + text.toHtmlEscaped() + "</p>";
}
inline std::string from_qt(const QString& text) {
    return text.toStdString();
}

}  // namespace kel
