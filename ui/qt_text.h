// Text across the toolkit's border: UTF-8 inside, QString outside.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kel {

inline QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string from_qt(const QString& text) {
    return text.toStdString();
}

}  // namespace kel
